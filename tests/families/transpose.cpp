// Transpositions.
#include "large.h"

#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <ucontext.h>

namespace {

using namespace zelmtest;

bool isUnrolled(const Sizes& s) {
  return s.get("width") == s.get("height") && s.get("width") >= 3 && s.get("width") <= 6;
}

Family family() {
  Family f;
  f.name = "Transpose";
  f.forms = {
      {ZELMTEST_SINGLE(zelmTranspose_m), "src:m width height dst:m", {"NZS", nullptr, "NZH"}},
      {ZELMTEST_ARRAY(zelmTranspose_ma), "src:ma width height dst:ma count", {"NCZS", "NCZSH", "NCZSH"}},
  };
  f.movesBits = true;
  f.shape = [](const Member&, const std::string& operand, const Sizes& s) -> Shape {
    const int width = s.get("width"), height = s.get("height");
    return operand == "dst" ? Shape{width, height} : Shape{height, width};
  };
  // Other sizes of the fast kernels go to a tile kernel, object by object.
  f.delegate = [](const Member& m, const Sizes& s, bool unit) -> std::string {
    if (m.layout == 'P' || !unit || isUnrolled(s))
      return "";
    return m.elem == 4 ? "ownm_Transpose_32s" : "ownm_iTranspose_16u_C4R_M7";
  };
  f.inner = {"owniTranspose_32s_asm", "owniTranspose_32s_NT"};
  f.shapes = [](const Member& m) {
    std::vector<Sizes> all;
    constexpr int pairs[][2] = {{1, 1},   {2, 2},    {3, 3},    {4, 4},    {5, 5},   {6, 6},   {7, 7},
                                {8, 8},   {9, 9},    {1, 5},    {5, 1},    {3, 4},   {4, 3},   {2, 6},
                                {6, 5},   {5, 6},    {7, 3},    {3, 7},    {17, 4},  {4, 17},  {2, 40},
                                {40, 2},  {3, 40},   {40, 3},   {9, 25},   {25, 9},  {16, 70}, {70, 16},
                                {19, 65}, {130, 33}, {33, 130}, {66, 129}, {64, 64}, {1, 70},  {70, 1}};
    for (auto [width, height] : pairs) {
      Sizes sizes = m.square(width, 1);
      sizes.set("height", height);
      all.push_back(sizes);
    }
    return all;
  };
  f.reference = both([](auto& job) {
    auto src = job["src"], dst = job["dst"];
    for (int k = 0; k < job.count(); ++k)
      for (int i = 0; i < job.size("height"); ++i)
        for (int j = 0; j < job.size("width"); ++j)
          dst.set(k, j, i, src(k, i, j));
  });
  return f;
}

const Registration registration{family()};

// ---- Tiles and streaming

// What a call queries and enters with a cache of `cache` bytes.
struct Traced {
  int queries;
  std::vector<std::string> entries;
  size_t count(const char* name) const { return static_cast<size_t>(std::count(entries.begin(), entries.end(), name)); }
  bool isStreamed() const { return count("owniTranspose_32s_NT") > 0; }
};

template <class Call> Traced traced(int32_t cache, Call call) {
  cacheSize = cache;
  cacheQueries = 0;
  clearEntries();
  EXPECT_EQ(zelStatusOk, call());
  cacheSize = systemsCache;
  return {cacheQueries, entries()};
}

Traced single(int width, int height, int32_t cache) {
  std::vector<float> src(static_cast<size_t>(width) * static_cast<size_t>(height)), dst(src.size());
  return traced(
      cache, [&] { return zelmTranspose_m_32f(src.data(), 4 * width, 4, width, height, dst.data(), 4 * height, 4); });
}

// All objects are one source and go to one place.
Traced batch(int width, int height, int count, int32_t cache, bool list = false) {
  // Objects of the standard layout lie an element apart.
  std::vector<float> src(static_cast<size_t>(width) * static_cast<size_t>(height) + static_cast<size_t>(count));
  std::vector<float> dst(src.size());
  if (!list)
    return traced(cache, [&] {
      return zelmTranspose_ma_32f(src.data(), 4, 4 * width, 4, width, height, dst.data(), 4, 4 * height, 4, count);
    });
  std::vector<const float*> sources(static_cast<size_t>(count), src.data());
  std::vector<float*> results(static_cast<size_t>(count), dst.data());
  return traced(cache, [&] {
    return zelmTranspose_ma_32f_L(sources.data(), 0, 4 * width, 4, width, height, results.data(), 0, 4 * height, 4,
                                  count);
  });
}

TEST(Streaming, SingleMatrix) {
  if (!countedBuild)
    GTEST_SKIP();
  // The smaller side at most 128: no query.
  EXPECT_EQ(0, single(128, 1000, 1000).queries);
  EXPECT_EQ(0, single(1000, 128, 1000).queries);
  EXPECT_FALSE(single(128, 1000, 1000).isStreamed());
  EXPECT_EQ(1, single(129, 1000, 1000).queries);
  EXPECT_EQ(1, single(1000, 129, 1000).queries);
  // width * height * 8 against the cache.
  constexpr int bytes = 129 * 130 * 8;
  EXPECT_TRUE(single(129, 130, bytes - 1).isStreamed());
  EXPECT_FALSE(single(129, 130, bytes).isStreamed());
  EXPECT_FALSE(single(129, 130, bytes + 1).isStreamed());
  EXPECT_TRUE(single(200, 200, 262144).isStreamed());
  const Traced unknown = single(200, 200, 0);
  EXPECT_EQ(1, unknown.queries);
  EXPECT_FALSE(unknown.isStreamed());
}

TEST(Streaming, Batch) {
  if (!countedBuild)
    GTEST_SKIP();
  for (bool list : {false, true}) {
    // 131072 bytes and below: no query.
    EXPECT_EQ(0, batch(16, 8, 128, 1, list).queries);
    EXPECT_FALSE(batch(16, 8, 128, 1, list).isStreamed());
    EXPECT_EQ(1, batch(16, 8, 129, 1, list).queries);
    EXPECT_EQ(0, batch(100, 100, 1, 1, list).queries);
    // 204800 bytes; the cache less a quarter of it, which is rounded down.
    EXPECT_TRUE(batch(16, 8, 200, 273065, list).isStreamed());  // 204799
    EXPECT_FALSE(batch(16, 8, 200, 273066, list).isStreamed()); // 204800
    EXPECT_FALSE(batch(16, 8, 200, 273067, list).isStreamed()); // 204801
    const Traced unknown = batch(16, 8, 200, 0, list);
    EXPECT_EQ(1, unknown.queries);
    EXPECT_FALSE(unknown.isStreamed());
    // Once a call, and none inside where the flag is on or a side is small.
    const Traced all = batch(16, 8, 200, 1000, list);
    EXPECT_EQ(1, all.queries);
    EXPECT_EQ(200u, all.count("owniTranspose_32s_NT"));
    EXPECT_EQ(0u, all.count("owniTranspose_32s_asm"));
  }
}

TEST(Streaming, TrafficWraps) {
  if (!countedBuild)
    GTEST_SKIP();
  // Negative: the array has no query. Each matrix of it has one of its own, and alone exceeds the cache.
  const Traced own = batch(160, 144, 11651, 150000); // 2147512320 bytes
  EXPECT_EQ(11651, own.queries);
  EXPECT_EQ(0u, own.count("owniTranspose_32s_asm"));
  EXPECT_EQ(0, batch(16, 16, 1048576, 1).queries);      // 2^31
  EXPECT_EQ(0, batch(16, 16, 2097152 + 64, 1).queries); // 2^32 + 131072
  EXPECT_EQ(1, batch(16, 16, 2097152 + 65, 1).queries);
}

TEST(Streaming, NoneElsewhere) {
  if (!countedBuild)
    GTEST_SKIP();
  std::vector<double> src(300 * 300), dst(2 * src.size());
  EXPECT_EQ(0,
            traced(1, [&] { return zelmTranspose_m_64f(src.data(), 2400, 8, 300, 300, dst.data(), 2400, 8); }).queries);
  EXPECT_EQ(0, traced(1, [&] {
                 return zelmTranspose_ma_64f(src.data(), 8, 2392, 8, 299, 300, dst.data(), 8, 2400, 8, 2);
               }).queries);
  std::vector<float> single(300 * 300), wide(2 * single.size());
  EXPECT_EQ(0, traced(1, [&] {
                 return zelmTranspose_m_32f(single.data(), 1200, 4, 300, 300, wide.data(), 2400, 8);
               }).queries);
  EXPECT_EQ(0, traced(1, [&] {
                 return zelmTranspose_ma_32f(single.data(), 36, 12, 4, 3, 3, wide.data(), 36, 12, 4, 9000);
               }).queries);
}

TEST(Tiles, Heights) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ(1u, single(200, 64, 0).count("owniTranspose_32s_asm"));
  EXPECT_EQ(2u, single(200, 65, 0).count("owniTranspose_32s_asm"));
  EXPECT_EQ(4u, single(208, 200, 0).count("owniTranspose_32s_asm"));
  EXPECT_EQ(4u, single(208, 200, 1000).count("owniTranspose_32s_NT")); // a multiple of 16
  EXPECT_EQ(1u, single(200, 200, 1000).count("owniTranspose_32s_NT"));
  EXPECT_EQ(1u, batch(10, 70, 30, 1000).count("owniTranspose_32s_NT") / 30);
  EXPECT_EQ(2u, batch(32, 70, 30, 1000).count("owniTranspose_32s_NT") / 30);
}

// The streamed kernel on every alignment and rest, between guards, with all bytes around compared.
TEST(Streaming, Results) {
  if (!countedBuild)
    GTEST_SKIP();
  const Member& m = member("zelmTranspose_m_32f");
  constexpr Spread spreads[] = {Spread::Packed, Spread::PaddedRows, Spread::Pitch16};
  int number = 0;
  for (int width : {129, 131, 144, 145, 160})
    for (int height : {129, 132, 144, 191, 193, 519, 1030})
      for (int offset : {-1, 0, 4, 8, 12, 1}) {
        CaseSpec spec;
        spec.id = "S" + std::to_string(number);
        spec.sizes = m.square(width, 1);
        spec.sizes.set("height", height);
        spec.plans.resize(2);
        for (Plan& plan : spec.plans)
          plan.spread = spreads[number % 3];
        spec.plans[1].offset = offset;
        spec.plans[1].atEnd = number % 2 == 0;
        spec.dataKind = 2;
        spec.seed = static_cast<uint64_t>(number++);
        cacheSize = 1000;
        const std::string wrong = runCase(m, spec);
        cacheSize = systemsCache;
        ASSERT_EQ("", wrong);
        ASSERT_EQ("owniTranspose_32s_NT", entries().back());
      }
}

// Every instruction of a call, one by one: what is streamed and whether a store fence comes behind the last of it.
namespace stepped {

int streams, streamsBehindFence;

bool isFence(const unsigned char* code) {
  return code[0] == 0x0f && code[1] == 0xae && code[2] == 0xf8;
}

// movnti, movntps, movntpd, movntdq and what they are with longer vectors.
bool isStreamingStore(const unsigned char* code) {
  if (code[0] == 0xc5)
    return code[2] == 0x2b || code[2] == 0xe7;
  if (code[0] == 0xc4)
    return (code[1] & 0x1f) == 1 && (code[3] == 0x2b || code[3] == 0xe7);
  if (code[0] == 0x62)
    return (code[1] & 0x07) == 1 && (code[4] == 0x2b || code[4] == 0xe7);
  const bool is66 = code[0] == 0x66;
  code += is66 ? 1 : 0;
  code += (code[0] & 0xf0) == 0x40 ? 1 : 0;
  return code[0] == 0x0f && (code[1] == 0x2b || (is66 ? code[1] == 0xe7 : code[1] == 0xc3));
}

void look(int, siginfo_t*, void* context) {
  const auto address = static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_RIP];
  const auto* code = reinterpret_cast<const unsigned char*>(address);
  if (isFence(code))
    streamsBehindFence = 0;
  else if (isStreamingStore(code))
    ++streams, ++streamsBehindFence;
}

template <class Call> void run(Call call) {
  struct sigaction action = {}, old;
  action.sa_sigaction = look;
  action.sa_flags = SA_SIGINFO;
  sigaction(SIGTRAP, &action, &old);
  streams = streamsBehindFence = 0;
  asm volatile("lea -128(%%rsp), %%rsp\n pushfq\n orq $0x100, (%%rsp)\n popfq\n lea 128(%%rsp), %%rsp" ::
                   : "memory", "cc");
  call();
  asm volatile("lea -128(%%rsp), %%rsp\n pushfq\n andq $~0x100, (%%rsp)\n popfq\n lea 128(%%rsp), %%rsp" ::
                   : "memory", "cc");
  sigaction(SIGTRAP, &old, nullptr);
}

} // namespace stepped

TEST(Streaming, FenceBehindStores) {
  if (!countedBuild)
    GTEST_SKIP();
  for (const auto& [width, offset] : {std::pair(129, 1), std::pair(144, 0)}) {
    const int height = 131;
    std::vector<float> src(static_cast<size_t>(width * height)), dst(src.size() + 1);
    float* const result = dst.data() + offset;
    cacheSize = 1000;
    stepped::run([&, w = width] { zelmTranspose_m_32f(src.data(), 4 * w, 4, w, height, result, 4 * height, 4); });
    cacheSize = systemsCache;
    EXPECT_LT(width * height / 16, stepped::streams);
    EXPECT_EQ(0, stepped::streamsBehindFence);
  }
}

TEST(Large, Transpose_m) {
  expectLargeMove<float>([](auto* s, auto* d, int n) { return zelmTranspose_m_32f(s, 4, 4, n, n, d, 4, 4); });
  expectLargeMove<double>([](auto* s, auto* d, int n) { return zelmTranspose_m_64f(s, 8, 8, n, n, d, 8, 8); });
}

} // namespace
