// Cholesky decomposition and solution: packed batches, beside them the same taken as columns and the pointer layout
// with neighbouring objects.
#include "systems.h"

#include <zelm.h>

#include <memory>
#include <string>

namespace bench {
namespace {

// Operands: matrices, right-hand sides, room for the factors, solutions.
template <class T> auto packedCall(int n) {
  const int e = sizeof(T);
  return [=](auto decompose, auto solve, const Block& b) {
    T* const factors = result<T>(b, 2);
    decompose(source<T>(b, 0), n * n * e, n * e, e, factors, n * n * e, n * e, e, n, b.count);
    solve(factors, n * n * e, n * e, e, source<T>(b, 1), n * e, e, result<T>(b, 3), n * e, e, n, b.count);
  };
}

// The same column after column.
template <class T> auto columnsCall(int n) {
  const int e = sizeof(T);
  return [=](auto decompose, auto solve, const Block& b) {
    T* const factors = result<T>(b, 2);
    decompose(source<T>(b, 0), n * n * e, e, n * e, factors, n * n * e, e, n * e, n, b.count);
    solve(factors, n * n * e, e, n * e, source<T>(b, 1), n * e, e, result<T>(b, 3), n * e, e, n, b.count);
  };
}

template <class T> auto pointerCall(int n, const std::shared_ptr<SystemPositions<T>>& p) {
  const int e = sizeof(T);
  return [=](auto decompose, auto solve, const Block& b) {
    decompose(p->matrices.list.data(), 0, e, p->factors.list.data(), 0, e, n, b.count);
    solve(p->factors.list.data(), 0, e, p->sides.list.data(), 0, e, p->solutions.list.data(), 0, e, n, b.count);
  };
}

void definite(double* object, int n, Random& random) {
  std::uniform_real_distribution<double> element(-0.5, 0.5);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j <= i; ++j) {
      const double x = element(random);
      object[i * n + j] = object[j * n + i] = i == j ? n + x : x;
    }
}

template <class T>
void addSize(int n, std::vector<Contender> contenders, const std::vector<Contender>& columns,
             const std::vector<Contender>& pointer, const std::shared_ptr<SystemPositions<T>>& positions) {
  contenders.insert(contenders.end(), columns.begin(), columns.end());
  contenders.insert(contenders.end(), pointer.begin(), pointer.end());
  const Fill fill = [n](double* object, Random& random) { definite(object, n, random); };
  Case entry{std::string("Cholesky/ma/") + (sizeof(T) == 4 ? "32f/" : "64f/") + std::to_string(n),
             sizeof(T),
             {array(n * n, fill), array(n), array(n * n), results(n)},
             std::move(contenders)};
  entry.tolerance = sizeof(T) == 4 ? 1e-4 : 1e-12;
  entry.figures = {{"columns", "columns", "lib"}, {"pointer", "pointer", "lib"}};
  entry.prepare = [positions, n](const Block& block) { positions->take(block, n, n); };
  for (const int count : {100, 300, 1000})
    add(entry, std::to_string(count), count);
}

} // namespace

void registerCholesky() {
  for (const int n : {2, 3, 4, 5, 6, 7, 8, 12}) {
    const auto p32 = std::make_shared<SystemPositions<Zel32f>>();
    const auto p64 = std::make_shared<SystemPositions<Zel64f>>();
    addSize(n, BENCH_LIBRARY_2(zelmCholeskyDecomp_ma_32f, zelmCholeskyBackSubst_mava_32f, packedCall<Zel32f>(n)),
            BENCH_LIBRARY_2(zelmCholeskyDecomp_ma_32f, zelmCholeskyBackSubst_mava_32f, columnsCall<Zel32f>(n),
                            "columns", Role::other, 0),
            BENCH_LIBRARY_2(zelmCholeskyDecomp_ma_32f_P, zelmCholeskyBackSubst_mava_32f_P, pointerCall(n, p32),
                            "pointer", Role::other, 1),
            p32);
    addSize(n, BENCH_LIBRARY_2(zelmCholeskyDecomp_ma_64f, zelmCholeskyBackSubst_mava_64f, packedCall<Zel64f>(n)),
            BENCH_LIBRARY_2(zelmCholeskyDecomp_ma_64f, zelmCholeskyBackSubst_mava_64f, columnsCall<Zel64f>(n),
                            "columns", Role::other, 0),
            BENCH_LIBRARY_2(zelmCholeskyDecomp_ma_64f_P, zelmCholeskyBackSubst_mava_64f_P, pointerCall(n, p64),
                            "pointer", Role::other, 1),
            p64);
  }
}

} // namespace bench
