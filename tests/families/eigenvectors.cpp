// Eigenvectors of general matrices: right, left, both.
#include "francis.h"

#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <complex>
#include <string>

namespace {

using namespace zelmtest;

uint32_t work(const Sizes& s) {
  return s["widthHeight"] * (3 * s["widthHeight"] + 1) * s["count"];
}

Deflation deflationOf(const Member& m) {
  const bool both = m.name.rfind("zelmEigenValuesVectors_", 0) == 0;
  return m.elem == 4 || (both && m.formName == "m") ? Deflation::Relative : Deflation::RelativeSingleShifts;
}

Family family() {
  Family f;
  f.name = "General eigenvectors";
  constexpr Limits limits = {501, 501, 501, 501, 501};
  // clang-format off
  const char* both = "src:m vectorsRight:m vectorsLeft:m valuesRe:e valuesIm:e widthHeight buffer:y";
  const char* bothArrays = "src:ma vectorsRight:ma vectorsLeft:ma valuesRe:e valuesIm:e widthHeight count buffer:y";
  const char* one = "src:m vectors:m valuesRe:e valuesIm:e widthHeight buffer:y";
  const char* oneArrays = "src:ma vectors:ma valuesRe:e valuesIm:e widthHeight count buffer:y";
  const Orders single = {"NZS", nullptr, "NZH"}, array = {"NZCS", "NZChsHS", "NZChsHS"};
  f.forms = {
      {ZELMTEST_SINGLE(zelmEigenValuesVectors_m),       both,       single},
      {ZELMTEST_ARRAY(zelmEigenValuesVectors_ma),       bothArrays, array, "", work, limits, limits},
      {ZELMTEST_SINGLE(zelmEigenValuesVectorsLeft_m),   one,        single},
      {ZELMTEST_ARRAY(zelmEigenValuesVectorsLeft_ma),   oneArrays,  array, "", work, limits, limits},
      {ZELMTEST_SINGLE(zelmEigenValuesVectorsRight_m),  one,        single},
      {ZELMTEST_ARRAY(zelmEigenValuesVectorsRight_ma),  oneArrays,  array, "", work, limits, limits},
  };
  // clang-format on
  for (const Form& form : f.forms) // no kernels of their own for any strides
    for (const Function& function : form.functions)
      f.exceptions[function.name] = [](Member& m) { m.kernelAny = m.kernelUnit; };
  f.shape = [](const Member& m, const std::string& operand, const Sizes& s) {
    const int n = s.get("widthHeight");
    return operand == "buffer" ? Shape{1, n * (3 * n + 5) * m.elem} : Shape{0, 0};
  };
  f.shapes = [](const Member& m) {
    std::vector<Sizes> all;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11})
      all.push_back(m.square(n, 1));
    return all;
  };
  f.dataKinds = {10, 0, 10, 11, 12, 1, 3, 4};
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fillHard(job, rng, kind); });
  // The values to the bit; the vectors, whose last bits are open, have tests of their own.
  f.reference = zelmtest::both([](auto& job) {
    auto src = job["src"], re = job["valuesRe"], im = job["valuesIm"];
    using T = decltype(src(0, 0, 0));
    const int n = job.size("widthHeight");
    for (int k = 0; k < job.count(); ++k) {
      const Francis<T> francis(n, deflationOf(job.member()), [&](int i, int j) { return src(k, i, j); });
      job.status(k) = francis.status;
      for (int i = francis.known; i < n; ++i) {
        re.set(k, i, francis.re[static_cast<size_t>(i)]);
        im.set(k, i, francis.im[static_cast<size_t>(i)]);
      }
      for (const OperandInfo& op : job.member().operands)
        if (op.name.rfind("vectors", 0) == 0 && francis.status == zelStatusOk)
          for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j)
              job[op.name].free(k, i, j);
    }
  });
  return f;
}

const Registration registration{family()};

// ---- The vectors
// --------------------------------------------------------------------------------------------------------

enum class Kind { Right, Left };

template <class T> struct Result {
  std::vector<T> src, right, left, re, im;
  int n, count;
  ZelStatus status;
  const std::vector<T>& vectors(Kind kind) const { return kind == Kind::Right ? right : left; }
};

template <class T> Result<T> emptyResult(int n, int count) {
  const auto all = static_cast<size_t>(n * n * count), values = static_cast<size_t>(n * count);
  return {std::vector<T>(all),
          std::vector<T>(all, T(-77)),
          std::vector<T>(all, T(-77)),
          std::vector<T>(values),
          std::vector<T>(values),
          n,
          count,
          zelStatusOk};
}

// Both kinds: of one matrix, of an array, or from the two functions of one kind.
enum class Way { Single, Array, OneKind };
template <class T> void compute(Result<T>& r, Way way) {
  const int n = r.n, E = sizeof(T), row = n * E, object = n * row;
  std::vector<T> buffer(static_cast<size_t>(n * (3 * n + 5)));
  const T* a = r.src.data();
  T *x = r.right.data(), *y = r.left.data(), *re = r.re.data(), *im = r.im.data(), *b = buffer.data();
  const int count = r.count;
  if constexpr (sizeof(T) == 4) {
    if (way == Way::Single)
      r.status = zelmEigenValuesVectors_m_32f(a, row, E, x, row, E, y, row, E, re, im, n, b);
    else if (way == Way::Array)
      r.status =
          zelmEigenValuesVectors_ma_32f(a, object, row, E, x, object, row, E, y, object, row, E, re, im, n, count, b);
    else {
      r.status = zelmEigenValuesVectorsRight_ma_32f(a, object, row, E, x, object, row, E, re, im, n, count, b);
      if (r.status == zelStatusOk)
        r.status = zelmEigenValuesVectorsLeft_ma_32f(a, object, row, E, y, object, row, E, re, im, n, count, b);
    }
  } else {
    if (way == Way::Single)
      r.status = zelmEigenValuesVectors_m_64f(a, row, E, x, row, E, y, row, E, re, im, n, b);
    else if (way == Way::Array)
      r.status =
          zelmEigenValuesVectors_ma_64f(a, object, row, E, x, object, row, E, y, object, row, E, re, im, n, count, b);
    else {
      r.status = zelmEigenValuesVectorsRight_ma_64f(a, object, row, E, x, object, row, E, re, im, n, count, b);
      if (r.status == zelStatusOk)
        r.status = zelmEigenValuesVectorsLeft_ma_64f(a, object, row, E, y, object, row, E, re, im, n, count, b);
    }
  }
}

using Long = std::complex<long double>;

// How far the vector of value j of object k is from one, by the matrix's norm and epsilon: transpose(x) * a = value *
// transpose(x) of a right one, a * y = conj(value) * y of a left one.
template <class T> double residual(const Result<T>& r, Kind kind, int k, int j) {
  const int n = r.n;
  auto A = [&](int i, int c) { return static_cast<long double>(r.src[static_cast<size_t>((k * n + i) * n + c)]); };
  auto V = [&](int i, int c) {
    return static_cast<long double>(r.vectors(kind)[static_cast<size_t>((k * n + i) * n + c)]);
  };
  auto value = [&](int c) { return Long(r.re[static_cast<size_t>(k * n + c)], r.im[static_cast<size_t>(k * n + c)]); };
  std::vector<Long> x(static_cast<size_t>(n));
  const bool pair = value(j).imag() > 0;
  for (int i = 0; i < n; ++i)
    x[static_cast<size_t>(i)] = Long(V(i, j), pair ? V(i, j + 1) : 0);
  const Long lambda = kind == Kind::Right ? value(j) : std::conj(value(j));
  long double norm = 0, squares = 0;
  for (int i = 0; i < n; ++i) {
    Long sum = 0;
    for (int c = 0; c < n; ++c) {
      const long double a = kind == Kind::Right ? A(c, i) : A(i, c);
      sum += a * x[static_cast<size_t>(c)];
      norm += a * a;
    }
    squares += std::norm(sum - lambda * x[static_cast<size_t>(i)]);
  }
  if (norm == 0)
    return squares == 0 ? 0 : std::numeric_limits<double>::infinity();
  return static_cast<double>(std::sqrt(squares / norm) / std::numeric_limits<T>::epsilon());
}

// The length of the vector of value j, in epsilons from 1; for a pair also how far its largest component is from real.
template <class T> double lengthError(const Result<T>& r, Kind kind, int k, int j) {
  const int n = r.n;
  const bool pair = r.im[static_cast<size_t>(k * n + j)] > 0;
  long double squares = 0, largest = -1, imaginary = 0;
  for (int i = 0; i < n; ++i) {
    const auto at = static_cast<size_t>((k * n + i) * n + j);
    const long double re = r.vectors(kind)[at], im = pair ? r.vectors(kind)[at + 1] : T(0);
    squares += re * re + im * im;
    if (re * re + im * im > largest) {
      largest = re * re + im * im;
      imaginary = std::fabs(im);
    }
  }
  // Two components may be nearly the largest: the imaginary part of either may vanish.
  long double least = imaginary;
  for (int i = 0; i < n; ++i) {
    const auto at = static_cast<size_t>((k * n + i) * n + j);
    const long double re = r.vectors(kind)[at], im = pair ? r.vectors(kind)[at + 1] : T(0);
    if (re * re + im * im > largest * (1 - 16 * std::numeric_limits<T>::epsilon()))
      least = std::min(least, std::fabs(im));
  }
  return static_cast<double>(std::max(std::fabs(std::sqrt(squares) - 1), least) / std::numeric_limits<T>::epsilon());
}

template <class T> Francis<T> plainly(const Result<T>& r, int k, Deflation deflation) {
  return {r.n, deflation, [&](int i, int j) { return r.src[static_cast<size_t>((k * r.n + i) * r.n + j)]; }};
}

template <class T> bool isFound(const Result<T>& r, int k, Deflation deflation) {
  return plainly(r, k, deflation).status == zelStatusOk;
}

// Whether the vectors of an object have to be what they are called: not where a block of two had equal diagonal
// elements or lost the element that joins its coinciding eigenvalues, nor where a sum of squares was denormal.
template <class T> bool isSound(const Result<T>& r, int k, Deflation deflation) {
  const Francis<T> francis = plainly(r, k, deflation);
  return !francis.taken[Francis<T>::EqualDiagonal] && !francis.taken[Francis<T>::NearlyEqualSplit] &&
         !francis.taken[Francis<T>::DenormalSquares];
}

// A vector of zeros comes out where a value coincides with another that has the vector: its sum of squares overflows.
template <class T> bool isMissing(const Result<T>& r, Kind kind, int k, int j) {
  const int n = r.n;
  bool zero = true, coincides = false;
  for (int i = 0; i < n; ++i)
    zero = zero && r.vectors(kind)[static_cast<size_t>((k * n + i) * n + j)] == 0;
  for (int c = 0; c < n; ++c)
    coincides = coincides ||
                (c != j && std::fabs(r.re[static_cast<size_t>(k * n + c)] - r.re[static_cast<size_t>(k * n + j)]) <=
                               8 * std::numeric_limits<T>::epsilon());
  return zero && coincides;
}

template <class T> void checkVectors(Way way, double* worst) {
  Rng rng(5 + static_cast<uint64_t>(way));
  int objects = 0, sound = 0;
  const Deflation deflation =
      sizeof(T) == 4 || way == Way::Single ? Deflation::Relative : Deflation::RelativeSingleShifts;
  for (int n = 1; n <= 12; ++n)
    for (int round = 0; round < 400; ++round) {
      const int count = way == Way::Single ? 1 : rng.within(1, 19);
      Result<T> r = emptyResult<T>(n, count);
      int kind = rng.below(2 * hardKinds); // half of them dense
      while (kind == 7 || kind == 12)      // beyond the range, NaN
        kind = rng.below(2 * hardKinds);
      for (int k = 0; k < count; ++k) {
        auto set = [&](int i, int j, T value) { r.src[static_cast<size_t>((k * n + i) * n + j)] = value; };
        if (kind < hardKinds)
          hardMatrix<T>(kind, n, rng, set);
        else
          for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j)
              set(i, j, static_cast<T>(rng.below(200001) - 100000) / T(100000));
      }
      compute(r, way);
      bool converges = true; // graded matrices may be beyond the range too
      for (int k = 0; k < count && kind == 6; ++k)
        converges = converges && isFound(r, k, deflation);
      ASSERT_EQ(r.status, converges ? zelStatusOk : zelStatusNoConvergence) << n << " kind " << kind;
      for (int k = 0; k < count && converges; ++k) {
        ++objects;
        if (!isSound(r, k, deflation))
          continue;
        ++sound;
        for (int j = 0; j < n; ++j)
          for (Kind side : {Kind::Right, Kind::Left}) {
            const T im = r.im[static_cast<size_t>(k * n + j)];
            if (im < 0 || (im == 0 && isMissing(r, side, k, j)))
              continue;
            const double far = residual(r, side, k, j), length = lengthError(r, side, k, j);
            worst[0] = std::max(worst[0], far);
            worst[1] = std::max(worst[1], length);
            ASSERT_LT(far, 30 + 10 * n) << n << " kind " << kind << " object " << k << " value " << j << " "
                                        << static_cast<int>(side);
            ASSERT_LT(length, 8 + n) << n << " kind " << kind << " object " << k << " value " << j;
          }
      }
    }
  EXPECT_GT(sound, objects * 3 / 4);
}

TEST(EigenVectors, AreEigenvectorsOfLengthOne) {
  double worst[5][2] = {};
  checkVectors<float>(Way::Single, worst[0]);
  checkVectors<float>(Way::Array, worst[1]);
  checkVectors<double>(Way::Single, worst[2]);
  checkVectors<double>(Way::Array, worst[3]);
  checkVectors<double>(Way::OneKind, worst[4]);
  for (int i = 0; i < 5; ++i)
    RecordProperty("residual" + std::to_string(i), std::to_string(worst[i][0]) + " " + std::to_string(worst[i][1]));
}

// The functions of one kind and those of both, and those of one matrix and of an array, agree: to the bit where they
// shift alike.
template <class T> void checkAgreement() {
  Rng rng(9);
  for (int n = 1; n <= 9; ++n)
    for (int round = 0; round < 60; ++round) {
      const int count = rng.within(1, 20);
      Result<T> both = emptyResult<T>(n, count);
      const int kind = rng.below(hardKinds);
      for (int k = 0; k < count; ++k)
        hardMatrix<T>(kind == 12 || kind == 7 ? 0 : kind, n, rng,
                      [&](int i, int j, T value) { both.src[static_cast<size_t>((k * n + i) * n + j)] = value; });
      Result<T> apart = both;
      compute(both, Way::Array);
      compute(apart, Way::OneKind);
      ASSERT_EQ(both.status, apart.status);
      if (both.status != zelStatusOk)
        continue;
      auto same = [](const std::vector<T>& a, const std::vector<T>& b) {
        return std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
      };
      ASSERT_TRUE(same(both.right, apart.right)) << n << " kind " << kind;
      ASSERT_TRUE(same(both.left, apart.left)) << n << " kind " << kind;
      ASSERT_TRUE(same(both.re, apart.re) && same(both.im, apart.im)) << n << " kind " << kind;
      const auto square = static_cast<size_t>(n * n);
      for (int k = 0; k < count && sizeof(T) == 4; ++k) {
        Result<T> one = emptyResult<T>(n, 1);
        const auto from = static_cast<size_t>(k) * square;
        std::copy_n(both.src.begin() + static_cast<ptrdiff_t>(from), square, one.src.begin());
        compute(one, Way::Single);
        ASSERT_EQ(one.status, zelStatusOk);
        ASSERT_EQ(std::memcmp(one.right.data(), both.right.data() + from, square * sizeof(T)), 0) << n << " " << kind;
        ASSERT_EQ(std::memcmp(one.left.data(), both.left.data() + from, square * sizeof(T)), 0) << n << " " << kind;
      }
    }
}
TEST(EigenVectors, AgreeBetweenFamilies) {
  checkAgreement<float>();
  checkAgreement<double>();
}

TEST(EigenVectors, Numbers) {
  // Side 1: the vector 1.
  Result<double> one = emptyResult<double>(1, 1);
  one.src = {-3};
  compute(one, Way::Single);
  EXPECT_EQ(one.right[0], 1);
  EXPECT_EQ(one.left[0], 1);
  EXPECT_EQ(one.re[0], -3);
  EXPECT_EQ(one.im[0], 0);
  // A diagonal matrix: unit vectors in its order.
  Result<double> diagonal = emptyResult<double>(3, 1);
  diagonal.src = {2, 0, 0, 0, 9, 0, 0, 0, 1};
  compute(diagonal, Way::Single);
  EXPECT_EQ(diagonal.right, std::vector<double>({1, 0, 0, 0, 1, 0, 0, 0, 1}));
  EXPECT_EQ(diagonal.left, std::vector<double>({1, 0, 0, 0, 1, 0, 0, 0, 1}));
  EXPECT_EQ(diagonal.re, std::vector<double>({2, 9, 1}));
  // The vectors of the transpose.
  Result<double> triangle = emptyResult<double>(2, 1);
  triangle.src = {1, 1, 0, 2};
  compute(triangle, Way::OneKind);
  ASSERT_EQ(triangle.status, zelStatusOk);
  const int two = triangle.re[0] == 2 ? 0 : 1, other = 1 - two;
  EXPECT_EQ(triangle.re[static_cast<size_t>(two)], 2);
  auto at = [&](int i, int j) { return triangle.right[static_cast<size_t>(2 * i + j)]; };
  EXPECT_EQ(at(0, two), 0);
  EXPECT_EQ(std::fabs(at(1, two)), 1);
  EXPECT_DOUBLE_EQ(at(0, other), -at(1, other));
  // A right angle: the first column real, the second imaginary, the component of largest magnitude real.
  Result<double> angle = emptyResult<double>(2, 1);
  angle.src = {0, -1, 1, 0};
  compute(angle, Way::Single);
  EXPECT_EQ(angle.im, std::vector<double>({1, -1}));
  EXPECT_NEAR(angle.right[1], 0, 1e-15);
  EXPECT_NEAR(std::fabs(angle.right[0]), std::sqrt(0.5), 1e-15);
  EXPECT_NEAR(std::fabs(angle.right[3]), std::sqrt(0.5), 1e-15);
  // Equal diagonal elements: a pair, whatever it really is.
  Result<float> equal = emptyResult<float>(2, 1);
  equal.src = {1, 4, 4, 1};
  compute(equal, Way::Single);
  ASSERT_EQ(equal.status, zelStatusOk);
  EXPECT_EQ(equal.re, std::vector<float>({1, 1}));
  EXPECT_EQ(equal.im, std::vector<float>({4, -4}));
}

// ---- Failures
// --------------------------------------------------------------------------------------------------------

TEST(EigenVectorsFailure, NoConvergence) {
  for (Way way : {Way::Single, Way::Array, Way::OneKind}) {
    Result<float> r = emptyResult<float>(4, 1);
    r.src = {1, 2, std::numeric_limits<float>::quiet_NaN(), 0, 3, 1, 5, 0, 4, 1, 2, 0, 9, 9, 9, 6};
    r.re.assign(4, -77);
    r.im.assign(4, -77);
    compute(r, way);
    EXPECT_EQ(r.status, zelStatusNoConvergence);
    EXPECT_EQ(r.re, std::vector<float>({-77, -77, -77, 6}));
    EXPECT_EQ(r.im, std::vector<float>({-77, -77, -77, 0}));
    EXPECT_EQ(r.right, std::vector<float>(16, -77));
    EXPECT_EQ(r.left, std::vector<float>(16, -77));
  }
}

// The parts of the eigenvalue overflow when added: every coefficient is negligible beside the sum. The values are
// there, no vector is, and objects behind are not touched.
template <class T> void checkFailed(Way way, int place) {
  const int count = 3;
  Result<T> r = emptyResult<T>(4, way == Way::Single ? 1 : count);
  const T d = std::numeric_limits<T>::max() * T(0.45), b = std::numeric_limits<T>::max() * T(0.95);
  const T hard[16] = {d, -b, 0, 0, b, d, 0, 0, 0, 0, d, -b, 0, 0, b, d};
  for (int k = 0; k < r.count; ++k)
    for (int e = 0; e < 16; ++e)
      r.src[static_cast<size_t>(16 * k + e)] = k == place ? hard[e] : T(e % 5 == 0 ? e + 1 : 0);
  std::fill(r.re.begin(), r.re.end(), T(-77));
  compute(r, way);
  ASSERT_EQ(r.status, zelStatusFailed);
  for (int k = 0; k < r.count; ++k)
    for (int e = 0; e < 16; ++e) {
      const bool done = k < place;
      const auto at = static_cast<size_t>(16 * k + e);
      const T unit = e % 5 == 0 ? 1 : 0;
      EXPECT_EQ(r.right[at], done ? unit : T(-77)) << k << " " << e;
      EXPECT_EQ(r.left[at], done && way == Way::Array ? unit : T(-77)) << k << " " << e; // not called with OneKind
    }
  for (int j = 0; j < 4; ++j) {
    EXPECT_EQ(r.re[static_cast<size_t>(4 * place + j)], d);
    if (place + 1 < r.count) {
      EXPECT_EQ(r.re[static_cast<size_t>(4 * place + 4 + j)], T(-77));
    }
  }
}
TEST(EigenVectorsFailure, Failed) {
  checkFailed<float>(Way::Single, 0);
  checkFailed<double>(Way::Single, 0);
  for (Way way : {Way::Array, Way::OneKind})
    for (int place = 0; place < 3; ++place) {
      checkFailed<float>(way, place);
      checkFailed<double>(way, place);
    }
}

// A real value whose vector meets a block of two that is not regular: the call ends well, and without the vectors. The
// value is infinite, and so is the mean of a pair that overflows: every coefficient is NaN or negligible beside them.
template <class T> void checkEndsWell(T a, T d, T b) {
  const T inf = std::numeric_limits<T>::infinity();
  const T rightEnds[9] = {a, -b, 0, b, d, 0, 0, 0, inf}, leftEnds[9] = {inf, 0, 0, 0, a, -b, 0, b, d};
  for (Way way : {Way::Single, Way::Array, Way::OneKind})
    for (Kind kind : {Kind::Right, Kind::Left}) {
      if (way != Way::OneKind && kind == Kind::Left)
        continue; // the right vectors come first
      Result<T> r = emptyResult<T>(3, way == Way::Single ? 1 : 3);
      const int place = r.count / 2;
      for (int k = 0; k < r.count; ++k)
        for (int e = 0; e < 9; ++e)
          r.src[static_cast<size_t>(9 * k + e)] =
              k == place ? (kind == Kind::Right ? rightEnds : leftEnds)[e] : T(e % 4 == 0 ? e + 1 : 0);
      r.re.assign(r.re.size(), T(-77));
      compute(r, way);
      EXPECT_EQ(zelStatusOk, r.status);
      for (int j = 0; j < 3; ++j) {
        EXPECT_EQ(inf, r.re[static_cast<size_t>(3 * place + j)]) << j;
        if (way == Way::Array) { // else the function of the other kind goes on
          EXPECT_EQ(T(-77), r.re[static_cast<size_t>(3 * place + 3 + j)]);
        }
      }
      for (size_t e = 0; e < r.vectors(kind).size(); ++e)
        EXPECT_EQ(e >= static_cast<size_t>(9 * place) ? T(-77) : T(e % 4 == 0), r.vectors(kind)[e]) << e;
    }
}
TEST(EigenVectorsFailure, EndsWell) {
  checkEndsWell<float>(0x1.04378ap+127F, 0x1.f790e8p+126F, 0x1.4857c6p+124F);
  checkEndsWell<double>(0x1.027e162d23359p+1023, 0x1.fb03d3a5b994cp+1022, -0x1.424214d4b53a1p+1018);
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmEigenValuesVectors_ma_32f", entered("zelmEigenValuesVectors_ma_32f", 4, 9)); // 468
  EXPECT_EQ("ownOMP_zelmEigenValuesVectors_ma_32f", entered("zelmEigenValuesVectors_ma_32f", 4, 10));
  EXPECT_EQ("ownzelmEigenValuesVectorsLeft_ma_64f_L", entered("zelmEigenValuesVectorsLeft_ma_64f_L", 1, 125)); // 500
  EXPECT_EQ("ownOMP_zelmEigenValuesVectorsLeft_ma_64f_L", entered("zelmEigenValuesVectorsLeft_ma_64f_L", 1, 126));
}

} // namespace
