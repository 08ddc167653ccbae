// Determinants, inverses, traces and norms: packed batches, and the pointer layout with neighbouring objects beside
// them.
#include "systems.h"

#include <zelm.h>

#include <memory>
#include <string>

namespace bench {
namespace {

// Operands: matrices, scratch, results.
template <class T> auto perMatrix(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, n, result<T>(b, 1), result<T>(b, 2), b.count);
  };
}
template <class T> auto traceCall(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, n, result<T>(b, 2), b.count);
  };
}
template <class T> auto normCall(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, n, n, result<T>(b, 2), b.count);
  };
}
template <class T> auto inverseCall(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, result<T>(b, 1), result<T>(b, 2), n * n * e, n * e, e, n, b.count);
  };
}

template <class T> struct Neighbours { Positions<T> matrices, inverses; };
template <class T> using Shared = std::shared_ptr<Neighbours<T>>;

template <class T> auto perMatrix(int n, const Shared<T>& p) {
  return [=](auto function, const Block& b) {
    function(p->matrices.list.data(), 0, sizeof(T), n, result<T>(b, 1), result<T>(b, 2), b.count);
  };
}
template <class T> auto inverseCall(int n, const Shared<T>& p) {
  return [=](auto function, const Block& b) {
    function(p->matrices.list.data(), 0, sizeof(T), result<T>(b, 1), p->inverses.list.data(), 0, sizeof(T), n, b.count);
  };
}

// Well conditioned: twice the unit matrix and elements of either sign.
void regular(double* object, int n, Random& random) {
  std::uniform_real_distribution<double> element(-0.5, 0.5);
  for (int i = 0; i < n * n; ++i)
    object[i] = element(random) + (i % (n + 1) == 0 ? 2 : 0);
}

template <class T>
void addSize(const char* family, int n, int elements, std::vector<Contender> contenders,
             const std::vector<Contender>& pointer = {}, const Shared<T>& positions = {}) {
  contenders.insert(contenders.end(), pointer.begin(), pointer.end());
  const Fill fill = [n](double* object, Random& random) { regular(object, n, random); };
  Case entry{std::string(family) + (sizeof(T) == 4 ? "/ma/32f/" : "/ma/64f/") + std::to_string(n),
             sizeof(T),
             {array(n * n, fill), single(n * n + n), results(elements)},
             std::move(contenders)};
  entry.tolerance = sizeof(T) == 4 ? 1e-3 : 1e-11;
  if (positions) {
    entry.figures = {{"pointer", "pointer", "lib"}};
    entry.prepare = [positions, n](const Block& block) {
      positions->matrices.take(block, 0, n * n);
      positions->inverses.copy.resize(static_cast<std::size_t>(block.count * n * n));
      positions->inverses.cut(positions->inverses.copy.data(), block, n * n);
    };
  }
  for (const int count : {100, 300})
    add(entry, std::to_string(count), count);
}

} // namespace

void registerMeasures() {
  for (int n = 3; n <= 6; ++n) {
    const auto p32 = std::make_shared<Neighbours<Zel32f>>();
    const auto p64 = std::make_shared<Neighbours<Zel64f>>();
    // The pointer layout's inverses have a place of their own, and the method of their own kernels.
    constexpr auto beside = Role::other;
    addSize<Zel32f>("Det", n, 1, BENCH_LIBRARY(zelmDet_ma_32f, perMatrix<Zel32f>(n)),
                    BENCH_LIBRARY(zelmDet_ma_32f_P, perMatrix(n, p32), "pointer", beside, 1), p32);
    addSize<Zel64f>("Det", n, 1, BENCH_LIBRARY(zelmDet_ma_64f, perMatrix<Zel64f>(n)),
                    BENCH_LIBRARY(zelmDet_ma_64f_P, perMatrix(n, p64), "pointer", beside, 1), p64);
    addSize<Zel32f>("Invert", n, n * n, BENCH_LIBRARY(zelmInvert_ma_32f, inverseCall<Zel32f>(n)),
                    BENCH_LIBRARY(zelmInvert_ma_32f_P, inverseCall(n, p32), "pointer", beside, -1), p32);
    addSize<Zel64f>("Invert", n, n * n, BENCH_LIBRARY(zelmInvert_ma_64f, inverseCall<Zel64f>(n)),
                    BENCH_LIBRARY(zelmInvert_ma_64f_P, inverseCall(n, p64), "pointer", beside, -1), p64);
    addSize<Zel32f>("Trace", n, 1, BENCH_LIBRARY(zelmTrace_ma_32f, traceCall<Zel32f>(n)));
    addSize<Zel64f>("Trace", n, 1, BENCH_LIBRARY(zelmTrace_ma_64f, traceCall<Zel64f>(n)));
    addSize<Zel32f>("FrobNorm", n, 1, BENCH_LIBRARY(zelmFrobNorm_ma_32f, normCall<Zel32f>(n)));
    addSize<Zel64f>("FrobNorm", n, 1, BENCH_LIBRARY(zelmFrobNorm_ma_64f, normCall<Zel64f>(n)));
  }
}

} // namespace bench
