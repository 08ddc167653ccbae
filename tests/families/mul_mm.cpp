// Products of matrices.
#include "huge.h"
#include "sums.h"

#include "../harness/paths.h"

namespace {

using namespace zelmtest;

// ---- Sizes

struct Dimensions {
  int rows, terms, columns;
};

bool turned(const Member& m, int operand) {
  return m.operands[static_cast<size_t>(operand)].transposed;
}

Dimensions dimensions(const Member& m, const Sizes& s) {
  const int width1 = s.get("src1Width"), height1 = s.get("src1Height");
  const int width2 = s.get("src2Width"), height2 = s.get("src2Height");
  return {turned(m, 0) ? width1 : height1, turned(m, 0) ? height1 : width1, turned(m, 1) ? height2 : width2};
}

bool agree(const Member& m, const Sizes& s) {
  return s.get(turned(m, 0) ? "src1Height" : "src1Width") == s.get(turned(m, 1) ? "src2Width" : "src2Height");
}

Sizes sizes(int width1, int height1, int width2, int height2) {
  Sizes s;
  s.set("src1Width", width1);
  s.set("src1Height", height1);
  s.set("src2Width", width2);
  s.set("src2Height", height2);
  return s;
}

// Two kernels take any sizes whose OR is 3 for 3 by 3.
bool runs3By3(const Member& m, const Sizes& s) {
  return (m.name == "zelmMul_mm_32f_P" || m.name == "zelmMul_tt_64f_P") &&
         (s["src1Width"] | s["src1Height"] | s["src2Width"] | s["src2Height"]) == 3;
}

// One kernel takes a 4 by 4 src1 and a src2 of three stored rows for 4 by 4.
bool runs4By4(const Member& m, const Sizes& s) {
  return m.name == "zelmMul_mat_32f" && s.get("src1Width") == 4 && s.get("src1Height") == 4 && s.get("src2Height") == 3;
}

Shape shape(const Member& m, const std::string& operand, const Sizes& s) {
  if (runs3By3(m, s))
    return {3, 3};
  if (runs4By4(m, s))
    return {4, 4};
  if (operand != "dst")
    return {0, 0};
  const Dimensions d = dimensions(m, s);
  return {d.rows, d.columns};
}

std::vector<Sizes> shapes(const Member& m) {
  std::vector<Sizes> all;
  for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 17, 35})
    all.push_back(m.square(n, 1));
  for (int n : {3, 4, 5, 6}) // one size off
    for (int one = 0; one < 4; ++one)
      for (int other : {n - 1, n + 1})
        all.push_back(sizes(one == 0 ? other : n, one == 1 ? other : n, one == 2 ? other : n, one == 3 ? other : n));
  for (int code = 0; code < 81; ++code)
    all.push_back(sizes(code % 3 + 1, code / 3 % 3 + 1, code / 9 % 3 + 1, code / 27 + 1));
  Rng rng(1);
  for (int i = 0; i < 24; ++i)
    all.push_back(m.randomShape(rng, i < 16 ? 9 : 20));
  std::vector<Sizes> agreeing;
  for (const Sizes& s : all)
    if (agree(m, s))
      agreeing.push_back(s);
  return agreeing;
}

// ---- Work

uint32_t first(const Sizes& s) {
  return s["src1Width"] * s["src1Height"];
}
uint32_t second(const Sizes& s) {
  return s["src2Width"] * s["src2Height"];
}
// Elements of the result by the letters of the form.
uint32_t mm(const Sizes& s) {
  return s["src1Height"] * s["src2Width"];
}
uint32_t mt(const Sizes& s) {
  return s["src1Height"] * s["src2Height"];
}
uint32_t tm(const Sizes& s) {
  return s["src1Width"] * s["src2Width"];
}
uint32_t tt(const Sizes& s) {
  return s["src1Width"] * s["src2Height"];
}
template <uint32_t (*result)(const Sizes&)> uint32_t firstArray(const Sizes& s) {
  return second(s) + (first(s) + result(s)) * s["count"];
}
template <uint32_t (*result)(const Sizes&)> uint32_t secondArray(const Sizes& s) {
  return first(s) + (second(s) + result(s)) * s["count"];
}
template <uint32_t (*result)(const Sizes&)> uint32_t bothArrays(const Sizes& s) {
  return (first(s) + second(s) + result(s)) * s["count"];
}

// ---- Sums

// The sizes whose sums start from the first product; all others start from +0.0. `unit` stands for a stride2 of one
// element in all operands.
struct Fixed {
  const char* forms;
  int elem;
  const char *unit, *listUnit, *any, *listAny, *pointer;
};
// clang-format off
constexpr Fixed fixed[] = {
    // forms                                                   unit    list    any     list    pointer
    {" mm mt tt ",                                          4, "3456", "",     "3456", "",     "3456"},
    {" tm ",                                                4, "345",  "",     "3456", "",     "3456"},
    {" mm mt tm tt ",                                       8, "3456", "",     "3456", "",     "3456"},
    {" mam ",                                               4, "3456", "3456", "3456", "3",    "3"},
    {" mat ",                                               4, "356",  "3456", "3",    "3",    "3"},
    {" tam ",                                               4, "3456", "3456", "3",    "3",    "3"},
    {" tat ",                                               4, "3456", "3456", "3456", "3",    "3456"},
    {" mma tma ",                                           4, "3456", "3456", "3456", "3456", "3456"},
    {" mta tta ",                                           4, "3456", "",     "3456", "3456", "3456"},
    {" mama ",                                              4, "3456", "3456", "345",  "3456", "3456"},
    {" mata tama tata ",                                    4, "3456", "3456", "3456", "3456", "3456"},
    {" mam mat tam tat mma mta tma mama mata tama tata ",   8, "3456", "3456", "3456", "3456", "3456"},
    {" tta ",                                               8, "3456", "",     "3456", "3456", "3456"},
};
// clang-format on

bool startsWithProduct(const Member& m, const Sizes& s, bool unit) {
  const int n = s.get("src1Width");
  if (runs3By3(m, s) || (unit && runs4By4(m, s)))
    return true;
  if (n > 9 || s.get("src1Height") != n || s.get("src2Width") != n || s.get("src2Height") != n)
    return false;
  for (const Fixed& row : fixed)
    if (row.elem == m.elem && std::string(row.forms).find(" " + m.formName + " ") != std::string::npos) {
      const std::string list = m.layout == 'P'   ? row.pointer
                               : m.layout == 'L' ? (unit ? row.listUnit : row.listAny)
                                                 : (unit ? row.unit : row.any);
      return list.find(std::to_string(n)) != std::string::npos;
    }
  throw std::logic_error(m.name);
}

template <class T> T sum(const std::vector<T>& terms, bool fromProduct) {
  T total = fromProduct ? terms[0] : T(0) + terms[0];
  for (size_t k = 1; k < terms.size(); ++k)
    total = total + terms[k];
  return total;
}

template <class Job> void reference(Job& job) {
  auto src1 = job["src1"], src2 = job["src2"], dst = job["dst"];
  Sizes s = sizes(job.size("src1Width"), job.size("src1Height"), job.size("src2Width"), job.size("src2Height"));
  Dimensions d = dimensions(job.member(), s);
  if (runs3By3(job.member(), s))
    d = {3, 3, 3};
  if (runs4By4(job.member(), s) && job.unit())
    d = {4, 4, 4};
  const bool fromProduct = startsWithProduct(job.member(), s, job.unit());
  std::vector<decltype(src1(0, 0, 0))> terms(static_cast<size_t>(d.terms));
  for (int k = 0; k < job.count(); ++k)
    for (int i = 0; i < d.rows; ++i)
      for (int j = 0; j < d.columns; ++j) {
        for (int l = 0; l < d.terms; ++l)
          terms[static_cast<size_t>(l)] = src1(k, i, l) * src2(k, l, j);
        dst.set(k, i, j, sum(terms, fromProduct));
      }
}

// ---- The table

constexpr Orders single = {"NZMS", nullptr, "NZMH"}, array = {"NCZMS", "NCZMSH", "NCZMSH"};
constexpr Limits limits32 = {2500, 1440, 3600, 1440, 1440}, limits64 = {3600, 1440, 3600, 1440, 1440};

#define SIZES1 " src1Width src1Height "
#define SIZES2 " src2Width src2Height "

Family family() {
  Family f;
  f.name = "Mul on matrices";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmMul_mm),  "src1:m"  SIZES1 "src2:m"  SIZES2 "dst:m",        single},
      {ZELMTEST_SINGLE(zelmMul_mt),  "src1:m"  SIZES1 "src2:t"  SIZES2 "dst:m",        single},
      {ZELMTEST_SINGLE(zelmMul_tm),  "src1:t"  SIZES1 "src2:m"  SIZES2 "dst:m",        single},
      {ZELMTEST_SINGLE(zelmMul_tt),  "src1:t"  SIZES1 "src2:t"  SIZES2 "dst:m",        single},
      {ZELMTEST_ARRAY(zelmMul_mam),  "src1:ma" SIZES1 "src2:m"  SIZES2 "dst:ma count", array, "", firstArray<mm>,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_mat),  "src1:ma" SIZES1 "src2:t"  SIZES2 "dst:ma count", array, "", firstArray<mt>,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_tam),  "src1:ta" SIZES1 "src2:m"  SIZES2 "dst:ma count", array, "", firstArray<tm>,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_tat),  "src1:ta" SIZES1 "src2:t"  SIZES2 "dst:ma count", array, "", firstArray<tt>,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_mma),  "src1:m"  SIZES1 "src2:ma" SIZES2 "dst:ma count", array, "", secondArray<mm>, limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_mta),  "src1:m"  SIZES1 "src2:ta" SIZES2 "dst:ma count", array, "", secondArray<mt>, limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_tma),  "src1:t"  SIZES1 "src2:ma" SIZES2 "dst:ma count", array, "", secondArray<tm>, limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_tta),  "src1:t"  SIZES1 "src2:ta" SIZES2 "dst:ma count", array, "", secondArray<tt>, limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_mama), "src1:ma" SIZES1 "src2:ma" SIZES2 "dst:ma count", array, "", bothArrays<mm>,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_mata), "src1:ma" SIZES1 "src2:ta" SIZES2 "dst:ma count", array, "", bothArrays<mt>,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_tama), "src1:ta" SIZES1 "src2:ma" SIZES2 "dst:ma count", array, "", bothArrays<tm>,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_tata), "src1:ta" SIZES1 "src2:ta" SIZES2 "dst:ma count", array, "", bothArrays<tt>,  limits32, limits64},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.agrees = agree;
  f.shape = shape;
  f.shapes = shapes;
  f.dataKinds = {0, 0, 1, 2, 3, 4, negativeZeros};
  f.fill = bothFill([](auto& job, Rng& rng, int kind) {
    if (kind == negativeZeros)
      fillNegativeZeros(job, rng);
  });
  f.delegate = [](const Member& m, const Sizes&, bool unit) {
    const bool compact = m.elem == 4 && m.formName[1] == 'a' && m.formName.size() == 3; // mam mat tam tat
    return m.layout == 'L' && !unit && !compact ? m.kernelOfOne("_S2") : "";
  };
  f.reference = both([](auto& job) { reference(job); });
  return f;
}

const Registration registration{family()};

// ---- What the suites may miss

TEST(Results, ProductsOfNegativeZeros) {
  checkNegativeZeros();
}

// Data of the kinds in use tells the sum from other sums of the same terms.
template <class T> bool toldApart(const Member& m, T (*other)(const std::vector<T>&)) {
  Rng rng(3);
  for (int trial = 0; trial < 50; ++trial) {
    Job job(m, m.square(4, 2));
    for (Dense& operand : job.operands)
      fillDense(operand, rng, m.family->dataKinds[static_cast<size_t>(trial % 6)]);
    Typed<T> typed(job);
    auto src1 = typed["src1"], src2 = typed["src2"];
    std::vector<T> terms;
    for (int k = 0; k < 4; ++k)
      terms.push_back(src1(0, 0, k) * src2(0, k, 0));
    const T a = sum(terms, true), b = other(terms);
    if (!sameElement(reinterpret_cast<const unsigned char*>(&a), reinterpret_cast<const unsigned char*>(&b), sizeof(T),
                     false, false))
      return true;
  }
  return false;
}

template <class T> void tellsApart(const Member& m) {
  EXPECT_TRUE(toldApart<T>(m, [](const std::vector<T>& t) { return (t[0] + t[1]) + (t[2] + t[3]); }));
  EXPECT_TRUE(toldApart<T>(m, [](const std::vector<T>& t) { return (t[0] + t[2]) + (t[1] + t[3]); }));
  EXPECT_TRUE(toldApart<T>(m, [](const std::vector<T>& t) { return ((t[3] + t[2]) + t[1]) + t[0]; }));
  EXPECT_TRUE(toldApart<T>(m, [](const std::vector<T>& t) { return ((t[3] + t[0]) + t[1]) + t[2]; }));
  EXPECT_TRUE(toldApart<T>(m, [](const std::vector<T>& t) { return ((t[0] + t[2]) + t[1]) + t[3]; }));
}

TEST(Results, DataTellsSumsApart) {
  tellsApart<float>(member("zelmMul_mama_32f"));
  tellsApart<double>(member("zelmMul_mama_64f"));
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmMul_mam_32f", entered("zelmMul_mam_32f", 4, 52)); // 16 + 32 * 52 = 1680
  EXPECT_EQ("ownOMP_zelmMul_mam_32f", entered("zelmMul_mam_32f", 4, 52, "src1Stride2", 8));
  EXPECT_EQ("ownzelmMul_mama_64f", entered("zelmMul_mama_64f", 10, 12)); // 3600
  EXPECT_EQ("ownOMP_zelmMul_mama_64f", entered("zelmMul_mama_64f", 10, 13));
  EXPECT_EQ("ownzelmMul_mama_32f_P", entered("zelmMul_mama_32f_P", 4, 30)); // 1440
  EXPECT_EQ("ownOMP_zelmMul_mama_32f_P", entered("zelmMul_mama_32f_P", 4, 31));
  EXPECT_EQ("ownzelmMul_mam_32f", entered("zelmMul_mam_32f", 30000, 1)); // wraps below zero
  EXPECT_EQ("ownOMP_zelmMul_mam_32f", entered("zelmMul_mam_32f", 30000, 2));
}

// ---- Rows and columns that are runs

// Matrices of an array by rows or by columns, without gaps or padded.
template <class T> struct Laid {
  int rows, columns, stride0, stride1, stride2;
  std::vector<T> memory;
  Laid(int height, int width, int count, bool byColumns, int pad) : rows(height), columns(width) {
    const int e = sizeof(T);
    const int longStep = ((byColumns ? height : width) + pad) * e;
    stride1 = byColumns ? e : longStep;
    stride2 = byColumns ? longStep : e;
    stride0 = longStep * (byColumns ? width : height);
    memory.assign(static_cast<size_t>(stride0 / e * count), T(0));
  }
  T& operator()(int k, int i, int j) {
    const int e = sizeof(T);
    return memory[static_cast<size_t>((k * stride0 + i * stride1 + j * stride2) / e)];
  }
};

template <class T>
using ByArray = ZelStatus (*)(const T*, int, int, int, int, int, const T*, int, int, int, int, int, T*, int, int, int,
                              int);

// Every shape, every operand by rows or by columns: one sum for all, but for the sign of a zero, of which there is
// none.
template <class T> void expectSameInRowsAndColumns(ByArray<T> mul) {
  constexpr int count = 11;
  for (int shape = 0; shape < 343; ++shape)
    for (int kinds = 0; kinds < 16; ++kinds) {
      const int h = shape % 7 + 1, n = shape / 7 % 7 + 1, w = shape / 49 + 1;
      const int pad = kinds < 8 ? 0 : 1;
      Laid<T> a(h, n, count, (kinds & 1) != 0, pad), b(n, w, count, (kinds & 2) != 0, pad);
      Laid<T> d(h, w, count, (kinds & 4) != 0, pad);
      const auto value = [](int k, int i, int j) { return T(1) + T(k * 7 + i * 5 + j * 3) / T(11); };
      for (int k = 0; k < count; ++k)
        for (int l = 0; l < n; ++l) {
          for (int i = 0; i < h; ++i)
            a(k, i, l) = value(k, i, l);
          for (int j = 0; j < w; ++j)
            b(k, l, j) = value(k + 1, l, j);
        }
      ASSERT_EQ(zelStatusOk, mul(a.memory.data(), a.stride0, a.stride1, a.stride2, n, h, b.memory.data(), b.stride0,
                                 b.stride1, b.stride2, w, n, d.memory.data(), d.stride0, d.stride1, d.stride2, count));
      for (int k = 0; k < count; ++k)
        for (int i = 0; i < h; ++i)
          for (int j = 0; j < w; ++j) {
            T sum = value(k, i, 0) * value(k + 1, 0, j);
            for (int l = 1; l < n; ++l)
              sum = sum + value(k, i, l) * value(k + 1, l, j);
            ASSERT_EQ(sum, d(k, i, j)) << h << " by " << n << " by " << w << ", kinds " << kinds;
          }
    }
}

TEST(Results, RowsAndColumns) {
  expectSameInRowsAndColumns<float>(zelmMul_mama_32f);
  expectSameInRowsAndColumns<double>(zelmMul_mama_64f);
}

// Matrices of side N, one of them or an array; `from` is the first of the objects that the arrays are taken from.
template <class T, int N, class Call> void expectHugeProducts(Call call) {
  constexpr int each = N * N, row = N * static_cast<int>(sizeof(T));
  const auto n = static_cast<size_t>(each) * static_cast<size_t>(hugeCount<T>(each));
  const std::vector<T> a = hugeValues<T>(n), b(a.rbegin(), a.rend());
  expectHugeAsInSmallCalls<T>(each, [&](int first, int count, T* dst) {
    return call(a.data(), b.data(), first * each, dst, N * row, row, count);
  });
}

template <class T>
using BySingle = ZelStatus (*)(const T*, int, int, int, int, int, const T*, int, int, int, int, T*, int, int, int, int);
template <class T>
using SingleBy = ZelStatus (*)(const T*, int, int, int, int, const T*, int, int, int, int, int, T*, int, int, int, int);
template <class T, int N> void expectHugeBySingle(BySingle<T> mul) {
  expectHugeProducts<T, N>([mul](const T* a, const T* b, int from, T* dst, int object, int row, int count) {
    constexpr int E = sizeof(T);
    return mul(a + from, object, row, E, N, N, b, row, E, N, N, dst, object, row, E, count);
  });
}
template <class T, int N> void expectHugeSingleBy(SingleBy<T> mul) {
  expectHugeProducts<T, N>([mul](const T* a, const T* b, int from, T* dst, int object, int row, int count) {
    constexpr int E = sizeof(T);
    return mul(a, row, E, N, N, b + from, object, row, E, N, N, dst, object, row, E, count);
  });
}
template <class T, int N> void expectHugeByArray(ByArray<T> mul) {
  expectHugeProducts<T, N>([mul](const T* a, const T* b, int from, T* dst, int object, int row, int count) {
    constexpr int E = sizeof(T);
    return mul(a + from, object, row, E, N, N, b + from, object, row, E, N, N, dst, object, row, E, count);
  });
}

TEST(Huge, Mul) {
  expectHugeBySingle<float, 3>(zelmMul_mam_32f);
  expectHugeBySingle<float, 3>(zelmMul_tam_32f);
  expectHugeBySingle<double, 3>(zelmMul_tam_64f);
  expectHugeBySingle<double, 4>(zelmMul_mat_64f);
  expectHugeBySingle<double, 6>(zelmMul_mat_64f);
  expectHugeSingleBy<float, 4>(zelmMul_mma_32f);
  expectHugeByArray<float, 4>(zelmMul_mama_32f);
  expectHugeByArray<float, 5>(zelmMul_mama_32f);
  expectHugeByArray<double, 6>(zelmMul_mama_64f);
}

} // namespace
