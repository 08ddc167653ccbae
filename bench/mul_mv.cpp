// Products of matrices and vectors, with and without a vector added, and scaling: packed batches in the standard
// layout, the pointer layout on neighbours, and the homogeneous transform of points.
#include "bench.h"

#include <zelm.h>

#include <memory>

namespace bench {
namespace {

template <class T> constexpr const char* typeName = sizeof(T) == 4 ? "32f" : "64f";

template <class T> std::string caseName(const char* form, int size) {
  return std::string(form) + "/" + typeName<T> + "/" + std::to_string(size);
}

// Fused alternatives round less often.
template <class T> constexpr double tolerance = sizeof(T) == 4 ? 1e-5 : 1e-13;

// ---- standard layout, packed

template <class T> auto arrayByArray(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, n, n, source<T>(b, 1), n * e, e, n, result<T>(b, 2), n * e, e,
             b.count);
  };
}
template <class T> auto arrayBySingle(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, n, n, source<T>(b, 1), e, n, result<T>(b, 2), n * e, e, b.count);
  };
}
template <class T> auto singleByArray(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, n, n, source<T>(b, 1), n * e, e, n, result<T>(b, 2), n * e, e, b.count);
  };
}

template <class T>
Case packed(const char* form, int n, bool isFirstArray, bool isSecondArray, std::vector<Contender> contenders) {
  Case entry{caseName<T>(form, n),
             sizeof(T),
             {isFirstArray ? array(n * n) : single(n * n), isSecondArray ? array(n) : single(n), results(n)},
             std::move(contenders)};
  entry.tolerance = tolerance<T>;
  return entry;
}

// clang-format off
void addPacked(int n) {
  add(packed<Zel32f>("Mul/mava", n, true,  true,  BENCH_LIBRARY(zelmMul_mava_32f, arrayByArray<Zel32f>(n))));
  add(packed<Zel64f>("Mul/mava", n, true,  true,  BENCH_LIBRARY(zelmMul_mava_64f, arrayByArray<Zel64f>(n))));
  add(packed<Zel32f>("Mul/mav",  n, true,  false, BENCH_LIBRARY(zelmMul_mav_32f,  arrayBySingle<Zel32f>(n))));
  add(packed<Zel64f>("Mul/mav",  n, true,  false, BENCH_LIBRARY(zelmMul_mav_64f,  arrayBySingle<Zel64f>(n))));
  add(packed<Zel32f>("Mul/mva",  n, false, true,  BENCH_LIBRARY(zelmMul_mva_32f,  singleByArray<Zel32f>(n))));
  add(packed<Zel64f>("Mul/mva",  n, false, true,  BENCH_LIBRARY(zelmMul_mva_64f,  singleByArray<Zel64f>(n))));
  add(packed<Zel32f>("Mul/tva",  n, false, true,  BENCH_LIBRARY(zelmMul_tva_32f,  singleByArray<Zel32f>(n))));
  add(packed<Zel64f>("Mul/tva",  n, false, true,  BENCH_LIBRARY(zelmMul_tva_64f,  singleByArray<Zel64f>(n))));
}
// clang-format on

template <class T> auto singleByArrayPlusArray(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, n, n, source<T>(b, 1), n * e, e, n, source<T>(b, 2), n * e, e, n,
             result<T>(b, 3), n * e, e, b.count);
  };
}

template <class T> Case plusArray(int n, std::vector<Contender> contenders) {
  Case entry{
      caseName<T>("Gaxpy/mva", n), sizeof(T), {single(n * n), array(n), array(n), results(n)}, std::move(contenders)};
  entry.tolerance = tolerance<T>;
  return entry;
}

template <class T> auto matricesByConstant(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, *source<T>(b, 1), result<T>(b, 2), n * n * e, n * e, e, n, n,
             b.count);
  };
}
template <class T> auto vectorsByConstant(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, *source<T>(b, 1), result<T>(b, 2), n * e, e, n, b.count);
  };
}

template <class T> Case byConstant(const char* form, int n, int elements, std::vector<Contender> contenders) {
  Case entry{caseName<T>(form, n),
             sizeof(T),
             {array(elements), single(1), results(elements)},
             std::move(contenders),
             std::string("contiguous/1/") + typeName<T>};
  entry.contiguousOperands = {0, 0, 2};
  return entry;
}

// clang-format off
void addPlusArrayAndByConstant(int n) {
  add(plusArray<Zel32f>(n, BENCH_LIBRARY(zelmGaxpy_mva_32f, singleByArrayPlusArray<Zel32f>(n))));
  add(plusArray<Zel64f>(n, BENCH_LIBRARY(zelmGaxpy_mva_64f, singleByArrayPlusArray<Zel64f>(n))));
  add(byConstant<Zel32f>("Mul/mac", n, n * n, BENCH_LIBRARY(zelmMul_mac_32f, matricesByConstant<Zel32f>(n))));
  add(byConstant<Zel64f>("Mul/mac", n, n * n, BENCH_LIBRARY(zelmMul_mac_64f, matricesByConstant<Zel64f>(n))));
  add(byConstant<Zel32f>("Mul/vac", n, n,     BENCH_LIBRARY(zelmMul_vac_32f, vectorsByConstant<Zel32f>(n))));
  add(byConstant<Zel64f>("Mul/vac", n, n,     BENCH_LIBRARY(zelmMul_vac_64f, vectorsByConstant<Zel64f>(n))));
}
// clang-format on

// ---- pointer layout: each element position a run of its own, beside the packed standard layout

struct Lists {
  std::vector<void*> of[3];
};

template <class T> void makeLists(Lists& lists, const Block& block, int n) {
  for (int operand = 0; operand < 3; ++operand) {
    lists.of[operand].clear();
    for (int p = 0; p < (operand == 0 ? n * n : n); ++p)
      lists.of[operand].push_back(result<T>(block, operand) + static_cast<std::ptrdiff_t>(p) * block.count);
  }
}

template <class T> const T* const* sourceList(const std::vector<void*>& list) {
  return reinterpret_cast<const T* const*>(list.data());
}

template <class T> auto byLists(int n, std::shared_ptr<Lists> lists) {
  return [=](auto function, const Block& b) {
    const int e = sizeof(T);
    function(sourceList<T>(lists->of[0]), 0, e, n, n, sourceList<T>(lists->of[1]), 0, e, n,
             reinterpret_cast<T* const*>(lists->of[2].data()), 0, e, b.count);
  };
}

template <class T, class Neighbours, class Packed> void addPointer(int n, Neighbours neighbours, Packed standard) {
  const auto lists = std::make_shared<Lists>();
  Case entry = packed<T>("Mul/mava_P", n, true, true, neighbours(byLists<T>(n, lists)));
  for (Contender& contender : standard())
    entry.contenders.push_back(std::move(contender));
  entry.figures = {{"packed", "lib", "packed"}};
  entry.prepare = [lists, n](const Block& b) { makeLists<T>(*lists, b, n); };
  add(entry);
}

void addPointers(int n) {
  addPointer<Zel32f>(
      n, [](auto call) { return BENCH_LIBRARY(zelmMul_mava_32f_P, call, "lib", Role::library, 1); },
      [n] { return BENCH_LIBRARY(zelmMul_mava_32f, arrayByArray<Zel32f>(n), "packed", Role::other, 2); });
  addPointer<Zel64f>(
      n, [](auto call) { return BENCH_LIBRARY(zelmMul_mava_64f_P, call, "lib", Role::library, 1); },
      [n] { return BENCH_LIBRARY(zelmMul_mava_64f, arrayByArray<Zel64f>(n), "packed", Role::other, 2); });
}

// ---- points

void addPoints() {
  const auto call = [](auto function, const Block& b) {
    function(source<Zel32f>(b, 0), 16, 4, source<Zel32f>(b, 1), 12, 4, result<Zel32f>(b, 2), 12, 4, b.count);
  };
  Case entry{"AffineTransform3DH/mva/32f/3",
             4,
             {single(16), array(3), results(3)},
             BENCH_LIBRARY(zelmAffineTransform3DH_mva_32f, call),
             "contiguous/1/32f"};
  entry.contiguousOperands = {1, 0, 2};
  entry.tolerance = 1e-5;
  add(entry);
  add(entry, "million", 1000000);
}

} // namespace

void registerMulVectors() {
  for (int n = 3; n <= 6; ++n)
    addPacked(n);
  for (int n = 3; n <= 6; ++n)
    addPlusArrayAndByConstant(n);
  for (int n = 3; n <= 6; ++n)
    addPointers(n);
  addPoints();
}

} // namespace bench
