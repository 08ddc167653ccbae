// Transpose: dst(j, i) = src(i, j).
#pragma once

#include "zelmrun.h"
#include "zelmtransposesignature.h"
#include "zelmtransposetile.h"

namespace zelm {

// The source read with rows and columns exchanged; other sizes than those with straight-line code are a loop over the
// rows of the result.
template <class List, class S, class D, class N = Fixed<1>>
ZELM_INLINE ZelStatus transpose(const S& src, int32_t width, int32_t height, const D& dst, N count = {}) {
  return elementwiseOf(Unchanged{}, List{}, height, width, count, dst, Transposed<S>(src));
}

// Whether a batch is streamed past the caches: if what it reads and writes, a number of bytes that wraps, would fill
// more than three quarters of the largest cache. Small batches are not worth the query.
inline bool fillsCache(int32_t width, int32_t height, int32_t count) {
  const auto wraps = [](int32_t x) { return static_cast<uint32_t>(x); };
  const auto traffic = static_cast<int32_t>(wraps(width) * wraps(height) * 8 * wraps(count));
  if (traffic <= 131072)
    return false;
  const int32_t cache = largestCache();
  return cache != 0 && traffic > cache - cache / 4;
}

ZELM_INLINE void transposeTiles(const StridedMatrixView<const float, AnyStep, UnitStep<const float>>& src,
                                const StridedMatrixView<float, AnyStep, UnitStep<float>>& dst, int32_t width,
                                int32_t height, bool streams) {
  ownm_Transpose_32s(src.origin, src.rowStep, dst.origin, dst.rowStep, width, height, streams);
}
ZELM_INLINE void transposeTiles(const StridedMatrixView<const double, AnyStep, UnitStep<const double>>& src,
                                const StridedMatrixView<double, AnyStep, UnitStep<double>>& dst, int32_t width,
                                int32_t height, bool) {
  ownm_iTranspose_16u_C4R_M7(src.origin, src.rowStep, dst.origin, dst.rowStep, width, height);
}

// Contiguous rows: all but the sizes with straight-line code are cut into tiles. Of 32f the result may be streamed; a
// single matrix is left to the tile kernel in that.
template <class List, class S, class D>
ZELM_INLINE ZelStatus transposeRows(const S& src, int32_t width, int32_t height, const D& dst) {
  if (isStraight(List{}, width, height))
    return transpose<List>(src, width, height, dst);
  transposeTiles(src.object(0, width), dst.object(0, height), width, height, false);
  return zelStatusOk;
}
template <class List, class S, class D>
ZELM_INLINE ZelStatus transposeRows(const S& src, int32_t width, int32_t height, const D& dst, int32_t count) {
  if (isStraight(List{}, width, height))
    return transpose<List>(src, width, height, dst, count);
  const bool streams = sizeof(typename D::Element) == 4 && fillsCache(width, height, count);
  for (int32_t k = 0; k < count; ++k)
    transposeTiles(src.object(k, width), dst.object(k, height), width, height, streams);
  return zelStatusOk;
}

} // namespace zelm
