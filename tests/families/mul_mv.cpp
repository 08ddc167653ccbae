// Products of matrices and vectors.
#include "sums.h"

#include "../harness/paths.h"

namespace {

using namespace zelmtest;

uint32_t matrixSize(const Sizes& s) {
  return s["src1Width"] * s["src1Height"];
}
// The result's length: the height of m forms, the width of t forms.
uint32_t mvaWork(const Sizes& s) {
  return matrixSize(s) + (s["src2Len"] + s["src1Height"]) * s["count"];
}
uint32_t tvaWork(const Sizes& s) {
  return matrixSize(s) + (s["src2Len"] + s["src1Width"]) * s["count"];
}
uint32_t mavWork(const Sizes& s) {
  return s["src2Len"] + (matrixSize(s) + s["src1Height"]) * s["count"];
}
uint32_t tavWork(const Sizes& s) {
  return s["src2Len"] + (matrixSize(s) + s["src1Width"]) * s["count"];
}
uint32_t mavaWork(const Sizes& s) {
  return (matrixSize(s) + s["src2Len"] + s["src1Height"]) * s["count"];
}
uint32_t tavaWork(const Sizes& s) {
  return (matrixSize(s) + s["src2Len"] + s["src1Width"]) * s["count"];
}

constexpr Orders single = {"NZMS", nullptr, "NZMH"}, array = {"NCZMS", "NCZMSH", "NCZMSH"};
constexpr Limits limits32 = {2500, 1440, 3600, 1440, 1440}, limits64 = {3600, 1440, 3600, 1440, 1440};

// Which sum a form takes with unit strides, standard and list layout; any other call takes the chain.
struct Choice {
  const char* form;
  int elem;
  const char* standard;
  const char* list;
};
// clang-format off
constexpr Choice choices[] = {
    {"mv",   4, "chain",    ""},
    {"mv",   8, "pairs 64", ""},
    {"tv",   4, "chain",    ""},
    {"tv",   8, "chain",    ""},
    {"mva",  4, "even-odd", "zero chain"},
    {"mva",  8, "pairs 64", "pairs 64"},
    {"tva",  4, "pairs 32", "zero chain"},
    {"tva",  8, "chain",    "zero chain"},
    {"mav",  4, "even-odd", "even-odd"},
    {"mav",  8, "pairs 64", "pairs 64"},
    {"tav",  4, "pairs 32", "pairs 32"},
    {"tav",  8, "chain",    "pairs 64"},
    {"mava", 4, "even-odd", "even-odd"},
    {"mava", 8, "pairs 64", "pairs 64"},
    {"tava", 4, "pairs 32", "pairs 32"},
    {"tava", 8, "chain",    "zero chain"},
};
// clang-format on

std::string sumName(const Member& m, bool unit) {
  if (m.layout == 'P' || !unit)
    return "chain";
  for (const Choice& choice : choices)
    if (m.formName == choice.form && m.elem == choice.elem)
      return m.layout == 'L' ? choice.list : choice.standard;
  return "none";
}

bool transposed(const Member& m) {
  return m.formName[0] == 't';
}

std::vector<Sizes> shapes(const Member& m) {
  std::vector<std::pair<int, int>> pairs = {{7, 7}, {8, 8}, {9, 9},  {17, 17}, {4, 11}, {11, 3},  {2, 9},
                                            {7, 1}, {1, 8}, {12, 4}, {5, 16},  {16, 5}, {10, 13}, {13, 21}};
  for (int width = 1; width <= 6; ++width)
    for (int height = 1; height <= 6; ++height)
      pairs.emplace_back(width, height);
  std::vector<Sizes> all;
  for (auto [width, height] : pairs) {
    all.emplace_back();
    all.back().set("src1Width", width);
    all.back().set("src1Height", height);
    all.back().set("src2Len", transposed(m) ? height : width);
  }
  return all;
}

Family family() {
  Family f;
  f.name = "Mul on matrices and vectors";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmMul_mv),  "src1:m src1Width src1Height src2:v src2Len dst:v",           single, ""},
      {ZELMTEST_SINGLE(zelmMul_tv),  "src1:t src1Width src1Height src2:v src2Len dst:v",           single, ""},
      {ZELMTEST_ARRAY(zelmMul_mav),  "src1:ma src1Width src1Height src2:v src2Len dst:va count",   array, "", mavWork,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_tav),  "src1:ta src1Width src1Height src2:v src2Len dst:va count",   array, "", tavWork,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_mva),  "src1:m src1Width src1Height src2:va src2Len dst:va count",   array, "", mvaWork,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_tva),  "src1:t src1Width src1Height src2:va src2Len dst:va count",   array, "", tvaWork,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_mava), "src1:ma src1Width src1Height src2:va src2Len dst:va count",  array, "", mavaWork, limits32, limits64},
      {ZELMTEST_ARRAY(zelmMul_tava), "src1:ta src1Width src1Height src2:va src2Len dst:va count",  array, "", tavaWork, limits32, limits64},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.agrees = [](const Member& m, const Sizes& s) {
    return s.get(transposed(m) ? "src1Height" : "src1Width") == s.get("src2Len");
  };
  f.shape = [](const Member& m, const std::string& operand, const Sizes& s) {
    return operand == "dst" ? Shape{1, s.get(transposed(m) ? "src1Width" : "src1Height")} : Shape{0, 0};
  };
  f.shapes = shapes;
  f.dataKinds.push_back(negativeZeros);
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fillSums(job, rng, kind); });
  f.delegate = [](const Member& m, const Sizes&, bool unit) {
    return m.layout == 'L' && !unit ? m.kernelOfOne("_S2") : "";
  };
  f.reference = both([](auto& job) {
    auto src1 = job["src1"], src2 = job["src2"], dst = job["dst"];
    const std::string name = sumName(job.member(), job.unit());
    for (int k = 0; k < job.count(); ++k)
      for (int i = 0; i < src1.rows(); ++i) {
        std::vector<decltype(src1(0, 0, 0))> terms;
        for (int j = 0; j < src1.cols(); ++j)
          terms.push_back(src1(k, i, j) * src2(k, j));
        dst.set(k, i, sumOf(name, job.size("src1Width"), job.size("src1Height"), i, terms));
      }
  });
  return f;
}

const Registration registration{family()};

TEST(Results, ProductsOfNegativeZeros) {
  checkNegativeZeros();
}

TEST(Results, DataTellsSumsApart) {
  checkDataTellsApart<float>(member("zelmMul_mva_32f"));
  checkDataTellsApart<double>(member("zelmMul_mva_64f"));
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownOMP_zelmMul_mva_32f", entered("zelmMul_mva_32f", 100, 1)); // 10200, of which the matrix 10000
  EXPECT_EQ("ownzelmMul_mva_32f", entered("zelmMul_mva_32f", 49, 1));      // 2499
  EXPECT_EQ("ownOMP_zelmMul_mva_32f", entered("zelmMul_mva_32f", 50, 1));
}

} // namespace
