// What LU needs beside the blocks of zelmblock.h: choices lane by lane, since each object has pivots of its own, and
// elements found by an index that differs from lane to lane.
//
// The last block of a batch is filled up with the batch's last object. Its lanes compute the same values and store them
// to the same place, so no lane needs to be left out. Everything is read before anything is stored, so in place works
// as it does for one object.
#pragma once

#include "zelmblock.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Integers and choices lane by lane

// What a comparison of lanes gives; also integers, one a lane.
template <class L> struct LaneInteger { using type = decltype(L{} < L{}); };
template <> struct LaneInteger<float> { using type = int32_t; };
template <> struct LaneInteger<double> { using type = int32_t; };
template <class L> using IntegerOf = typename LaneInteger<L>::type;

// `choose` is what a comparison gives. For wide lanes g++ would compare it with zero once more for a ?: of its own; for
// narrow ones what it makes of a ?: is faster than the bit operations written out.
template <class L> ZELM_INLINE L select(IntegerOf<L> choose, L yes, L no) {
#ifdef __AVX2__
  if constexpr (sizeof(ElementOf<L>) == 4)
    return _mm256_blendv_ps(no, yes, reinterpret_cast<__m256>(choose));
  else
    return _mm256_blendv_pd(no, yes, reinterpret_cast<__m256d>(choose));
#else
  return choose ? yes : no;
#endif
}

// The magnitude: the sign bit cleared, NaN included.
ZELM_INLINE float magnitude(float x) {
  return __builtin_fabsf(x);
}
ZELM_INLINE double magnitude(double x) {
  return __builtin_fabs(x);
}
template <class L> ZELM_INLINE L magnitude(L x) {
  using T = ElementOf<L>;
  return reinterpret_cast<L>(reinterpret_cast<IntegerOf<L>>(x) & ~reinterpret_cast<IntegerOf<L>>(splat<L>(T(-0.0))));
}

// ---------------------------------------------------------------------------------------------------------------------
// Objects whose rows lie together

// body(w, object) for the lanes of the block that starts at object k.
template <class T, class Body> ZELM_INLINE void forLanes(int64_t k, int64_t count, const Body& body) {
  constexpr int W = laneCount<T>;
  if (k + W <= count) {
    ZELM_UNROLL
    for (int w = 0; w < W; ++w)
      body(w, k + w);
  } else {
    for (int w = 0; w < W; ++w)
      body(w, k + w < count ? k + w : count - 1);
  }
}

// The first element of objects k, k + 1, ...: matrices, vectors, and plain arrays of `each` elements an object. Calls
// of their own: inlined into every size of every kernel they would be larger than all the arithmetic.
template <class Operand> __attribute__((noinline)) auto matrixAddresses(const Operand& x, int64_t k, int64_t count) {
  using T = typename Operand::Element;
  using C = std::remove_pointer_t<decltype(x.object(0, 0).address(0, 0))>;
  ObjectAddresses<T, C> addresses;
  forLanes<T>(k, count, [&](int w, int64_t object) { addresses.of[w] = x.object(object, 0).address(0, 0); });
  return addresses;
}
template <class Operand> __attribute__((noinline)) auto vectorAddresses(const Operand& x, int64_t k, int64_t count) {
  using T = typename Operand::Element;
  using C = std::remove_pointer_t<decltype(x.object(0).address(0))>;
  ObjectAddresses<T, C> addresses;
  forLanes<T>(k, count, [&](int w, int64_t object) { addresses.of[w] = x.object(object).address(0); });
  return addresses;
}
template <class T, class I> struct PlainAddresses { I* of[laneCount<T>]; };
template <class T, class I> __attribute__((noinline)) auto plainAddresses(const Plain<I>& x, int64_t k, int64_t count) {
  PlainAddresses<T, I> addresses;
  forLanes<T>(k, count, [&](int w, int64_t object) { addresses.of[w] = x.pointer + object * x.each; });
  return addresses;
}

// R rows of C elements, rowStep bytes apart.
template <class T, class B, int R, int C>
ZELM_INLINE void loadRows(const ObjectAddresses<T, B>& x, int64_t rowStep, Tile<Lanes<T>, R, C>& tile) {
  if (rowStep == C * static_cast<int64_t>(sizeof(T))) {
    loadRun<R * C, T>(x, 0, tile.element);
  } else {
    ZELM_UNROLL
    for (int i = 0; i < R; ++i)
      loadRun<C, T>(x, i * rowStep, tile.element + i * C);
  }
}
template <class T, int R, int C>
ZELM_INLINE void storeRows(const ObjectAddresses<T, char>& x, int64_t rowStep, const Tile<Lanes<T>, R, C>& tile) {
  if (rowStep == C * static_cast<int64_t>(sizeof(T))) {
    storeRun<R * C, T>(x, 0, tile.element);
  } else {
    ZELM_UNROLL
    for (int i = 0; i < R; ++i)
      storeRun<C, T>(x, i * rowStep, tile.element + i * C);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Objects whose elements lie anywhere: any strides, pointer layout

// Element e of object k is at position[e] + object(k); the sum is an address. Each of the two alone need not be one.
template <int Elements> struct Positions { std::intptr_t of[Elements]; };

template <int N, class Operand> ZELM_INLINE auto matrixPositions(const Operand& x) {
  Positions<N * N> positions;
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) {
      if constexpr (decltype(x.object(0, 0))::strided)
        positions.of[i * N + j] = i * static_cast<int64_t>(x.stride1) + j * static_cast<int64_t>(x.stride2);
      else
        positions.of[i * N + j] = reinterpret_cast<std::intptr_t>(x.list[i * N + j]);
    }
  return positions;
}
template <int N, class Operand> ZELM_INLINE auto vectorPositions(const Operand& x) {
  Positions<N> positions;
  for (int j = 0; j < N; ++j) {
    if constexpr (decltype(x.object(0))::strided)
      positions.of[j] = j * static_cast<int64_t>(x.stride2);
    else
      positions.of[j] = reinterpret_cast<std::intptr_t>(x.list[j]);
  }
  return positions;
}

template <class T> struct ObjectOffsets {
  std::intptr_t of[laneCount<T>];
  ZELM_INLINE bool neighbours() const {
    bool all = true;
    for (int w = 1; w < laneCount<T>; ++w)
      all &= of[w] - of[0] == w * static_cast<std::intptr_t>(sizeof(T));
    return all;
  }
};

template <class Operand> ZELM_INLINE std::intptr_t objectOffset(const Operand& x, int64_t k) {
  return reinterpret_cast<std::intptr_t>(x.object(k, 0).address(0, 0));
}
template <class T, class Stride> ZELM_INLINE std::intptr_t objectOffset(const Vectors<T, Stride>& x, int64_t k) {
  return reinterpret_cast<std::intptr_t>(x.object(k).address(0));
}
template <class T, class Stride> ZELM_INLINE std::intptr_t objectOffset(const VectorsL<T, Stride>& x, int64_t k) {
  return reinterpret_cast<std::intptr_t>(x.object(k).address(0));
}
template <class T> ZELM_INLINE std::intptr_t objectOffset(const MatricesP<T>& x, int64_t k) {
  return x.offset + k * x.stride0;
}
template <class T> ZELM_INLINE std::intptr_t objectOffset(const VectorsP<T>& x, int64_t k) {
  return x.offset + k * x.stride0;
}

template <class Operand> __attribute__((noinline)) auto objectOffsets(const Operand& x, int64_t k, int64_t count) {
  using T = typename Operand::Element;
  ObjectOffsets<T> offsets;
  forLanes<T>(k, count, [&](int w, int64_t object) { offsets.of[w] = objectOffset(x, object); });
  return offsets;
}

template <class T>
inline void loadElements(const std::intptr_t* position, int elements, const ObjectOffsets<T>& object, Lanes<T>* lanes) {
  if (object.neighbours()) {
    for (int e = 0; e < elements; ++e)
      lanes[e] = loadLanes<T>(reinterpret_cast<const char*>(position[e] + object.of[0]));
  } else {
    for (int e = 0; e < elements; ++e)
      lanes[e] =
          gatherLanes<T>([&](int w) ZELM_BODY { return reinterpret_cast<const char*>(position[e] + object.of[w]); });
  }
}
template <class T>
inline void storeElements(const std::intptr_t* position, int elements, const ObjectOffsets<T>& object,
                          const Lanes<T>* lanes) {
  if (object.neighbours()) {
    for (int e = 0; e < elements; ++e)
      storeLanes(reinterpret_cast<char*>(position[e] + object.of[0]), lanes[e]);
  } else {
    for (int e = 0; e < elements; ++e)
      scatterLanes<T>([&](int w) ZELM_BODY { return reinterpret_cast<char*>(position[e] + object.of[w]); }, lanes[e]);
  }
}

} // namespace zelm
