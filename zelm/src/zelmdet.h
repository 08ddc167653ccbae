// Determinants.
//
// Sides 3 to 6 are expanded by minors from the top row down, without a test; every other side is eliminated with row
// pivots in the caller's buffer. A singular matrix is a result here and no failure.
#pragma once

#include "zelmblock.h"
#include "zelmdetsignature.h"
#include "zelmminors.h"
#include "zelmworking.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Sides 3 to 6

// Goes on from the minors of the first K rows. row(i) is row i.
template <int N, class L, int K, class Rows>
ZELM_INLINE L expandDownwards(const Minors<L, N, K>& minors, const Rows& row) {
  constexpr int allColumns = (1 << N) - 1;
  const MatrixRow<L, N> below = row(Fixed<K>{});
  if constexpr (K < N - 1)
    return expandDownwards(withRowBelow(minors, below), row);
  else if constexpr (N == 4) // its last term is added, with the element's sign changed
    return expandBelow<allColumns, 3>(minors, below) + (L{} - below.of[0]) * minors[Fixed<allColumns - 1>{}];
  else
    return expandBelow<allColumns>(minors, below);
}

template <int N, class L, class Rows> ZELM_INLINE L expandedDeterminant(const Rows& row) {
  return expandDownwards(row(Fixed<0>{}), row);
}

template <int N, class View> ZELM_NOINLINE auto determinantOfOne(const View& x) {
  using T = typename View::Element;
  return expandedDeterminant<N, T>([&](auto i) ZELM_BODY {
    MatrixRow<T, N> row;
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY { row.of[j] = x.load(i, j); });
    return row;
  });
}

template <int N, class Objects> ZELM_INLINE auto expandedDeterminants(const Objects& x) {
  using L = Lanes<typename Objects::Element>;
  const auto ofElements = [&]() ZELM_BODY {
    L element[N * N];
    loadElements(x, element, Fixed<N>{}, Fixed<N>{});
    return expandedDeterminant<N, L>([&](auto i) ZELM_BODY {
      MatrixRow<L, N> row;
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY { row.of[j] = element[i * N + j]; });
      return row;
    });
  };
  if constexpr (hasAnySteps<Objects>) {
    return ofElements();
  } else {
    if (x.gapless(N))
      return ofElements();
    return expandedDeterminant<N, L>([&](auto i) ZELM_BODY {
      MatrixRow<L, N> row;
      x.load(i, 0, Fixed<N>{}, row.of);
      return row;
    });
  }
}

// From side 5 on a call of its own.
template <int N, class Objects> ZELM_NOINLINE auto largeDeterminants(const Objects& x) {
  return expandedDeterminants<N>(x);
}
template <int N, class Objects> ZELM_INLINE auto determinantsOfBlock(const Objects& x) {
  if constexpr (N < 5)
    return expandedDeterminants<N>(x);
  else
    return largeDeterminants<N>(x);
}

// ---------------------------------------------------------------------------------------------------------------------
// Every other side

// What a determinant is of whose elimination ends at a pivot below the limit: of a single matrix it is +0.0; in an
// array it is the element in the last place with 0 for its sign.
enum class Vanishing { Zero, SignOfZero };

// The matrix is in the buffer.
template <class T> ZELM_NOINLINE T eliminatedDeterminant(Vanishing vanishing, T* buffer, int side) {
  const WorkingMatrix<T> work(buffer, side, side);
  const auto limit = singularLimit<T>(side);
  T det = 1;
  T sign = 1;
  for (int k = 0; k < side - 1; ++k) {
    if (work.choosePivot(k))
      sign = -sign;
    const T pivot = work.row(k).load(k);
    if (limit > magnitude(pivot)) {
      if (vanishing == Vanishing::Zero)
        return 0;
      sign = 0;
      break;
    }
    work.eliminate(k, [pivot](T x) ZELM_BODY { return x / pivot; });
    det = pivot * det;
  }
  const T last = work.row(side - 1).load(side - 1);
  return magnitude(last) > limit ? det * (last * sign) : 0;
}

template <class View, class T>
ZELM_INLINE T determinantInBuffer(Vanishing vanishing, const View& x, T* buffer, int side) {
  const WorkingMatrix<T> work(buffer, side, side);
  for (int i = 0; i < side; ++i)
    for (int j = 0; j < side; ++j)
      work.stored(i).store(j, x.load(i, j));
  return eliminatedDeterminant(vanishing, buffer, side);
}

// The same of matrices of two by two side by side: as in an array, a pivot below the limit leaves the sign of a zero.
template <class Objects> ZELM_NOINLINE auto eliminatedPairs(const Objects& x) {
  using T = typename Objects::Element;
  using L = Lanes<T>;
  L a[4];
  loadElements(x, a, Fixed<2>{}, Fixed<2>{});
  const auto limit = splat<L>(singularLimit<T>(2));
  const auto exchanged = greater(magnitude(a[2]), magnitude(a[0]));
  const L pivot = select<L>(exchanged, a[2], a[0]);
  const L besidePivot = select<L>(exchanged, a[3], a[1]);
  const L below = select<L>(exchanged, a[0], a[2]);
  const L untouched = select<L>(exchanged, a[1], a[3]);
  const auto vanishes = greater(limit, magnitude(pivot));
  const L last = select<L>(vanishes, untouched, untouched - besidePivot * (below / pivot));
  const L sign = select<L>(vanishes, L{}, select<L>(exchanged, splat<L>(-1), splat<L>(1)));
  const L det = select<L>(vanishes, splat<L>(1), pivot);
  return select<L>(greater(magnitude(last), limit), det * (last * sign), L{});
}

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

using ExpandedSides = Sizes<3, 4, 5, 6>;

// One matrix.
template <class Source, class T>
ZELM_INLINE ZelStatus determinants(const Source& src, Size side, const Buffer<T>& buffer, const Plain<T>& dst) {
  const auto store = [&](T det) ZELM_BODY {
    storeResult(dst, 0, det);
    return ZelStatus{zelStatusOk};
  };
  const auto x = src.object(0, side);
  return forSize(
      ExpandedSides{}, side, [&](auto n) ZELM_BODY { return store(determinantOfOne<n>(x)); },
      [&]() ZELM_BODY { return store(determinantInBuffer(Vanishing::Zero, x, buffer.pointer, side)); });
}

// An array of them.
template <class Source, class T>
ZELM_INLINE ZelStatus determinants(const Source& src, Size side, const Buffer<T>& buffer, const Plain<T>& dst,
                                   Count count) {
  const auto store = [&](int64_t k, T det) ZELM_BODY {
    storeResult(dst, k, det);
    return ZelStatus{zelStatusOk};
  };
  const auto inBlocks = [&](auto n, const auto& ofBlock, const auto& single) ZELM_BODY {
    auto sources = matrixBlocks(src, n);
    return forBlocks<laneCount<T>, isPointerLayout<Source>>(
        count, areNeighbours(src),
        [&](auto block) ZELM_BODY {
          storeValues(dst, block, ofBlock(sources.at(block)));
          return true;
        },
        single);
  };
  return forSize(
      ExpandedSides{}, side,
      [&](auto n) ZELM_BODY {
        return inBlocks(
            n, [&](const auto& x) ZELM_BODY { return determinantsOfBlock<n>(x); },
            [&](int64_t k) ZELM_BODY { return store(k, determinantOfOne<n>(src.object(k, n))); });
      },
      [&]() ZELM_BODY {
        const auto single = [&](int64_t k) ZELM_NOINLINE {
          return store(k, determinantInBuffer(Vanishing::SignOfZero, src.object(k, side), buffer.pointer, side));
        };
        if (side == 2)
          return inBlocks(
              Fixed<2>{}, [](const auto& x) ZELM_BODY { return eliminatedPairs(x); }, single);
        for (int32_t k = 0; k < count; ++k)
          single(k);
        return ZelStatus{zelStatusOk};
      });
}

} // namespace zelm
