// LU decomposition and solution: packed batches, beside them the same taken as columns and the pointer layout with
// neighbouring objects, two threads.
#include "systems.h"

#include <omp.h>
#include <zelm.h>

#include <memory>
#include <string>

namespace bench {
namespace {

// Operands: matrices, right-hand sides, room for the factors, solutions, room for the indices.
template <class T> auto packedCall(int n) {
  const int e = sizeof(T);
  return [=](auto decompose, auto solve, const Block& b) {
    T* const factors = result<T>(b, 2);
    int32_t* const index = result<int32_t>(b, 4);
    decompose(source<T>(b, 0), n * n * e, n * e, e, index, factors, n * n * e, n * e, e, n, b.count);
    solve(factors, n * n * e, n * e, e, index, source<T>(b, 1), n * e, e, result<T>(b, 3), n * e, e, n, b.count);
  };
}

// The same column after column.
template <class T> auto columnsCall(int n) {
  const int e = sizeof(T);
  return [=](auto decompose, auto solve, const Block& b) {
    T* const factors = result<T>(b, 2);
    int32_t* const index = result<int32_t>(b, 4);
    decompose(source<T>(b, 0), n * n * e, e, n * e, index, factors, n * n * e, e, n * e, n, b.count);
    solve(factors, n * n * e, e, n * e, index, source<T>(b, 1), n * e, e, result<T>(b, 3), n * e, e, n, b.count);
  };
}

template <class T> auto pointerCall(int n, const std::shared_ptr<SystemPositions<T>>& p) {
  const int e = sizeof(T);
  return [=](auto decompose, auto solve, const Block& b) {
    int32_t* const index = result<int32_t>(b, 4);
    decompose(p->matrices.list.data(), 0, e, index, p->factors.list.data(), 0, e, n, b.count);
    solve(p->factors.list.data(), 0, e, index, p->sides.list.data(), 0, e, p->solutions.list.data(), 0, e, n, b.count);
  };
}

template <class T> Case systems(const char* form, int n, std::vector<Contender> contenders) {
  const Fill fill = [n](double* object, Random& random) {
    std::uniform_real_distribution<double> element(-1, 1);
    for (int e = 0; e < n * n; ++e)
      object[e] = element(random);
  };
  Case entry{std::string("LU/") + form + (sizeof(T) == 4 ? "/32f/" : "/64f/") + std::to_string(n),
             sizeof(T),
             {array(n * n, fill), array(n), array(n * n), results(n), array(n)},
             std::move(contenders)};
  entry.tolerance = sizeof(T) == 4 ? 1e-1 : 1e-9; // some of the random systems are badly conditioned
  return entry;
}

template <class T>
void addSize(int n, std::vector<Contender> contenders, const std::vector<Contender>& columns,
             const std::vector<Contender>& pointer, const std::shared_ptr<SystemPositions<T>>& positions) {
  contenders.insert(contenders.end(), columns.begin(), columns.end());
  contenders.insert(contenders.end(), pointer.begin(), pointer.end());
  Case entry = systems<T>("ma", n, std::move(contenders));
  entry.figures = {{"columns", "columns", "lib"}, {"pointer", "pointer", "lib"}};
  entry.prepare = [positions, n](const Block& block) { positions->take(block, n, n); };
  for (const int count : {100, 300, 1000})
    add(entry, std::to_string(count), count);
}

template <class T> void addThreads(int n, std::vector<Contender> one) {
  Case entry = systems<T>("threads", n, std::move(one));
  for (std::size_t i = 0; i < 2; ++i) {
    Contender two = entry.contenders[i];
    two.who = "two";
    two.role = Role::other;
    two.run = [onOne = two.run](const Block& block, long repetitions) {
      omp_set_num_threads(2);
      onOne(block, repetitions);
      omp_set_num_threads(1);
    };
    entry.contenders.push_back(std::move(two));
  }
  entry.figures = {{"speedup", "lib", "two"}};
  add(entry, "100000", 100000);
}

} // namespace

void registerLu() {
  for (const int n : {2, 3, 4, 5, 6, 7, 8, 12}) {
    const auto p32 = std::make_shared<SystemPositions<Zel32f>>();
    const auto p64 = std::make_shared<SystemPositions<Zel64f>>();
    addSize(n, BENCH_LIBRARY_2(zelmLUDecomp_ma_32f, zelmLUBackSubst_mava_32f, packedCall<Zel32f>(n)),
            BENCH_LIBRARY_2(zelmLUDecomp_ma_32f, zelmLUBackSubst_mava_32f, columnsCall<Zel32f>(n), "columns",
                            Role::other, -1),
            BENCH_LIBRARY_2(zelmLUDecomp_ma_32f_P, zelmLUBackSubst_mava_32f_P, pointerCall(n, p32), "pointer",
                            Role::other, 1),
            p32);
    addSize(n, BENCH_LIBRARY_2(zelmLUDecomp_ma_64f, zelmLUBackSubst_mava_64f, packedCall<Zel64f>(n)),
            BENCH_LIBRARY_2(zelmLUDecomp_ma_64f, zelmLUBackSubst_mava_64f, columnsCall<Zel64f>(n), "columns",
                            Role::other, -1),
            BENCH_LIBRARY_2(zelmLUDecomp_ma_64f_P, zelmLUBackSubst_mava_64f_P, pointerCall(n, p64), "pointer",
                            Role::other, 1),
            p64);
  }
  for (const int n : {3, 6}) {
    addThreads<Zel32f>(n, BENCH_LIBRARY_2(zelmLUDecomp_ma_32f, zelmLUBackSubst_mava_32f, packedCall<Zel32f>(n)));
    addThreads<Zel64f>(n, BENCH_LIBRARY_2(zelmLUDecomp_ma_64f, zelmLUBackSubst_mava_64f, packedCall<Zel64f>(n)));
  }
}

} // namespace bench
