// How well batches of symmetric matrices are solved.
#ifndef ZELMTEST_SYMMETRICACCURACY_H
#define ZELMTEST_SYMMETRICACCURACY_H

#include "systems.h"

#include <vector>

namespace zelmtest {

// The buffer of one object.
inline Shape symmetricShape(const Member&, const std::string& operand, const Sizes& s) {
  const int n = s.get("widthHeight");
  return operand == "buffer" ? Shape{n, n} : Shape{0, 0};
}

// Q D Q' with known D: values against D, and where solve(a, vectors, values, n, count) writes vectors, the residual
// A V - V D and V' V against the unit matrix. The elements are far above the limits, which are absolute.
template <class T, class Solve> void checkSymmetric(Solve solve) {
  constexpr double norm = 1024;
  const auto eps = static_cast<double>(std::numeric_limits<T>::epsilon());
  Rng rng(5);
  for (int n : {3, 4, 5, 6, 7, 8, 12, 20}) {
    const int count = 40;
    const auto size = static_cast<size_t>(n * n);
    std::vector<T> a, vectors(size * count, T(-7)), values(static_cast<size_t>(n * count));
    for (int k = 0; k < count; ++k) {
      std::vector<double> one = conditioned(n, k % 2 != 0 ? 10 : 2, rng, true);
      for (double& x : one)
        x *= k % 3 == 0 ? -norm : norm;
      a.insert(a.end(), one.begin(), one.end());
    }
    ASSERT_EQ(zelStatusOk, solve(a.data(), vectors.data(), values.data(), n, count)) << n;
    double worst = 0, residual = 0, dot = 0;
    for (int k = 0; k < count; ++k) {
      const T *const ak = &a[static_cast<size_t>(k) * size], *const vk = &vectors[static_cast<size_t>(k) * size],
                     *const wk = &values[static_cast<size_t>(k * n)];
      for (int i = 0; i < n; ++i) {
        const int from = k % 3 == 0 ? n - 1 - i : i; // descending, of either sign
        const double value =
            (k % 3 == 0 ? -norm : norm) * std::pow(k % 2 != 0 ? 10.0 : 2.0, -static_cast<double>(from) / (n - 1));
        worst = std::max(worst, std::fabs(static_cast<double>(wk[i]) - value));
        for (int j = 0; j < n; ++j) {
          double product = 0, sum = -static_cast<double>(vk[i * n + j]) * static_cast<double>(wk[j]);
          for (int x = 0; x < n; ++x) {
            sum += static_cast<double>(ak[i * n + x]) * static_cast<double>(vk[x * n + j]);
            product += static_cast<double>(vk[x * n + i]) * static_cast<double>(vk[x * n + j]);
          }
          residual = std::max(residual, std::fabs(sum));
          dot = std::max(dot, std::fabs(product - (i == j)));
        }
      }
    }
    EXPECT_LT(worst, eps * norm * (n + 4)) << n;
    if (vectors[0] == T(-7))
      continue;
    EXPECT_LT(residual, eps * norm * (n + 4)) << n;
    EXPECT_LT(dot, 2 * eps * (n + 4)) << n;
  }
}

// The first of these takes as many sweeps as are allowed, the second one more; alone and side by side with others.
template <class Solve> void checkSweeps(Solve solve) {
  const float couplings[2][3] = {{-0.301f, -0.917f, 0.009f}, {-0.119f, 0.795f, 0.012f}};
  for (int which : {0, 1})
    for (int count : {1, 19}) {
      std::vector<float> a(static_cast<size_t>(16 * count), 0.0f), vectors(a.size()),
          values(static_cast<size_t>(4 * count));
      for (int k = 0; k < count; ++k)
        for (int i = 0; i < 4; ++i) {
          float* const row = &a[static_cast<size_t>(16 * k + 4 * i)];
          row[i] = 2;
          if (i < 3)
            row[i + 1] = row[i + 4] = k == count - 1 ? couplings[which][i] : 0.5f;
        }
      EXPECT_EQ(which == 0 ? zelStatusOk : zelStatusNoConvergence,
                solve(a.data(), vectors.data(), values.data(), 4, count))
          << which << " of " << count;
    }
}

} // namespace zelmtest

#endif
