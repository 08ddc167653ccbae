// Sums: the brackets of a sum decide its last bits, and differ by family, form, type, layout, stride path and length.
// What stands here are all that there are; the row of a kernel names the one it takes.
//
// A tree sums 3 to 6 terms. Every other length, and every length of a kernel that has no trees, is summed from +0.0 in
// ascending order, but for some long runs of neighbouring elements, which are summed in lanes. A term is a lane value:
// one element, or as many as there are objects or result elements side by side. Nothing is fused.
#pragma once

#include "zelmblock.h"
#include "zelmextent.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Trees: of(row, t) adds the terms t[0], t[1], ... of result element `row`, by the number of terms

// t0 + t1 + ..., from the first term on.
struct Chain {
  using Straight = Sizes<3, 4, 5, 6>;
  template <int N, class L> ZELM_INLINE static L of(int, const L (&t)[N]) {
    L sum = t[0];
    ZELM_UNROLL
    for (int k = 1; k < N; ++k)
      sum = sum + t[k];
    return sum;
  }
};

// No trees: +0.0 + t0 + t1 + ... at every length.
struct ZeroChain {
  using Straight = Sizes<>;
};

struct EvenOdd {
  using Straight = Sizes<3, 4, 5, 6>;
  template <class L> ZELM_INLINE static L of(int, const L (&t)[3]) { return t[0] + t[1] + t[2]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[4]) { return (t[0] + t[2]) + (t[1] + t[3]); }
  // The last of five elements pairs its terms differently; this is meant.
  template <class L> ZELM_INLINE static L of(int row, const L (&t)[5]) {
    return row == 4 ? ((t[0] + t[2]) + t[4]) + (t[1] + t[3]) : ((t[0] + t[1]) + t[4]) + (t[2] + t[3]);
  }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[6]) {
    return ((t[0] + t[2]) + t[4]) + ((t[1] + t[3]) + t[5]);
  }
};

struct Pairs32 {
  using Straight = Sizes<3, 4, 5, 6>;
  template <class L> ZELM_INLINE static L of(int, const L (&t)[3]) { return t[0] + t[1] + t[2]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[4]) { return (t[0] + t[1]) + (t[2] + t[3]); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[5]) { return ((t[0] + t[1]) + t[4]) + (t[2] + t[3]); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[6]) {
    return ((t[0] + t[1]) + (t[2] + t[3])) + (t[4] + t[5]);
  }
};

// As Pairs32 but for the fifth term. The norm of one vector takes it in 32f too.
struct Pairs64 {
  using Straight = Sizes<3, 4, 5, 6>;
  template <class L> ZELM_INLINE static L of(int, const L (&t)[3]) { return t[0] + t[1] + t[2]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[4]) { return (t[0] + t[1]) + (t[2] + t[3]); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[5]) { return ((t[0] + t[1]) + (t[2] + t[3])) + t[4]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[6]) {
    return ((t[0] + t[1]) + (t[2] + t[3])) + (t[4] + t[5]);
  }
};

// The last term first, then the others in ascending order; three terms are a chain.
struct TailFirst {
  using Straight = Sizes<3, 4, 5, 6>;
  template <int N, class L> ZELM_INLINE static L of(int, const L (&t)[N]) {
    L sum = N == 3 ? t[0] : t[N - 1] + t[0];
    ZELM_UNROLL
    for (int k = 1; k < (N == 3 ? N : N - 1); ++k)
      sum = sum + t[k];
    return sum;
  }
};

// As TailFirst, but six terms begin with the last two; this is meant.
struct TailPairFirst {
  using Straight = Sizes<3, 4, 5, 6>;
  template <int N, class L> ZELM_INLINE static L of(int, const L (&t)[N]) {
    if constexpr (N == 6)
      return ((((t[5] + t[4]) + t[0]) + t[1]) + t[2]) + t[3];
    else
      return TailFirst::of<N>(0, t);
  }
};

// A chain, but four terms are two pairs.
struct ChainOrTwoPairs {
  using Straight = Sizes<3, 4, 5, 6>;
  template <int N, class L> ZELM_INLINE static L of(int, const L (&t)[N]) {
    if constexpr (N == 4)
      return (t[0] + t[1]) + (t[2] + t[3]);
    else
      return Chain::of<N>(0, t);
  }
};

// Dot products in two lanes: the last pair of six goes first.
struct DotInLanes {
  using Straight = Sizes<3, 4, 5, 6>;
  template <class L> ZELM_INLINE static L of(int, const L (&t)[3]) { return t[0] + t[1] + t[2]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[4]) { return (t[0] + t[2]) + (t[1] + t[3]); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[5]) { return ((t[0] + t[2]) + (t[1] + t[3])) + t[4]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[6]) {
    return (t[0] + (t[2] + t[4])) + (t[1] + (t[3] + t[5]));
  }
};

// Norms in two lanes.
struct NormInLanes {
  using Straight = Sizes<3, 4, 5, 6>;
  template <class L> ZELM_INLINE static L of(int, const L (&t)[3]) { return (t[2] + t[0]) + t[1]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[4]) { return (t[0] + t[2]) + (t[1] + t[3]); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[5]) { return ((t[0] + t[2]) + t[4]) + (t[1] + t[3]); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[6]) {
    return ((t[0] + t[2]) + t[4]) + ((t[1] + t[3]) + t[5]);
  }
};

// Norms of an array of vectors in 32f: no lanes for three and four terms.
struct ChainOrNormInLanes {
  using Straight = Sizes<3, 4, 5, 6>;
  template <class L> ZELM_INLINE static L of(int, const L (&t)[3]) { return t[0] + t[1] + t[2]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[4]) { return ((t[0] + t[1]) + t[2]) + t[3]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[5]) { return ((t[0] + t[1]) + (t[2] + t[3])) + t[4]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[6]) {
    return ((t[1] + t[3]) + t[5]) + ((t[0] + t[2]) + t[4]);
  }
};

// ---------------------------------------------------------------------------------------------------------------------
// Terms made of the elements of views: at<L>(k) is term k or, for a vector L, terms k, k + 1, ...

template <class L, class View> ZELM_INLINE L loadFrom(const View& x, int64_t k) {
  if constexpr (LaneTraits<L>::width == 1)
    return x.load(k);
  else if constexpr (View::unitRows)
    return loadLanes<ElementOf<L>, LaneTraits<L>::width>(x.address(k));
  else
    return lanesOf<L>([&](int w) ZELM_BODY { return x.load(k + w); });
}

template <class A, class B> struct Products {
  A a;
  B b;
  template <class L> ZELM_INLINE L at(int64_t k) const { return loadFrom<L>(a, k) * loadFrom<L>(b, k); }
};
template <class A, class B> Products(A, B) -> Products<A, B>;

template <class A> struct Squares {
  A a;
  template <class L> ZELM_INLINE L at(int64_t k) const {
    const L x = loadFrom<L>(a, k);
    return x * x;
  }
};
template <class A> Squares(A) -> Squares<A>;

// ---------------------------------------------------------------------------------------------------------------------
// Sums of any length

// sum + term first + term first + 1 + ... + term end - 1
template <class T, class Terms> ZELM_INLINE T addChain(T sum, int64_t first, int64_t end, const Terms& terms) {
  for (int64_t k = first; k < end; ++k)
    sum = sum + terms.template at<T>(k);
  return sum;
}

// One object: straight-line code for a length that the compiler knows.
template <class Tree, class T, class N, class Terms> ZELM_INLINE T sumOf(N n, const Terms& terms) {
  if constexpr (isFixed<N>) {
    T t[n];
    ascending(Fixed<0>{}, n, [&](auto k) ZELM_BODY { t[k] = terms.template at<T>(k); });
    return Tree::of(0, t);
  } else {
    return addChain(T{}, 0, n, terms);
  }
}

// Running sums, R side by side: term first + e is added to sum e % R, for a multiple of R terms.
template <class T, int R> struct RunningSums {
  static constexpr int W = smaller(R, laneCount<T>);
  Lanes<T, W> lanes[R / W];

  // Sum 0 starts with a value, the others from +0.0.
  ZELM_INLINE explicit RunningSums(T first) {
    lanes[0] = lanesOf<Lanes<T, W>>([&](int w) ZELM_BODY { return w == 0 ? first : T{}; });
    ZELM_UNROLL
    for (int v = 1; v < R / W; ++v)
      lanes[v] = Lanes<T, W>{};
  }
  template <class Terms> ZELM_INLINE void add(int64_t first, int64_t end, const Terms& terms) {
    for (int64_t k = first; k < end; k += R) {
      ZELM_UNROLL
      for (int v = 0; v < R / W; ++v)
        lanes[v] = lanes[v] + terms.template at<Lanes<T, W>>(k + v * W);
    }
  }
  // One by one into sum 0.
  template <class Terms> ZELM_INLINE void addToFirst(int64_t first, int64_t end, const Terms& terms) {
    lanes[0][0] = addChain<T>(lanes[0][0], first, end, terms);
  }
  ZELM_INLINE T operator[](int e) const { return lanes[e / W][e % W]; }
};

// The elements of a run until `address` is a multiple of 16; -1 if it never is.
template <class T> ZELM_INLINE int64_t elementsToChunk(const char* address) {
  const auto beyond = reinterpret_cast<std::uintptr_t>(address) % 16;
  if (beyond % sizeof(T) != 0)
    return -1;
  return beyond == 0 ? 0 : static_cast<int64_t>((16 - beyond) / sizeof(T));
}

// One long vector. The elements at `tested` tell where chunks of 16 bytes begin: terms before the first such chunk
// start sum 0, the rest of the run goes eight terms at a time into two accumulators of a chunk each, which are added
// lane by lane, and what is left comes last.
template <class T, class Terms> ZELM_NOINLINE T sumOfLong(const char* tested, int32_t len, const Terms& terms) {
  constexpr int lanes = 16 / static_cast<int>(sizeof(T));
  const int64_t lead = elementsToChunk<T>(tested);
  if (lead < 0 || len < lead + 8)
    return addChain(T{}, 0, len, terms);
  const int64_t end = len - (len - lead) % 8;
  RunningSums<T, 2 * lanes> sums(addChain(T{}, 0, lead, terms));
  sums.add(lead, end, terms);
  const auto both = [&](int w) ZELM_BODY { return sums[w] + sums[w + lanes]; };
  T sum = both(0) + both(1);
  if constexpr (lanes == 4)
    sum = sum + (both(2) + both(3));
  return addChain(sum, end, len, terms);
}

// ---------------------------------------------------------------------------------------------------------------------
// Many objects, one a lane: the terms are products of two blocks, or of a block by itself

// Products of what lies `offset` bytes behind the first elements, formed before they are transposed.
template <class A, class B> struct ProductsAt {
  const A& a;
  const B& b;
  template <int N> ZELM_INLINE auto chunks(int q, int64_t offset) const {
    return a.template chunks<N>(q, offset) * b.template chunks<N>(q, offset);
  }
  ZELM_INLINE auto vector(int w, int64_t offset) const { return a.vector(w, offset) * b.vector(w, offset); }
  ZELM_INLINE auto element(int w, int64_t offset) const { return a.element(w, offset) * b.element(w, offset); }
};
template <class A, class B> ProductsAt(const A&, const B&) -> ProductsAt<A, B>;

template <class A, class B> struct ProductBlock {
  using T = typename A::Element;
  static constexpr bool unit = A::unit && B::unit;
  A a;
  B b;

  // Terms j, j + 1, ..., j + N - 1 of each object.
  template <int N> ZELM_INLINE void load(int64_t j, Fixed<N>, Lanes<T>* t) const {
    if constexpr (unit) {
      loadUnit<N>(ProductsAt{a.objects, b.objects}, j * static_cast<int64_t>(sizeof(T)), t);
    } else {
      Lanes<T> factor[N];
      a.load(0, static_cast<int>(j), Fixed<N>{}, t);
      b.load(0, static_cast<int>(j), Fixed<N>{}, factor);
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto e) ZELM_BODY { t[e] = t[e] * factor[e]; });
    }
  }

private:
  // Whole vectors of each object first.
  template <int N, class Objects> ZELM_INLINE static void loadUnit(const Objects& x, int64_t offset, Lanes<T>* t) {
    constexpr int W = laneCount<T>;
    if constexpr (N >= W) {
      Lanes<T> square[W];
      ascending(Fixed<0>{}, Fixed<W>{}, [&](auto w) ZELM_BODY { square[w] = x.vector(w, offset); });
      transposeSquare(square);
      ascending(Fixed<0>{}, Fixed<W>{}, [&](auto w) ZELM_BODY { t[w] = square[w]; });
      if constexpr (N > W)
        loadUnit<N - W>(x, offset + W * static_cast<int64_t>(sizeof(T)), t + W);
    } else {
      loadRun<N, T>(x, offset, t);
    }
  }
};
template <class A, class B> ProductBlock(A, B) -> ProductBlock<A, B>;

// sum + term j + ... + term j + N - 1
template <int N, class L, class Terms> ZELM_INLINE void addTerms(L& sum, int64_t j, const Terms& terms) {
  L t[N];
  terms.load(j, Fixed<N>{}, t);
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto e) ZELM_BODY { sum = sum + t[e]; });
}

// From +0.0 on, for as many blocks at a time as there are sums: as many chains of additions side by side.
template <class T, class... Terms>
ZELM_INLINE void sumBlocks(Lanes<T> (&sum)[sizeof...(Terms)], int32_t len, const Terms&... terms) {
  constexpr bool unit = (Terms::unit && ...);
  constexpr int W = unit ? laneCount<T> : 1;
  constexpr int Q = unit ? chunkElements<T> : 1;
  const auto add = [&](auto n, int64_t j) ZELM_BODY {
    int v = 0;
    (addTerms<n>(sum[v++], j, terms), ...);
  };
  for (auto& each : sum)
    each = Lanes<T>{};
  int32_t j = 0;
  for (; j + W <= len; j += W)
    add(Fixed<W>{}, j);
  for (; Q < W && j + Q <= len; j += Q)
    add(Fixed<Q>{}, j);
  for (; 1 < Q && j < len; ++j)
    add(Fixed<1>{}, j);
}

} // namespace zelm
