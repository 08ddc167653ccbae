// Vector algebra: packed batches of short and longer vectors, and single long vectors.
#include "bench.h"

#include <zelm.h>

namespace bench {
namespace {

template <class T> Case entryOf(const char* form, int n, std::vector<Operand> operands, std::vector<Contender> lib) {
  Case entry{std::string(form) + "/" + (sizeof(T) == 4 ? "32f" : "64f") + "/" + std::to_string(n), sizeof(T),
             std::move(operands), std::move(lib)};
  entry.tolerance = sizeof(T) == 4 ? 1e-4 : 1e-12; // alternatives fuse, and add in another order
  return entry;
}

template <class T> auto dotBoth(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, source<T>(b, 1), n * e, e, result<T>(b, 2), n, b.count);
  };
}
template <class T> auto dotSingle(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, source<T>(b, 1), e, result<T>(b, 2), n, b.count);
  };
}
template <class T> auto norm(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) { function(source<T>(b, 0), n * e, e, result<T>(b, 1), n, b.count); };
}
template <class T> auto scaledSum(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, T(1.25), source<T>(b, 1), n * e, e, result<T>(b, 2), n * e, e, n, b.count);
  };
}
template <class T> auto elementwise(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, source<T>(b, 1), n * e, e, result<T>(b, 2), n * e, e, n, b.count);
  };
}
template <class T> auto elementwiseSingle(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, source<T>(b, 1), e, result<T>(b, 2), n * e, e, n, b.count);
  };
}
template <class T> auto combination(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, T(1.25), source<T>(b, 1), n * e, e, T(0.75), result<T>(b, 2), n * e, e, n,
             b.count);
  };
}
template <class T> auto oneScaledSum(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), e, T(1.25), source<T>(b, 1), e, result<T>(b, 2), e, n);
  };
}
template <class T> auto crossBoth() {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), 3 * e, e, source<T>(b, 1), 3 * e, e, result<T>(b, 2), 3 * e, e, b.count);
  };
}
template <class T> auto crossSingle() {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), 3 * e, e, source<T>(b, 1), e, result<T>(b, 2), 3 * e, e, b.count);
  };
}
template <class T> auto oneDot(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) { function(source<T>(b, 0), e, source<T>(b, 1), e, result<T>(b, 2), n); };
}
template <class T> auto oneNorm(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) { function(source<T>(b, 0), e, result<T>(b, 1), n); };
}

// clang-format off
void addBatches(int n) {
  add(entryOf<Zel32f>("DotProduct/vava", n, {array(n), array(n), results(1)},  BENCH_LIBRARY(zelmDotProduct_vava_32f, dotBoth<Zel32f>(n))));
  add(entryOf<Zel64f>("DotProduct/vava", n, {array(n), array(n), results(1)},  BENCH_LIBRARY(zelmDotProduct_vava_64f, dotBoth<Zel64f>(n))));
  add(entryOf<Zel32f>("DotProduct/vav",  n, {array(n), single(n), results(1)}, BENCH_LIBRARY(zelmDotProduct_vav_32f,  dotSingle<Zel32f>(n))));
  add(entryOf<Zel64f>("DotProduct/vav",  n, {array(n), single(n), results(1)}, BENCH_LIBRARY(zelmDotProduct_vav_64f,  dotSingle<Zel64f>(n))));
  add(entryOf<Zel32f>("L2Norm/va",       n, {array(n), results(1)},            BENCH_LIBRARY(zelmL2Norm_va_32f,       norm<Zel32f>(n))));
  add(entryOf<Zel64f>("L2Norm/va",       n, {array(n), results(1)},            BENCH_LIBRARY(zelmL2Norm_va_64f,       norm<Zel64f>(n))));
  add(entryOf<Zel32f>("Saxpy/vava",      n, {array(n), array(n), results(n)},  BENCH_LIBRARY(zelmSaxpy_vava_32f,      scaledSum<Zel32f>(n))));
  add(entryOf<Zel64f>("Saxpy/vava",      n, {array(n), array(n), results(n)},  BENCH_LIBRARY(zelmSaxpy_vava_64f,      scaledSum<Zel64f>(n))));
  add(entryOf<Zel32f>("LComb/vava",      n, {array(n), array(n), results(n)},  BENCH_LIBRARY(zelmLComb_vava_32f,      combination<Zel32f>(n))));
  add(entryOf<Zel64f>("LComb/vava",      n, {array(n), array(n), results(n)},  BENCH_LIBRARY(zelmLComb_vava_64f,      combination<Zel64f>(n))));
  add(entryOf<Zel32f>("Add/vava",        n, {array(n), array(n), results(n)},  BENCH_LIBRARY(zelmAdd_vava_32f,        elementwise<Zel32f>(n))));
  add(entryOf<Zel64f>("Add/vava",        n, {array(n), array(n), results(n)},  BENCH_LIBRARY(zelmAdd_vava_64f,        elementwise<Zel64f>(n))));
  add(entryOf<Zel32f>("Sub/vav",         n, {array(n), single(n), results(n)}, BENCH_LIBRARY(zelmSub_vav_32f,         elementwiseSingle<Zel32f>(n))));
  add(entryOf<Zel64f>("Sub/vav",         n, {array(n), single(n), results(n)}, BENCH_LIBRARY(zelmSub_vav_64f,         elementwiseSingle<Zel64f>(n))));
}

void addCross() {
  add(entryOf<Zel32f>("CrossProduct/vava", 3, {array(3), array(3), results(3)},  BENCH_LIBRARY(zelmCrossProduct_vava_32f, crossBoth<Zel32f>())));
  add(entryOf<Zel64f>("CrossProduct/vava", 3, {array(3), array(3), results(3)},  BENCH_LIBRARY(zelmCrossProduct_vava_64f, crossBoth<Zel64f>())));
  add(entryOf<Zel32f>("CrossProduct/vav",  3, {array(3), single(3), results(3)}, BENCH_LIBRARY(zelmCrossProduct_vav_32f,  crossSingle<Zel32f>())));
  add(entryOf<Zel64f>("CrossProduct/vav",  3, {array(3), single(3), results(3)}, BENCH_LIBRARY(zelmCrossProduct_vav_64f,  crossSingle<Zel64f>())));
}

void addSingles(int n) {
  add(entryOf<Zel32f>("DotProduct/vv", n, {array(n), array(n), results(1)}, BENCH_LIBRARY(zelmDotProduct_vv_32f, oneDot<Zel32f>(n))), "one", 1);
  add(entryOf<Zel64f>("DotProduct/vv", n, {array(n), array(n), results(1)}, BENCH_LIBRARY(zelmDotProduct_vv_64f, oneDot<Zel64f>(n))), "one", 1);
  add(entryOf<Zel32f>("L2Norm/v",      n, {array(n), results(1)},           BENCH_LIBRARY(zelmL2Norm_v_32f,      oneNorm<Zel32f>(n))), "one", 1);
  add(entryOf<Zel64f>("L2Norm/v",      n, {array(n), results(1)},           BENCH_LIBRARY(zelmL2Norm_v_64f,      oneNorm<Zel64f>(n))), "one", 1);
  add(entryOf<Zel32f>("Saxpy/vv",      n, {array(n), array(n), results(n)}, BENCH_LIBRARY(zelmSaxpy_vv_32f,      oneScaledSum<Zel32f>(n))), "one", 1);
  add(entryOf<Zel64f>("Saxpy/vv",      n, {array(n), array(n), results(n)}, BENCH_LIBRARY(zelmSaxpy_vv_64f,      oneScaledSum<Zel64f>(n))), "one", 1);
}
// clang-format on

} // namespace

void registerVectors() {
  for (const int n : {3, 4, 5, 6, 16, 100, 1000})
    addBatches(n);
  addCross();
  for (const int n : {3, 1000, 100000})
    addSingles(n);
}

} // namespace bench
