// Inner products and lengths of vectors: sums of products, and roots of sums of squares.
//
// The row of a kernel names the tree of its sums of 3 to 6 terms; other lengths are summed from +0.0 in ascending
// order, but for the long runs of single vectors with unit strides.
#pragma once

#include "zelmsum.h"
#include "zelmtriples.h"
#include "zelmvectorsignature.h"

namespace zelm {

// What becomes of a sum. The root of a 32f sum is the same number in single and in double precision: the double one,
// rounded, never lies on the wrong side of the middle between two singles.
struct SumItself {
  template <class L> ZELM_INLINE L operator()(const L& sum) const { return sum; }
};
struct RootOfSum {
  template <class L> ZELM_INLINE L operator()(const L& sum) const { return squareRoot(sum); }
};

// Of objects of an odd number of elements, as they lie.
template <class Tree, class V, int N, int... c>
ZELM_INLINE V sumTurned(const V (&x)[N], std::integer_sequence<int, c...>) {
  const V t[N] = {turnedElement<c>(x)...};
  return turnBack<N>(Tree::of(0, t), std::make_integer_sequence<int, LaneTraits<V>::width>{});
}

// Vectors of N elements without gaps: terms are formed as the elements lie. Of one array, what it is
// multiplied by is the same for every block. Returns the first object not done. Triples of one
// source keep their order; two sources in wide vectors are quicker when only their products are turned.
template <class Tree, class Result, int N, bool TwoArrays, class T>
ZELM_INLINE int64_t sumPacked(const char* a, const char* b, const Plain<T>& dst, int32_t count) {
  constexpr int W = rowLaneCount<T>;
  constexpr int64_t step = TwoArrays ? N * rowBytes : 0;
  using L = RowLanes<T>;
  auto* to = reinterpret_cast<char*>(dst.pointer);
  int64_t k = 0;
  for (; k + W <= count; k += W, a += N * rowBytes, b += step, to += rowBytes) {
    L sum;
    if constexpr (N == 3 && (!TwoArrays || W == chunkElements<T>)) {
      const auto [p, q, r] = loadThree<T>(a);
      const auto [x, y, z] = loadThree<T>(b);
      sum = Tree::of(0, triplesOf(Three<L>{p * x, q * y, r * z}).element);
    } else {
      L product[N];
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto v) ZELM_BODY {
        product[v] = loadRowLanes<T>(a + v * rowBytes) * loadRowLanes<T>(b + v * rowBytes);
      });
      sum = sumTurned<Tree>(product, std::make_integer_sequence<int, N>{});
    }
    storeLanes(to, Result{}(sum));
  }
  return k;
}
// Which lengths go that way.
template <class T, int N> constexpr bool sumsPacked = N == 3 || (N == 5 && rowLaneCount<T> > N);

template <class Tree, class Result, int N, class A, class B, class T>
ZELM_INLINE int64_t sumPackedBatch(const A& src1, const B& src2, const Plain<T>& dst, int32_t count) {
  if constexpr (isRun<A> && isRun<B> && A::isArray && sumsPacked<T, N>) {
    if (isPackedRun(src1, N) && isPackedRun(src2, N) && count >= rowLaneCount<T>) {
      const char* const first = src1.object(0).address(0);
      if constexpr (B::isArray)
        return sumPacked<Tree, Result, N, true>(first, src2.object(0).address(0), dst, count);
      T same[N * rowLaneCount<T>];
      ascending(Fixed<0>{}, Fixed<N * rowLaneCount<T>>{},
                [&](auto e) ZELM_BODY { same[e] = src2.object(0).load(e % N); });
      return sumPacked<Tree, Result, N, false>(first, reinterpret_cast<const char*>(same), dst, count);
    }
  }
  return 0;
}

// Vectors whose length has a tree.
template <class Tree, class Result, int N, class A, class B, class T>
ZELM_INLINE void sumShort(const A& src1, const B& src2, const Plain<T>& dst, int32_t count) {
  int64_t k = 0;
  if constexpr (A::isArray && (hasUnitRows<A> || isPointerLayout<A>)) {
    k = sumPackedBatch<Tree, Result, N>(src1, src2, dst, count);
    if (hasUnitRows<A> || (areNeighbours(src1) && areNeighboursOrSame(src2))) {
      const auto firsts = wholeBlocks<N>(src1);
      const auto seconds = wholeBlocks<N>(src2);
      for (; k + laneCount<T> <= count; k += laneCount<T>) {
        Lanes<T> t[N];
        ProductBlock{firsts(k), seconds(k)}.load(0, Fixed<N>{}, t);
        storeLanes(reinterpret_cast<char*>(dst.pointer + k), Result{}(Tree::of(0, t)));
      }
    }
  }
  for (; k < count; ++k)
    storeResult(dst, k, Result{}(sumOf<Tree, T>(Fixed<N>{}, Products{src1.object(k), src2.object(k)})));
}

// Vectors of any other length, two blocks at a time.
template <class Result, class A, class B, class T>
ZELM_NOINLINE void sumLong(A src1, B src2, Plain<T> dst, int32_t len, int32_t count) {
  constexpr int W = laneCount<T>;
  const auto single = [&](int64_t k) ZELM_BODY {
    storeResult(dst, k, Result{}(addChain(T{}, 0, len, Products{src1.object(k), src2.object(k)})));
    return zelStatusOk;
  };
  if constexpr (!A::isArray) {
    single(0);
  } else {
    auto firsts = sourceBlocks(src1);
    auto seconds = sourceBlocks(src2);
    auto nextFirsts = sourceBlocks(src1);
    auto nextSeconds = sourceBlocks(src2);
    forBlocks<2 * W, isPointerLayout<A>>(
        count, areNeighbours(src1) && areNeighboursOrSame(src2),
        [&](auto block) ZELM_BODY {
          const auto low = block.template low<W>();
          const ProductBlock terms{firsts.at(low), seconds.at(low)};
          if (block.last < W) {
            Lanes<T> sum[1];
            sumBlocks<T>(sum, len, terms);
            storeValues(dst, low, Result{}(sum[0]));
          } else {
            const auto high = block.template high<W>();
            Lanes<T> sum[2];
            sumBlocks<T>(sum, len, terms, ProductBlock{nextFirsts.at(high), nextSeconds.at(high)});
            storeValues(dst, low, Result{}(sum[0]));
            storeValues(dst, high, Result{}(sum[1]));
          }
          return true;
        },
        single);
  }
}

// dst[k] = Result(sum of src1[k](j) * src2[k](j))
template <class Tree, class Result, class A, class B, class T>
ZELM_INLINE ZelStatus sumProducts(const A& src1, const B& src2, const Plain<T>& dst, int32_t len, int32_t count) {
  return forSize(
      typename Tree::Straight{}, len,
      [&](auto n) ZELM_BODY {
        sumShort<Tree, Result, n>(src1, src2, dst, count);
        return zelStatusOk;
      },
      [&]() ZELM_BODY {
        sumLong<Result>(src1, src2, dst, len, count);
        return zelStatusOk;
      });
}

template <class Tree, class A, class B, class T>
ZELM_INLINE ZelStatus dotProducts(const A& src1, const B& src2, const Plain<T>& dst, Size len, Count count = 1) {
  return sumProducts<Tree, SumItself>(src1, src2, dst, len, count);
}
template <class Tree, class A, class T>
ZELM_INLINE ZelStatus norms(const A& src, const Plain<T>& dst, Size len, Count count = 1) {
  return sumProducts<Tree, RootOfSum>(src, src, dst, len, count);
}

// One run of neighbours, with straight-line code for 3 to 6 of them.
template <class Tree, class Terms, class T> ZELM_INLINE T sumRun(const char* tested, int32_t len, const Terms& terms) {
  T sum{};
  forSize(
      typename Tree::Straight{}, len,
      [&](auto n) ZELM_BODY {
        sum = sumOf<Tree, T>(n, terms);
        return zelStatusOk;
      },
      [&]() ZELM_BODY {
        sum = sumOfLong<T>(tested, len, terms);
        return zelStatusOk;
      });
  return sum;
}

// The address of src2 alone tells how a long run is summed.
template <class Tree, class A, class B, class T>
ZELM_INLINE ZelStatus longDotProduct(const A& src1, const B& src2, const Plain<T>& dst, Size len) {
  const Products terms{src1.object(0), src2.object(0)};
  storeResult(dst, 0, sumRun<Tree, decltype(terms), T>(terms.b.address(0), len, terms));
  return zelStatusOk;
}
template <class Tree, class A, class T> ZELM_INLINE ZelStatus longNorm(const A& src, const Plain<T>& dst, Size len) {
  const Squares terms{src.object(0)};
  storeResult(dst, 0, squareRoot(sumRun<Tree, decltype(terms), T>(terms.a.address(0), len, terms)));
  return zelStatusOk;
}

} // namespace zelm
