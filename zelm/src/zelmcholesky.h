// Cholesky decomposition A = L * transpose(L) and the solution of systems with it.
//
// The factor holds 1 / L(i, i) on its diagonal. Above the diagonal nothing is read and nothing is written, in sources
// and results alike: rows are loaded and stored up to the diagonal.
#pragma once

#include "zelmblock.h"
#include "zelmcholeskysignature.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Reciprocal roots of pivots

// 1 / sqrt(d), root and division in double, rounded once.
struct WidenedRoot {
  template <class L> ZELM_INLINE static L reciprocal(const L& d) {
    if constexpr (sizeof(ElementOf<L>) == 4)
      return narrowed(reciprocal(widened(d)));
    else
      return splat<L>(1) / squareRoot(d);
  }
};

// The root rounded to the element type, and the division in it.
struct RoundedRoot {
  template <class T> ZELM_INLINE static T reciprocal(T d) { return 1 / squareRoot(d); }
};

// ---------------------------------------------------------------------------------------------------------------------
// What differs between the kernels of the decomposition: the limit that a pivot has to exceed, by side, and the root
// of the general loop

struct AboveZero {
  using GeneralRoot = WidenedRoot;
  static constexpr double limit(int) { return 0; }
};
// Pointer layout: 2^-23 at side 3, for `64f` too.
struct AboveEpsilonAt3 {
  using GeneralRoot = WidenedRoot;
  static constexpr double limit(int side) { return side == 3 ? 0x1p-23 : 0; }
};
struct AboveEpsilonAt3RoundedRoot : AboveEpsilonAt3 {
  using GeneralRoot = RoundedRoot;
};
// Side 6 and the general loop.
struct AboveEpsilonFrom6On {
  using GeneralRoot = WidenedRoot;
  static constexpr double limit(int side) { return side >= 3 && side <= 5 ? 0 : 0x1p-52; }
};

// ---------------------------------------------------------------------------------------------------------------------
// Arithmetic, on an object or on a block of them

// The lower triangle, row after row.
template <class L> struct Triangle {
  Column<L> elements;
  ZELM_INLINE L load(int i, int j) const { return elements.load(triangleElements(i) + j); }
  ZELM_INLINE void store(int i, int j, const L& value) const { elements.store(triangleElements(i) + j, value); }
};

// Row after row; false at the first pivot that the limit is greater than or equal to in any lane. A NaN passes.
template <class L, class Root, class Source, class Factor, class Side>
ZELM_INLINE bool choleskyFactor(const Source& src, const Factor& dst, Side side, ElementOf<L> limit) {
  return whileAscending(Fixed<0>{}, side, [&](auto i) ZELM_BODY {
    ascending(Fixed<0>{}, i, [&](auto j) ZELM_BODY {
      L s = src.load(i, j);
      ascending(Fixed<0>{}, j, [&](auto k) ZELM_BODY { s = s - dst.load(i, k) * dst.load(j, k); });
      dst.store(i, j, s * dst.load(j, j));
    });
    L d = src.load(i, i);
    ascending(Fixed<0>{}, i, [&](auto k) ZELM_BODY { d = d - dst.load(i, k) * dst.load(i, k); });
    if (any(greaterEqual(splat<L>(limit), d)))
      return false;
    dst.store(i, i, Root::reciprocal(d));
    return true;
  });
}

// Forwards with L, then backwards with its transpose by columns of L; every division is a product with the reciprocal.
template <class L, class Factor, class Right, class Result, class Side>
ZELM_INLINE void choleskySolve(const Factor& factor, const Right& right, const Result& result, Side side) {
  ascending(Fixed<0>{}, side, [&](auto i) ZELM_BODY {
    L y = right.load(i);
    ascending(Fixed<0>{}, i, [&](auto j) ZELM_BODY { y = y - factor.load(i, j) * result.load(j); });
    result.store(i, y * factor.load(i, i));
  });
  descending(Fixed<0>{}, side, [&](auto i) ZELM_BODY {
    L x = result.load(i);
    descending(next(i), side, [&](auto j) ZELM_BODY { x = x - factor.load(j, i) * result.load(j); });
    result.store(i, x * factor.load(i, i));
  });
}

// ---------------------------------------------------------------------------------------------------------------------
// Decomposition

using StraightSides = Sizes<3, 4, 5, 6>;

template <int N, class Pivots, class Source, class Result>
ZELM_INLINE ZelStatus choleskyFactorFixed(Pivots, const Source& src, const Result& dst) {
  using T = typename Result::Element;
  T element[triangleElements(N)];
  const Triangle<T> triangle{{element}};
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY {
    ascending(Fixed<0>{}, next(i), [&](auto j) ZELM_BODY { triangle.store(i, j, src.load(i, j)); });
  });
  const auto storeRow = [&](auto i) ZELM_BODY {
    ascending(Fixed<0>{}, next(i), [&](auto j) ZELM_BODY { dst.store(i, j, triangle.load(i, j)); });
  };
  if (choleskyFactor<T, WidenedRoot>(triangle, triangle, Fixed<N>{}, static_cast<T>(Pivots::limit(N)))) {
    ascending(Fixed<0>{}, Fixed<N>{}, storeRow);
    return zelStatusOk;
  }
  // Up to the row of the failing pivot everything is finished, and is stored.
  choleskyFactor<T, WidenedRoot>(src, dst, static_cast<int>(N), static_cast<T>(Pivots::limit(N)));
  return zelStatusNotPositiveDefinite;
}

template <class Pivots, class Source, class Result>
ZELM_INLINE ZelStatus choleskyFactorGeneral(Pivots, const Source& src, const Result& dst, int32_t side) {
  using T = typename Result::Element;
  const auto limit = static_cast<T>(Pivots::limit(side));
  return choleskyFactor<T, typename Pivots::GeneralRoot>(src, dst, static_cast<int>(side), limit)
             ? zelStatusOk
             : zelStatusNotPositiveDefinite;
}

// Single objects.
template <class Pivots, class Source, class Result>
ZELM_INLINE ZelStatus choleskyFactors(const Source& src, const Result& dst, int32_t side) {
  const auto source = src.object(0, side);
  const auto result = dst.object(0, side);
  return forSize(
      StraightSides{}, side,
      [&](auto fixed) ZELM_BODY { return choleskyFactorFixed<decltype(fixed)::value>(Pivots{}, source, result); },
      [&]() ZELM_BODY { return choleskyFactorGeneral(Pivots{}, source, result, side); });
}

// Matrices without straight-line code go in lanes, through memory, up to this side.
constexpr int choleskyLaneSide = 16;
template <class Side> constexpr int choleskyRoom = choleskyLaneSide;
template <int N> constexpr int choleskyRoom<Fixed<N>> = N;

// body(side), known to the compiler if it is 2.
template <class Body> ZELM_INLINE ZelStatus forLaneSide(int32_t side, const Body& body) {
  return side == 2 ? body(Fixed<2>{}) : body(static_cast<int>(side));
}

// A block of two vectors full; nothing is stored unless every lane has all its pivots.
template <class Source, class Result, class Side>
ZELM_NOINLINE bool choleskyFactorBlock(const Source& srcLow, const Source& srcHigh, const Result& dstLow,
                                       const Result& dstHigh, Side side, typename Result::Element limit) {
  using V = Lanes<typename Result::Element>;
  using L = Pair<V>;
  V low[triangleElements(choleskyRoom<Side>)];
  V high[triangleElements(choleskyRoom<Side>)];
  loadTriangle(srcLow, low, side);
  loadTriangle(srcHigh, high, side);
  const Triangle<L> triangle{{low, high}};
  if (!choleskyFactor<L, WidenedRoot>(triangle, triangle, side, limit))
    return false;
  storeTriangle(dstLow, low, side);
  storeTriangle(dstHigh, high, side);
  return true;
}

// How many objects are done one by one before they would take as long as a block of two vectors full.
template <class T, class Side> constexpr int fewFactors = 1;
template <class T, int N> constexpr int fewFactors<T, Fixed<N>> = N > 2 ? (2 * laneCount<T> + N - 1) / N : 1;

// single(k) is object k where a block is not done as a whole.
template <class Pivots, class Source, class Result, class Side, class Single>
ZELM_INLINE ZelStatus choleskyFactorBlocks(Pivots, const Source& src, const Result& dst, Side side, int32_t count,
                                           const Single& single) {
  using T = typename Result::Element;
  constexpr int W = laneCount<T>;
  auto sourcesLow = matrixBlocks(src, side);
  auto sourcesHigh = matrixBlocks(src, side);
  auto resultsLow = matrixBlocks(dst, side);
  auto resultsHigh = matrixBlocks(dst, side);
  return forBlocks<2 * W, isPointerLayout<Source>, fewFactors<T, Side>>(
      count, areNeighbours(src) && areNeighbours(dst),
      [&](auto block) ZELM_BODY {
        const auto low = block.template low<W>();
        const auto high = block.template high<W>();
        return choleskyFactorBlock(sourcesLow.at(low), sourcesHigh.at(high), resultsLow.at(low), resultsHigh.at(high),
                                   side, static_cast<T>(Pivots::limit(side)));
      },
      single);
}

// Batches. general(side) does all objects of a side without straight-line code.
template <class Pivots, class Source, class Result, class General>
ZELM_INLINE ZelStatus choleskyFactorBatch(Pivots pivots, const Source& src, const Result& dst, int32_t side,
                                          int32_t count, const General& general) {
  return forSize(
      StraightSides{}, side,
      [&](auto n) ZELM_BODY {
        return choleskyFactorBlocks(pivots, src, dst, n, count, [&](int64_t k) ZELM_BODY {
          return choleskyFactorFixed<n>(pivots, src.object(k, n), dst.object(k, n));
        });
      },
      general);
}

// Objects first, first + 1, ... of a batch up to the first failure.
template <class Single> ZELM_INLINE ZelStatus oneByOne(int32_t count, const Single& single) {
  for (int64_t k = 0; k < count; ++k)
    if (const ZelStatus status = single(k); status != zelStatusOk)
      return status;
  return zelStatusOk;
}

template <class Pivots, class Source, class Result>
ZELM_INLINE ZelStatus choleskyFactors(const Source& src, const Result& dst, int32_t side, int32_t count) {
  static_assert(std::is_same_v<typename Pivots::GeneralRoot, WidenedRoot>, "the root of the blocks");
  const auto single = [&](int64_t k) ZELM_NOINLINE {
    return choleskyFactorGeneral(Pivots{}, src.object(k, side), dst.object(k, side), side);
  };
  return choleskyFactorBatch(Pivots{}, src, dst, side, count, [&]() ZELM_BODY {
    if (side > choleskyLaneSide)
      return oneByOne(count, single);
    return forLaneSide(side,
                       [&](auto n) ZELM_BODY { return choleskyFactorBlocks(Pivots{}, src, dst, n, count, single); });
  });
}

// Pointer layout: the other sides go to the kernel of the single object, which Single names.
template <class Single, class Source, class Result>
ZELM_INLINE ZelStatus choleskyFactorsBySingle(const Source& src, const Result& dst, Size side, int32_t count) {
  return choleskyFactorBatch(typename Single::Pivots{}, src, dst, side, count, [&]() ZELM_BODY {
    return oneByOne(count, [&](int64_t k) ZELM_BODY { return Single::kernel(src.single(k), dst.single(k), side); });
  });
}

// ---------------------------------------------------------------------------------------------------------------------
// Back substitution

template <int N, class Factor, class Right, class Result>
ZELM_INLINE void choleskySolveFixed(const Factor& factor, const Right& right, const Result& dst) {
  using T = typename Result::Element;
  T element[N];
  const Column<T> x{element};
  choleskySolve<T>(factor, right, x, Fixed<N>{});
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { dst.store(i, x.load(i)); });
}

// Single objects.
template <class Factor, class Right, class Result>
ZELM_INLINE ZelStatus choleskySolutions(const Factor& src1, const Right& src2, const Result& dst, int32_t side) {
  using T = typename Result::Element;
  const auto factor = src1.object(0, side);
  const auto right = src2.object(0);
  const auto result = dst.object(0);
  return forSize(
      StraightSides{}, side,
      [&](auto fixed) ZELM_BODY {
        choleskySolveFixed<decltype(fixed)::value>(factor, right, result);
        return zelStatusOk;
      },
      [&]() ZELM_BODY {
        choleskySolve<T>(factor, right, result, static_cast<int>(side));
        return zelStatusOk;
      });
}

template <class L, class Right, class Result, class Side>
ZELM_INLINE void choleskySolveLanes(L* factor, const Right& right, const Result& dst, Side side) {
  L element[choleskyRoom<Side>];
  const Column<L> x{element};
  loadVector(right, element, side);
  choleskySolve<L>(Triangle<L>{{factor}}, x, x, side);
  storeVector(dst, element, side);
}

// A factor for each lane.
template <class Factor, class Right, class Result, class Side>
ZELM_NOINLINE void choleskySolveEach(const Factor& factor, const Right& right, const Result& dst, Side side) {
  Lanes<typename Result::Element> element[triangleElements(choleskyRoom<Side>)];
  loadTriangle(factor, element, side);
  choleskySolveLanes(element, right, dst, side);
}

// One factor for all lanes.
template <class L, class Right, class Result, class Side>
ZELM_NOINLINE void choleskySolveOne(L* factor, const Right& right, const Result& dst, Side side) {
  choleskySolveLanes(factor, right, dst, side);
}

template <class T, class Side> constexpr int fewSolutions = 1;
template <class T, int N> constexpr int fewSolutions<T, Fixed<N>> = N > 2 ? fewSystems<laneCount<T>>(N) : 1;

// single(k) is object k, alone or one of few.
template <class Factor, class Right, class Result, class Side, class Single>
ZELM_INLINE ZelStatus choleskySolveBlocks(const Factor& src1, const Right& src2, const Result& dst, Side side,
                                          int32_t count, const Single& single) {
  using T = typename Result::Element;
  bool neighbours = areNeighbours(src2) && areNeighbours(dst);
  auto rights = vectorBlocks(src2);
  auto results = vectorBlocks(dst);
  if constexpr (Factor::isArray) {
    neighbours = neighbours && areNeighbours(src1);
    auto factors = matrixBlocks(src1, side);
    return forBlocks<laneCount<T>, isPointerLayout<Result>, fewSolutions<T, Side>>(
        count, neighbours,
        [&](auto block) ZELM_BODY {
          choleskySolveEach(factors.at(block), rights.at(block), results.at(block), side);
          return true;
        },
        single);
  } else {
    Lanes<T> factor[triangleElements(choleskyRoom<Side>)];
    const auto view = src1.object(0, side);
    ascending(Fixed<0>{}, side, [&](auto i) ZELM_BODY {
      ascending(Fixed<0>{}, next(i),
                [&](auto j) ZELM_BODY { factor[triangleElements(i) + j] = splat<Lanes<T>>(view.load(i, j)); });
    });
    return forBlocks<laneCount<T>, isPointerLayout<Result>>(
        count, neighbours,
        [&](auto block) ZELM_BODY {
          choleskySolveOne(factor, rights.at(block), results.at(block), side);
          return true;
        },
        single);
  }
}

// Batches.
template <class Factor, class Right, class Result>
ZELM_INLINE ZelStatus choleskySolutions(const Factor& src1, const Right& src2, const Result& dst, int32_t side,
                                        int32_t count) {
  using T = typename Result::Element;
  return forSize(
      StraightSides{}, side,
      [&](auto n) ZELM_BODY {
        return choleskySolveBlocks(src1, src2, dst, n, count, [&](int64_t k) ZELM_BODY {
          choleskySolveFixed<n>(src1.object(k, n), src2.object(k), dst.object(k));
          return ZelStatus{zelStatusOk};
        });
      },
      [&]() ZELM_BODY {
        const auto single = [&](int64_t k) ZELM_NOINLINE {
          choleskySolve<T>(src1.object(k, side), src2.object(k), dst.object(k), static_cast<int>(side));
          return ZelStatus{zelStatusOk};
        };
        if (side > choleskyLaneSide)
          return oneByOne(count, single);
        return forLaneSide(side,
                           [&](auto n) ZELM_BODY { return choleskySolveBlocks(src1, src2, dst, n, count, single); });
      });
}

} // namespace zelm
