// QR decomposition by Householder reflections and the solution of systems with
// it, by least squares where there are more rows than columns.
//
// A factored matrix holds R on and above the diagonal. Below the diagonal of
// column k stands the tail of the reflection vector v(k), whose element at row
// k is an implied 1: H(k) = I + beta(k) * v(k) * transpose(v(k)), beta(k) = -2
// / (transpose(v(k)) * v(k)). No coefficient is stored.
#pragma once

#include "zelmblock.h"
#include "zelmqrsignature.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Arithmetic, on an object or on a block of them

// The last column of a square matrix has no reflection, and so no test.
template <class Width, class Height> ZELM_INLINE constexpr auto qrSteps(Width width, Height height) {
  if constexpr (isFixed<Width> && isFixed<Height>)
    return Fixed<(width < height ? width : width - 1)>{};
  else
    return width < height ? static_cast<int>(width) : width - 1;
}

// +norm if head is greater than 0, else -norm, which a NaN takes too.
template <class L> ZELM_INLINE L signedNorm(const L& head, const L& norm) {
  return select(greater(head, L{}), norm, -norm);
}

// The limit of the squared norm; exact in both types, so that the comparison in
// double is one in the element type.
template <class T> constexpr T qrLimit = sizeof(T) == 4 ? T(0x1p-23) : T(0x1p-52);

// Reduces a to its factored form; v is room for a reflection vector. False,
// with the columns so far finished and the rest partly reduced, if the limit
// exceeds a squared norm in any lane. A NaN passes.
template <class L, class Matrix, class Vector, class Width, class Height>
ZELM_INLINE bool qrReduce(const Matrix& a, const Vector& v, Width width, Height height) {
  using T = ElementOf<L>;
  return whileAscending(Fixed<0>{}, qrSteps(width, height), [&](auto k) ZELM_BODY {
    L norm2{};
    ascending(k, height, [&](auto i) ZELM_BODY {
      const L x = a.load(i, k);
      norm2 = norm2 + x * x;
    });
    if (any(greater(splat<L>(qrLimit<T>), norm2)))
      return false;
    // The correctly rounded root, which is also the root in double rounded
    // to the element type.
    const L norm = squareRoot(norm2);
    const L head = a.load(k, k);
    const L p = head + signedNorm(head, norm);
    const L r = splat<L>(1) / p;
    L w = splat<L>(1);
    ascending(next(k), height, [&](auto i) ZELM_BODY {
      const L x = a.load(i, k) * r;
      v.store(i, x);
      w = w + x * x;
    });
    const L beta = splat<L>(-2) / w;
    L s = head;
    ascending(next(k), height, [&](auto i) ZELM_BODY { s = s + a.load(i, k) * v.load(i); });
    a.store(k, k, s * beta + head);
    // Below the diagonal the column becomes the tail.
    ascending(next(k), height, [&](auto i) ZELM_BODY { a.store(i, k, v.load(i)); });
    ascending(next(k), width, [&](auto j) ZELM_BODY {
      const L top = a.load(k, j);
      L sum = top;
      ascending(next(k), height, [&](auto i) ZELM_BODY { sum = sum + a.load(i, j) * v.load(i); });
      sum = sum * beta;
      a.store(k, j, sum + top);
      ascending(next(k), height, [&](auto i) ZELM_BODY { a.store(i, j, v.load(i) * sum + a.load(i, j)); });
    });
    return true;
  });
}

// The denominator of beta(k).
template <class L, class Matrix, class Index, class Height>
ZELM_INLINE L qrDenominator(const Matrix& a, Index k, Height height) {
  L w = splat<L>(1);
  ascending(next(k), height, [&](auto i) ZELM_BODY {
    const L x = a.load(i, k);
    w = w + x * x;
  });
  return w;
}

// Turns the right-hand side c by the reflections and solves with R; x may be c.
// denominator(k) is that of beta(k).
template <class L, class Matrix, class Denominator, class Vector, class Result, class Width, class Height>
ZELM_INLINE void qrSolve(const Matrix& a, const Denominator& denominator, const Vector& c, const Result& x, Width width,
                         Height height) {
  ascending(Fixed<0>{}, qrSteps(width, height), [&](auto k) ZELM_BODY {
    const L top = c.load(k);
    L s = top;
    ascending(next(k), height, [&](auto i) ZELM_BODY { s = s + c.load(i) * a.load(i, k); });
    s = s * (splat<L>(-2) / denominator(k));
    c.store(k, top + s);
    ascending(next(k), height, [&](auto i) ZELM_BODY { c.store(i, a.load(i, k) * s + c.load(i)); });
  });
  const auto last = previous(width);
  x.store(last, c.load(last) / a.load(last, last));
  descending(Fixed<0>{}, last, [&](auto i) ZELM_BODY {
    L t{};
    ascending(next(i), width, [&](auto j) ZELM_BODY { t = t + a.load(i, j) * x.load(j); });
    x.store(i, (c.load(i) - t) / a.load(i, i));
  });
}

// ---------------------------------------------------------------------------------------------------------------------
// Blocks: in lanes up to this number of elements an object

constexpr int qrLaneElements = 128;
ZELM_INLINE bool qrFitsLanes(int32_t width, int32_t height) {
  return static_cast<int64_t>(width) * height <= qrLaneElements;
}

template <class L> struct QrScratch {
  L element[qrLaneElements];
  L vector[qrLaneElements];
  L denominator[qrLaneElements];
};

// Calls body(width, height), with sizes known to the compiler where there is
// straight-line code.
template <class F> ZELM_INLINE auto forQrShape(int width, int height, const F& body) {
  if (width == 3 && height == 6)
    return body(Fixed<3>{}, Fixed<6>{});
  if (width != height)
    return body(width, height);
  switch (width) {
  case 3:
    return body(Fixed<3>{}, Fixed<3>{});
  case 4:
    return body(Fixed<4>{}, Fixed<4>{});
  case 5:
    return body(Fixed<5>{}, Fixed<5>{});
  case 6:
    return body(Fixed<6>{}, Fixed<6>{});
  default:
    return body(width, height);
  }
}

// Two vectors of objects at a time, so that one chain of roots, divisions and
// sums fills the gaps of the other.
template <class V> ZELM_NOINLINE bool qrReduceLanes(QrScratch<V>& low, QrScratch<V>& high, int width, int height) {
  using L = Pair<V>;
  return forQrShape(width, height, [&](auto w, auto h) ZELM_BODY {
    return qrReduce<L>(Rectangle<L, decltype(w)>{{low.element, high.element}, w}, Column<L>{low.vector, high.vector}, w,
                       h);
  });
}

template <class V> ZELM_NOINLINE void qrDenominators(QrScratch<V>& scratch, int width, int height) {
  const Rectangle<V, int> a{{scratch.element}, width};
  for (int k = 0; k < qrSteps(width, height); ++k)
    scratch.denominator[k] = qrDenominator<V>(a, k, height);
}

// The right-hand sides stand in the scratch vectors, and so do the solutions. Every lane has its own matrix; of the
// shapes with straight-line code only 6 by 6 comes here.
template <class V> ZELM_NOINLINE void qrSolveEach(QrScratch<V>& low, QrScratch<V>& high, int width, int height) {
  using L = Pair<V>;
  const auto solve = [&](auto w, auto h) ZELM_BODY {
    const Rectangle<L, decltype(w)> a{{low.element, high.element}, w};
    const Column<L> c{low.vector, high.vector};
    qrSolve<L>(
        a, [&](auto k) ZELM_BODY { return qrDenominator<L>(a, k, h); }, c, c, w, h);
  };
  if (width == 6 && height == 6)
    solve(Fixed<6>{}, Fixed<6>{});
  else
    solve(width, height);
}

// The one matrix and its denominators are in low.
template <class V> ZELM_NOINLINE void qrSolveOne(QrScratch<V>& low, QrScratch<V>& high, int width, int height) {
  using L = Pair<V>;
  forQrShape(width, height, [&](auto w, auto h) ZELM_BODY {
    const Rectangle<L, decltype(w)> a{{low.element, low.element}, w};
    const Column<L> c{low.vector, high.vector};
    qrSolve<L>(
        a,
        [&](auto k) ZELM_BODY {
          return L{low.denominator[k], low.denominator[k]};
        },
        c, c, w, h);
  });
}

// Calls of their own: a shape that the compiler knows, if the lanes are neighbours or come from neighbouring elements.
template <class Objects, class L>
ZELM_NOINLINE void loadRectangle(const Objects& objects, L* lanes, int width, int height) {
  if constexpr (Objects::straight)
    forQrShape(width, height, [&](auto w, auto h) ZELM_BODY { loadElements(objects, lanes, w, h); });
  else
    loadElements(objects, lanes, width, height);
}
template <class Objects, class L>
ZELM_NOINLINE void storeRectangle(const Objects& objects, const L* lanes, int width, int height) {
  if constexpr (Objects::straight)
    forQrShape(width, height, [&](auto w, auto h) ZELM_BODY { storeElements(objects, lanes, w, h); });
  else
    storeElements(objects, lanes, width, height);
}

// ---------------------------------------------------------------------------------------------------------------------
// Decomposition

template <class T, class Source, class Result>
ZELM_INLINE ZelStatus qrFactor(const Source& src, T* buffer, const Result& dst, int32_t width, int32_t height) {
  for (int32_t i = 0; i < height; ++i)
    for (int32_t j = 0; j < width; ++j)
      dst.store(i, j, src.load(i, j));
  return qrReduce<T>(dst, Column<T>{buffer}, static_cast<int>(width), static_cast<int>(height)) ? zelStatusOk
                                                                                                : zelStatusDivideByZero;
}

// Single objects.
template <class T, class Source, class Result>
ZELM_INLINE ZelStatus qrFactors(const Source& src, const Buffer<T>& buffer, const Result& dst, int32_t width,
                                int32_t height) {
  return qrFactor<T>(src.object(0, width), buffer.pointer, dst.object(0, width), width, height);
}

// A vector full of objects from their places to their places. Against two vectors that go through memory it pays while
// the matrix fits the registers, and a little further where nothing is transposed.
template <class Source, class Width, class Height> constexpr bool qrInRegisters = false;
template <class Source> constexpr bool qrInRegisters<Source, Fixed<3>, Fixed<3>> = true;
template <class T> constexpr bool qrInRegisters<MatricesP<T>, Fixed<4>, Fixed<4>> = true;
template <class T> constexpr bool qrInRegisters<MatricesP<T>, Fixed<3>, Fixed<6>> = true;

template <class V, class Source, class Result, class Width, class Height>
ZELM_NOINLINE bool qrFactorStraight(const Source& src, const Result& dst, Width width, Height height) {
  V element[width * height];
  V vector[height];
  loadElements(src, element, width, height);
  if (!qrReduce<V>(Rectangle<V, Width>{{element}, width}, Column<V>{vector}, width, height))
    return false;
  storeElements(dst, element, width, height);
  return true;
}

// Batches.
template <class T, class Source, class Result>
ZELM_INLINE ZelStatus qrFactors(const Source& src, const Buffer<T>& buffer, const Result& dst, int32_t width,
                                int32_t height, int32_t count) {
  const auto single = [=](int64_t k) ZELM_NOINLINE {
    return qrFactor<T>(src.object(k, width), buffer.pointer, dst.object(k, width), width, height);
  };
  constexpr int W = laneCount<T>;
  const bool neighbours = areNeighbours(src) && areNeighbours(dst);
  const auto throughMemory = [=]() ZELM_NOINLINE {
    const bool inLanes = count > 1 && qrFitsLanes(width, height);
    QrScratch<Lanes<T>> scratch[2];
    auto sources = matrixBlocks(src, width);
    auto results = matrixBlocks(dst, width);
    return forBlocks<2 * W, isPointerLayout<Source>>(
        count, neighbours,
        [&](auto block) ZELM_BODY {
          if (!inLanes)
            return false;
          const auto low = block.template low<W>();
          const auto high = block.template high<W>();
          loadRectangle(sources.at(low), scratch[0].element, width, height);
          loadRectangle(sources.at(high), scratch[1].element, width, height);
          if (!qrReduceLanes(scratch[0], scratch[1], width, height))
            return false;
          storeRectangle(results.at(low), scratch[0].element, width, height);
          storeRectangle(results.at(high), scratch[1].element, width, height);
          return true;
        },
        single);
  };
  return forQrShape(width, height, [&](auto w, auto h) ZELM_BODY {
    if constexpr (qrInRegisters<Source, decltype(w), decltype(h)>) {
      auto sources = matrixBlocks(src, width);
      auto results = matrixBlocks(dst, width);
      return forBlocks<W, isPointerLayout<Source>>(
          count, neighbours,
          [&](auto block) ZELM_BODY { return qrFactorStraight<Lanes<T>>(sources.at(block), results.at(block), w, h); },
          single);
    } else {
      return throughMemory();
    }
  });
}

// ---------------------------------------------------------------------------------------------------------------------
// Back substitution

// Whether this is a square size that does without the caller's scratch.
ZELM_INLINE bool qrIsSmallSquare(int32_t width, int32_t height) {
  return width == height && width >= 3 && width <= 6;
}

template <class T, class Matrix, class Right, class Result>
ZELM_INLINE void qrSolution(const Matrix& a, T* buffer, const Right& right, const Result& dst, int32_t width,
                            int32_t height) {
  T local[6];
  T* const work = qrIsSmallSquare(width, height) ? local : buffer;
  const Column<T> c{work};
  for (int32_t i = 0; i < height; ++i)
    c.store(i, right.load(i));
  qrSolve<T>(
      a, [&](int k) ZELM_BODY { return qrDenominator<T>(a, k, height); }, c, dst, static_cast<int>(width),
      static_cast<int>(height));
}

// Single objects.
template <class T, class Matrix, class Right, class Result>
ZELM_INLINE ZelStatus qrSolutions(const Matrix& src1, const Buffer<T>& buffer, const Right& src2, const Result& dst,
                                  int32_t width, int32_t height) {
  qrSolution<T>(src1.object(0, width), buffer.pointer, src2.object(0), dst.object(0), width, height);
  return zelStatusOk;
}

// A vector full of systems, each with its own matrix. 6 by 6 ones that are transposed are better off in two vectors.
template <class Matrix, class Width, class Height> constexpr bool qrSolvesStraight = isFixed<Width>&& isFixed<Height>;
template <class Matrix> constexpr bool qrSolvesStraight<Matrix, Fixed<6>, Fixed<6>> = isPointerLayout<Matrix>;

template <class V, class Matrix, class Right, class Result, class Width, class Height>
ZELM_NOINLINE void qrSolveStraight(const Matrix& src1, const Right& src2, const Result& dst, Width width,
                                   Height height) {
  V element[width * height];
  V vector[height];
  loadElements(src1, element, width, height);
  src2.load(0, 0, height, vector);
  const Rectangle<V, Width> a{{element}, width};
  const Column<V> c{vector};
  qrSolve<V>(
      a, [&](auto k) ZELM_BODY { return qrDenominator<V>(a, k, height); }, c, c, width, height);
  dst.store(0, 0, width, vector);
}

// Batches.
template <class T, class Matrix, class Right, class Result>
ZELM_INLINE ZelStatus qrSolutions(const Matrix& src1, const Buffer<T>& buffer, const Right& src2, const Result& dst,
                                  int32_t width, int32_t height, int32_t count) {
  constexpr bool each = Matrix::isArray;
  const auto single = [=](int64_t k) ZELM_NOINLINE {
    qrSolution<T>(src1.object(k, width), buffer.pointer, src2.object(k), dst.object(k), width, height);
    return zelStatusOk;
  };
  constexpr int W = laneCount<T>;
  bool allNeighbours = areNeighbours(src2) && areNeighbours(dst);
  if constexpr (each)
    allNeighbours = allNeighbours && areNeighbours(src1);
  const bool neighbours = allNeighbours;
  const auto throughMemory = [=]() ZELM_NOINLINE {
    const bool inLanes = count > 1 && qrFitsLanes(width, height);
    QrScratch<Lanes<T>> scratch[2];
    [[maybe_unused]] auto matrices = matrixBlocks(src1, width);
    auto rights = vectorBlocks(src2);
    auto results = vectorBlocks(dst);
    if (!each && inLanes) {
      // One matrix: its lanes and the denominators of its reflections serve all vectors.
      const auto matrix = src1.object(0, width);
      for (int32_t i = 0; i < height; ++i)
        for (int32_t j = 0; j < width; ++j)
          scratch[0].element[i * width + j] = splat<Lanes<T>>(matrix.load(i, j));
      qrDenominators(scratch[0], width, height);
    }
    return forBlocks<2 * W, isPointerLayout<Result>>(
        count, neighbours,
        [&](auto block) ZELM_BODY {
          if (!inLanes)
            return false;
          const auto low = block.template low<W>();
          const auto high = block.template high<W>();
          loadRectangle(rights.at(low), scratch[0].vector, height, 1);
          loadRectangle(rights.at(high), scratch[1].vector, height, 1);
          if constexpr (each) {
            loadRectangle(matrices.at(low), scratch[0].element, width, height);
            loadRectangle(matrices.at(high), scratch[1].element, width, height);
            qrSolveEach(scratch[0], scratch[1], width, height);
          } else {
            qrSolveOne(scratch[0], scratch[1], width, height);
          }
          storeRectangle(results.at(low), scratch[0].vector, width, 1);
          storeRectangle(results.at(high), scratch[1].vector, width, 1);
          return true;
        },
        single);
  };
  return forQrShape(width, height, [&](auto w, auto h) ZELM_BODY {
    if constexpr (each && qrSolvesStraight<Matrix, decltype(w), decltype(h)>) {
      auto matrices = matrixBlocks(src1, width);
      auto rights = vectorBlocks(src2);
      auto results = vectorBlocks(dst);
      return forBlocks<W, isPointerLayout<Result>>(
          count, neighbours,
          [&](auto block) ZELM_BODY {
            qrSolveStraight<Lanes<T>>(matrices.at(block), rights.at(block), results.at(block), w, h);
            return true;
          },
          single);
    } else {
      return throughMemory();
    }
  });
}

} // namespace zelm
