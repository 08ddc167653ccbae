// Tile kernels: a whole matrix, cut into tiles of rows.
#include "zelmkernel.h"
#include "zelmtransposetile.h"
#include "zelmturn.h"

namespace zelm {

int32_t largestCache() {
  int32_t bytes = 0;
  zelGetMaxCacheSizeB(&bytes);
  return bytes;
}

namespace {

// A matrix that alone, read and written, is larger than the largest cache. Small ones are not worth the query.
bool exceedsCache(int32_t width, int32_t height) {
  if (smaller(width, height) <= 128)
    return false;
  const int32_t cache = largestCache();
  return cache != 0 && cache < int64_t{width} * height * 8;
}

} // namespace
} // namespace zelm

extern "C" void ownm_Transpose_32s(const char* src, int64_t srcStep, char* dst, int64_t dstStep, int32_t width,
                                   int32_t height, bool streams) {
  streams = streams || zelm::exceedsCache(width, height);
  // Streamed tiles of rows that are no whole cache lines would leave lines half written on both sides of each tile.
  const int32_t tileRows = streams && width % 16 != 0 ? height : zelm::smaller(height, 64);
  const auto tile = streams ? owniTranspose_32s_NT : owniTranspose_32s_asm;
  for (int64_t row = 0; row < height; row += tileRows)
    tile(src + row * srcStep, srcStep, dst + row * 4, dstStep, width,
         height - row < tileRows ? static_cast<int32_t>(height - row) : tileRows);
}

extern "C" void ownm_iTranspose_16u_C4R_M7(const char* src, int64_t srcStep, char* dst, int64_t dstStep, int32_t width,
                                           int32_t height) {
  zelm::turnRows<double>(zelm::EvenRows<const char>{src, srcStep}, zelm::EvenRows<char>{dst, dstStep}, height, width);
}
