// Symmetric eigenproblems, values alone and with vectors: packed batches, and the pointer layout with neighbouring
// objects beside them.
#include "systems.h"

#include <zelm.h>

#include <memory>
#include <string>

namespace bench {
namespace {

// Operands: matrices, room for the vectors, values, the scratch of one object. Vectors are not compared, since their
// signs are free.
template <class T> auto packedValues(int n) {
  const int e = sizeof(T);
  return [=](auto call, const Block& b) {
    call(source<T>(b, 0), n * n * e, n * e, e, result<T>(b, 3), result<T>(b, 2), n, b.count);
  };
}
template <class T> auto packedVectors(int n) {
  const int e = sizeof(T);
  return [=](auto call, const Block& b) {
    call(source<T>(b, 0), n * n * e, n * e, e, result<T>(b, 3), result<T>(b, 1), n * n * e, n * e, e, result<T>(b, 2),
         n, b.count);
  };
}

template <class T> struct SymmetricPositions { Positions<T> matrices, vectors; };

template <class T> auto pointerValues(int n, const std::shared_ptr<SymmetricPositions<T>>& p) {
  const int e = sizeof(T);
  return [=](auto call, const Block& b) {
    call(p->matrices.list.data(), 0, e, result<T>(b, 3), result<T>(b, 2), n, b.count);
  };
}
template <class T> auto pointerVectors(int n, const std::shared_ptr<SymmetricPositions<T>>& p) {
  const int e = sizeof(T);
  return [=](auto call, const Block& b) {
    call(p->matrices.list.data(), 0, e, result<T>(b, 3), p->vectors.list.data(), 0, e, result<T>(b, 2), n, b.count);
  };
}

// Far above the limits, which are absolute, with values away from zero. An object that fails would show: the values
// behind it differ.
void symmetric(double* object, int n, Random& random) {
  std::uniform_real_distribution<double> element(-1024, 1024);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j <= i; ++j)
      object[i * n + j] = object[j * n + i] = element(random) + (i == j ? 4096 : 0);
}

template <class T>
void addSize(const char* what, int n, std::vector<Contender> contenders, const std::vector<Contender>& pointer,
             const std::shared_ptr<SymmetricPositions<T>>& positions) {
  contenders.insert(contenders.end(), pointer.begin(), pointer.end());
  const Fill fill = [n](double* object, Random& random) { symmetric(object, n, random); };
  Case entry{std::string(what) + (sizeof(T) == 4 ? "/ma/32f/" : "/ma/64f/") + std::to_string(n),
             sizeof(T),
             {array(n * n, fill), array(n * n), results(n), single(n * n)},
             std::move(contenders)};
  entry.tolerance = sizeof(T) == 4 ? 1e-4 : 1e-12;
  entry.figures = {{"pointer", "pointer", "lib"}};
  entry.prepare = [positions, n](const Block& block) {
    positions->matrices.take(block, 0, n * n);
    positions->vectors.cut(result<T>(block, 1), block, n * n);
  };
  for (const int count : {100, 300, 1000})
    add(entry, std::to_string(count), count);
}

} // namespace

void registerEigenSym() {
  for (int n = 3; n <= 6; ++n) {
    const auto p32 = std::make_shared<SymmetricPositions<Zel32f>>();
    const auto p64 = std::make_shared<SymmetricPositions<Zel64f>>();
    addSize("EigenValuesSym", n, BENCH_LIBRARY(zelmEigenValuesSym_ma_32f, packedValues<Zel32f>(n)),
            BENCH_LIBRARY(zelmEigenValuesSym_ma_32f_P, pointerValues(n, p32), "pointer", Role::other), p32);
    addSize("EigenValuesSym", n, BENCH_LIBRARY(zelmEigenValuesSym_ma_64f, packedValues<Zel64f>(n)),
            BENCH_LIBRARY(zelmEigenValuesSym_ma_64f_P, pointerValues(n, p64), "pointer", Role::other), p64);
    addSize("EigenValuesVectorsSym", n, BENCH_LIBRARY(zelmEigenValuesVectorsSym_ma_32f, packedVectors<Zel32f>(n)),
            BENCH_LIBRARY(zelmEigenValuesVectorsSym_ma_32f_P, pointerVectors(n, p32), "pointer", Role::other), p32);
    addSize("EigenValuesVectorsSym", n, BENCH_LIBRARY(zelmEigenValuesVectorsSym_ma_64f, packedVectors<Zel64f>(n)),
            BENCH_LIBRARY(zelmEigenValuesVectorsSym_ma_64f_P, pointerVectors(n, p64), "pointer", Role::other), p64);
  }
}

} // namespace bench
