// Products of matrices: packed batches in the standard layout, the pointer layout on neighbouring objects beside them,
// and matrices beyond the sizes with a code of their own.
#include "bench.h"

#include <zelm.h>

#include <memory>
#include <string>

namespace bench {
namespace {

template <class T> std::string caseName(const char* form, int size) {
  return std::string("Mul/") + form + (sizeof(T) == 4 ? "/32f/" : "/64f/") + std::to_string(size);
}

// ---- standard layout, packed

template <class T> auto bothArrays(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, n, n, source<T>(b, 1), n * n * e, n * e, e, n, n, result<T>(b, 2),
             n * n * e, n * e, e, b.count);
  };
}

template <class T> auto firstArray(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, n, n, source<T>(b, 1), n * e, e, n, n, result<T>(b, 2), n * n * e,
             n * e, e, b.count);
  };
}

template <class T> auto secondArray(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, n, n, source<T>(b, 1), n * n * e, n * e, e, n, n, result<T>(b, 2), n * n * e,
             n * e, e, b.count);
  };
}

enum class Arrays { both, first, second };

template <class T> Case packed(const char* form, int n, Arrays arrays, std::vector<Contender> contenders) {
  const int nn = n * n;
  Case entry{caseName<T>(form, n),
             sizeof(T),
             {arrays == Arrays::second ? single(nn) : array(nn), arrays == Arrays::first ? single(nn) : array(nn),
              results(nn)},
             std::move(contenders)};
  entry.tolerance = sizeof(T) == 4 ? 1e-5 : 1e-13;
  if (n <= 6)
    entry.contiguous =
        std::string("contiguous/") + (arrays == Arrays::both ? "2/" : "1/") + (sizeof(T) == 4 ? "32f" : "64f");
  if (arrays == Arrays::second)
    entry.contiguousOperands = {1, 0, 2};
  return entry;
}

// clang-format off
void addPacked(int n) {
  add(packed<Zel32f>("mama", n, Arrays::both,   BENCH_LIBRARY(zelmMul_mama_32f, bothArrays<Zel32f>(n))));
  add(packed<Zel64f>("mama", n, Arrays::both,   BENCH_LIBRARY(zelmMul_mama_64f, bothArrays<Zel64f>(n))));
  if (n > 6)
    return;
  add(packed<Zel32f>("mam",  n, Arrays::first,  BENCH_LIBRARY(zelmMul_mam_32f,  firstArray<Zel32f>(n))));
  add(packed<Zel64f>("mam",  n, Arrays::first,  BENCH_LIBRARY(zelmMul_mam_64f,  firstArray<Zel64f>(n))));
  add(packed<Zel32f>("mma",  n, Arrays::second, BENCH_LIBRARY(zelmMul_mma_32f,  secondArray<Zel32f>(n))));
  add(packed<Zel64f>("mma",  n, Arrays::second, BENCH_LIBRARY(zelmMul_mma_64f,  secondArray<Zel64f>(n))));
  add(packed<Zel32f>("tam",  n, Arrays::first,  BENCH_LIBRARY(zelmMul_tam_32f,  firstArray<Zel32f>(n))));
  add(packed<Zel64f>("tam",  n, Arrays::first,  BENCH_LIBRARY(zelmMul_tam_64f,  firstArray<Zel64f>(n))));
}
// clang-format on

// ---- column-major, as it is

template <class T> auto byColumns(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, e, n * e, n, n, source<T>(b, 1), n * n * e, e, n * e, n, n, result<T>(b, 2),
             n * n * e, e, n * e, b.count);
  };
}

void addByColumns(int n) {
  add(packed<Zel32f>("mama_columns", n, Arrays::both, BENCH_LIBRARY(zelmMul_mama_32f, byColumns<Zel32f>(n))));
  add(packed<Zel64f>("mama_columns", n, Arrays::both, BENCH_LIBRARY(zelmMul_mama_64f, byColumns<Zel64f>(n))));
}

// ---- any shape: rows by terms by columns

template <class T> auto shaped(int h, int n, int w) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), h * n * e, n * e, e, n, h, source<T>(b, 1), n * w * e, w * e, e, w, n, result<T>(b, 2),
             h * w * e, w * e, e, b.count);
  };
}

template <class T> void addShape(int h, int n, int w, std::vector<Contender> contenders) {
  Case entry{caseName<T>("mama", h) + "x" + std::to_string(n) + "x" + std::to_string(w),
             sizeof(T),
             {array(h * n), array(n * w), results(h * w)},
             std::move(contenders)};
  entry.tolerance = sizeof(T) == 4 ? 1e-5 : 1e-13;
  add(entry);
}

void addShapes() {
  constexpr int shapes[][3] = {{2, 2, 2}, {2, 3, 2}, {3, 3, 4}, {3, 4, 4}, {4, 4, 3}, {6, 3, 3},
                               {6, 6, 3}, {6, 3, 6}, {2, 6, 6}, {4, 6, 4}, {6, 12, 6}};
  for (const auto& [h, n, w] : shapes) {
    addShape<Zel32f>(h, n, w, BENCH_LIBRARY(zelmMul_mama_32f, shaped<Zel32f>(h, n, w)));
    addShape<Zel64f>(h, n, w, BENCH_LIBRARY(zelmMul_mama_64f, shaped<Zel64f>(h, n, w)));
  }
}

// ---- pointer layout: each element position a run of its own, one element from object to object

struct Positions {
  std::vector<void*> of[3];
  template <class T> void take(const Block& block, int nn) {
    for (int operand = 0; operand < 3; ++operand) {
      of[operand].clear();
      for (int p = 0; p < nn; ++p)
        of[operand].push_back(result<T>(block, operand) + static_cast<std::ptrdiff_t>(p) * block.count);
    }
  }
  template <class T> const T* const* sources(int operand) const {
    return reinterpret_cast<const T* const*>(of[operand].data());
  }
  template <class T> T* const* results() const { return reinterpret_cast<T* const*>(of[2].data()); }
};

template <class T> auto onPositions(int n, const std::shared_ptr<Positions>& p) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(p->sources<T>(0), 0, e, n, n, p->sources<T>(1), 0, e, n, n, p->results<T>(), 0, e, b.count);
  };
}

// `pair` makes the two builds of the call in the pointer layout, `standard` those on the same bytes as packed objects.
template <class T, class Pair> void addPointer(int n, Pair pair, const std::vector<Contender>& standard) {
  const auto positions = std::make_shared<Positions>();
  Case entry = packed<T>("mama_P", n, Arrays::both, pair(onPositions<T>(n, positions)));
  entry.contenders.insert(entry.contenders.end(), standard.begin(), standard.end());
  entry.figures = {{"to packed", "lib", "packed"}};
  entry.prepare = [positions, n](const Block& b) { positions->take<T>(b, n * n); };
  add(entry);
}

void addPointers(int n) {
  addPointer<Zel32f>(
      n, [](auto call) { return BENCH_LIBRARY(zelmMul_mama_32f_P, call, "lib", Role::library, 1); },
      BENCH_LIBRARY(zelmMul_mama_32f, bothArrays<Zel32f>(n), "packed", Role::other, 2));
  addPointer<Zel64f>(
      n, [](auto call) { return BENCH_LIBRARY(zelmMul_mama_64f_P, call, "lib", Role::library, 1); },
      BENCH_LIBRARY(zelmMul_mama_64f, bothArrays<Zel64f>(n), "packed", Role::other, 2));
}

} // namespace

void registerMulMatrices() {
  for (const int n : {3, 4, 5, 6, 7, 8, 12, 16, 24, 32})
    addPacked(n);
  for (int n = 3; n <= 6; ++n) {
    addPointers(n);
    addByColumns(n);
  }
  addShapes();
}

} // namespace bench
