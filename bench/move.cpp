// Elements moved: transpositions of batches and of large matrices, and the ways between the layouts on packed and
// padded batches. Bandwidth is that of one loop over as many contiguous elements.
#include "bench.h"

#include <zelm.h>

#include <memory>

namespace bench {
namespace {

template <class T> constexpr const char* typeName = sizeof(T) == 4 ? "32f" : "64f";

template <class T> Case moving(const std::string& form, int elements, std::vector<Contender> contenders) {
  Case entry{form, sizeof(T), {array(elements), results(elements)}, std::move(contenders)};
  entry.contiguous = std::string("contiguous/1/") + typeName<T>;
  entry.contiguousOperands = {0, 0, 1};
  return entry;
}

template <class T> std::string caseName(const char* form, int size) {
  return std::string(form) + "/" + typeName<T> + "/" + std::to_string(size);
}

// ---- Transpositions

template <class T> auto batchOf(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, n, n, result<T>(b, 1), n * n * e, n * e, e, b.count);
  };
}

// A matrix of height rows, in panels of at most `panel` columns.
template <class T> auto largeOf(int width, int height, int panel) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    for (int column = 0; column < width; column += panel)
      function(source<T>(b, 0) + column, width * e, e, width - column < panel ? width - column : panel, height,
               result<T>(b, 1) + static_cast<std::ptrdiff_t>(column) * height, height * e, e);
  };
}

template <class T>
void addLarge(int width, int height, std::vector<Contender> contenders, std::vector<Figure> figures = {}) {
  const std::string size = std::to_string(height) + "x" + std::to_string(width);
  Case entry = moving<T>(std::string("Transpose/m/") + typeName<T> + "/" + size, width * height, std::move(contenders));
  entry.figures = std::move(figures);
  add(entry, "one", 1);
}

// ---- Between the layouts

// The planes of n elements each: a run for each position.
struct Planes {
  std::vector<void*> of[2];
};

template <class T> auto copyTo(int n, const std::shared_ptr<Planes>& planes) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * e, e, reinterpret_cast<T* const*>(planes->of[1].data()), 0, e, n, b.count);
  };
}
template <class T> auto copyFrom(int n, const std::shared_ptr<Planes>& planes) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(reinterpret_cast<const T* const*>(planes->of[0].data()), 0, e, result<T>(b, 1), n * e, e, n, b.count);
  };
}

template <class T, class Contenders> void addPlanes(const char* form, int n, Contenders contenders) {
  const auto planes = std::make_shared<Planes>();
  Case entry = moving<T>(caseName<T>(form, n), n, contenders(planes));
  entry.prepare = [planes, n](const Block& b) {
    for (int operand : {0, 1}) {
      planes->of[operand].clear();
      for (int p = 0; p < n; ++p)
        planes->of[operand].push_back(result<T>(b, operand) + static_cast<std::ptrdiff_t>(p) * b.count);
    }
  };
  add(entry);
}

// Rows of n elements, padded by one, packed.
template <class T> auto packing(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * (n + 1) * e, (n + 1) * e, e, result<T>(b, 1), n, n, b.count);
  };
}
template <class T> Case padded(int n, std::vector<Contender> contenders) {
  Case entry = moving<T>(caseName<T>("Extract/ma", n), n * n, std::move(contenders));
  entry.operands[0] = array(n * (n + 1));
  return entry;
}

template <class T> Case identities(int n, std::vector<Contender> contenders) {
  return {caseName<T>("LoadIdentity/ma", n), sizeof(T), {results(n * n)}, std::move(contenders)};
}
template <class T> auto identity(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) { function(result<T>(b, 0), n * n * e, n * e, e, n, n, b.count); };
}

// clang-format off
void addSize(int n) {
  add(moving<Zel32f>(caseName<Zel32f>("Transpose/ma", n), n * n, BENCH_LIBRARY(zelmTranspose_ma_32f, batchOf<Zel32f>(n))));
  add(moving<Zel64f>(caseName<Zel64f>("Transpose/ma", n), n * n, BENCH_LIBRARY(zelmTranspose_ma_64f, batchOf<Zel64f>(n))));
  add(padded<Zel32f>(n, BENCH_LIBRARY(zelmExtract_ma_32f, packing<Zel32f>(n))));
  add(padded<Zel64f>(n, BENCH_LIBRARY(zelmExtract_ma_64f, packing<Zel64f>(n))));
  add(identities<Zel32f>(n, BENCH_LIBRARY(zelmLoadIdentity_ma_32f, identity<Zel32f>(n))));
  add(identities<Zel64f>(n, BENCH_LIBRARY(zelmLoadIdentity_ma_64f, identity<Zel64f>(n))));
}
void addLength(int n) {
  addPlanes<Zel32f>("Copy/SP", n, [n](auto& p) { return BENCH_LIBRARY(zelmCopy_va_32f_SP, copyTo<Zel32f>(n, p)); });
  addPlanes<Zel64f>("Copy/SP", n, [n](auto& p) { return BENCH_LIBRARY(zelmCopy_va_64f_SP, copyTo<Zel64f>(n, p)); });
  addPlanes<Zel32f>("Copy/PS", n, [n](auto& p) { return BENCH_LIBRARY(zelmCopy_va_32f_PS, copyFrom<Zel32f>(n, p)); });
  addPlanes<Zel64f>("Copy/PS", n, [n](auto& p) { return BENCH_LIBRARY(zelmCopy_va_64f_PS, copyFrom<Zel64f>(n, p)); });
}
// clang-format on

void addLargeMatrices() {
  for (const auto& [width, height] : {std::pair(2000, 2000), std::pair(20, 100000), std::pair(100000, 20)}) {
    addLarge<Zel32f>(width, height, BENCH_LIBRARY(zelmTranspose_m_32f, largeOf<Zel32f>(width, height, width)));
    addLarge<Zel64f>(width, height, BENCH_LIBRARY(zelmTranspose_m_64f, largeOf<Zel64f>(width, height, width)));
  }
  // Larger than the largest cache and so streamed, beside panels that are not.
  constexpr int side = 8000;
  std::vector<Contender> both = BENCH_LIBRARY(zelmTranspose_m_32f, largeOf<Zel32f>(side, side, side));
  for (Contender& panels : BENCH_LIBRARY(zelmTranspose_m_32f, largeOf<Zel32f>(side, side, 2000), "panels", Role::other))
    both.push_back(std::move(panels));
  addLarge<Zel32f>(side, side, std::move(both), {{"streamed", "lib", "panels"}});
}

} // namespace

void registerMoves() {
  for (int n = 3; n <= 6; ++n)
    addSize(n);
  // Vectors, and matrices of 3 by 3 and 6 by 6, which have as many positions.
  for (int n : {3, 4, 5, 6, 9, 16, 25, 36})
    addLength(n);
  addLargeMatrices();
}

} // namespace bench
