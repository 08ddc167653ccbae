// Inverses.
//
// Which method a matrix takes depends on its side and on the kernel, and decides its rounding and what counts as
// singular; the row of a kernel names the methods of sides 3 to 6. All other sides take the general path: a determinant
// for each element; arrays of side 2 do so with one object a lane. Every method reads the whole matrix before it
// stores, but for the general path.
#pragma once

#include "zelmblock.h"
#include "zelminvertsignature.h"
#include "zelmminors.h"
#include "zelmworking.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Reciprocals

struct Divided {
  template <class L> ZELM_INLINE static L reciprocal(const L& d) { return splat<L>(1) / d; }
};

// The processor's estimate, and exactly one step of Newton's method.
struct Estimated {
  template <class L> ZELM_INLINE static L reciprocal(const L& d) {
    const L e = reciprocalEstimate(d);
    return e + e - d * (e * e);
  }
};

// ---------------------------------------------------------------------------------------------------------------------
// Cofactors

// minor(i, j) is the determinant of what is left without row i and column j.
template <class L, int N> ZELM_INLINE void minorsOf(const MatrixRow<L, N> (&row)[N], Tile<L, N, N>& minor) {
  const auto without = [&](auto i, const auto& minors) ZELM_BODY {
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
      constexpr int others = ((1 << N) - 1) & ~(1 << j);
      minor(i, j) = minors[Fixed<others>{}];
    });
  };
  const auto between = [](const auto& upper, const auto& lower) ZELM_BODY {
    Minors<L, N, N - 1> minors;
    forSets<N, N - 1>([&](auto set) ZELM_BODY { minors[set] = expandBetween<set>(upper, lower); });
    return minors;
  };
  if constexpr (N == 3) {
    without(Fixed<0>{}, withRowAbove(row[1], row[2]));
    without(Fixed<1>{}, withRowAbove(row[0], row[2]));
    without(Fixed<2>{}, withRowAbove(row[0], row[1]));
  } else if constexpr (N == 4) {
    const auto top2 = withRowBelow(row[0], row[1]);
    const auto bottom2 = withRowAbove(row[2], row[3]);
    without(Fixed<0>{}, withRowAbove(row[1], bottom2));
    without(Fixed<1>{}, withRowAbove(row[0], bottom2));
    without(Fixed<2>{}, withRowBelow(top2, row[3]));
    without(Fixed<3>{}, withRowBelow(top2, row[2]));
  } else if constexpr (N == 5) {
    const auto top2 = withRowBelow(row[0], row[1]);
    const auto top3 = withRowBelow(top2, row[2]);
    const auto bottom2 = withRowAbove(row[3], row[4]);
    const auto bottom3 = withRowAbove(row[2], bottom2);
    without(Fixed<0>{}, withRowAbove(row[1], bottom3));
    without(Fixed<1>{}, withRowAbove(row[0], bottom3));
    without(Fixed<2>{}, between(top2, bottom2));
    without(Fixed<3>{}, withRowBelow(top3, row[4]));
    without(Fixed<4>{}, withRowBelow(top3, row[3]));
  } else {
    static_assert(N == 6);
    const auto top2 = withRowBelow(row[0], row[1]);
    const auto top3 = withRowBelow(top2, row[2]);
    const auto bottom2 = withRowAbove(row[4], row[5]);
    const auto bottom3 = withRowAbove(row[3], bottom2);
    without(Fixed<2>{}, between(top2, bottom3));
    without(Fixed<3>{}, between(top3, bottom2));
    const auto bottom4 = withRowAbove(row[2], bottom3);
    without(Fixed<0>{}, withRowAbove(row[1], bottom4));
    without(Fixed<1>{}, withRowAbove(row[0], bottom4));
    const auto top4 = withRowBelow(top3, row[3]);
    without(Fixed<4>{}, withRowBelow(top4, row[5]));
    without(Fixed<5>{}, withRowBelow(top4, row[4]));
  }
}

// The lanes in which the limit is greater than the determinant's magnitude, so that there is no inverse: a NaN passes.
template <class Reciprocal, class L, int N>
ZELM_INLINE MaskOf<L> invertByCofactors(const Tile<L, N, N>& a, Tile<L, N, N>& inverse, ElementOf<L> limit) {
  MatrixRow<L, N> row[N];
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY {
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY { row[i].of[j] = a(i, j); });
  });
  Tile<L, N, N> minor;
  minorsOf(row, minor);
  L det = a(0, 0) * minor(0, 0);
  ascending(Fixed<1>{}, Fixed<N>{}, [&](auto i) ZELM_BODY {
    const L term = a(i, 0) * minor(i, 0);
    det = i % 2 == 1 ? det - term : det + term;
  });
  const L r = Reciprocal::reciprocal(det);
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY {
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
      const L& m = minor(j, i);
      inverse(i, j) = ((i + j) % 2 == 1 ? L{} - m : m) * r;
    });
  });
  return greater(splat<L>(limit), magnitude(det));
}

// ---------------------------------------------------------------------------------------------------------------------
// Borders: row 0 has a pivot, which is brought into column 0; the rest of the matrix is what elimination leaves, its
// inverse is bordered by a row and a column, and the exchange is undone on its rows. No other row is searched.

// Whether the last column of a row loses all ties for the pivot. Of the others the highest wins.
enum class LastColumn { LosesTies, WinsTies };

// The lanes in which the pivot of row 0 is in column j, for j above 0.
template <LastColumn last, class L, int N> ZELM_INLINE L choosePivot(const Tile<L, N, N>& a, MaskOf<L> (&isIn)[N]) {
  L most = magnitude(a(0, 0));
  ascending(Fixed<1>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
    const L candidate = magnitude(a(0, j));
    if constexpr (j == N - 1 && last == LastColumn::LosesTies)
      isIn[j] = greater(candidate, most);
    else
      isIn[j] = greaterEqual(candidate, most);
    most = select<L>(isIn[j], candidate, most);
  });
  MaskOf<L> found = isIn[N - 1];
  descending(Fixed<1>{}, Fixed<N - 1>{}, [&](auto j) ZELM_BODY {
    isIn[j] = without(isIn[j], found);
    found = either(found, isIn[j]);
  });
  return most;
}

// element(0) and element(j) change places in the lanes of isIn[j].
template <class L, int N, class Element>
ZELM_INLINE void exchangeWithFirst(const MaskOf<L> (&isIn)[N], const Element& element) {
  LaneExchange<L> first(element(Fixed<0>{}));
  ascending(Fixed<1>{}, Fixed<N>{}, [&](auto j) ZELM_BODY { first.with(isIn[j], element(j)); });
  element(Fixed<0>{}) = first.value();
}

// a is changed. The result tells the lanes without an inverse: those with a pivot, or with a determinant of the
// innermost square of four, that the limit is greater than.
template <LastColumn last, class L, int N>
ZELM_INLINE MaskOf<L> invertByBorders(Tile<L, N, N>& a, Tile<L, N, N>& inverse, ElementOf<L> limit) {
  MaskOf<L> isIn[N];
  MaskOf<L> singular = greater(splat<L>(limit), choosePivot<last>(a, isIn));
  ascending(Fixed<0>{}, Fixed<N>{},
            [&](auto i) ZELM_BODY { exchangeWithFirst<L>(isIn, [&](auto j) ZELM_BODY -> L& { return a(i, j); }); });

  const L r = Estimated::reciprocal(a(0, 0));
  L multiplier[N];
  Tile<L, N - 1, N - 1> rest;
  ascending(Fixed<1>{}, Fixed<N>{}, [&](auto i) ZELM_BODY {
    multiplier[i] = a(i, 0) * r;
    ascending(Fixed<1>{}, Fixed<N>{},
              [&](auto j) ZELM_BODY { rest(i - 1, j - 1) = a(i, j) - a(0, j) * multiplier[i]; });
  });
  Tile<L, N - 1, N - 1> inner;
  if constexpr (N == 5)
    singular = either(singular, invertByCofactors<Estimated>(rest, inner, limit));
  else
    singular = either(singular, invertByBorders<LastColumn::WinsTies>(rest, inner, limit));

  // The sum of n products, from the first on.
  const auto sum = [](const auto& product) ZELM_BODY {
    L s = product(Fixed<1>{});
    ascending(Fixed<2>{}, Fixed<N>{}, [&](auto k) ZELM_BODY { s = s + product(k); });
    return s;
  };
  ascending(Fixed<1>{}, Fixed<N>{}, [&](auto i) ZELM_BODY {
    inverse(i, 0) = -sum([&](auto k) ZELM_BODY { return inner(i - 1, k - 1) * multiplier[k]; });
    inverse(0, i) = -(r * sum([&](auto k) ZELM_BODY { return a(0, k) * inner(k - 1, i - 1); }));
    ascending(Fixed<1>{}, Fixed<N>{}, [&](auto j) ZELM_BODY { inverse(i, j) = inner(i - 1, j - 1); });
  });
  inverse(0, 0) = r - r * sum([&](auto k) ZELM_BODY { return a(0, k) * inverse(k, 0); });
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
    exchangeWithFirst<L>(isIn, [&](auto i) ZELM_BODY -> L& { return inverse(i, j); });
  });
  return singular;
}

// ---------------------------------------------------------------------------------------------------------------------
// Methods: invert(a, inverse) returns the lanes without an inverse

template <class Reciprocal, int limits> struct ByCofactors {
  template <class L, int N> ZELM_INLINE static MaskOf<L> invert(Tile<L, N, N>& a, Tile<L, N, N>& inverse) {
    return invertByCofactors<Reciprocal>(a, inverse, limits * singularLimit<ElementOf<L>>(N));
  }
};
using Cofactors = ByCofactors<Divided, 1>;
using CofactorsTwice = ByCofactors<Divided, 2>; // singular below twice the limit
using CofactorsEstimated = ByCofactors<Estimated, 1>;

struct Borders {
  template <class L, int N> ZELM_INLINE static MaskOf<L> invert(Tile<L, N, N>& a, Tile<L, N, N>& inverse) {
    constexpr auto last = N == 5 ? LastColumn::LosesTies : LastColumn::WinsTies;
    return invertByBorders<last>(a, inverse, singularLimit<ElementOf<L>>(N));
  }
};

// What the general path makes of side 2, without its loops: a batch takes a fiftieth of the time.
struct MinorsOfTwo {
  template <class L> ZELM_INLINE static MaskOf<L> invert(const Tile<L, 2, 2>& a, Tile<L, 2, 2>& inverse) {
    const L limit = splat<L>(singularLimit<ElementOf<L>>(2));
    const MaskOf<L> exchanged = greater(magnitude(a(1, 0)), magnitude(a(0, 0)));
    const auto row = [&](auto upper, auto j) ZELM_BODY { return select<L>(exchanged, a(1 - upper, j), a(upper, j)); };
    const L pivot = row(Fixed<0>{}, Fixed<0>{});
    const L factor = row(Fixed<1>{}, Fixed<0>{}) * (splat<L>(1) / pivot);
    const L last = row(Fixed<1>{}, Fixed<1>{}) - row(Fixed<0>{}, Fixed<1>{}) * factor;
    const L det = pivot * select<L>(exchanged, -last, last);
    const L q = splat<L>(1) / det;
    ascending(Fixed<0>{}, Fixed<2>{}, [&](auto i) ZELM_BODY {
      ascending(Fixed<0>{}, Fixed<2>{}, [&](auto j) ZELM_BODY {
        const L& left = a(1 - i, 1 - j);
        const L scaled = select<L>(greater(magnitude(left), limit), left, limit) * q;
        inverse(j, i) = i == j ? scaled : -scaled;
      });
    });
    return either(greater(limit, magnitude(pivot)), greaterEqual(limit, magnitude(det)));
  }
};

// From side 5 on a call of its own, whatever the layout: the moving of the elements is little beside it.
template <class Method, class L, int N> ZELM_NOINLINE bool invertLargeTile(Tile<L, N, N>& a, Tile<L, N, N>& inverse) {
  return !any(Method::invert(a, inverse));
}
template <class Method, class L, int N> ZELM_INLINE bool invertTile(Tile<L, N, N>& a, Tile<L, N, N>& inverse) {
  if constexpr (N < 5)
    return !any(Method::invert(a, inverse));
  else
    return invertLargeTile<Method>(a, inverse);
}

template <class Method, int N, class Source, class Result>
ZELM_NOINLINE ZelStatus invertOne(const Source& src, const Result& dst) {
  using T = typename Result::Element;
  Tile<T, N, N> a = loadTile<N, N>(src);
  Tile<T, N, N> inverse;
  if (!invertTile<Method>(a, inverse))
    return zelStatusSingular;
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY {
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY { dst.store(i, j, inverse(i, j)); });
  });
  return zelStatusOk;
}

// False, and nothing stored, if an object of the block has no inverse.
template <class Method, int N, class Source, class Result>
ZELM_NOINLINE bool invertBlock(const Source& src, const Result& dst) {
  using L = Lanes<typename Result::Element>;
  Tile<L, N, N> a;
  Tile<L, N, N> inverse;
  loadElements(src, a.element, Fixed<N>{}, Fixed<N>{});
  if (!invertTile<Method>(a, inverse))
    return false;
  storeElements(dst, inverse.element, Fixed<N>{}, Fixed<N>{});
  return true;
}

// ---------------------------------------------------------------------------------------------------------------------
// The general path: the determinant of the whole matrix, and for each element that of what is left without its row and
// column, all by elimination in the buffer

// Of the matrix in the buffer; zero if it is singular.
template <class T> ZELM_NOINLINE bool wholeDeterminant(T* buffer, int side, T& det) {
  const WorkingMatrix<T> work(buffer, side, side);
  const auto limit = singularLimit<T>(side);
  T sign = 1;
  det = 1;
  for (int k = 0; k < side - 1; ++k) {
    if (work.choosePivot(k))
      sign = -sign;
    const T pivot = work.row(k).load(k);
    if (limit > magnitude(pivot)) {
      work.stored(0).store(0, T{});
      return false;
    }
    work.eliminate(k, [r = 1 / pivot](T x) ZELM_BODY { return x * r; });
    det = det * pivot;
  }
  det = det * (sign * work.row(side - 1).load(side - 1));
  return !(limit >= magnitude(det));
}

// Of the matrix of side - 1 in the buffer. A pivot below the limit ends the work, and as any other small factor it is
// replaced by the limit: no minor comes out as zero. The limit is that of the full side.
template <class T> ZELM_NOINLINE T minorInBuffer(T* buffer, int side) {
  const WorkingMatrix<T> work(buffer, side, side - 1);
  const auto limit = singularLimit<T>(side);
  T sign = 1;
  T product = 1;
  for (int k = 0; k < side - 2; ++k) {
    if (work.choosePivot(k))
      sign = -sign;
    const T pivot = work.row(k).load(k);
    if (limit > magnitude(pivot)) {
      product = limit;
      break;
    }
    work.eliminate(k, [r = 1 / pivot](T x) ZELM_BODY { return x * r; });
    product = product * pivot;
  }
  const T last = work.row(side - 2).load(side - 2);
  return magnitude(last) > limit ? product * (last * sign) : limit;
}

template <class Source, class T, class Result>
ZELM_INLINE ZelStatus invertByMinors(const Source& src, T* buffer, const Result& dst, int side) {
  // All rows and columns but one each; -1 leaves none out.
  const auto copyWithout = [&](int row, int column) {
    const WorkingMatrix<T> work(buffer, side, 0);
    for (int i = 0, to = 0; i < side; ++i) {
      if (i == row)
        continue;
      const auto stored = work.stored(to++);
      for (int j = 0; j < column; ++j)
        stored.store(j, src.load(i, j));
      for (int j = column + 1; j < side; ++j)
        stored.store(column < 0 ? j : j - 1, src.load(i, j));
    }
  };
  T det;
  copyWithout(-1, -1);
  if (!wholeDeterminant(buffer, side, det))
    return zelStatusSingular;
  const T q = 1 / det;
  for (int i = 0; i < side; ++i)
    for (int j = 0; j < side; ++j) {
      copyWithout(i, j);
      const T sign = (i + j) % 2 == 0 ? T(1) : T(-1);
      dst.store(j, i, minorInBuffer(buffer, side) * q * sign);
    }
  return zelStatusOk;
}

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

using MethodSides = Sizes<3, 4, 5, 6>;
using BatchSides = Sizes<2, 3, 4, 5, 6>;

// The methods of sides 3, 4, 5 and 6; side 2 has one for all.
template <class M3, class M4, class M5, class M6> struct Methods;
template <class List, int N> struct MethodOfSide;
template <class List> struct MethodOfSide<List, 2> { using type = MinorsOfTwo; };
template <class M3, class M4, class M5, class M6> struct MethodOfSide<Methods<M3, M4, M5, M6>, 3> { using type = M3; };
template <class M3, class M4, class M5, class M6> struct MethodOfSide<Methods<M3, M4, M5, M6>, 4> { using type = M4; };
template <class M3, class M4, class M5, class M6> struct MethodOfSide<Methods<M3, M4, M5, M6>, 5> { using type = M5; };
template <class M3, class M4, class M5, class M6> struct MethodOfSide<Methods<M3, M4, M5, M6>, 6> { using type = M6; };
template <class List, int N> using MethodAt = typename MethodOfSide<List, N>::type;

// A kernel of one side.
template <int N, class Method, class Source, class T, class Result>
ZELM_INLINE ZelStatus inverse(const Source& src, const Buffer<T>&, const Result& dst, Size) {
  return invertOne<Method, N>(src.object(0, N), dst.object(0, N));
}

// The general path of single objects.
template <class Source, class T, class Result>
ZELM_INLINE ZelStatus inverseByMinors(const Source& src, const Buffer<T>& buffer, const Result& dst, Size side) {
  return invertByMinors(src.object(0, side), buffer.pointer, dst.object(0, side), side);
}

// Single objects: a kernel for each side from 3 to 6, and one for all others.
template <auto K3, auto K4, auto K5, auto K6, auto Others, class Source, class T, class Result>
ZELM_INLINE ZelStatus inverseBySide(const Source& src, const Buffer<T>& buffer, const Result& dst, Size side) {
  switch (side) {
  case 3:
    return K3(src, buffer, dst, side);
  case 4:
    return K4(src, buffer, dst, side);
  case 5:
    return K5(src, buffer, dst, side);
  case 6:
    return K6(src, buffer, dst, side);
  default:
    return Others(src, buffer, dst, side);
  }
}

// Single objects, the sides from 3 to 6 by the methods of the list.
template <class List, auto Others, class Source, class T, class Result>
ZELM_INLINE ZelStatus inverse(const Source& src, const Buffer<T>& buffer, const Result& dst, Size side) {
  return forSize(
      MethodSides{}, side,
      [&](auto n) ZELM_BODY { return invertOne<MethodAt<List, n>, n>(src.object(0, n), dst.object(0, n)); },
      [&]() ZELM_BODY { return Others(src, buffer, dst, side); });
}

// A batch of one side; single(k) is object k where a block is not done as a whole.
template <class Method, int N, class Source, class Result, class Single>
ZELM_INLINE ZelStatus inverseBlocks(const Source& src, const Result& dst, int32_t count, const Single& single) {
  using T = typename Result::Element;
  auto sources = matrixBlocks(src, Fixed<N>{});
  auto results = matrixBlocks(dst, Fixed<N>{});
  return forBlocks<laneCount<T>, isPointerLayout<Source>>(
      count, areNeighbours(src) && areNeighbours(dst),
      [&](auto block) ZELM_BODY { return invertBlock<Method, N>(sources.at(block), results.at(block)); }, single);
}

// Arrays. others(k) is object k of a side that is not in the list.
template <class List, class Source, class Result, class Others>
ZELM_INLINE ZelStatus inverseBatch(const Source& src, const Result& dst, Size side, Count count, const Others& others) {
  return forSize(
      BatchSides{}, side,
      [&](auto n) ZELM_BODY {
        using Method = MethodAt<List, n>;
        return inverseBlocks<Method, n>(src, dst, count, [&](int64_t k) ZELM_BODY {
          return invertOne<Method, n>(src.object(k, n), dst.object(k, n));
        });
      },
      [&]() ZELM_BODY {
        for (int32_t k = 0; k < count; ++k)
          if (const ZelStatus status = others(k); status != zelStatusOk)
            return status;
        return ZelStatus{zelStatusOk};
      });
}

// The other sides go to a kernel of single objects.
template <class List, auto Others, class Source, class T, class Result>
ZELM_INLINE ZelStatus inverses(const Source& src, const Buffer<T>& buffer, const Result& dst, Size side, Count count) {
  return inverseBatch<List>(src, dst, side, count,
                            [&](int64_t k) ZELM_BODY { return Others(src.single(k), buffer, dst.single(k), side); });
}
// Pointer layout: they stay here.
template <class List, class Source, class T, class Result>
ZELM_INLINE ZelStatus inversesP(const Source& src, const Buffer<T>& buffer, const Result& dst, Size side, Count count) {
  return inverseBatch<List>(src, dst, side, count, [&](int64_t k) ZELM_BODY {
    return invertByMinors(src.object(k, side), buffer.pointer, dst.object(k, side), side);
  });
}

// Objects of side 4 two at a time, from the first on: nothing of a pair is stored unless both have an inverse.
template <class Method, class Source, class T, class Result>
ZELM_INLINE ZelStatus inversesInPairs(const Source& src, const Buffer<T>&, const Result& dst, Size, Count count) {
  return inverseBlocks<Method, 4>(src, dst, count, [&](int64_t k) ZELM_BODY {
    if (k % 2 == 0 && k + 1 < count) {
      Tile<T, 4, 4> second = loadTile<4, 4>(src.object(k + 1, 4));
      Tile<T, 4, 4> inverse;
      if (!invertTile<Method>(second, inverse))
        return ZelStatus{zelStatusSingular};
    }
    return invertOne<Method, 4>(src.object(k, 4), dst.object(k, 4));
  });
}

// Rows of 16 bytes without gaps, and objects, at multiples of 16 bytes.
template <class Source, class Result> ZELM_INLINE bool areAlignedForPairs(const Source& src, const Result& dst) {
  const auto addresses = reinterpret_cast<std::uintptr_t>(src.pointer) | reinterpret_cast<std::uintptr_t>(dst.pointer);
  return ((addresses | static_cast<std::uintptr_t>(src.stride0 | dst.stride0)) & 15) == 0 &&
         (src.stride1 | dst.stride1) == 16;
}

// As inverses, but aligned objects of side 4 go to a kernel for pairs of them.
template <auto Pairs, class List, auto Others, class Source, class T, class Result>
ZELM_INLINE ZelStatus inversesOrPairs(const Source& src, const Buffer<T>& buffer, const Result& dst, Size side,
                                      Count count) {
  if (side == 4 && areAlignedForPairs(src, dst))
    return Pairs(src, buffer, dst, side, count);
  return inverses<List, Others>(src, buffer, dst, side, count);
}

} // namespace zelm

// ---------------------------------------------------------------------------------------------------------------------
// Kernels that others call

// clang-format off
ZELM_DECLARE(ownzelmInvert_m_32f_3x3,       INVERT_M,  S, UNIT, float);
ZELM_DECLARE(ownzelmInvert_m_32f_4x4,       INVERT_M,  S, UNIT, float);
ZELM_DECLARE(ownzelmInvert_m_32f_5x5,       INVERT_M,  S, UNIT, float);
ZELM_DECLARE(ownzelmInvert_m_32f_6x6,       INVERT_M,  S, UNIT, float);
ZELM_DECLARE(ownzelmInvert_m_32f_4x4_loop2, INVERT_MA, S, UNIT, float);
ZELM_DECLARE(ownzelmInvert_m_64f_3x3,       INVERT_M,  S, UNIT, double);
ZELM_DECLARE(ownzelmInvert_m_64f_4x4,       INVERT_M,  S, UNIT, double);
ZELM_DECLARE(ownzelmInvert_m_64f_5x5_PX,    INVERT_M,  S, UNIT, double);
ZELM_DECLARE(ownzelmInvert_m_64f_6x6_PX,    INVERT_M,  S, UNIT, double);
ZELM_DECLARE(ownzelmInvert_m_32f_com,       INVERT_M,  S, UNIT, float);
ZELM_DECLARE(ownzelmInvert_m_64f_com,       INVERT_M,  S, UNIT, double);
ZELM_DECLARE(ownzelmInvert_m_32f_S2_com,    INVERT_M,  S, ANY,  float);
ZELM_DECLARE(ownzelmInvert_m_64f_S2_com,    INVERT_M,  S, ANY,  double);
ZELM_DECLARE(ownzelmInvert_m_32f_P_com,     INVERT_M,  P, ANY,  float);
ZELM_DECLARE(ownzelmInvert_m_64f_P_com,     INVERT_M,  P, ANY,  double);
// clang-format on
