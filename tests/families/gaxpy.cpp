// Products of a matrix and vectors with a vector added.
#include "sums.h"

#include "../harness/paths.h"

namespace {

using namespace zelmtest;

// The matrix is not counted.
uint32_t mvaWork(const Sizes& s) {
  return (2 * s["src3Len"] + s["src2Len"]) * s["count"];
}
uint32_t mvavWork(const Sizes& s) {
  return (s["src2Len"] + s["src3Len"]) * s["count"] + s["src3Len"];
}

constexpr Orders single = {"NZMS", nullptr, "NZMH"}, array = {"NCZMS", "NCZMSH", "NCZMSH"};
constexpr Limits limits32 = {7000, 5000, 7000, 500, 4500}, limits64 = {5000, 5000, 6000, 5000, 7000};

std::vector<Sizes> shapes(const Member&) {
  constexpr int pairs[][2] = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6},  {7, 7},  {8, 8},   {9, 9},  {17, 17},
                              {3, 4}, {4, 3}, {1, 5}, {5, 1}, {6, 2}, {4, 11}, {12, 4}, {10, 13}, {13, 21}};
  std::vector<Sizes> all;
  for (auto [width, height] : pairs) {
    all.emplace_back();
    all.back().set("src1Width", width);
    all.back().set("src1Height", height);
    all.back().set("src2Len", width);
    all.back().set("src3Len", height);
  }
  return all;
}

Family family() {
  Family f;
  f.name = "Gaxpy";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmGaxpy_mv),  "src1:m src1Width src1Height src2:v src2Len src3:v src3Len dst:v",           single, ""},
      {ZELMTEST_ARRAY(zelmGaxpy_mva),  "src1:m src1Width src1Height src2:va src2Len src3:va src3Len dst:va count",  array, "", mvaWork,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmGaxpy_mvav), "src1:m src1Width src1Height src2:va src2Len src3:v src3Len dst:va count",   array, "", mvavWork, limits32, limits64},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.agrees = [](const Member&, const Sizes& s) {
    return s.get("src1Width") == s.get("src2Len") && s.get("src1Height") == s.get("src3Len");
  };
  f.shape = [](const Member&, const std::string& operand, const Sizes& s) {
    return operand == "dst" ? Shape{1, s.get("src1Height")} : Shape{0, 0};
  };
  f.shapes = shapes;
  f.dataKinds.push_back(negativeZeros);
  f.fill = bothFill([](auto& job, Rng& rng, int kind) {
    fillSums(job, rng, kind);
    auto src3 = job["src3"];
    if (kind == 3) // what is added must not hide the sign of a sum that is zero
      for (int k = 0; k < job.count(); ++k)
        for (int i = 0; i < src3.cols(); ++i)
          if (rng.chance(2))
            src3.set(k, i, -0.0f);
  });
  f.reference = both([](auto& job) {
    auto src1 = job["src1"], src2 = job["src2"], src3 = job["src3"], dst = job["dst"];
    const bool unit = job.unit() && job.member().layout != 'P';
    const char* const name = !unit ? "tail first" : job.member().elem == 4 ? "even-odd" : "pairs 64";
    for (int k = 0; k < job.count(); ++k)
      for (int i = 0; i < src1.rows(); ++i) {
        std::vector<decltype(src1(0, 0, 0))> terms;
        for (int j = 0; j < src1.cols(); ++j)
          terms.push_back(src1(k, i, j) * src2(k, j));
        dst.set(k, i, sumOf(name, src1.cols(), src1.rows(), i, terms) + src3(k, i));
      }
  });
  return f;
}

const Registration registration{family()};

TEST(Results, ProductsOfNegativeZeros) {
  checkNegativeZeros();
}

TEST(Results, DataTellsSumsApart) {
  checkDataTellsApart<float>(member("zelmGaxpy_mva_32f"));
  checkDataTellsApart<double>(member("zelmGaxpy_mva_64f"));
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmGaxpy_mvav_32f_L", entered("zelmGaxpy_mvav_32f_L", 10, 25)); // 510
  EXPECT_EQ("ownOMP_zelmGaxpy_mvav_32f_L", entered("zelmGaxpy_mvav_32f_L", 10, 25, "src1Stride2", 8));
  EXPECT_EQ("ownzelmGaxpy_mvav_32f_LS2", entered("zelmGaxpy_mvav_32f_L", 10, 24, "src1Stride2", 8)); // 490
}

} // namespace
