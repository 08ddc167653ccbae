// Blocks: objects k, k + 1, ... of a batch side by side in lanes, whatever their layout.
//
// A block has one object a lane. Where the batch ends within a block, the lanes behind its last object repeat that
// object: they are read, computed and stored alike, so that the rest of a batch takes the code of a whole block.
// Only the elements that are asked for are read or written.
#pragma once

#include "zelmextent.h"
#include "zelmtile.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// What lanes and single elements have in common

ZELM_INLINE bool anyLane(bool condition) {
  return condition;
}
template <class M> ZELM_INLINE bool anyLane(const M& mask) {
  constexpr bool wide = sizeof(mask[0]) == 8;
#ifdef __AVX2__
  if constexpr (wide)
    return _mm256_movemask_pd(reinterpret_cast<__m256d>(mask)) != 0;
  else
    return _mm256_movemask_ps(reinterpret_cast<__m256>(mask)) != 0;
#else
  if constexpr (wide)
    return _mm_movemask_pd(reinterpret_cast<__m128d>(mask)) != 0;
  else
    return _mm_movemask_ps(reinterpret_cast<__m128>(mask)) != 0;
#endif
}

ZELM_INLINE float squareRoot(float x) {
  return __builtin_sqrtf(x);
}
ZELM_INLINE double squareRoot(double x) {
  return __builtin_sqrt(x);
}
#ifdef __AVX2__
ZELM_INLINE Lanes<float, 8> squareRoot(Lanes<float, 8> x) {
  return _mm256_sqrt_ps(x);
}
ZELM_INLINE Lanes<double, 4> squareRoot(Lanes<double, 4> x) {
  return _mm256_sqrt_pd(x);
}
#else
ZELM_INLINE Lanes<float, 4> squareRoot(Lanes<float, 4> x) {
  return _mm_sqrt_ps(x);
}
ZELM_INLINE Lanes<double, 2> squareRoot(Lanes<double, 2> x) {
  return _mm_sqrt_pd(x);
}
#endif

// ---------------------------------------------------------------------------------------------------------------------
// One element of each object

// address(w) is the element's in lane w.
template <class T, class A> ZELM_INLINE Lanes<T> gatherLanes(const A& address) {
  const auto at = [&](int w) ZELM_BODY { return loadElement<T>(address(w)); };
  if constexpr (laneCount<T> == 2)
    return Lanes<T>{at(0), at(1)};
  else if constexpr (laneCount<T> == 4)
    return Lanes<T>{at(0), at(1), at(2), at(3)};
  else
    return Lanes<T>{at(0), at(1), at(2), at(3), at(4), at(5), at(6), at(7)};
}

template <class T, class A> ZELM_INLINE void scatterLanes(const A& address, const Lanes<T>& lanes) {
  ZELM_UNROLL
  for (int w = 0; w < laneCount<T>; ++w)
    storeElement<T>(address(w), lanes[w]);
}

// ---------------------------------------------------------------------------------------------------------------------
// Blocks by layout. load and store take a run of n elements of row i from column j on, n known to the compiler or not.

// Standard and list layout; a vector is a row.
template <class T, class ColumnStep> struct StridedBlock {
  using Element = std::remove_const_t<T>;
  static constexpr bool unit = std::is_same_v<ColumnStep, UnitStep<T>>;
  static constexpr int chunk = chunkElements<Element>;
  static constexpr auto elementBytes = static_cast<int64_t>(sizeof(Element));
  ObjectAddresses<Element, Byte<T>> objects;
  int64_t rowStep;
  ColumnStep columnStep;

  // Whether rows of this width follow each other without gaps, and so are one run.
  ZELM_INLINE bool gapless(int width) const { return unit && rowStep == width * elementBytes; }

  template <class N> ZELM_INLINE void load(int i, int j, N n, Lanes<Element>* lanes) const {
    const int64_t offset = i * rowStep + j * columnStep;
    if constexpr (unit && isFixed<N>)
      loadRun<N::value, Element>(objects, offset, lanes);
    else if constexpr (unit)
      loadUnit(offset, n, lanes);
    else
      ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY { lanes[e] = gather(offset + e * columnStep); });
  }

  template <class N> ZELM_INLINE void store(int i, int j, N n, const Lanes<Element>* lanes) const {
    const int64_t offset = i * rowStep + j * columnStep;
    if constexpr (unit && isFixed<N>)
      storeRun<N::value, Element>(objects, offset, lanes);
    else if constexpr (unit)
      storeUnit(offset, n, lanes);
    else
      ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY { scatter(offset + e * columnStep, lanes[e]); });
  }

private:
  ZELM_INLINE Lanes<Element> gather(int64_t offset) const {
    return gatherLanes<Element>([&](int w) ZELM_BODY { return objects.of[w] + offset; });
  }
  ZELM_INLINE void scatter(int64_t offset, const Lanes<Element>& lanes) const {
    scatterLanes<Element>([&](int w) ZELM_BODY { return objects.of[w] + offset; }, lanes);
  }

  ZELM_INLINE void loadUnit(int64_t offset, int n, Lanes<Element>* lanes) const {
    if (n < chunk) {
      for (int e = 0; e < n; ++e)
        lanes[e] = gather(offset + e * elementBytes);
      return;
    }
    for (int e = 0; e < n; e += chunk) {
      const int from = e + chunk <= n ? e : n - chunk;
      loadRun<chunk, Element>(objects, offset + from * elementBytes, lanes + from);
    }
  }
  ZELM_INLINE void storeUnit(int64_t offset, int n, const Lanes<Element>* lanes) const {
    if (n < chunk) {
      for (int e = 0; e < n; ++e)
        scatter(offset + e * elementBytes, lanes[e]);
      return;
    }
    for (int e = 0; e < n; e += chunk) {
      const int from = e + chunk <= n ? e : n - chunk;
      storeRun<chunk, Element>(objects, offset + from * elementBytes, lanes + from);
    }
  }
};

// Pointer layout, any stride0.
template <class T> struct PositionBlock {
  using Element = std::remove_const_t<T>;
  T* const* list;
  int64_t rowLength;
  int64_t offset[laneCount<Element>];

  static constexpr bool gapless(int) { return false; }
  template <class N> ZELM_INLINE void load(int i, int j, N n, Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY {
      auto* const position = reinterpret_cast<const char*>(list[i * rowLength + j + e]);
      lanes[e] = gatherLanes<Element>([&](int w) ZELM_BODY { return position + offset[w]; });
    });
  }
  template <class N> ZELM_INLINE void store(int i, int j, N n, const Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY {
      auto* const position = reinterpret_cast<char*>(list[i * rowLength + j + e]);
      scatterLanes<Element>([&](int w) ZELM_BODY { return position + offset[w]; }, lanes[e]);
    });
  }
};

// Pointer layout where stride0 is the element size: at each position the objects are neighbours.
template <class T> struct NeighbourBlock {
  using Element = std::remove_const_t<T>;
  T* const* list;
  int64_t rowLength;
  int64_t offset;

  static constexpr bool gapless(int) { return false; }
  template <class N> ZELM_INLINE void load(int i, int j, N n, Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY {
      lanes[e] = loadLanes<Element>(reinterpret_cast<const char*>(list[i * rowLength + j + e]) + offset);
    });
  }
  template <class N> ZELM_INLINE void store(int i, int j, N n, const Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY {
      storeLanes(reinterpret_cast<char*>(list[i * rowLength + j + e]) + offset, lanes[e]);
    });
  }
};

// ---------------------------------------------------------------------------------------------------------------------
// Blocks of an operand

// Which block of a batch: the objects first, ..., first + last, at most a vector full. Neighbours: all operands have
// the objects of the block as neighbours, and the block is whole.
template <bool Neighbours> struct Block {
  static constexpr bool neighbours = Neighbours;
  int64_t first;
  int last;
  ZELM_INLINE int64_t object(int w) const { return first + (w < last ? w : last); }
};

template <class> constexpr bool isPointerLayout = false;
template <class T> constexpr bool isPointerLayout<MatrixP<T>> = true;
template <class T> constexpr bool isPointerLayout<MatricesP<T>> = true;
template <class T> constexpr bool isPointerLayout<VectorP<T>> = true;
template <class T> constexpr bool isPointerLayout<VectorsP<T>> = true;

template <class T, class Operand, class B>
ZELM_INLINE auto pointerBlock(T* const* list, const Operand& x, const B& block, int64_t rowLength) {
  if constexpr (B::neighbours) {
    return NeighbourBlock<T>{list, rowLength, x.offset + block.first * x.stride0};
  } else {
    PositionBlock<T> positions{list, rowLength, {}};
    ZELM_UNROLL
    for (int w = 0; w < laneCount<typename Operand::Element>; ++w)
      positions.offset[w] = x.offset + block.object(w) * x.stride0;
    return positions;
  }
}

template <class T, class RowStep, class Step>
ZELM_INLINE StridedBlock<T, Step> stridedBlock(const StridedMatrixView<T, RowStep, Step>& view) {
  return {{}, view.rowStep, view.columnStep};
}
template <class T, class Step> ZELM_INLINE StridedBlock<T, Step> stridedBlock(const StridedVectorView<T, Step>& view) {
  return {{}, 0, view.step};
}

// A matrix operand; rowLength is the width of its rows as stored.
template <class Operand, class B>
ZELM_INLINE auto matrixBlock(const Operand& x, const B& block, [[maybe_unused]] int64_t rowLength) {
  if constexpr (isPointerLayout<Operand>) {
    return pointerBlock(x.list, x, block, rowLength);
  } else {
    auto strided = stridedBlock(x.object(block.first, 0));
    ZELM_UNROLL
    for (int w = 0; w < laneCount<typename Operand::Element>; ++w)
      strided.objects.of[w] = x.object(block.object(w), 0).address(0, 0);
    return strided;
  }
}

template <class Operand, class B> ZELM_INLINE auto vectorBlock(const Operand& x, const B& block) {
  if constexpr (isPointerLayout<Operand>) {
    return pointerBlock(x.list, x, block, 0);
  } else {
    auto strided = stridedBlock(x.object(block.first));
    ZELM_UNROLL
    for (int w = 0; w < laneCount<typename Operand::Element>; ++w)
      strided.objects.of[w] = x.object(block.object(w)).address(0);
    return strided;
  }
}

template <class Operand> ZELM_INLINE bool areNeighbours(const Operand& x) {
  if constexpr (isPointerLayout<Operand>)
    return x.objectStride() == static_cast<int64_t>(sizeof(typename Operand::Element));
  else
    return false;
}

// Runs through a batch in blocks. lanes(block) returns whether the block is done; one that is not has stored nothing,
// and goes through single(k) object by object, as does a lone object. single returns a status; the first failure ends
// the batch.
template <class T, bool HasNeighbours, class ForLanes, class ForSingle>
ZELM_INLINE ZelStatus forBlocks(int32_t count, bool neighbours, const ForLanes& lanes, const ForSingle& single) {
  constexpr int W = laneCount<T>;
  for (int64_t k = 0; k < count; k += W) {
    const int last = count - k < W ? static_cast<int>(count - k) - 1 : W - 1;
    bool done = false;
    if (HasNeighbours && neighbours && last == W - 1) {
      if constexpr (HasNeighbours)
        done = lanes(Block<true>{k, last});
    } else if (last > 0) {
      done = lanes(Block<false>{k, last});
    }
    for (int64_t object = k; !done && object <= k + last; ++object)
      if (const ZelStatus status = single(object); status != zelStatusOk)
        return status;
  }
  return zelStatusOk;
}

} // namespace zelm
