// Cross products: one object a lane where objects lie so, vectors without gaps and neighbours of the pointer layout.
#pragma once

#include "zelmblock.h"
#include "zelmtriples.h"
#include "zelmvectorsignature.h"

namespace zelm {

template <class L> ZELM_INLINE Tile<L, 1, 3> cross(const Tile<L, 1, 3>& a, const Tile<L, 1, 3>& b) {
  return {{a(0, 1) * b(0, 2) - a(0, 2) * b(0, 1), //
           a(0, 2) * b(0, 0) - a(0, 0) * b(0, 2), //
           a(0, 0) * b(0, 1) - a(0, 1) * b(0, 0)}};
}

template <class View> ZELM_INLINE Tile<typename View::Element, 1, 3> loadTripleOf(const View& x) {
  return {{x.load(0), x.load(1), x.load(2)}};
}

// Singles are quicker in an order of their own, doubles in that of the objects.
template <class T> constexpr bool turns = sizeof(T) == 4;

// What gives the triples from object k on of a source without gaps, or of a single one the same in every lane.
template <class Operand> ZELM_INLINE auto triplesFrom(const Operand& x) {
  using T = typename Operand::Element;
  const auto first = x.object(0);
  if constexpr (Operand::isArray) {
    return [first](int64_t k) ZELM_BODY {
      const char* const address = first.address(0) + k * 3 * static_cast<int64_t>(sizeof(T));
      return turns<T> ? loadTurnedTriples<T>(address) : loadTriples<T>(address);
    };
  } else {
    Tile<RowLanes<T>, 1, 3> same;
    ascending(Fixed<0>{}, Fixed<3>{}, [&](auto j) ZELM_BODY { same(0, j) = splat<RowLanes<T>>(first.load(j)); });
    return [same](int64_t) ZELM_BODY { return same; };
  }
}

template <class A, class B, class D>
ZELM_INLINE ZelStatus crossProducts(const A& src1, const B& src2, const D& dst, Count count = 1) {
  using T = typename D::Element;
  const auto single = [&](int64_t k) ZELM_BODY {
    const auto product = cross(loadTripleOf(src1.object(k)), loadTripleOf(src2.object(k)));
    ascending(Fixed<0>{}, Fixed<3>{}, [&](auto j) ZELM_BODY { dst.object(k).store(j, product(0, j)); });
  };
  if constexpr (D::isArray && isRun<D>) {
    if (isPackedRun(src1, 3) && isPackedRun(src2, 3) && dst.packed(3)) {
      const auto firsts = triplesFrom(src1);
      const auto seconds = triplesFrom(src2);
      char* const to = dst.object(0).address(0);
      forTriples<T>(
          count, to,
          isStreamed<T>(to, int64_t{3} * count, int64_t{3} * count.whole, src1.object(0).address(0),
                        src2.object(0).address(0)),
          [&](auto stream, int64_t k) ZELM_BODY {
            const auto product = cross(firsts(k), seconds(k));
            char* const address = to + k * 3 * static_cast<int64_t>(sizeof(T));
            if constexpr (turns<T>)
              storeTurnedTriples<T, stream>(address, product);
            else
              storeTriples<stream>(address, product);
          },
          single);
      return zelStatusOk;
    }
  }
  int64_t k = 0;
  if constexpr (isPointerLayout<D> && D::isArray) {
    if (areNeighboursOrSame(src1) && areNeighboursOrSame(src2) && areNeighbours(dst)) {
      const auto firsts = wholeBlocks<3>(src1);
      const auto seconds = wholeBlocks<3>(src2);
      const auto results = wholeBlocks<3>(dst);
      for (; k + laneCount<T> <= count; k += laneCount<T>) {
        Tile<Lanes<T>, 1, 3> a;
        Tile<Lanes<T>, 1, 3> b;
        firsts(k).load(0, 0, Fixed<3>{}, a.element);
        seconds(k).load(0, 0, Fixed<3>{}, b.element);
        results(k).store(0, 0, Fixed<3>{}, cross(a, b).element);
      }
    }
  }
  // Other objects' elements are loaded quicker than they are exchanged between lanes.
  for (; k < count; ++k)
    single(k);
  return zelStatusOk;
}

} // namespace zelm
