// What the library's choice of a team costs: one thread, all threads whatever the work, and the library as it is, for
// batches of 1 to 131072 objects. Built as zelm_bench_threads, on the static library for all processors, whose
// ownGetTeamSize the linker leads through the function below.
//
//   zelm_bench_threads                          calls one behind the other: the threads are awake
//   zelm_bench_threads asleep                   other work in between, OMP_WAIT_POLICY=passive: they are not
//   zelm_bench_threads [asleep] <family>...     some of the families
//
// A line for each family, side and count: microseconds of a call on one thread, on all, as it is; the last one over one
// thread, and over the better of both. The last lines tell where the largest ratios are, and where all threads
// overtake.
#include <omp.h>
#include <unistd.h>
#include <zelm.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

enum class Mode { one, all, own };
Mode mode = Mode::own;

} // namespace

extern "C" int32_t __real_ownGetTeamSize(int32_t threads, double additions);
extern "C" int32_t __wrap_ownGetTeamSize(int32_t threads, double additions);
extern "C" int32_t __wrap_ownGetTeamSize(int32_t threads, double additions) {
  return mode == Mode::all ? threads : __real_ownGetTeamSize(threads, additions);
}

namespace {

using Clock = std::chrono::steady_clock;

double microseconds(Clock::time_point since) {
  return std::chrono::duration<double, std::micro>(Clock::now() - since).count();
}

constexpr int most = 1 << 17;
constexpr int widest = 6;

// Symmetric definite matrices, side by side with two results; a small one's objects are the first of these.
template <class T> struct Data {
  std::vector<T> a, b, x, y;
  std::vector<int32_t> index;
  std::vector<T> buffer;
  explicit Data(int n) {
    const auto elements = static_cast<std::size_t>(most) * static_cast<std::size_t>(n * n);
    std::mt19937 random(5);
    std::uniform_real_distribution<double> uniform(-1, 1);
    a.resize(elements);
    const auto side = static_cast<std::size_t>(n);
    for (std::size_t e = 0; e < elements; ++e) {
      const std::size_t i = e / side % side, j = e % side;
      const std::size_t mirrored = e - i * side - j + j * side + i, repeated = 512 * side * side;
      a[e] = e >= repeated ? a[e - repeated]
             : i == j      ? static_cast<T>(widest + uniform(random))
             : i > j       ? a[mirrored]
                           : static_cast<T>(uniform(random));
    }
    b = a;
    x.resize(elements);
    y.resize(elements);
    index.resize(elements);
    buffer.resize(1024);
  }
};

template <class T> using Call = ZelStatus (*)(Data<T>&, int n, int count);

template <class T> struct Row {
  const char* name;
  Call<T> call;
};

constexpr int e32 = 4;

// clang-format off
const Row<Zel32f> rows[] = {
    {"Add mama",          [](auto& d, int n, int count) { return zelmAdd_mama_32f(d.a.data(), n * n * e32, n * e32, e32, d.b.data(), n * n * e32, n * e32, e32, d.x.data(), n * n * e32, n * e32, e32, n, n, count); }},
    {"Add tama",          [](auto& d, int n, int count) { return zelmAdd_tama_32f(d.a.data(), n * n * e32, n * e32, e32, d.b.data(), n * n * e32, n * e32, e32, d.x.data(), n * n * e32, n * e32, e32, n, n, count); }},
    {"Mul mama",          [](auto& d, int n, int count) { return zelmMul_mama_32f(d.a.data(), n * n * e32, n * e32, e32, n, n, d.b.data(), n * n * e32, n * e32, e32, n, n, d.x.data(), n * n * e32, n * e32, e32, count); }},
    {"Mul mava",          [](auto& d, int n, int count) { return zelmMul_mava_32f(d.a.data(), n * n * e32, n * e32, e32, n, n, d.b.data(), n * e32, e32, n, d.x.data(), n * e32, e32, count); }},
    {"Mul mac",           [](auto& d, int n, int count) { return zelmMul_mac_32f(d.a.data(), n * n * e32, n * e32, e32, 1.5F, d.x.data(), n * n * e32, n * e32, e32, n, n, count); }},
    {"Gaxpy mva",         [](auto& d, int n, int count) { return zelmGaxpy_mva_32f(d.a.data(), n * e32, e32, n, n, d.b.data(), n * e32, e32, n, d.a.data(), n * e32, e32, n, d.x.data(), n * e32, e32, count); }},
    {"AffineTransform3DH", [](auto& d, int, int count) { return zelmAffineTransform3DH_mva_32f(d.a.data(), 4 * e32, e32, d.b.data(), 3 * e32, e32, d.x.data(), 3 * e32, e32, count); }},
    {"LUDecomp",          [](auto& d, int n, int count) { return zelmLUDecomp_ma_32f(d.a.data(), n * n * e32, n * e32, e32, d.index.data(), d.x.data(), n * n * e32, n * e32, e32, n, count); }},
    {"LUBackSubst mava",  [](auto& d, int n, int count) { return zelmLUBackSubst_mava_32f(d.a.data(), n * n * e32, n * e32, e32, d.index.data(), d.b.data(), n * e32, e32, d.x.data(), n * e32, e32, n, count); }},
    {"CholeskyDecomp",    [](auto& d, int n, int count) { return zelmCholeskyDecomp_ma_32f(d.a.data(), n * n * e32, n * e32, e32, d.x.data(), n * n * e32, n * e32, e32, n, count); }},
    {"CholeskyBackSubst mava", [](auto& d, int n, int count) { return zelmCholeskyBackSubst_mava_32f(d.a.data(), n * n * e32, n * e32, e32, d.b.data(), n * e32, e32, d.x.data(), n * e32, e32, n, count); }},
    {"QRDecomp",          [](auto& d, int n, int count) { return zelmQRDecomp_ma_32f(d.a.data(), n * n * e32, n * e32, e32, d.buffer.data(), d.x.data(), n * n * e32, n * e32, e32, n, n, count); }},
    {"QRBackSubst mava",  [](auto& d, int n, int count) { return zelmQRBackSubst_mava_32f(d.a.data(), n * n * e32, n * e32, e32, d.buffer.data(), d.b.data(), n * e32, e32, d.x.data(), n * e32, e32, n, n, count); }},
    {"Det",               [](auto& d, int n, int count) { return zelmDet_ma_32f(d.a.data(), n * n * e32, n * e32, e32, n, d.buffer.data(), d.x.data(), count); }},
    {"Invert",            [](auto& d, int n, int count) { return zelmInvert_ma_32f(d.a.data(), n * n * e32, n * e32, e32, d.buffer.data(), d.x.data(), n * n * e32, n * e32, e32, n, count); }},
    {"EigenValuesSym",    [](auto& d, int n, int count) { return zelmEigenValuesSym_ma_32f(d.a.data(), n * n * e32, n * e32, e32, d.buffer.data(), d.x.data(), n, count); }},
    {"EigenValuesVectorsSym", [](auto& d, int n, int count) { return zelmEigenValuesVectorsSym_ma_32f(d.a.data(), n * n * e32, n * e32, e32, d.buffer.data(), d.x.data(), n * n * e32, n * e32, e32, d.y.data(), n, count); }},
    {"EigenValues",       [](auto& d, int n, int count) { return zelmEigenValues_ma_32f(d.a.data(), n * n * e32, n * e32, e32, d.x.data(), d.y.data(), n, count, d.buffer.data()); }},
};
// clang-format on

void set(Mode wanted, int threads) {
  mode = wanted;
  omp_set_num_threads(wanted == Mode::one ? 1 : threads);
}

// The lower quartile of short slices.
double quartile(std::vector<double>& slices) {
  std::nth_element(slices.begin(), slices.begin() + static_cast<std::ptrdiff_t>(slices.size() / 4), slices.end());
  return slices[slices.size() / 4];
}

// Microseconds of a call in the three modes, in turns.
std::map<Mode, double> timesOf(const std::function<void()>& call, int threads, bool asleep) {
  std::map<Mode, std::vector<double>> slices;
  std::map<Mode, int> repetitions;
  for (Mode wanted : {Mode::one, Mode::all, Mode::own}) {
    set(wanted, threads);
    call();
    const auto start = Clock::now();
    call();
    repetitions[wanted] = asleep ? 1 : std::max(1, static_cast<int>(100 / std::max(0.02, microseconds(start))));
  }
  for (int round = 0; round < (asleep ? 15 : 24); ++round)
    for (Mode wanted : {Mode::one, Mode::all, Mode::own}) {
      set(wanted, threads);
      if (asleep) {
        set(Mode::one, threads);
        call(); // the data and the code are in the caches as they would be
        set(wanted, threads);
        for (const auto start = Clock::now(); microseconds(start) < 300;) {
        }
      } else {
        call();
      }
      const auto start = Clock::now();
      for (int i = 0; i < repetitions[wanted]; ++i)
        call();
      slices[wanted].push_back(microseconds(start) / repetitions[wanted]);
    }
  std::map<Mode, double> times;
  for (auto& [wanted, all] : slices)
    times[wanted] = quartile(all);
  return times;
}

} // namespace

int main(int argc, char** argv) {
  const bool asleep = argc > 1 && std::strcmp(argv[1], "asleep") == 0;
  const char* const policy = std::getenv("OMP_WAIT_POLICY");
  if (asleep && (policy == nullptr || std::strcmp(policy, "passive") != 0)) {
    setenv("OMP_WAIT_POLICY", "passive", 1); // read when a program starts
    execv("/proc/self/exe", argv);
    std::perror("zelm_bench_threads");
    return EXIT_FAILURE;
  }
  const int threads = omp_get_max_threads();
  const auto wanted = [&](const char* name) {
    bool any = false, found = false;
    for (int i = asleep ? 2 : 1; i < argc; ++i) {
      any = true;
      found = found || std::strstr(name, argv[i]) != nullptr;
    }
    return found || !any;
  };
  std::map<std::string, std::string> summary;
  double worst = 0, worstOfOne = 0;
  std::printf("%d threads, %s\n%-22s %4s %6s %10s %10s %10s %8s %8s\n", threads, asleep ? "asleep" : "awake", "family",
              "side", "count", "one", "all", "own", "/one", "/better");
  for (int n = 3; n <= widest; ++n) {
    Data<Zel32f> data(n);
    for (const auto& row : rows) {
      if (!wanted(row.name) || (n > 3 && std::strncmp(row.name, "Affine", 6) == 0))
        continue;
      int overtakes = 0;
      for (int count = 1; count <= most; count *= 2) {
        auto times = timesOf(
            [&] {
              if (row.call(data, n, count) != zelStatusOk) {
                std::fprintf(stderr, "%s %d fails\n", row.name, n); // a failing call does less
                std::exit(EXIT_FAILURE);
              }
            },
            threads, asleep);
        const double one = times[Mode::one], all = times[Mode::all], own = times[Mode::own];
        std::printf("%-22s %4d %6d %10.2f %10.2f %10.2f %8.2f %8.2f\n", row.name, n, count, one, all, own, own / one,
                    own / std::min(one, all));
        std::fflush(stdout);
        worst = std::max(worst, own / std::min(one, all));
        worstOfOne = std::max(worstOfOne, own / one);
        if (all >= one)
          overtakes = 2 * count;
      }
      char line[100];
      std::snprintf(line, sizeof line, "all threads overtake from %d on", overtakes);
      summary[std::string(row.name) + " " + std::to_string(n)] = line;
    }
  }
  for (const auto& [name, line] : summary)
    std::printf("%-24s %s\n", name.c_str(), line.c_str());
  std::printf("largest ratio to one thread %.2f, to the better of one and all %.2f\n", worstOfOne, worst);
  return 0;
}
