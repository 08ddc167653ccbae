// Tile kernels: one tile of the 32f transposition.
#include "zelmrun.h"
#include "zelmtransposetile.h"
#include "zelmturn.h"

namespace zelm {
namespace {

// n floats from a buffer past the caches to dst, a multiple of four, singly up to where vectors are aligned.
void streamRow(char* dst, const char* buffer, int64_t n) {
  constexpr int64_t E = sizeof(float);
  const auto single = [&](int64_t e) { streamElement(dst + e * E, loadElement<int32_t>(buffer + e * E)); };
  const int64_t lead = elementsToAlignment<float>(dst);
  int64_t e = 0;
  for (; e < n && e < lead; ++e)
    single(e);
  e = runVectors<float, true>(Unchanged{}, dst, e, n, Elements<float>{buffer});
  for (; e < n; ++e)
    single(e);
}

} // namespace
} // namespace zelm

extern "C" void owniTranspose_32s_asm(const char* src, int64_t srcStep, char* dst, int64_t dstStep, int32_t width,
                                      int32_t rows) {
  zelm::turnRows<float>(zelm::EvenRows<const char>{src, srcStep}, zelm::EvenRows<char>{dst, dstStep}, rows, width);
}

// Whole cache lines are streamed best, so some columns, a line of each source row, are collected in a buffer first.
extern "C" void owniTranspose_32s_NT(const char* src, int64_t srcStep, char* dst, int64_t dstStep, int32_t width,
                                     int32_t rows) {
  using namespace zelm;
  if (elementsToAlignment<float>(dst) < 0 || dstStep % 4 != 0) // elements that cross lines are stored as they come
    return owniTranspose_32s_asm(src, srcStep, dst, dstStep, width, rows);
  constexpr int64_t E = sizeof(float);
  constexpr int64_t columnsAtATime = 16;
  constexpr int64_t rowsAtATime = 512;
  constexpr int64_t pitch = rowsAtATime * E + 64;
  alignas(64) char buffer[columnsAtATime * pitch];
  for (int64_t row = 0; row < rows; row += rowsAtATime) {
    const int64_t high = rows - row < rowsAtATime ? rows - row : rowsAtATime;
    for (int64_t column = 0; column < width; column += columnsAtATime) {
      const int64_t wide = width - column < columnsAtATime ? width - column : columnsAtATime;
      // While a line of each row is moved, the next one is fetched.
      for (int64_t r = 0; r < high && column + columnsAtATime < width; ++r)
        __builtin_prefetch(src + (row + r) * srcStep + (column + columnsAtATime) * E);
      turnRows<float>(EvenRows<const char>{src + row * srcStep + column * E, srcStep}, EvenRows<char>{buffer, pitch},
                      high, wide);
      for (int64_t c = 0; c < wide; ++c)
        streamRow(dst + (column + c) * dstStep + row * E, buffer + c * pitch, high);
    }
  }
  endStreams();
}
