// QR decomposition and solution, square and by least squares: packed batches, and the pointer layout with neighbouring
// objects beside them.
#include "systems.h"

#include <zelm.h>

#include <memory>
#include <string>

namespace bench {
namespace {

// Operands: matrices, right-hand sides, room for the factors, solutions, the scratch of one object.
template <class T> auto packedCall(int width, int height) {
  const int e = sizeof(T);
  const int row = width * e;
  return [=](auto decompose, auto solve, const Block& b) {
    T* const factors = result<T>(b, 2);
    T* const buffer = result<T>(b, 4);
    decompose(source<T>(b, 0), height * row, row, e, buffer, factors, height * row, row, e, width, height, b.count);
    solve(factors, height * row, row, e, buffer, source<T>(b, 1), height * e, e, result<T>(b, 3), row, e, width, height,
          b.count);
  };
}

template <class T> auto pointerCall(int width, int height, const std::shared_ptr<SystemPositions<T>>& p) {
  const int e = sizeof(T);
  return [=](auto decompose, auto solve, const Block& b) {
    T* const buffer = result<T>(b, 4);
    decompose(p->matrices.list.data(), 0, e, buffer, p->factors.list.data(), 0, e, width, height, b.count);
    solve(p->factors.list.data(), 0, e, buffer, p->sides.list.data(), 0, e, p->solutions.list.data(), 0, e, width,
          height, b.count);
  };
}

// Columns that are far from depending on each other.
void independent(double* object, int width, int height, Random& random) {
  std::uniform_real_distribution<double> element(-0.5, 0.5);
  for (int i = 0; i < height; ++i)
    for (int j = 0; j < width; ++j)
      object[i * width + j] = element(random) + (i == j ? 2 : 0);
}

template <class T>
void addShape(int width, int height, std::vector<Contender> contenders, const std::vector<Contender>& pointer,
              const std::shared_ptr<SystemPositions<T>>& positions) {
  contenders.insert(contenders.end(), pointer.begin(), pointer.end());
  const Fill fill = [=](double* object, Random& random) { independent(object, width, height, random); };
  Case entry{std::string("QR/ma/") + (sizeof(T) == 4 ? "32f/" : "64f/") + std::to_string(height) + "x" +
                 std::to_string(width),
             sizeof(T),
             {array(width * height, fill), array(height), array(width * height), results(width), single(height)},
             std::move(contenders)};
  entry.tolerance = sizeof(T) == 4 ? 1e-4 : 1e-12;
  entry.figures = {{"pointer", "pointer", "lib"}};
  entry.prepare = [=](const Block& block) { positions->take(block, width, height); };
  for (const int count : {100, 300, 1000})
    add(entry, std::to_string(count), count);
}

} // namespace

void registerQR() {
  for (const auto& [width, height] : {std::pair{3, 3}, {4, 4}, {5, 5}, {6, 6}, {3, 6}}) {
    const auto p32 = std::make_shared<SystemPositions<Zel32f>>();
    const auto p64 = std::make_shared<SystemPositions<Zel64f>>();
    addShape(width, height,
             BENCH_LIBRARY_2(zelmQRDecomp_ma_32f, zelmQRBackSubst_mava_32f, packedCall<Zel32f>(width, height)),
             BENCH_LIBRARY_2(zelmQRDecomp_ma_32f_P, zelmQRBackSubst_mava_32f_P, pointerCall(width, height, p32),
                             "pointer", Role::other, 1),
             p32);
    addShape(width, height,
             BENCH_LIBRARY_2(zelmQRDecomp_ma_64f, zelmQRBackSubst_mava_64f, packedCall<Zel64f>(width, height)),
             BENCH_LIBRARY_2(zelmQRDecomp_ma_64f_P, zelmQRBackSubst_mava_64f_P, pointerCall(width, height, p64),
                             "pointer", Role::other, 1),
             p64);
  }
}

} // namespace bench
