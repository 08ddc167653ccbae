// A bank of Kalman filters, each of which follows a point in the plane (4 states) or in space (6 states) by noisy
// measurements of its position and velocity: all filters take a step together, operation by operation, beside the same
// filters one at a time by Eigen.
#include <Eigen/Dense>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>
#include <zelm.h>

namespace {

void check(ZelStatus status) {
  if (status != zelStatusOk)
    throw std::runtime_error("status " + std::to_string(status));
}

template <int n> using Matrix = Eigen::Matrix<double, n, n, Eigen::RowMajor>;
template <int n> using Vector = Eigen::Matrix<double, n, 1>;

// The states are positions, then velocities.
template <int n> struct Model {
  Matrix<n> motion = Matrix<n>::Identity(), motionNoise = 0.01 * motion, measuringNoise = 0.25 * motion;
  Model() { motion.template topRightCorner<n / 2, n / 2>().diagonal().setConstant(0.1); }
};

// Every operation is one call for all filters.
template <int n> class Bank {
  // The strides of packed matrices and vectors, in bytes.
  static constexpr int32_t element = sizeof(double), row = n * element, matrix = n * row;
  const Model<n> model;
  const int32_t count;
  std::vector<double> product, innovation, inverse, gain, surprise, correction;
  double buffer[n * n + n];

public:
  std::vector<double> state, covariance;

  explicit Bank(int filters)
      : count(filters), product(size_t(filters) * n * n), innovation(product), inverse(product), gain(product),
        surprise(size_t(filters) * n), correction(surprise), state(surprise), covariance(product) {
    check(zelmLoadIdentity_ma_64f(covariance.data(), matrix, row, element, n, n, count));
  }

  void predict() {
    const double* const motion = model.motion.data();
    // state = motion * state; products are not made in place
    check(zelmMul_mva_64f(motion, row, element, n, n, state.data(), row, element, n, correction.data(), row, element,
                          count));
    state.swap(correction);
    // covariance = motion * covariance * motion' + motionNoise
    check(zelmMul_mma_64f(motion, row, element, n, n, covariance.data(), matrix, row, element, n, n, product.data(),
                          matrix, row, element, count));
    check(zelmMul_mat_64f(product.data(), matrix, row, element, n, n, motion, row, element, n, n, covariance.data(),
                          matrix, row, element, count));
    check(zelmAdd_mam_64f(covariance.data(), matrix, row, element, model.motionNoise.data(), row, element,
                          covariance.data(), matrix, row, element, n, n, count));
  }

  void update(const std::vector<double>& measurement) {
    // gain = covariance * inverse(covariance + measuringNoise)
    check(zelmAdd_mam_64f(covariance.data(), matrix, row, element, model.measuringNoise.data(), row, element,
                          innovation.data(), matrix, row, element, n, n, count));
    check(zelmInvert_ma_64f(innovation.data(), matrix, row, element, buffer, inverse.data(), matrix, row, element, n,
                            count));
    check(zelmMul_mama_64f(covariance.data(), matrix, row, element, n, n, inverse.data(), matrix, row, element, n, n,
                           gain.data(), matrix, row, element, count));
    // state = state + gain * (measurement - state)
    check(zelmSub_vava_64f(measurement.data(), row, element, state.data(), row, element, surprise.data(), row, element,
                           n, count));
    check(zelmMul_mava_64f(gain.data(), matrix, row, element, n, n, surprise.data(), row, element, n, correction.data(),
                           row, element, count));
    check(zelmAdd_vava_64f(state.data(), row, element, correction.data(), row, element, state.data(), row, element, n,
                           count));
    // covariance = covariance - gain * covariance
    check(zelmMul_mama_64f(gain.data(), matrix, row, element, n, n, covariance.data(), matrix, row, element, n, n,
                           product.data(), matrix, row, element, count));
    check(zelmSub_mama_64f(covariance.data(), matrix, row, element, product.data(), matrix, row, element,
                           covariance.data(), matrix, row, element, n, n, count));
  }
};

// The same filter by Eigen.
template <int n> struct Filter {
  Vector<n> state = Vector<n>::Zero();
  Matrix<n> covariance = Matrix<n>::Identity();

  void step(const Model<n>& model, const Vector<n>& measurement) {
    state = model.motion * state;
    covariance = model.motion * covariance * model.motion.transpose() + model.motionNoise;
    const Matrix<n> gain = covariance * (covariance + model.measuringNoise).inverse();
    state += gain * (measurement - state);
    covariance -= gain * covariance;
  }
};

double seconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

template <class Derived> double largest(const Eigen::MatrixBase<Derived>& difference) {
  return difference.cwiseAbs().maxCoeff();
}

// Returns whether both agree.
template <int n> bool run(int count, int steps) {
  const Model<n> model;
  Bank<n> bank(count);
  std::vector<Filter<n>> filters{size_t(count)};
  std::vector<double> measurement(size_t(count) * n);
  std::mt19937 random(1);
  std::normal_distribution<double> noise(0, 0.5);
  double bankTime = 1e9, eigenTime = 1e9; // of the quickest step
  for (int step = 0; step < steps; ++step) {
    for (size_t i = 0; i < measurement.size(); ++i)
      measurement[i] = 0.1 * step * double(i % n) + noise(random);
    const double begin = seconds();
    bank.predict();
    bank.update(measurement);
    const double middle = seconds();
    for (size_t k = 0; k < filters.size(); ++k)
      filters[k].step(model, Eigen::Map<const Vector<n>>(&measurement[k * n]));
    bankTime = std::min(bankTime, middle - begin);
    eigenTime = std::min(eigenTime, seconds() - middle);
  }
  double difference = 0;
  for (size_t k = 0; k < filters.size(); ++k)
    difference = std::max({difference, largest(Eigen::Map<Vector<n>>(&bank.state[k * n]) - filters[k].state),
                           largest(Eigen::Map<Matrix<n>>(&bank.covariance[k * n * n]) - filters[k].covariance)});
  std::printf("%d filters of %d states: a step takes %.1f microseconds, by Eigen %.1f; largest difference %g\n", count,
              n, 1e6 * bankTime, 1e6 * eigenTime, difference);
  return difference < 1e-10;
}

} // namespace

int main() {
  const bool plane = run<4>(200, 100), space = run<6>(200, 100);
  return plane && space ? 0 : 1;
}
