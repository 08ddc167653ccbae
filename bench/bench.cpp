#include "bench.h"

#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <omp.h>
#include <sys/mman.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <limits>
#include <map>
#include <memory>
#include <set>

#define ALTERNATIVES(name)                                                                                             \
  extern "C" bench::Table name##_base_table();                                                                         \
  extern "C" bench::Table name##_v3_table();                                                                           \
  extern "C" bench::Table name##_native_table();
#include "alternatives.inc"
#undef ALTERNATIVES

namespace bench {
namespace {

// ---- builds and alternatives

const char* const buildNames[] = {"base", "v3", "native"};

const char* nameOf(Build build) {
  return buildNames[static_cast<int>(build)];
}

void* openLibrary(const char* path) {
  void* handle = dlopen(path, RTLD_NOW | RTLD_LOCAL);
  if (!handle) {
    std::fprintf(stderr, "zelm_bench: %s\n", dlerror());
    std::exit(EXIT_FAILURE);
  }
  return handle;
}

std::vector<Contender> alternativesFor(const std::string& key) {
  static const std::pair<Build, Table> tables[] = {
#define ALTERNATIVES(name)                                                                                             \
  {Build::base, name##_base_table()}, {Build::v3, name##_v3_table()}, {Build::native, name##_native_table()},
#include "alternatives.inc"
#undef ALTERNATIVES
  };
  std::vector<Contender> found;
  for (const auto& [build, table] : tables)
    for (const Row* row = table.rows; row != table.rows + table.count; ++row)
      if (key == row->key)
        found.push_back({row->who, build, row->role, row->run, 0});
  return found;
}

// ---- operands

struct Level {
  const char* name;
  double bytes; // of all operands together
};

// For 32 KiB, 1 MiB and tens of MiB of cache.
const Level levels[] = {{"L1", 24.0 * 1024}, {"L2", 512.0 * 1024}, {"mem", 192.0 * 1024 * 1024}};

// One block of address space for the operands of all cases, so that they need not be faulted in anew for each.
char* arena() {
  static char* const memory = [] {
    void* got = mmap(nullptr, 640U << 20, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (got == MAP_FAILED) {
      std::perror("zelm_bench: mmap");
      std::exit(EXIT_FAILURE);
    }
    return static_cast<char*>(got);
  }();
  return memory;
}

std::size_t bytesOf(const Operand& operand, const Case& entry, int count) {
  return static_cast<std::size_t>(operand.elements) * static_cast<std::size_t>(entry.elementSize) *
         static_cast<std::size_t>(operand.isArray ? count : 1);
}

void store(char* to, double value, int elementSize) {
  if (elementSize == 4) {
    const auto narrow = static_cast<float>(value);
    std::memcpy(to, &narrow, sizeof narrow);
  } else {
    std::memcpy(to, &value, sizeof value);
  }
}

double load(const char* from, int elementSize) {
  float narrow;
  double value;
  std::memcpy(&narrow, from, sizeof narrow);
  if (elementSize == 4)
    return static_cast<double>(narrow);
  std::memcpy(&value, from, sizeof value);
  return value;
}

// Different objects up to a few hundred, then those again.
void fillOperand(char* at, const Operand& operand, const Case& entry, int count, Random& random) {
  const std::size_t objectBytes = bytesOf(operand, entry, 1);
  const std::size_t total = bytesOf(operand, entry, count);
  const int distinct = operand.isArray ? std::min(count, 509) : 1;
  std::vector<double> object(static_cast<std::size_t>(operand.elements));
  std::uniform_real_distribution<double> uniform(0.5, 1.5);
  for (int k = 0; k < distinct; ++k) {
    for (double& element : object)
      element = uniform(random);
    if (operand.fill)
      operand.fill(object.data(), random);
    for (std::size_t e = 0; e < object.size(); ++e)
      store(at + static_cast<std::size_t>(k) * objectBytes + e * static_cast<std::size_t>(entry.elementSize), object[e],
            entry.elementSize);
  }
  for (std::size_t done = objectBytes * static_cast<std::size_t>(distinct); done < total;) {
    const std::size_t more = std::min(done, total - done);
    std::memcpy(at + done, at, more);
    done += more;
  }
}

// Operands begin on cache lines, at different offsets into their pages.
Block place(const Case& entry, int count) {
  Random random(12345);
  Block block{};
  block.count = count;
  std::size_t offset = 0;
  for (std::size_t i = 0; i < entry.operands.size(); ++i) {
    offset = (offset + 63) / 64 * 64 + 17 * 64;
    block.at[i] = arena() + offset;
    fillOperand(arena() + offset, entry.operands[i], entry, count, random);
    offset += bytesOf(entry.operands[i], entry, count);
  }
  if (entry.prepare)
    entry.prepare(block);
  return block;
}

// ---- agreement of the contenders' results

// The first and the last megabyte of each result are looked at.
class Results {
public:
  Results(const Case& entry, const Block& block) : elementSize(entry.elementSize) {
    constexpr std::size_t window = 1U << 20;
    for (std::size_t i = 0; i < entry.operands.size(); ++i) {
      if (!entry.operands[i].isResult)
        continue;
      char* at = static_cast<char*>(block.at[i]);
      const std::size_t bytes = bytesOf(entry.operands[i], entry, block.count);
      const std::size_t length = std::min(bytes, window);
      ranges.push_back({at, length});
      if (bytes > window)
        ranges.push_back({at + (bytes - length), length});
    }
  }

  void poison() const {
    for (const auto& [at, length] : ranges)
      std::memset(at, 0xff, length); // NaN
  }

  std::vector<double> read() const {
    std::vector<double> values;
    const auto step = static_cast<std::size_t>(elementSize);
    for (const auto& [at, length] : ranges)
      for (std::size_t offset = 0; offset < length; offset += step)
        values.push_back(load(at + offset, elementSize));
    return values;
  }

private:
  int elementSize;
  std::vector<std::pair<char*, std::size_t>> ranges;
};

// Whether contenders of any case disagreed: the program fails then.
bool disagreed = false;

bool agree(const std::vector<double>& a, const std::vector<double>& b, double tolerance) {
  for (std::size_t i = 0; i < a.size(); ++i)
    if (!(std::fabs(a[i] - b[i]) <= tolerance * std::max(1.0, std::fabs(a[i]))))
      return false;
  return true;
}

// The name of a contender whose results differ from those of the first of its group, or nothing.
std::string disagreeing(const Case& entry, const std::vector<Contender>& contenders, const Block& block) {
  const Results results(entry, block);
  std::map<int, std::vector<double>> expected;
  for (const Contender& contender : contenders) {
    if (contender.group < 0 || contender.role == Role::contiguous)
      continue;
    results.poison();
    contender.run(block, 1);
    const std::vector<double> got = results.read();
    const auto [first, isFirst] = expected.emplace(contender.group, got);
    if (!agree(first->second, got, isFirst ? 0 : entry.tolerance))
      return contender.who + "." + nameOf(contender.build);
  }
  return {};
}

// ---- timing

using Clock = std::chrono::steady_clock;

double timed(const Contender& contender, const Block& block, long repetitions) {
  const auto start = Clock::now();
  contender.run(block, repetitions);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

struct Timing {
  double least;    // nanoseconds of one repetition
  double quartile; // lower quartile of the slices
};

// Alternating short slices in an order that changes from round to round: whatever else the machine does meets all
// contenders alike, and the shortest slice of each is hardly touched by it.
std::vector<Timing> race(const std::vector<Contender>& contenders, const Block& block) {
  constexpr double sliceNs = 60e3;
  constexpr double budgetNs = 0.7e9;
  constexpr std::size_t leastRounds = 16;

  std::vector<long> repetitions(contenders.size(), 1);
  for (std::size_t c = 0; c < contenders.size(); ++c) {
    timed(contenders[c], block, 1);
    double ns = timed(contenders[c], block, 1);
    while (ns < sliceNs && repetitions[c] < 1L << 40) {
      repetitions[c] = std::max(repetitions[c] * 2,
                                static_cast<long>(static_cast<double>(repetitions[c]) * sliceNs / std::max(ns, 1.0)));
      ns = timed(contenders[c], block, repetitions[c]);
    }
  }

  Random random(1);
  std::vector<std::size_t> order(contenders.size());
  for (std::size_t c = 0; c < order.size(); ++c)
    order[c] = c;
  std::vector<std::vector<double>> slices(contenders.size());
  const auto start = Clock::now();
  for (std::size_t round = 0;
       round < leastRounds || std::chrono::duration<double, std::nano>(Clock::now() - start).count() < budgetNs;
       ++round) {
    std::shuffle(order.begin(), order.end(), random);
    for (const std::size_t c : order) {
      if (repetitions[c] > 1)
        contenders[c].run(block, 1); // its code and the operands are in the caches as they will be
      slices[c].push_back(timed(contenders[c], block, repetitions[c]) / static_cast<double>(repetitions[c]));
    }
  }

  std::vector<Timing> timings;
  for (std::vector<double>& all : slices) {
    std::sort(all.begin(), all.end());
    timings.push_back({all.front(), all[all.size() / 4]});
  }
  return timings;
}

// ---- one case as a Google Benchmark entry

void figures(benchmark::State& state, const Case& entry, const std::map<std::string, double>& ns, Build build,
             const std::vector<Contender>& contenders) {
  const auto suffix = std::string(".") + nameOf(build);
  const auto set = [&](const std::string& name, double value) { state.counters[name + suffix] = value; };
  const auto time = [&](const std::string& who) {
    const auto found = ns.find(who + suffix);
    return found == ns.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
  };

  double library = std::numeric_limits<double>::quiet_NaN();
  const double none = std::numeric_limits<double>::infinity();
  double best = none, bestNative = none;
  // Wide vectors are not always the faster ones in memory: a build is held against the fastest loop up to its width.
  double contiguous = none;
  for (const Contender& contender : contenders) {
    const double own = ns.at(contender.who + "." + nameOf(contender.build));
    if (contender.role == Role::library && contender.build == build)
      library = own;
    if (contender.role == Role::alternative && contender.build == build)
      best = std::min(best, own);
    if (contender.role == Role::alternative && contender.build == Build::native)
      bestNative = std::min(bestNative, own);
    if (contender.role == Role::contiguous && contender.build <= build)
      contiguous = std::min(contiguous, own);
  }
  if (std::isfinite(best))
    set("ratio.best", library / best);
  if (std::isfinite(bestNative) && build != Build::native)
    set("ratio.native", library / bestNative);
  if (std::isfinite(contiguous))
    set("ratio.contiguous", library / contiguous);
  for (const Figure& figure : entry.figures) {
    const double first = time(figure.first);
    const double second = time(figure.second);
    if (!std::isnan(first) && !std::isnan(second))
      set((figure.isDifference ? "difference." : "ratio.") + figure.name,
          figure.isDifference ? first - second : first / second);
  }
}

void run(benchmark::State& state, const Case& entry, int count) {
  std::vector<Contender> contenders = entry.contenders;
  for (Contender& contender : alternativesFor(entry.name))
    contenders.push_back(std::move(contender));
  for (Contender& contender : alternativesFor(entry.contiguous)) {
    contender.run = [pass = contender.run, &entry](const Block& block, long repetitions) {
      const auto& operands = entry.contiguousOperands;
      Block flat = block;
      for (std::size_t i = 0; i < operands.size(); ++i)
        flat.at[i] = block.at[operands[i]];
      flat.count *= entry.operands[static_cast<std::size_t>(operands.back())].elements;
      pass(flat, repetitions);
    };
    contenders.push_back(std::move(contender));
  }

  const Block block = place(entry, count);
  if (const std::string who = disagreeing(entry, contenders, block); !who.empty()) {
    disagreed = true;
    state.SkipWithError((who + " gives other results").c_str());
    return;
  }

  for (auto _ : state) {
    const std::vector<Timing> timings = race(contenders, block);
    std::map<std::string, double> ns;
    double noise = 1;
    for (std::size_t c = 0; c < contenders.size(); ++c) {
      const std::string key = contenders[c].who + "." + nameOf(contenders[c].build);
      ns[key] = timings[c].least / count;
      noise = std::max(noise, timings[c].quartile / timings[c].least);
      state.counters["ns." + key] = ns[key];
    }
    for (const Build build : builds)
      figures(state, entry, ns, build, contenders);
    state.counters["count"] = count;
    state.counters["noise"] = noise; // largest lower quartile by minimum
    state.SetIterationTime(timings[0].least * 1e-9);
  }
}

// ---- report: a line for each case, the builds side by side

class LineReporter : public benchmark::BenchmarkReporter {
public:
  bool ReportContext(const Context& context) override {
    PrintBasicContext(&GetErrorStream(), context);
    GetOutputStream()
        << "Nanoseconds per object: baseline build / x86-64-v3 / widest build and -march=native; then ratios.\n";
    return true;
  }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& one : runs) {
      std::string name = one.benchmark_name();
      if (const auto end = name.find("/manual_time"); end != std::string::npos)
        name.erase(end, std::strlen("/manual_time"));
      char text[64];
      std::snprintf(text, sizeof text, "%-28s", name.c_str());
      GetOutputStream() << text;
      if (one.error_occurred) {
        GetOutputStream() << " ERROR " << one.error_message << std::endl;
        continue;
      }
      for (const char* section : {"ns.", "ratio.", "difference."})
        printSection(one.counters, section);
      if (const auto noise = one.counters.find("noise"); noise != one.counters.end() && noise->second.value > 1.3) {
        std::snprintf(text, sizeof text, " | noise %.1f", noise->second.value);
        GetOutputStream() << text;
      }
      GetOutputStream() << std::endl;
    }
  }

private:
  void printSection(const benchmark::UserCounters& counters, const std::string& section) {
    std::set<std::string> names;
    for (const auto& [key, value] : counters)
      if (key.compare(0, section.size(), section) == 0)
        names.insert(key.substr(0, key.rfind('.')));
    if (!names.empty() && section != "ns.")
      GetOutputStream() << " |";
    for (const std::string& name : names) {
      GetOutputStream() << ' ' << name.substr(section.size()) << ' ';
      for (const char* build : buildNames) {
        const auto found = counters.find(name + "." + build);
        char text[32] = "-";
        if (found != counters.end())
          std::snprintf(text, sizeof text, section == "ratio." ? "%.2f" : "%.3g", found->second.value);
        GetOutputStream() << (build == buildNames[0] ? "" : "/") << text;
      }
    }
  }
};

} // namespace

void* libraryAddress(Build build, const char* symbol) {
  static void* const handles[] = {openLibrary(ZELM_BASE_PATH), openLibrary(ZELM_V3_PATH),
                                  openLibrary(__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl")
                                                  ? ZELM_V4_PATH
                                                  : ZELM_V3_PATH)};
  void* address = dlsym(handles[static_cast<int>(build)], symbol);
  if (!address) {
    std::fprintf(stderr, "zelm_bench: %s\n", dlerror());
    std::exit(EXIT_FAILURE);
  }
  return address;
}

void add(const Case& entry, const std::string& suffix, int count) {
  benchmark::RegisterBenchmark((entry.name + "/" + suffix).c_str(), [entry, count](benchmark::State& state) {
    run(state, entry, count);
  })->UseManualTime();
}

// In the pointer layout `count` is the distance between the runs of the element positions. Runs at a distance near a
// multiple of a large power of two share few cache sets; so the count is lowered until they spread over a page.
int spread(int count, int elementSize) {
  for (int lower = count; lower > count * 2 / 3; --lower)
    if (const int offset = lower * elementSize % 4096; offset > 1450 && offset < 1650)
      return lower;
  return count;
}

void add(const Case& entry) {
  std::size_t bytes = 0;
  for (const Operand& operand : entry.operands)
    bytes += operand.isArray ? bytesOf(operand, entry, 1) : 0;
  for (const Level& level : levels)
    add(entry, level.name, spread(static_cast<int>(level.bytes / static_cast<double>(bytes)), entry.elementSize));
}

} // namespace bench

int main(int argc, char** argv) {
  // Repetition and choice of the fastest happen inside an entry; one iteration of it is enough.
  std::vector<char*> arguments(argv, argv + argc);
  char once[] = "--benchmark_min_time=0";
  arguments.insert(arguments.begin() + 1, once);
  int number = static_cast<int>(arguments.size());
  const bool ownFormat = std::none_of(arguments.begin(), arguments.end(), [](const char* argument) {
    return std::strncmp(argument, "--benchmark_format", std::strlen("--benchmark_format")) == 0;
  });

  omp_set_num_threads(1);
  bench::registerAdd();
  bench::registerCholesky();
  bench::registerEigen();
  bench::registerEigenSym();
  bench::registerLu();
  bench::registerMeasures();
  bench::registerQR();
  bench::registerMulMatrices();
  bench::registerMulVectors();
  bench::registerVectors();
  bench::registerMoves();
  benchmark::Initialize(&number, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(number, arguments.data()))
    return EXIT_FAILURE;
  bench::LineReporter lines;
  benchmark::RunSpecifiedBenchmarks(ownFormat ? &lines : nullptr);
  benchmark::Shutdown();
  return bench::disagreed ? EXIT_FAILURE : EXIT_SUCCESS;
}
