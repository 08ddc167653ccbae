// QR decomposition and solution of packed systems by plain loops of a fixed size.
#include "alternative.h"

#include <cmath>
#include <iterator>

namespace {

template <class T, int W, int H> void solve(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  const T* rhs = bench::source<T>(b, 1);
  T* x = bench::result<T>(b, 3);
  for (std::ptrdiff_t k = 0; k < b.count; ++k, a += W * H, rhs += H, x += W) {
    T r[H][W + 1]; // the right-hand side is one more column
    for (int i = 0; i < H; ++i) {
      for (int j = 0; j < W; ++j)
        r[i][j] = a[i * W + j];
      r[i][W] = rhs[i];
    }
    for (int c = 0; c < (W < H ? W : W - 1); ++c) {
      T norm2 = 0;
      for (int i = c; i < H; ++i)
        norm2 += r[i][c] * r[i][c];
      const T norm = std::sqrt(norm2);
      const T p = r[c][c] > 0 ? r[c][c] + norm : r[c][c] - norm;
      T v[H];
      v[c] = p;
      T w = p * p;
      for (int i = c + 1; i < H; ++i) {
        v[i] = r[i][c];
        w += v[i] * v[i];
      }
      const T beta = -2 / w;
      for (int j = c; j <= W; ++j) {
        T s = 0;
        for (int i = c; i < H; ++i)
          s += r[i][j] * v[i];
        s *= beta;
        for (int i = c; i < H; ++i)
          r[i][j] += v[i] * s;
      }
    }
    for (int i = W - 1; i >= 0; --i) {
      T t = r[i][W];
      for (int j = i + 1; j < W; ++j)
        t -= r[i][j] * r[j][W];
      r[i][W] = t / r[i][i];
    }
    for (int i = 0; i < W; ++i)
      x[i] = r[i][W];
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"QR/ma/32f/3x3", "loop", Role::alternative, repeat<solve<float, 3, 3>>},
    {"QR/ma/32f/4x4", "loop", Role::alternative, repeat<solve<float, 4, 4>>},
    {"QR/ma/32f/5x5", "loop", Role::alternative, repeat<solve<float, 5, 5>>},
    {"QR/ma/32f/6x6", "loop", Role::alternative, repeat<solve<float, 6, 6>>},
    {"QR/ma/32f/6x3", "loop", Role::alternative, repeat<solve<float, 3, 6>>},
    {"QR/ma/64f/3x3", "loop", Role::alternative, repeat<solve<double, 3, 3>>},
    {"QR/ma/64f/4x4", "loop", Role::alternative, repeat<solve<double, 4, 4>>},
    {"QR/ma/64f/5x5", "loop", Role::alternative, repeat<solve<double, 5, 5>>},
    {"QR/ma/64f/6x6", "loop", Role::alternative, repeat<solve<double, 6, 6>>},
    {"QR/ma/64f/6x3", "loop", Role::alternative, repeat<solve<double, 3, 6>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
