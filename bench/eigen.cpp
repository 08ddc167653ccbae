// Eigenvalues of general matrices, alone and with vectors: packed batches of random matrices.
#include "bench.h"

#include <zelm.h>

#include <string>

namespace bench {
namespace {

// Operands: matrices, vectors, real and imaginary parts of the values, the scratch of one object. Solvers have orders
// and signs of their own, so that results are not compared: none of the operands is called one.
template <class T> auto valuesCall(int side) {
  const int e = sizeof(T);
  const int row = side * e;
  return [=](auto values, const Block& b) {
    values(source<T>(b, 0), side * row, row, e, result<T>(b, 2), result<T>(b, 3), side, b.count, result<T>(b, 4));
  };
}

// Vectors in the usual sense, a * y = conj(value) * y.
template <class T> auto vectorsCall(int side) {
  const int e = sizeof(T);
  const int row = side * e;
  return [=](auto vectors, const Block& b) {
    vectors(source<T>(b, 0), side * row, row, e, result<T>(b, 1), side * row, row, e, result<T>(b, 2), result<T>(b, 3),
            side, b.count, result<T>(b, 4));
  };
}

void addSide(const char* family, int side, int elementSize, const std::vector<Contender>& contenders) {
  const Fill fill = [=](double* object, Random& random) {
    std::uniform_real_distribution<double> element(-1, 1);
    for (int e = 0; e < side * side; ++e)
      object[e] = element(random);
  };
  const std::string size = std::to_string(side);
  const int square = side * side;
  add(Case{std::string(family) + "/ma/" + (elementSize == 4 ? "32f/" : "64f/") + size + "x" + size,
           elementSize,
           {array(square, fill), array(square), array(side), array(side), single(3 * square + 5 * side)},
           contenders},
      "1000", 1000);
}

} // namespace

void registerEigen() {
  for (const int side : {3, 4, 5, 6, 8}) {
    addSide("EigenValues", side, 4, BENCH_LIBRARY(zelmEigenValues_ma_32f, valuesCall<Zel32f>(side)));
    addSide("EigenValues", side, 8, BENCH_LIBRARY(zelmEigenValues_ma_64f, valuesCall<Zel64f>(side)));
    addSide("EigenVectors", side, 4, BENCH_LIBRARY(zelmEigenValuesVectorsLeft_ma_32f, vectorsCall<Zel32f>(side)));
    addSide("EigenVectors", side, 8, BENCH_LIBRARY(zelmEigenValuesVectorsLeft_ma_64f, vectorsCall<Zel64f>(side)));
  }
}

} // namespace bench
