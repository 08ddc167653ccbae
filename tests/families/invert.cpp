// Inverses.
#include "../harness/paths.h"
#include "../harness/run.h"
#include "pivots.h"

#include <gtest/gtest.h>

#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

namespace {

using namespace zelmtest;

// A square matrix in which any row and column can be named by an int.
template <class T> class Square {
public:
  explicit Square(int n) : n_(n), element_(static_cast<size_t>(n * n)) {}
  int side() const { return n_; }
  T& operator()(int i, int j) { return element_[static_cast<size_t>(i * n_ + j)]; }
  T operator()(int i, int j) const { return element_[static_cast<size_t>(i * n_ + j)]; }
  void exchangeRows(int i, int k) {
    for (int j = 0; j < n_; ++j)
      std::swap((*this)(i, j), (*this)(k, j));
  }
  void exchangeColumns(int j, int k) {
    for (int i = 0; i < n_; ++i)
      std::swap((*this)(i, j), (*this)(i, k));
  }

private:
  int n_;
  std::vector<T> element_;
};

template <class T> T limitOf(int n) {
  const auto side = static_cast<uint32_t>(n);
  return static_cast<T>(static_cast<int32_t>(2u * side * side * side)) * std::numeric_limits<T>::min();
}

float estimatedReciprocal(float d) {
  const float e = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d)));
  const float square = e * e, product = d * square;
  return e + e - product;
}
double estimatedReciprocal(double) {
  std::abort();
}

// ---- Cofactors

// Up to six rows or columns.
class Few {
public:
  int size() const { return size_; }
  int operator[](int place) const { return of_[place]; }
  void add(int index) { of_[size_++] = index; }
  // Places from, ..., to - 1, but for one.
  Few part(int from, int to, int without = -1) const {
    Few result;
    for (int place = from; place < to; ++place)
      if (place != without)
        result.add(of_[place]);
    return result;
  }
  Few without(int place) const { return part(0, size_, place); }

private:
  int of_[6];
  int size_ = 0;
};

// The minor of these rows and columns, along its first row from the lowest column on, or along its last row from the
// highest column on.
template <class T> T minorOf(const Square<T>& a, const Few& rows, const Few& columns, bool byFirstRow) {
  const int n = rows.size();
  if (n == 1)
    return a(rows[0], columns[0]);
  const int row = byFirstRow ? 0 : n - 1;
  T sum = 0;
  for (int t = 0; t < n; ++t) {
    const int c = byFirstRow ? t : n - 1 - t;
    const T term = a(rows[row], columns[c]) * minorOf(a, rows.without(row), columns.without(c), byFirstRow);
    sum = t == 0 ? term : t % 2 == 1 ? sum - term : sum + term;
  }
  return sum;
}

// The same along the first `upper` rows at once: over the column sets of as many, ascending as binary numbers.
template <class T> T minorOf(const Square<T>& a, const Few& rows, const Few& columns, int upper) {
  const int n = rows.size();
  T sum = 0;
  bool first = true;
  for (unsigned set = 0; set < 1u << n; ++set) {
    Few part, rest;
    int inversions = 0;
    for (int c = 0; c < n; ++c)
      if ((set >> c & 1) != 0) {
        part.add(columns[c]);
        inversions += rest.size();
      } else {
        rest.add(columns[c]);
      }
    if (part.size() != upper)
      continue;
    const T term = minorOf(a, rows.part(0, upper), part, false) * minorOf(a, rows.part(upper, n), rest, true);
    sum = first ? term : inversions % 2 == 1 ? sum - term : sum + term;
    first = false;
  }
  return sum;
}

template <class T> T minorWithout(const Square<T>& a, int i, int j) {
  const int n = a.side();
  Few all;
  for (int k = 0; k < n; ++k)
    all.add(k);
  const Few rows = all.without(i), columns = all.without(j);
  if (i < 2)
    return minorOf(a, rows, columns, true);
  if (i >= n - 2)
    return minorOf(a, rows, columns, false);
  return minorOf(a, rows, columns, i);
}

template <class T> bool invertByCofactors(const Square<T>& a, Square<T>& inverse, T limit, bool estimated) {
  const int n = a.side();
  T det = a(0, 0) * minorWithout(a, 0, 0);
  for (int i = 1; i < n; ++i) {
    const T term = a(i, 0) * minorWithout(a, i, 0);
    det = i % 2 == 1 ? det - term : det + term;
  }
  if (limit > std::fabs(det))
    return false;
  const T r = estimated ? estimatedReciprocal(det) : 1 / det;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      const T minor = minorWithout(a, i, j);
      const T cofactor = (i + j) % 2 == 1 ? 0 - minor : minor;
      inverse(j, i) = cofactor * r;
    }
  return true;
}

// ---- The block method

template <class T> bool invertByBorders(Square<T> a, Square<T>& inverse, T limit, bool lastLosesTies) {
  const int n = a.side();
  if (n == 4)
    return invertByCofactors(a, inverse, limit, true);
  int best = 0;
  for (int j = 1; j < n; ++j) {
    const T candidate = std::fabs(a(0, j)), most = std::fabs(a(0, best));
    if (candidate > most || (candidate == most && !(lastLosesTies && j == n - 1)))
      best = j;
  }
  if (limit > std::fabs(a(0, best)))
    return false;
  a.exchangeColumns(0, best);
  const T r = estimatedReciprocal(a(0, 0));
  std::vector<T> l(1);
  Square<T> rest(n - 1), t(n - 1);
  for (int i = 1; i < n; ++i) {
    l.push_back(a(i, 0) * r);
    for (int j = 1; j < n; ++j) {
      const T product = a(0, j) * l.back();
      rest(i - 1, j - 1) = a(i, j) - product;
    }
  }
  if (!invertByBorders(rest, t, limit, false))
    return false;
  auto sum = [n](auto term) {
    T s = term(1);
    for (int k = 2; k < n; ++k)
      s = s + term(k);
    return s;
  };
  for (int i = 1; i < n; ++i) {
    const T column = sum([&](int k) -> T { return t(i - 1, k - 1) * l[static_cast<size_t>(k)]; });
    const T row = sum([&](int k) -> T { return a(0, k) * t(k - 1, i - 1); });
    inverse(i, 0) = -column;
    inverse(0, i) = -(r * row);
    for (int j = 1; j < n; ++j)
      inverse(i, j) = t(i - 1, j - 1);
  }
  const T corner = r * sum([&](int k) -> T { return a(0, k) * inverse(k, 0); });
  inverse(0, 0) = r - corner;
  inverse.exchangeRows(0, best);
  return true;
}

// ---- The general path

// Eliminates the first columns of w with row pivots. Leaves the product of the pivots, the sign of the order and the
// element in the last place; false if a pivot is below the limit.
template <class T> bool eliminate(Square<T> w, T limit, T& product, T& sign, T& last) {
  const int n = w.side();
  std::vector<int> o(static_cast<size_t>(n));
  std::iota(o.begin(), o.end(), 0);
  auto at = [&](int i, int j) -> T& { return w(o[static_cast<size_t>(i)], j); };
  bool done = true;
  product = sign = 1;
  for (int k = 0; k + 1 < n && done; ++k) {
    int best = k;
    for (int i = k + 1; i < n; ++i)
      if (std::fabs(at(i, k)) > std::fabs(at(best, k)))
        best = i;
    if (best != k) {
      std::swap(o[static_cast<size_t>(best)], o[static_cast<size_t>(k)]);
      sign = -sign;
    }
    const T pivot = at(k, k);
    if (limit > std::fabs(pivot)) {
      done = false;
      break;
    }
    const T r = 1 / pivot;
    for (int i = k + 1; i < n; ++i) {
      const T m = at(i, k) * r;
      for (int j = k + 1; j < n; ++j) {
        const T taken = at(k, j) * m;
        at(i, j) = at(i, j) - taken;
      }
    }
    product = product * pivot;
  }
  last = at(n - 1, n - 1);
  return done;
}

template <class T> bool invertByMinors(const Square<T>& a, Square<T>& inverse) {
  const int n = a.side();
  const T limit = limitOf<T>(n);
  T product, sign, last;
  if (!eliminate(a, limit, product, sign, last))
    return false;
  const T signedLast = sign * last, det = product * signedLast;
  if (limit >= std::fabs(det))
    return false;
  const T q = 1 / det;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      Square<T> left(n - 1);
      for (int r = 0; r < n - 1; ++r)
        for (int c = 0; c < n - 1; ++c)
          left(r, c) = a(r < i ? r : r + 1, c < j ? c : c + 1);
      if (!eliminate(left, limit, product, sign, last))
        product = limit;
      const T end = last * sign;
      const T minor = std::fabs(last) > limit ? product * end : limit;
      const T scaled = minor * q;
      inverse(j, i) = (i + j) % 2 == 0 ? scaled : scaled * -1;
    }
  return true;
}

// ---- Which of these a call takes

bool isFast(const Member& m, bool unit) {
  return unit && m.layout != 'P';
}

enum class Path { Element, Cofactors, Estimated, Borders, Minors };

Path pathOf(const Member& m, bool unit, int n) {
  if (n == 1)
    return Path::Element;
  if (n == 2 || n > 6)
    return Path::Minors;
  if (!isFast(m, unit) || m.elem == 8)
    return Path::Cofactors;
  if (n == 3)
    return m.name == "zelmInvert_ma_32f" ? Path::Cofactors : Path::Estimated;
  return n == 4 ? Path::Estimated : Path::Borders;
}

template <class T> T limitOf(const Member& m, bool unit, int n) {
  return limitOf<T>(n) * T(isFast(m, unit) && m.elem == 8 && (n == 3 || n == 4) ? 2 : 1);
}

bool takesPairs(const Member& m, bool unit, int n, uintptr_t addresses, int32_t stride0, int32_t stride1) {
  return m.name == "zelmInvert_ma_32f" && unit && n == 4 && ((addresses | static_cast<uintptr_t>(stride0)) & 15) == 0 &&
         stride1 == 16;
}

template <class Job> void reference(Job& job) {
  auto src = job["src"], dst = job["dst"];
  using T = decltype(src(0, 0, 0));
  const Member& m = job.member();
  const int n = job.size("widthHeight");
  const Path path = pathOf(m, job.unit(), n);
  const T limit = limitOf<T>(m, job.unit(), n);
  const bool pairs = takesPairs(m, job.unit(), n,
                                reinterpret_cast<uintptr_t>(src.address()) | reinterpret_cast<uintptr_t>(dst.address()),
                                src.stride0() | dst.stride0(), src.stride1() | dst.stride1());
  const bool oneShare = 2 * n * job.count() < 3601;
  Square<T> a(n), inverse(n);
  for (int k = 0; k < job.count(); ++k) {
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        a(i, j) = src(k, i, j);
    bool done = true;
    switch (path) {
    case Path::Element:
      done = std::fabs(a(0, 0)) > limitOf<T>(1);
      inverse(0, 0) = 1 / a(0, 0);
      break;
    case Path::Cofactors:
    case Path::Estimated:
      done = invertByCofactors(a, inverse, limit, path == Path::Estimated);
      break;
    case Path::Borders:
      done = invertByBorders(a, inverse, limit, n == 5);
      break;
    case Path::Minors:
      done = invertByMinors(a, inverse);
    }
    if (!done)
      job.status(k) = zelStatusSingular;
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        if (done)
          dst.set(k, i, j, inverse(i, j));
        else if (path == Path::Borders && i < n - 4)
          dst.free(k, i, j); // its scratch
    // The first of a pair is stored with the second. Where pairs begin depends on the share.
    if (done || !pairs || k == 0 || (oneShare && k % 2 == 0))
      continue;
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        if (oneShare)
          dst.leave(k - 1, i, j);
        else
          dst.free(k - 1, i, j);
  }
}

// Data kinds from 10 on:
// 10 permutation matrices times values                 11 small integers: ties, singular ones
// 12 permutation matrices with the determinant at a limit or beside it: 1 elsewhere
// 13 as 10, one object of the batch singular           14 dense, with ties for the pivot in rows 0 and 1
// 15 dense, with NaN and infinities                    16 of extreme magnitude: products that overflow or underflow
template <class Job> void fill(Job& job, Rng& rng, int kind) {
  if (kind < 10)
    return;
  auto src = job["src"];
  using T = decltype(src(0, 0, 0));
  const int n = job.size("widthHeight"), singular = rng.below(job.count());
  std::vector<int> order(static_cast<size_t>(n));
  std::iota(order.begin(), order.end(), 0);
  auto value = [&] { return pivotValue<T>(rng); };
  for (int k = 0; k < job.count(); ++k) {
    for (int i = n - 1; i > 0; --i)
      std::swap(order[static_cast<size_t>(i)], order[static_cast<size_t>(rng.below(i + 1))]);
    const int step = rng.below(n);
    const T edge = beside(limitOf<T>(n) * T(rng.chance(2) ? 1 : 2), rng.within(-1, 1));
    const T scale = static_cast<T>(std::ldexp(1.0, (sizeof(T) == 4 ? 1 : 8) * rng.within(-110, 110) / n));
    const bool edged = job.count() == 1 || rng.chance(3);
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        const bool entry = order[static_cast<size_t>(i)] == j;
        T x = 0;
        switch (kind) {
        case 10:
        case 13:
          x = entry ? value() : rng.chance(2) ? T(0) : T(-0.0);
          if (kind == 13 && k == singular && j == step)
            x = 0;
          break;
        case 11:
          x = static_cast<T>(rng.within(-2, 2));
          break;
        case 12:
          x = entry ? (i == step && edged ? edge : T(1)) * T(rng.chance(2) ? 1 : -1) : T(0);
          break;
        case 14:
          x = i < 2 ? T(rng.within(1, 2)) * T(rng.chance(2) ? 1 : -1) : value();
          break;
        case 15:
          x = value();
          if (rng.chance(3 * n))
            x = rng.chance(2) ? std::numeric_limits<T>::quiet_NaN() : std::numeric_limits<T>::infinity();
          break;
        default:
          x = value() * scale;
        }
        // A NaN in the first row takes part in no search that is told.
        if (kind == 15 && i < 2 && std::isnan(x))
          x = 1;
        src.set(k, i, j, x);
      }
  }
}

Family family() {
  Family f;
  f.name = "Inverse";
  const auto estimate = [](const Sizes& s) { return 2 * s["count"] * s["widthHeight"]; };
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmInvert_m), "src:m buffer:b dst:m widthHeight",         {"NZS", nullptr, "NZH"},      "src"},
      {ZELMTEST_ARRAY(zelmInvert_ma), "src:ma buffer:b dst:ma widthHeight count", {"NCZS", "NCZSH", "NCZSH"},   "src", estimate,
       {3601, 2501, 2501, 2501, 2501}, {2501, 2501, 2501, 2501, 2501}},
  };
  // clang-format on
  f.shape = [](const Member&, const std::string& operand, const Sizes& s) {
    const int n = s.get("widthHeight");
    return operand == "buffer" ? Shape{1, n * n + n} : Shape{0, 0};
  };
  // The work grows with the fifth power of the side.
  f.shapes = [](const Member& m) {
    std::vector<Sizes> all;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 13})
      all.push_back(m.square(n, 1));
    return all;
  };
  f.needsNoKernel = [](const Sizes& s) { return s.get("widthHeight") == 1; };
  f.worksInPlace = [](const Member& m, const Sizes& s) {
    const int n = s.get("widthHeight");
    return n == 1 || (n >= 3 && n <= 5) || (n == 6 && (m.elem == 8 || m.layout == 'P'));
  };
  f.delegate = [](const Member& m, const Sizes& s, bool unit) -> std::string {
    const int n = s.get("widthHeight");
    if (n == 1 || (n == 2 && m.hasCount))
      return "";
    if (n == 2 || n > 6)
      return m.layout == 'P' ? (m.hasCount ? "" : m.kernelOfOne("_P_com")) : m.kernelOfOne(unit ? "_com" : "_S2_com");
    if (m.hasCount || !isFast(m, unit))
      return "";
    const std::string side = "_" + std::to_string(n) + "x" + std::to_string(n);
    return m.kernelOfOne((side + (m.elem == 8 && n > 4 ? "_PX" : "")).c_str());
  };
  f.delegateOfAll = [](const Job& job) -> std::string {
    const Dense &src = job.operands[0], &dst = job.operands[static_cast<size_t>(job.member.operandIndex("dst"))];
    return takesPairs(job.member, job.unit, job.sizes.get("widthHeight"),
                      reinterpret_cast<uintptr_t>(src.address) | reinterpret_cast<uintptr_t>(dst.address),
                      src.stride0 | dst.stride0, src.stride1 | dst.stride1)
               ? "ownzelmInvert_m_32f_4x4_loop2"
               : "";
  };
  f.reference = both([](auto& job) { reference(job); });
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fill(job, rng, kind); });
  f.dataKinds = {0, 0, 1, 3, 4, 10, 11, 12, 13, 14, 14, 15, 16};
  return f;
}

const Registration registration{family()};

// ---- What the common suites do not reach in every run

template <class T, class F> ZelStatus invertOne(F function, const std::vector<T>& a, std::vector<T>& inverse, int n) {
  std::vector<T> buffer(static_cast<size_t>(n * n + n));
  const int e = sizeof(T);
  return function(a.data(), n * e, e, buffer.data(), inverse.data(), n * e, e, n);
}

template <class T> std::vector<T> diagonal(int n, T last) {
  std::vector<T> a(static_cast<size_t>(n * n), T(0));
  for (int i = 0; i < n; ++i)
    a[static_cast<size_t>(i * n + i)] = i == n - 1 ? last : T(1);
  return a;
}

// Sides 3 to 6 accept the limit itself, all others refuse it; unit strides in double precision have twice the limit for
// sides 3 and 4.
template <class T, class F> void limits(F function) {
  for (int n : {1, 2, 3, 4, 5, 6, 7, 8})
    for (int factor : {1, 2})
      for (int beyond = -1; beyond <= 1; ++beyond) {
        const T limit = limitOf<T>(n);
        const std::vector<T> a = diagonal(n, -beside(static_cast<T>(factor) * limit, beyond));
        std::vector<T> inverse(a.size());
        const T own = limit * T(sizeof(T) == 8 && (n == 3 || n == 4) ? 2 : 1);
        const bool singular = n >= 3 && n <= 6 ? own > -a.back() : own >= -a.back();
        EXPECT_EQ(invertOne<T>(function, a, inverse, n), singular ? zelStatusSingular : zelStatusOk)
            << n << " " << factor << " " << beyond;
      }
}

TEST(Invert, Limits) {
  limits<float>(zelmInvert_m_32f);
  limits<double>(zelmInvert_m_64f);
  // A determinant of 100 times the smallest normal number lies between the two limits of side 3.
  const std::vector<double> a = diagonal(3, 100 * std::numeric_limits<double>::min());
  double inverse[18], buffer[12];
  EXPECT_EQ(zelmInvert_m_64f(a.data(), 24, 8, buffer, inverse, 24, 8, 3), zelStatusSingular);
  EXPECT_EQ(zelmInvert_m_64f(a.data(), 24, 8, buffer, inverse, 48, 16, 3), zelStatusOk);
}

TEST(Invert, SingleElements) {
  float buffer[2], src[] = {4, -0x1.000002p-125f, 0.25f}, dst[3] = {7, 7, 7};
  EXPECT_EQ(zelmInvert_ma_32f(src, 4, 4, 4, buffer, dst, 4, 4, 4, 1, 3), zelStatusOk);
  EXPECT_EQ(dst[0], 0.25f);
  EXPECT_EQ(dst[2], 4.0f);
  for (float bad : {0x1p-125f, -0x1p-125f, 0.0f, std::numeric_limits<float>::quiet_NaN()}) {
    src[1] = bad;
    dst[0] = dst[1] = dst[2] = 7;
    EXPECT_EQ(zelmInvert_ma_32f(src, 4, 4, 4, buffer, dst, 4, 4, 4, 1, 3), zelStatusSingular);
    EXPECT_EQ(dst[0], 0.25f);
    EXPECT_EQ(dst[1], 7);
    EXPECT_EQ(dst[2], 7);
  }
}

// Minors of zero come out as the limit.
TEST(Invert, IdentityOfTwo) {
  std::vector<float> inverse(4);
  EXPECT_EQ(invertOne<float>(zelmInvert_m_32f, {1, 0, 0, 1}, inverse, 2), zelStatusOk);
  EXPECT_EQ(inverse, (std::vector<float>{1, -16 * 0x1p-126f, -16 * 0x1p-126f, 1}));
}

// Equal magnitudes in column 0: the first is the pivot, in a batch as in a single object.
template <class T, class Array, class Single> void tiesOfTwo(Array array, Single single) {
  constexpr int count = 40, e = sizeof(T);
  std::mt19937 random(2);
  std::uniform_real_distribution<double> uniform(1, 2);
  std::vector<T> a(4 * count), inverse(a.size()), expected(4), buffer(6);
  for (size_t i = 0; i < a.size(); ++i)
    a[i] = i % 4 == 2 ? (i % 8 == 2 ? a[i - 2] : -a[i - 2]) : static_cast<T>(uniform(random));
  ASSERT_EQ(zelStatusOk, array(a.data(), 4 * e, 2 * e, e, buffer.data(), inverse.data(), 4 * e, 2 * e, e, 2, count));
  for (size_t k = 0; k < count; ++k) {
    ASSERT_EQ(zelStatusOk, invertOne<T>(single, {&a[4 * k], &a[4 * k] + 4}, expected, 2));
    EXPECT_EQ(expected, std::vector<T>(&inverse[4 * k], &inverse[4 * k] + 4));
  }
}

TEST(Invert, TiesOfTwo) {
  tiesOfTwo<float>(zelmInvert_ma_32f, zelmInvert_m_32f);
  tiesOfTwo<double>(zelmInvert_ma_64f, zelmInvert_m_64f);
}

// Equal magnitudes in row 0. A large element below them overflows if its column has the pivot, and nowhere else.
TEST(Invert, TiesOfBorders) {
  struct Case {
    int n;
    std::vector<int> ties;
    int pivot;
  };
  const Case cases[] = {{5, {1, 2, 4}, 2}, {5, {0, 4}, 0}, {5, {0, 3}, 3}, {5, {4}, 4}, {5, {0, 1, 2, 3, 4}, 3},
                        {6, {2, 4}, 4},    {6, {0, 5}, 5}, {6, {0, 1}, 1}, {6, {3}, 3}, {6, {0, 1, 2, 3, 4, 5}, 5}};
  for (const Case& c : cases)
    for (int large : c.ties) {
      std::vector<float> a(static_cast<size_t>(c.n * c.n)), inverse(a.size());
      auto at = [&](int i, int j) -> float& { return a[static_cast<size_t>(i * c.n + j)]; };
      for (int j : c.ties)
        at(0, j) = j % 2 == 0 ? 0x1p-60f : -0x1p-60f;
      for (int i = 1, j = 0; i < c.n; ++i, ++j) {
        j += j == c.pivot;
        at(i, j) = j == large ? 0x1p70f : 1.0f;
      }
      if (large == c.pivot)
        at(1, large) = 0x1p70f;
      ASSERT_EQ(invertOne<float>(zelmInvert_m_32f, a, inverse, c.n), zelStatusOk);
      const bool finite = std::all_of(inverse.begin(), inverse.end(), [](float x) { return std::isfinite(x); });
      EXPECT_EQ(finite, large != c.pivot) << c.n << " pivot " << c.pivot << " large " << large;
    }
}

// Unthreaded, the singular object at each place: those before it are complete, those behind it untouched; of an aligned
// pair of side 4 the first is left out with the second.
template <class T, class F> void stopsAtEachPlace(F function, int n) {
  const auto nn = static_cast<size_t>(n * n);
  for (int count : {1, 2, 3, 7, 8, 9, 16, 17, 18})
    for (int failing = 0; failing < count; ++failing)
      for (size_t offset : {size_t{0}, size_t{1}}) {
        std::vector<T> a(nn * static_cast<size_t>(count) + 17, T(0)), inverse(a.size(), T(7)), buffer(nn + nn);
        // From an address that is a multiple of 16, or one element on.
        auto from = [offset](std::vector<T>& v) {
          return reinterpret_cast<T*>((reinterpret_cast<uintptr_t>(v.data()) + 15) / 16 * 16) + offset;
        };
        T *src = from(a), *dst = from(inverse);
        for (int k = 0; k < count; ++k)
          for (int i = 0; i < n; ++i)
            src[static_cast<size_t>(k) * nn + static_cast<size_t>(i * n + n - 1 - i)] =
                T(k == failing && i == 0 ? 0 : 1);
        const int e = sizeof(T);
        ASSERT_EQ(function(src, n * n * e, n * e, e, buffer.data(), dst, n * n * e, n * e, e, n, count),
                  zelStatusSingular);
        const bool inPairs = sizeof(T) == 4 && n == 4 && offset == 0;
        const int done = inPairs ? failing / 2 * 2 : failing;
        for (int k = 0; k < count; ++k)
          for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) {
              const T x = dst[static_cast<size_t>(k) * nn + static_cast<size_t>(i * n + j)];
              if (k == failing && (n == 5 || n == 6))
                continue;
              const T expected = k >= done ? T(7) : T(i + j == n - 1);
              ASSERT_NEAR(x, expected, k < done ? 1e-6 : 0) << n << " " << count << " " << failing << " " << k;
            }
      }
}

TEST(Invert, StopsAtEachPlace) {
  for (int n = 2; n <= 7; ++n) {
    stopsAtEachPlace<float>(zelmInvert_ma_32f, n);
    stopsAtEachPlace<double>(zelmInvert_ma_64f, n);
  }
}

// The matrix times its inverse is the unit matrix, but for what the norms of the two allow.
template <class T, class F> void residuals(F function, int stride2, double factor) {
  const T eps = std::numeric_limits<T>::epsilon();
  Rng rng(3);
  for (int n = 2; n <= 9; ++n) {
    double worst = 0;
    for (int round = 0; round < 300; ++round) {
      const auto step = static_cast<size_t>(stride2);
      const auto at = [n, step](int i, int j) { return static_cast<size_t>(i * n + j) * step; };
      std::vector<T> a(static_cast<size_t>(n * n) * step), inverse = a, buffer(static_cast<size_t>(n * n + n));
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
          a[at(i, j)] = static_cast<T>(rng.within(-1000, 1000)) / 512 + (i == j ? T(2) : T(0));
      const int e = static_cast<int>(sizeof(T)) * stride2;
      ASSERT_EQ(function(a.data(), n * e, e, buffer.data(), inverse.data(), n * e, e, n), zelStatusOk);
      double norm = 0, inverseNorm = 0, error = 0;
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
          double sum = i == j ? -1 : 0;
          for (int k = 0; k < n; ++k)
            sum += static_cast<double>(a[at(i, k)]) * static_cast<double>(inverse[at(k, j)]);
          error = std::max(error, std::fabs(sum));
          norm += static_cast<double>(a[at(i, j)] * a[at(i, j)]);
          inverseNorm += static_cast<double>(inverse[at(i, j)] * inverse[at(i, j)]);
        }
      // Without pivots, or with pivots from one row, the error grows with the square of the condition.
      worst = std::max(worst, error / (norm * inverseNorm * static_cast<double>(eps)));
    }
    EXPECT_LT(worst, factor) << n << " " << stride2;
  }
}

TEST(Invert, Residuals) {
  residuals<float>(zelmInvert_m_32f, 1, 8);
  residuals<float>(zelmInvert_m_32f, 2, 8);
  residuals<double>(zelmInvert_m_64f, 1, 8);
  residuals<double>(zelmInvert_m_64f, 2, 8);
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmInvert_ma_32f", entered("zelmInvert_ma_32f", 4, 450)); // 3600
  EXPECT_EQ("ownOMP_zelmInvert_ma_32f", entered("zelmInvert_ma_32f", 4, 451));
  EXPECT_EQ("ownzelmInvert_ma_32f_S2", entered("zelmInvert_ma_32f", 4, 312, "srcStride2", 8)); // 2496
  EXPECT_EQ("ownOMP_zelmInvert_ma_32f", entered("zelmInvert_ma_32f", 4, 313, "srcStride2", 8));
}

} // namespace
