// Who runs the shares of a front: the shares themselves, what a failure leaves, scratch, and how many threads come to
// life, for every size of the team.
#include "../zelm/src/zelmfront.h"

#include <gtest/gtest.h>
#include <omp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <dirent.h>
#include <dlfcn.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

// The runtime's allocators: what is asked of them, what is given back, and refusal.
namespace {
std::atomic<bool> refuses{false};
std::atomic<int> asked{0}, returned{0};
std::atomic<std::size_t> askedBytes{0};
template <class F> F next(const char* name) {
  return reinterpret_cast<F>(dlsym(RTLD_NEXT, name));
}
} // namespace
extern "C" {
__attribute__((visibility("default"))) void* zelmtestOmpAlloc(std::size_t bytes,
                                                              std::size_t allocator) asm("omp_alloc");
__attribute__((visibility("default"))) void zelmtestOmpFree(void* block, std::size_t allocator) asm("omp_free");
__attribute__((visibility("default"))) void* zelmtestKmpcMalloc(std::size_t bytes) asm("kmpc_malloc");
__attribute__((visibility("default"))) void zelmtestKmpcFree(void* block) asm("kmpc_free");
void* zelmtestOmpAlloc(std::size_t bytes, std::size_t allocator) {
  ++asked;
  askedBytes = bytes;
  return refuses ? nullptr : next<void* (*)(std::size_t, std::size_t)>("omp_alloc")(bytes, allocator);
}
void zelmtestOmpFree(void* block, std::size_t allocator) {
  ++returned;
  next<void (*)(void*, std::size_t)>("omp_free")(block, allocator);
}
void* zelmtestKmpcMalloc(std::size_t bytes) {
  ++asked;
  askedBytes = bytes;
  return refuses ? nullptr : next<void* (*)(std::size_t)>("kmpc_malloc")(bytes);
}
void zelmtestKmpcFree(void* block) {
  ++returned;
  next<void (*)(void*)>("kmpc_free")(block);
}
}

namespace {

using zelm::Forked;
using zelm::Share;

struct Called {
  Share share;
  int thread;
};

// What a front hands over, in a test: every call is noted; shares that hold a bad object fail with its number.
struct Noted {
  std::mutex guard;
  std::vector<Called> calls;
  std::vector<int> reached; // how often, by object
  std::set<int64_t> bad;
  int32_t scratchBytes = 0;

  explicit Noted(int32_t count) : reached(static_cast<std::size_t>(count), 0) {}

  static ZelStatus work(const void* call, const Share& share) {
    auto& self = *static_cast<Noted*>(const_cast<void*>(call));
    for (int32_t b = 0; b < self.scratchBytes; ++b) // every byte is the thread's own
      share.scratch[static_cast<int64_t>(share.thread) * self.scratchBytes + b] = static_cast<char>(share.thread + 1);
    const std::lock_guard<std::mutex> lock(self.guard);
    self.calls.push_back({share, omp_get_thread_num()});
    for (int64_t k = share.first; k < share.first + share.count; ++k) {
      ++self.reached[static_cast<std::size_t>(k)];
      if (self.bad.count(k) != 0)
        return static_cast<ZelStatus>(k + 1);
    }
    return zelStatusOk;
  }
};

Forked forked(int threads, int team, int32_t count, int32_t scratchBytes, const Noted& noted) {
  return {threads, team, count, scratchBytes, Noted::work, &noted};
}

// First object and number of objects of share t of T.
std::pair<int64_t, int64_t> shareOf(int64_t count, int64_t shares, int64_t t) {
  const int64_t q = count / shares, r = count % shares;
  return t < r ? std::pair((q + 1) * t, q + 1) : std::pair((q + 1) * r + q * (t - r), q);
}

// The calls of each thread in their order.
std::map<int, std::vector<Share>> byThread(const Noted& noted) {
  std::map<int, std::vector<Share>> threads;
  for (const Called& called : noted.calls)
    threads[called.share.thread].push_back(called.share);
  return threads;
}

class Teams : public testing::Test {
protected:
  void SetUp() override {
    omp_set_dynamic(0);
    asked = returned = 0;
    askedBytes = 0;
  }
};

const std::vector<int32_t> countsFor(int threads) {
  return {threads, threads + 1, 2 * threads - 1, 5 * threads + threads / 2, 1000 + threads, 123457};
}

TEST_F(Teams, SharesOfKernelsThatCanFail) {
  for (int threads = 2; threads <= 17; ++threads)
    for (int team = 1; team <= threads; ++team)
      for (const int32_t count : countsFor(threads)) {
        Noted noted(count);
        ZelStatus status = zelStatusOk;
        ASSERT_TRUE(zelm::runSharesMerging(forked(threads, team, count, 0, noted), status));
        EXPECT_EQ(zelStatusOk, status);
        // A call for each share, whoever makes it.
        ASSERT_EQ(static_cast<std::size_t>(threads), noted.calls.size()) << threads << " " << team << " " << count;
        std::sort(noted.calls.begin(), noted.calls.end(),
                  [](const Called& a, const Called& b) { return a.share.first < b.share.first; });
        int64_t last = -1;
        for (int t = 0; t < threads; ++t) {
          const Called& called = noted.calls[static_cast<std::size_t>(t)];
          ASSERT_EQ(shareOf(count, threads, t), std::pair(called.share.first, int64_t{called.share.count}))
              << threads << " " << team << " " << count << " " << t;
          ASSERT_EQ(called.thread, called.share.thread);
          ASSERT_LE(last, called.thread) << "groups ascend with the threads";
          last = called.thread;
        }
        // A thread's shares follow one another, and no thread has two more than another.
        std::size_t least = 1000, largest = 0;
        const auto all = byThread(noted);
        ASSERT_EQ(static_cast<std::size_t>(team), all.size());
        for (const auto& [thread, shares] : all) {
          least = std::min(least, shares.size());
          largest = std::max(largest, shares.size());
        }
        ASSERT_LE(largest, least + 1);
      }
}

TEST_F(Teams, AThreadTakesItsSharesInTheirOrder) {
  for (int threads : {2, 5, 8, 17})
    for (int team = 1; team <= threads; ++team) {
      Noted noted(1000);
      ZelStatus status = zelStatusOk;
      ASSERT_TRUE(zelm::runSharesMerging(forked(threads, team, 1000, 0, noted), status));
      for (const auto& [thread, shares] : byThread(noted))
        for (std::size_t i = 1; i < shares.size(); ++i)
          ASSERT_EQ(shares[i - 1].first + shares[i - 1].count, shares[i].first);
    }
}

TEST_F(Teams, GroupsOfKernelsThatCannotFail) {
  for (int threads = 2; threads <= 17; ++threads)
    for (int team = 1; team <= threads; ++team)
      for (const int32_t count : countsFor(threads)) {
        Noted noted(count);
        noted.bad = {0, count / 2, count - 1}; // statuses are discarded
        ASSERT_TRUE(zelm::runShares(forked(threads, team, count, 0, noted)));
        ASSERT_EQ(static_cast<std::size_t>(team), noted.calls.size()) << "one call for a thread";
        std::set<int64_t> starts;
        for (int t = 0; t <= threads; ++t)
          starts.insert(t < threads ? shareOf(count, threads, t).first : count);
        int64_t covered = 0;
        for (const Called& called : noted.calls) {
          ASSERT_EQ(1U, starts.count(called.share.first));
          ASSERT_EQ(1U, starts.count(called.share.first + called.share.count));
          covered += called.share.count;
        }
        ASSERT_EQ(count, covered);
        ASSERT_EQ(static_cast<std::size_t>(team), byThread(noted).size());
      }
}

TEST_F(Teams, AFailingShareStopsAndTheOthersGoOn) {
  std::mt19937 random(3);
  for (int threads = 2; threads <= 17; ++threads)
    for (int team = 1; team <= threads; ++team)
      for (int round = 0; round < 4; ++round) {
        const int32_t count = threads * 7 + 3;
        Noted noted(count);
        for (int i = 0; i <= round; ++i)
          noted.bad.insert(static_cast<int64_t>(random() % static_cast<unsigned>(count)));
        ZelStatus status = zelStatusOk;
        ASSERT_TRUE(zelm::runSharesMerging(forked(threads, team, count, 0, noted), status));
        std::set<ZelStatus> firsts; // of each share
        for (int t = 0; t < threads; ++t) {
          const auto [first, size] = shareOf(count, threads, t);
          bool stopped = false;
          for (int64_t k = first; k < first + size; ++k) {
            ASSERT_EQ(stopped ? 0 : 1, noted.reached[static_cast<std::size_t>(k)])
                << threads << " " << team << " object " << k;
            if (!stopped && noted.bad.count(k) != 0) {
              stopped = true;
              firsts.insert(static_cast<ZelStatus>(k + 1));
            }
          }
        }
        ASSERT_EQ(1U, firsts.count(status));
        if (team == 1) {
          EXPECT_EQ(*firsts.begin(), status) << "alone, the first to arrive is the first of all";
        }
      }
}

// Where all threads were wanted, the shares follow from those that came.
bool fewerCome(int threads, int team, int come) {
  constexpr int32_t count = 1000;
  Noted merged(count), grouped(count);
  ZelStatus status = zelStatusOk;
  if (!zelm::runSharesMerging(forked(threads, team, count, 0, merged), status) ||
      !zelm::runShares(forked(threads, team, count, 0, grouped)))
    return false;
  const int shares = team == threads ? come : threads;
  const auto order = [](const Called& a, const Called& b) { return a.share.first < b.share.first; };
  std::sort(merged.calls.begin(), merged.calls.end(), order);
  bool isRight = static_cast<int>(merged.calls.size()) == shares && static_cast<int>(grouped.calls.size()) == come &&
                 static_cast<int>(byThread(merged).size()) == come;
  for (int t = 0; isRight && t < shares; ++t) {
    const Share& share = merged.calls[static_cast<std::size_t>(t)].share;
    isRight = shareOf(count, shares, t) == std::pair(share.first, int64_t{share.count});
  }
  return isRight && std::count(grouped.reached.begin(), grouped.reached.end(), 1) == count;
}

TEST_F(Teams, FewerThreadsComeThanWereWanted) {
  omp_set_max_active_levels(1);
#pragma omp parallel num_threads(2)
  {
#pragma omp master
    for (int threads : {2, 5, 17})
      for (int team = 1; team <= threads; ++team)
        EXPECT_TRUE(fewerCome(threads, team, 1)) << threads << " " << team;
  }
}

TEST_F(Teams, NoThreadTouchesAnothersScratch) {
  for (const int32_t bytes : {4, 336, 4096, 4097, 70000})
    for (int threads : {2, 3, 8})
      for (int team = 1; team <= threads; ++team) {
        struct Checked : Noted {
          using Noted::Noted;
          std::atomic<int> wrong{0};
        } noted(500);
        noted.scratchBytes = bytes;
        asked = returned = 0;
        // Each share writes its scratch, gives the others time, and finds what it has written.
        const auto work = [](const void* call, const Share& share) -> ZelStatus {
          auto& self = *static_cast<Checked*>(const_cast<void*>(call));
          char* const own = share.scratch + static_cast<int64_t>(share.thread) * self.scratchBytes;
          Noted::work(call, share);
          std::this_thread::yield();
          for (int32_t b = 0; b < self.scratchBytes; ++b)
            self.wrong += own[b] != static_cast<char>(share.thread + 1);
          return zelStatusOk;
        };
        ZelStatus status = zelStatusOk;
        for (const bool merges : {false, true}) {
          const Forked call{threads, team, 500, bytes, work, &noted};
          ASSERT_TRUE(merges ? zelm::runSharesMerging(call, status) : zelm::runShares(call));
        }
        EXPECT_EQ(0, noted.wrong);
        // The caller alone has room on its stack; a team has a block of as many parts as it has threads.
        const bool onStack = team == 1 && bytes <= 4096;
        EXPECT_EQ(onStack ? 0 : 2, asked) << bytes << " " << team;
        EXPECT_EQ(asked, returned);
        if (!onStack) {
          EXPECT_EQ(static_cast<std::size_t>(team) * static_cast<std::size_t>(bytes), askedBytes);
        }
      }
}

TEST_F(Teams, ScratchThatCannotBeHad) {
  Noted noted(100);
  ZelStatus status = zelStatusOk;
  refuses = true;
  EXPECT_FALSE(zelm::runShares(forked(4, 4, 100, 64, noted)));
  EXPECT_FALSE(zelm::runSharesMerging(forked(4, 2, 100, 64, noted), status));
  EXPECT_FALSE(zelm::runSharesMerging(forked(4, 1, 100, 100000, noted), status));
  EXPECT_EQ(3, asked);
  refuses = false;
  // The total is a 32-bit number.
  asked = 0;
  EXPECT_FALSE(zelm::runShares(forked(4, 4, 100, 0x20000000, noted)));
  EXPECT_FALSE(zelm::runSharesMerging(forked(17, 16, 100, 0x10000001, noted), status));
  EXPECT_FALSE(zelm::runSharesMerging(forked(4, 2, 100, INT32_MAX, noted), status));
  EXPECT_FALSE(zelm::runShares(forked(4, 1, 100, -4, noted)));
  EXPECT_EQ(0, asked);
  EXPECT_EQ(0, returned);
  EXPECT_TRUE(noted.calls.empty());
  EXPECT_EQ(zelStatusOk, status);
}

TEST_F(Teams, ABuffersSizeIsClampedToWhatFits) {
  float element = 0;
  EXPECT_EQ(40, zelm::Buffer<float>(&element, 10).scratch());
  EXPECT_EQ(INT32_MAX - 3, zelm::Buffer<float>(&element, 0x1fffffff).scratch());
  EXPECT_EQ(INT32_MAX, zelm::Buffer<float>(&element, 0x20000000).scratch());
  EXPECT_EQ(INT32_MAX, zelm::Buffer<double>(reinterpret_cast<double*>(64), 0x10000000).scratch());
  // Part t of a block.
  char block[400];
  const zelm::Buffer<float> part = zelm::Buffer<float>(&element, 10).advanced({7, 3, 5, block});
  EXPECT_EQ(static_cast<void*>(block + 200), static_cast<void*>(part.pointer));
}

TEST_F(Teams, AShareKnowsTheWhole) {
  const zelm::Count share = zelm::Count(100).advanced({20, 7, 1, nullptr});
  EXPECT_EQ(7, share.value);
  EXPECT_EQ(100, share.whole);
  EXPECT_EQ(100, zelm::wholeOf(share));
  EXPECT_EQ(7, zelm::wholeOf(share.value));
}

TEST_F(Teams, TheWorkDecidesHowManyThreadsRun) {
  for (int threads = 2; threads <= 130; ++threads) {
    EXPECT_EQ(1, ownGetTeamSize(threads, 0));
    EXPECT_EQ(1, ownGetTeamSize(threads, 100000));
    EXPECT_EQ(threads, ownGetTeamSize(threads, 1e12));
    EXPECT_EQ(threads, ownGetTeamSize(threads, 1e300));
    int before = 1;
    double one = 0; // the least work that is worth two threads
    for (double work = 1e5; work < 1e9; work *= 1.01) {
      const int team = ownGetTeamSize(threads, work);
      ASSERT_LE(before, team);
      ASSERT_LE(team, threads);
      if (team > 1 && one == 0)
        one = work / 2;
      if (team > 1) {
        ASSERT_LE(team * one, work * 1.02) << "each thread has its worth";
        // One thread fewer would have a share more to run.
        ASSERT_LT((threads + team - 1) / team, (threads + team - 2) / (team - 1));
      }
      before = team;
    }
    EXPECT_EQ(threads, before);
  }
}

// ---- Exported functions

int tasks() {
  int found = 0;
  if (DIR* const directory = opendir("/proc/self/task")) {
    while (const dirent* entry = readdir(directory))
      found += entry->d_name[0] != '.';
    closedir(directory);
  }
  return found;
}

// Matrices with a heavy diagonal, their sums, their factors.
struct Data {
  int n, count;
  std::vector<float> a, sum, factor;
  std::vector<int32_t> index;
  Data(int side, int objects) : n(side), count(objects) {
    const auto elements = static_cast<std::size_t>(n * n * count);
    a.resize(elements);
    for (std::size_t e = 0; e < elements; ++e)
      a[e] = e % static_cast<std::size_t>(n * n) % static_cast<std::size_t>(n + 1) == 0 ? 8 + static_cast<float>(e % 5)
                                                                                        : static_cast<float>(e % 7) / 8;
    sum.assign(elements, -1);
    factor.assign(elements, -1);
    index.assign(static_cast<std::size_t>(n * count), -1);
  }
  ZelStatus add() {
    return zelmAdd_mama_32f(a.data(), n * n * 4, n * 4, 4, a.data(), n * n * 4, n * 4, 4, sum.data(), n * n * 4, n * 4,
                            4, n, n, count);
  }
  ZelStatus decompose() {
    return zelmLUDecomp_ma_32f(a.data(), n * n * 4, n * 4, 4, index.data(), factor.data(), n * n * 4, n * 4, 4, n,
                               count);
  }
  bool equals(const Data& other) const { return sum == other.sum && factor == other.factor && index == other.index; }
};

constexpr int small = 400;   // objects of side 3: past each front's limit, not worth a thread
constexpr int large = 60000; // objects of side 6: worth any team of these tests

// In a process of its own, by name; what it prints is a number.
int child(const std::string& what) {
  if (what == "small") {
    Data data(3, small);
    data.add();
    data.decompose();
    return tasks();
  }
  if (what == "add" || what == "decompose") {
    Data data(6, large);
    what == "add" ? data.add() : data.decompose();
    return tasks();
  }
  if (what == "some") { // worth two threads and a half
    Data data(6, 2500);
    data.decompose();
    return tasks();
  }
  if (what == "limit") // three at most
    return fewerCome(8, 8, 3) && fewerCome(8, 7, 3) && fewerCome(8, 4, 3) && fewerCome(8, 2, 2) ? 0 : 1;
  if (what == "exited") { // a thread that has been is no team
    std::thread([] {}).join();
    Data data(6, large);
    data.add();
    return tasks();
  }
  if (what == "fork" || what == "forkedOnly") {
    Data data(6, large), expected(6, large);
    if (what == "fork") {
      expected.add();
      expected.decompose();
    }
    alarm(60);
    const pid_t forked = fork();
    if (forked == 0) {
      alarm(60);
      const ZelStatus added = data.add(), decomposed = data.decompose();
      const bool isRight = what == "fork" ? data.equals(expected) : tasks() == omp_get_max_threads();
      _exit(added == zelStatusOk && decomposed == zelStatusOk && isRight ? 0 : 1);
    }
    int status = -1;
    waitpid(forked, &status, 0);
    return status;
  }
  return -1;
}

int inProcess(const std::string& what, const std::string& environment = "OMP_NUM_THREADS=4") {
  char path[4096];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path - 1);
  if (length <= 0)
    return -1;
  path[length] = 0;
  FILE* const output =
      popen(("env " + environment + " ZELMTEST_CHILD=" + what + " '" + std::string(path) + "'").c_str(), "r");
  int number = -1;
  if (output == nullptr || std::fscanf(output, "%d", &number) != 1)
    number = -1;
  if (output != nullptr)
    pclose(output);
  return number;
}

TEST_F(Teams, SmallBatchesBringNoThreadToLife) {
  EXPECT_EQ(1, inProcess("small"));
  EXPECT_EQ(1, inProcess("small", "OMP_NUM_THREADS=17"));
}

TEST_F(Teams, LargeBatchesBringAllThreadsToLife) {
  EXPECT_EQ(4, inProcess("add"));
  EXPECT_EQ(4, inProcess("decompose"));
  EXPECT_EQ(3, inProcess("add", "OMP_NUM_THREADS=3"));
  EXPECT_EQ(3, inProcess("decompose", "OMP_NUM_THREADS=3"));
}

TEST_F(Teams, BatchesInBetweenBringSome) {
  EXPECT_EQ(2, inProcess("some", "OMP_NUM_THREADS=8"));
}

TEST_F(Teams, ThreadLimit) {
  EXPECT_EQ(0, inProcess("limit", "OMP_THREAD_LIMIT=3"));
}

TEST_F(Teams, AThreadThatHasExitedIsNoTeam) {
  EXPECT_EQ(4, inProcess("exited"));
}

TEST_F(Teams, ChildrenOfProcessesThatHadATeamWork) {
  EXPECT_EQ(0, inProcess("fork"));
}

TEST_F(Teams, ChildrenOfProcessesWithoutATeamHaveOne) {
  EXPECT_EQ(0, inProcess("forkedOnly"));
}

// The result does not depend on who calls, nor on what the runtime gives.
class Callers : public Teams {
protected:
  Callers() : expected(6, 3000) {
    omp_set_num_threads(1);
    expected.add();
    expected.decompose();
  }
  ~Callers() override {
    omp_set_dynamic(0);
    omp_set_max_active_levels(1);
    omp_set_num_threads(1);
  }
  bool works() const {
    Data data(6, 3000);
    return data.add() == zelStatusOk && data.decompose() == zelStatusOk && data.equals(expected);
  }
  Data expected;
};

TEST_F(Callers, InAParallelRegion) {
  for (const int levels : {1, 2, 3}) {
    omp_set_max_active_levels(levels);
    std::atomic<int> right{0};
#pragma omp parallel num_threads(3)
    {
      omp_set_num_threads(3);
      right += works();
    }
    EXPECT_EQ(3, right) << levels;
  }
}

TEST_F(Callers, SeveralThreadsAtOnce) {
  std::atomic<int> right{0};
  std::vector<std::thread> threads;
  for (int t = 0; t < 3; ++t)
    threads.emplace_back([&] {
      omp_set_num_threads(3);
      for (int i = 0; i < 5; ++i)
        right += works();
    });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(15, right);
}

TEST_F(Callers, DynamicTeams) {
  omp_set_num_threads(5);
  omp_set_dynamic(1);
  EXPECT_TRUE(works());
}

TEST_F(Callers, NoActiveLevels) {
  omp_set_num_threads(3);
  omp_set_max_active_levels(0);
  EXPECT_TRUE(works());
}

} // namespace

int main(int argc, char** argv) {
  if (const char* const what = std::getenv("ZELMTEST_CHILD")) {
    std::printf("%d\n", child(what));
    return 0;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
