// The grid: members by layout, by shape and by count, beside Eigen's fixed-size types on the same data. What it times
// is the rows below.
//
//   zelm_bench_grid [--json=<file>] [--library=<name>:<level>:<path>]... [<part of a case's name>...]
//
// Without --library the two wider builds are timed; the level, v3 or native, chooses the flags of Eigen's code. The
// three tables go to the standard output: in a cell the nanoseconds of an object, in brackets over the packed time
// (layouts only), over Eigen at the build's level and at -march=native. bench/heat.py draws the JSON file.
#include "grid.h"

#include <dlfcn.h>
#include <omp.h>
#include <zelm.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <functional>
#include <limits>
#include <map>
#include <numeric>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

extern "C" bench::Table zelm_alt_grid_v3_table();
extern "C" bench::Table zelm_alt_grid_native_table();

namespace bench::grid {
namespace {

// ---- rows: layouts, members, shapes and counts

// The distances of an operand in bytes, from its rows, columns and element size. A vector is a column that lies as a
// row.
struct Strides {
  std::ptrdiff_t object, row, element;
};
struct Layout {
  const char* name;
  Kind kind;
  Strides (*strides)(int rows, int columns, int e);
};

std::ptrdiff_t rounded(std::ptrdiff_t bytes, std::ptrdiff_t to) {
  return (bytes + to - 1) / to * to;
}
Strides packedStrides(int rows, int columns, int e) {
  return {rows * columns * e, columns * e, e};
}
Strides paddedStrides(int rows, int columns, int e) {
  const std::ptrdiff_t row = rounded(columns * e, 16);
  return {rows * row, row, e};
}
Strides memberStrides(int rows, int columns, int e) {
  return {rows * columns * e + 24, columns * e, e};
}
Strides columnStrides(int rows, int columns, int e) {
  return {rows * columns * e, e, rows * e};
}
Strides apartStrides(int rows, int columns, int e) {
  const std::ptrdiff_t row = (3 * columns + 1) * e;
  return {rows * row + e, row, 3 * e};
}

const Layout layouts[] = {
    {"packed rows", Kind::rows, packedStrides},        {"padded rows", Kind::padded, paddedStrides},
    {"members of structs", Kind::rows, memberStrides}, {"column-major", Kind::columns, columnStrides},
    {"elements apart", Kind::apart, apartStrides},     {"list", Kind::list, memberStrides},
};

// dst is rows by columns, and terms what a product sums.
struct Shape {
  int rows, terms, columns;
};

// A case in memory. Scratch and the pivot indices are the same for all layouts.
template <class T> struct Job {
  Shape shape;
  int count;
  Operand src1, src2, dst, factors;
  std::vector<T> values, scratch;
  std::vector<int32_t> index;
};

// An operand as the arguments of a call: of an array in the standard and the list layout, of a single one.
template <bool list, class T> auto matrices(const Operand& x) {
  const auto s0 = static_cast<int32_t>(x.stride0), s1 = static_cast<int32_t>(x.stride1),
             s2 = static_cast<int32_t>(x.stride2);
  if constexpr (list)
    return std::tuple(reinterpret_cast<T* const*>(x.list), 0, s1, s2);
  else
    return std::tuple(reinterpret_cast<T*>(x.first), s0, s1, s2);
}
template <bool list, class T> auto vectors(const Operand& x) {
  const auto s0 = static_cast<int32_t>(x.stride0), s2 = static_cast<int32_t>(x.stride2);
  if constexpr (list)
    return std::tuple(reinterpret_cast<T* const*>(x.list), 0, s2);
  else
    return std::tuple(reinterpret_cast<T*>(x.first), s0, s2);
}
template <class T> auto single(const Operand& x) {
  return std::tuple(reinterpret_cast<T*>(x.list[0]), static_cast<int32_t>(x.stride1), static_cast<int32_t>(x.stride2));
}
template <class Function, class... Parts> ZelStatus call(Function function, const Parts&... parts) {
  return std::apply(function, std::tuple_cat(parts...));
}
template <class... A> auto with(A... a) {
  return std::tuple(a...);
}

// How the members take a job: functions, their first one in `f`, their second one in `g`.
struct AddMama {
  template <bool L, class T, class F> static ZelStatus run(Job<T>& j, F f) {
    return call(f, matrices<L, T>(j.src1), matrices<L, T>(j.src2), matrices<L, T>(j.dst),
                with(j.shape.columns, j.shape.rows, j.count));
  }
};
struct MulMama {
  template <bool L, class T, class F> static ZelStatus run(Job<T>& j, F f) {
    return call(f, matrices<L, T>(j.src1), with(j.shape.terms, j.shape.rows), matrices<L, T>(j.src2),
                with(j.shape.columns, j.shape.terms), matrices<L, T>(j.dst), with(j.count));
  }
};
struct MulMam {
  template <bool L, class T, class F> static ZelStatus run(Job<T>& j, F f) {
    return call(f, matrices<L, T>(j.src1), with(j.shape.terms, j.shape.rows), single<T>(j.src2),
                with(j.shape.columns, j.shape.terms), matrices<L, T>(j.dst), with(j.count));
  }
};
struct MulMava {
  template <bool L, class T, class F> static ZelStatus run(Job<T>& j, F f) {
    return call(f, matrices<L, T>(j.src1), with(j.shape.terms, j.shape.rows), vectors<L, T>(j.src2),
                with(j.shape.terms), vectors<L, T>(j.dst), with(j.count));
  }
};
struct MulMva {
  template <bool L, class T, class F> static ZelStatus run(Job<T>& j, F f) {
    return call(f, single<T>(j.src1), with(j.shape.terms, j.shape.rows), vectors<L, T>(j.src2), with(j.shape.terms),
                vectors<L, T>(j.dst), with(j.count));
  }
};
struct LuSolution {
  template <bool L, class T, class F, class G> static ZelStatus run(Job<T>& j, F f, G g) {
    const auto sizes = with(j.shape.rows, j.count);
    const ZelStatus status = call(f, matrices<L, T>(j.src1), with(j.index.data()), matrices<L, T>(j.factors), sizes);
    return status != zelStatusOk ? status
                                 : call(g, matrices<L, T>(j.factors), with(j.index.data()), vectors<L, T>(j.src2),
                                        vectors<L, T>(j.dst), sizes);
  }
};
struct CholeskySolution {
  template <bool L, class T, class F, class G> static ZelStatus run(Job<T>& j, F f, G g) {
    const auto sizes = with(j.shape.rows, j.count);
    const ZelStatus status = call(f, matrices<L, T>(j.src1), matrices<L, T>(j.factors), sizes);
    return status != zelStatusOk
               ? status
               : call(g, matrices<L, T>(j.factors), vectors<L, T>(j.src2), vectors<L, T>(j.dst), sizes);
  }
};
struct Det {
  template <bool L, class T, class F> static ZelStatus run(Job<T>& j, F f) {
    return call(f, matrices<L, T>(j.src1), with(j.shape.rows, j.scratch.data(), j.values.data(), j.count));
  }
};
struct Invert {
  template <bool L, class T, class F> static ZelStatus run(Job<T>& j, F f) {
    return call(f, matrices<L, T>(j.src1), with(j.scratch.data()), matrices<L, T>(j.dst), with(j.shape.rows, j.count));
  }
};

void* open(const std::string& path) {
  void* const handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle) {
    std::fprintf(stderr, "zelm_bench_grid: %s\n", dlerror());
    std::exit(EXIT_FAILURE);
  }
  return handle;
}
template <class Function> Function find(void* library, const std::string& symbol) {
  void* const address = dlsym(library, symbol.c_str());
  if (!address) {
    std::fprintf(stderr, "zelm_bench_grid: %s\n", dlerror());
    std::exit(EXIT_FAILURE);
  }
  return reinterpret_cast<Function>(address);
}

template <class T> using Runner = std::function<ZelStatus(Job<T>&)>;
template <class T> using Maker = std::function<Runner<T>(void* library, bool list)>;

// Standard and list layout of the functions of one type.
template <class Member, class T, class... S, class... L, std::size_t... I>
Maker<T> maker(const std::vector<std::string>& names, std::tuple<S...>, std::tuple<L...>, std::index_sequence<I...>) {
  return [names](void* library, bool list) -> Runner<T> {
    if (list) {
      const std::tuple functions{find<L>(library, names[I] + "_L")...};
      return [functions](Job<T>& job) {
        return std::apply([&](auto... f) { return Member::template run<true, T>(job, f...); }, functions);
      };
    }
    const std::tuple functions{find<S>(library, names[I])...};
    return [functions](Job<T>& job) {
      return std::apply([&](auto... f) { return Member::template run<false, T>(job, f...); }, functions);
    };
  };
}

enum class Data { general, definite };

struct Member {
  const char* name;
  bool vectors; // src2 and dst
  bool values;  // the result is a number for each object
  Data data;
  Maker<Zel32f> make32;
  Maker<Zel64f> make64;
};

// clang-format off
#define MAKE_1(how, T, f, type)    maker<how, T>({#f #type}, std::tuple<decltype(&f##type)>{}, std::tuple<decltype(&f##type##_L)>{}, std::make_index_sequence<1>{})
#define MAKE_2(how, T, f, g, type) maker<how, T>({#f #type, #g #type}, std::tuple<decltype(&f##type), decltype(&g##type)>{}, std::tuple<decltype(&f##type##_L), decltype(&g##type##_L)>{}, std::make_index_sequence<2>{})
#define ONE(how, f)    MAKE_1(how, Zel32f, f, _32f), MAKE_1(how, Zel64f, f, _64f)
#define TWO(how, f, g) MAKE_2(how, Zel32f, f, g, _32f), MAKE_2(how, Zel64f, f, g, _64f)

const std::vector<Member>& members() {
  static const std::vector<Member> all = {
      {"Add mama", false, false, Data::general,  ONE(AddMama, zelmAdd_mama)},
      {"Mul mama", false, false, Data::general,  ONE(MulMama, zelmMul_mama)},
      {"Mul mam",  false, false, Data::general,  ONE(MulMam, zelmMul_mam)},
      {"Mul mava", true,  false, Data::general,  ONE(MulMava, zelmMul_mava)},
      {"Mul mva",  true,  false, Data::general,  ONE(MulMva, zelmMul_mva)},
      {"LU",       true,  false, Data::general,  TWO(LuSolution, zelmLUDecomp_ma, zelmLUBackSubst_mava)},
      {"Cholesky", true,  false, Data::definite, TWO(CholeskySolution, zelmCholeskyDecomp_ma, zelmCholeskyBackSubst_mava)},
      {"Det",      false, true,  Data::general,  ONE(Det, zelmDet_ma)},
      {"Invert",   false, false, Data::general,  ONE(Invert, zelmInvert_ma)},
  };
  return all;
}

const int sides[] = {2, 3, 4, 6};
constexpr int layoutCount = 48;
constexpr double shapeBytes = 16 * 1024; // of all operands together

struct ShapeRow { const char* member; std::vector<Shape> shapes; };
const ShapeRow shapeRows[] = {
    {"Mul mama", {{2, 2, 2}, {2, 3, 2}, {3, 3, 4}, {3, 4, 4}, {4, 4, 3}, {3, 3, 6}, {6, 3, 3}, {6, 6, 3}, {6, 3, 6}, {2, 6, 6}, {6, 6, 2}, {6, 2, 6}, {4, 6, 4}, {16, 16, 16}, {32, 32, 32}}},
    {"Mul mava", {{2, 2, 1}, {4, 3, 1}, {6, 3, 1}, {2, 3, 1}, {3, 4, 1}, {3, 6, 1}, {4, 6, 1}, {7, 7, 1}}},
    {"Mul mva",  {{2, 2, 1}, {4, 3, 1}, {6, 3, 1}, {2, 3, 1}, {3, 4, 1}, {3, 6, 1}, {4, 6, 1}}},
    {"LU",       {{2, 2, 2}, {7, 7, 7}, {8, 8, 8}, {12, 12, 12}, {16, 16, 16}, {32, 32, 32}}},
    {"Cholesky", {{2, 2, 2}, {7, 7, 7}, {8, 8, 8}, {12, 12, 12}, {16, 16, 16}, {32, 32, 32}}},
};

struct CountRow { const char* member; int side; };
const CountRow countRows[] = {
    {"Add mama", 3}, {"Mul mama", 3}, {"Mul mama", 4}, {"Mul mava", 3}, {"LU", 3}, {"LU", 4}, {"Cholesky", 3}, {"Cholesky", 4}, {"Det", 3}, {"Invert", 4},
};
const int counts[] = {1, 2, 3, 4, 5, 7, 8, 9, 12, 16, 100};
// clang-format on

// ---- operands in memory

using Random = std::mt19937;

class Memory {
public:
  // An operand of `count` objects in the layout; those of a list lie in any order. A single column is a vector.
  Operand place(const Layout& layout, int rows, int columns, int e, int count, Random& random) {
    const Strides strides = columns == 1 ? layout.strides(1, rows, e) : layout.strides(rows, columns, e);
    const std::ptrdiff_t bytes = count * strides.object + 64;
    offset += 64;
    pieces.emplace_back(static_cast<std::size_t>(rounded(bytes, 64) + offset) + 64);
    char* first = pieces.back().data();
    first += -reinterpret_cast<std::intptr_t>(first) & 63;
    first += offset % 1024; // at different places of their pages
    std::vector<int> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    if (layout.kind == Kind::list)
      std::shuffle(order.begin(), order.end(), random);
    lists.emplace_back();
    for (const int k : order)
      lists.back().push_back(first + k * strides.object);
    return {layout.kind, first, lists.back().data(), strides.object, strides.row, strides.element};
  }

private:
  std::ptrdiff_t offset = 0;
  std::deque<std::vector<char>> pieces;
  std::deque<std::vector<char*>> lists;
};

// Element (i, j) of object k; of a vector i is 0.
char* elementOf(const Operand& x, int k, int i, int j) {
  return x.list[k] + i * x.stride1 + j * x.stride2;
}

template <class T, class Value> void fill(const Operand& x, int rows, int columns, int count, const Value& value) {
  for (int k = 0; k < count; ++k)
    for (int i = 0; i < rows; ++i)
      for (int j = 0; j < columns; ++j) {
        const T element = static_cast<T>(value(i, j));
        std::memcpy(elementOf(x, k, i, j), &element, sizeof element);
      }
}

template <class T> std::vector<double> read(const Operand& x, int rows, int columns, int count) {
  std::vector<double> all;
  for (int k = 0; k < count; ++k)
    for (int i = 0; i < rows; ++i)
      for (int j = 0; j < columns; ++j) {
        T element;
        std::memcpy(&element, elementOf(x, k, i, j), sizeof element);
        all.push_back(static_cast<double>(element));
      }
  return all;
}

// ---- contenders, in turns

struct Library {
  std::string name, level;
  void* handle;
};

struct Contender {
  std::string name;
  std::function<void(long)> run;
  double ns = std::numeric_limits<double>::infinity();
};

using Clock = std::chrono::steady_clock;

double timed(const Contender& contender, long repetitions) {
  const auto start = Clock::now();
  contender.run(repetitions);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

// The shortest of many short slices, in an order that changes.
void race(std::vector<Contender>& contenders, int count) {
  constexpr double sliceNs = 25e3;
  constexpr int rounds = 30;
  Random random(1);
  std::vector<long> repetitions;
  std::vector<std::size_t> order;
  for (const Contender& contender : contenders) {
    timed(contender, 1);
    long n = 1;
    while (timed(contender, n) < sliceNs)
      n *= 2;
    order.push_back(order.size());
    repetitions.push_back(n);
  }
  for (int round = 0; round < rounds; ++round) {
    std::shuffle(order.begin(), order.end(), random);
    for (const std::size_t c : order) {
      contenders[c].run(1);
      const auto n = static_cast<double>(repetitions[c]);
      contenders[c].ns = std::min(contenders[c].ns, timed(contenders[c], repetitions[c]) / n / count);
    }
  }
}

const std::pair<const char*, Table> alternatives[] = {{"v3", zelm_alt_grid_v3_table()},
                                                      {"native", zelm_alt_grid_native_table()}};
const char* nameOf(Kind kind) {
  const char* const names[] = {"rows", "list", "padded", "columns", "apart"};
  return names[static_cast<int>(kind)];
}

// ---- a case

struct Result {
  std::string table, member, type, shape, layout;
  int count;
  std::map<std::string, double> ns; // of the libraries by their names, of Eigen by its level
};

bool failed = false;

template <class T>
Result race(const Member& member, const Shape& shape, const Layout& layout, int count,
            const std::vector<Library>& libraries) {
  constexpr int e = sizeof(T);
  const bool list = layout.kind == Kind::list;
  const auto side = static_cast<std::size_t>(std::max({shape.rows, shape.terms, shape.columns}));
  Random random(7);
  Memory memory;
  Job<T> job{};
  job.shape = shape;
  job.count = count;
  const int columns = member.vectors ? 1 : shape.columns;
  const auto place = [&](int rows, int width) { return memory.place(layout, rows, width, e, count, random); };
  job.src1 = place(shape.rows, shape.terms);
  job.src2 = std::strcmp(member.name, "Add mama") == 0 ? place(shape.rows, columns) : place(shape.terms, columns);
  job.dst = place(shape.rows, columns);
  job.factors = place(shape.rows, shape.terms);
  job.values.resize(static_cast<std::size_t>(count));
  job.scratch.resize(4 * side * side + 64);
  job.index.resize(side * static_cast<std::size_t>(count));
  std::uniform_real_distribution<double> uniform(-1, 1);
  const double diagonal = member.data == Data::definite ? 2 * static_cast<double>(side) : 0;
  fill<T>(job.src1, shape.rows, shape.terms, count,
          [&](int i, int j) { return member.data == Data::definite ? (i == j ? diagonal : 0.5) : uniform(random); });
  const auto any = [&](int, int) { return uniform(random); };
  if (columns == 1)
    fill<T>(job.src2, 1, shape.terms, count, any);
  else
    fill<T>(job.src2, shape.terms, columns, count, any);

  const std::string type = e == 4 ? "32f" : "64f";
  const std::string size = std::to_string(shape.rows) + "x" + std::to_string(shape.terms) + "x" +
                           std::to_string(member.vectors && shape.columns == 1 ? 1 : shape.columns);
  std::vector<Contender> contenders;
  for (const Library& library : libraries) {
    const Runner<T> once = [&] {
      if constexpr (e == 4)
        return member.make32(library.handle, list);
      else
        return member.make64(library.handle, list);
    }();
    contenders.push_back({library.name, [&job, once](long repetitions) {
                            for (; repetitions > 0; --repetitions)
                              failed |= once(job) != zelStatusOk;
                          }});
  }
  char* const firstValue = reinterpret_cast<char*>(job.values.data());
  Operand values{Kind::rows, firstValue, &firstValue, e, e, e};
  Block block{{&job.src1, &job.src2, member.values ? &values : &job.dst, &job.factors}, count};
  const std::string key = std::string(member.name) + "/" + type + "/" + size + "/";
  for (const auto& [level, table] : alternatives)
    for (const Row* row = table.rows; row != table.rows + table.count; ++row)
      if (key + nameOf(layout.kind) == row->key || key + "any" == row->key)
        contenders.push_back(
            {"eigen." + std::string(level), [row, &block](long repetitions) { row->run(block, repetitions); }});

  // All must agree.
  std::vector<double> expected;
  for (const Contender& contender : contenders) {
    contender.run(1);
    std::vector<double> got(job.values.begin(), job.values.end());
    if (!member.values)
      got = columns == 1 ? read<T>(job.dst, 1, shape.rows, count) : read<T>(job.dst, shape.rows, columns, count);
    if (expected.empty())
      expected = got;
    for (std::size_t i = 0; i < got.size(); ++i)
      if (!(std::fabs(got[i] - expected[i]) <= (e == 4 ? 2e-2 : 1e-8) * std::max(1.0, std::fabs(expected[i])))) {
        std::fprintf(stderr, "zelm_bench_grid: %s%s: %s differs: %g, not %g\n", key.c_str(), layout.name,
                     contender.name.c_str(), got[i], expected[i]);
        failed = true;
        break;
      }
  }
  race(contenders, count);
  Result result{"", member.name, type, size, layout.name, count, {}};
  for (const Contender& contender : contenders)
    result.ns[contender.name] = contender.ns;
  return result;
}

// ---- the grid

const Member& memberOf(const char* name) {
  return *std::find_if(members().begin(), members().end(),
                       [&](const Member& member) { return std::strcmp(member.name, name) == 0; });
}

class Grid {
public:
  Grid(std::vector<Library> builds, std::vector<std::string> parts)
      : libraries(std::move(builds)), wanted(std::move(parts)) {}

  void run() {
    for (const Member& member : members())
      for (const int side : sides)
        for (const Layout& layout : layouts)
          both("layouts", member, {side, side, member.vectors && !isSystem(member) ? 1 : side}, layout, layoutCount);
    for (const ShapeRow& row : shapeRows)
      for (const Shape& shape : row.shapes) {
        const double elements = shape.rows * shape.terms + (shape.terms + shape.rows) * shape.columns;
        both("shapes", memberOf(row.member), shape, layouts[0],
             std::max(2, static_cast<int>(shapeBytes / 4 / elements)));
      }
    for (const CountRow& row : countRows)
      for (const int count : counts) {
        const Member& member = memberOf(row.member);
        both("counts", member, {row.side, row.side, member.vectors && !isSystem(member) ? 1 : row.side}, layouts[0],
             count);
      }
  }

  // A table for each library: a line for each member, type and shape, a column for each layout or count.
  void print() const {
    for (const Library& library : libraries)
      for (const char* const table : {"layouts", "shapes", "counts"}) {
        std::vector<std::string> heads, lines;
        std::map<std::string, std::map<std::string, std::string>> cells;
        std::map<std::string, double> packed;
        for (const Result& r : results) {
          if (r.table != table)
            continue;
          const std::string head = r.table == "layouts"  ? r.layout
                                   : r.table == "shapes" ? r.type
                                                         : std::to_string(r.count);
          const std::string line = r.member + " " + (r.table == "shapes" ? "" : r.type + " ") + r.shape;
          if (std::find(heads.begin(), heads.end(), head) == heads.end())
            heads.push_back(head);
          if (std::find(lines.begin(), lines.end(), line) == lines.end())
            lines.push_back(line);
          const double ns = r.ns.at(library.name);
          packed.emplace(line, ns);
          const auto times = [](double ratio) {
            char text[20];
            std::snprintf(text, sizeof text, "%.2f", ratio);
            return std::string(text);
          };
          const auto beside = [&](const std::string& eigen) {
            return r.ns.count(eigen) == 0 ? "-" : times(ns / r.ns.at(eigen));
          };
          const std::string overPacked = r.table == "layouts" ? times(ns / packed[line]) + ", " : "";
          const std::string cell =
              times(ns) + " (" + overPacked + beside("eigen." + library.level) + ", " + beside("eigen.native") + ")";
          cells[line][head] = cell;
        }
        if (lines.empty())
          continue;
        std::printf("\n%s, %s\n\n| |", library.name.c_str(), table);
        for (const std::string& head : heads)
          std::printf(" %s |", head.c_str());
        std::printf("\n|---|");
        for (std::size_t i = 0; i < heads.size(); ++i)
          std::printf("---|");
        for (const std::string& line : lines) {
          std::printf("\n| %s |", line.c_str());
          for (const std::string& head : heads)
            std::printf(" %s |", cells[line][head].c_str());
        }
        std::printf("\n");
      }
  }

  bool write(const char* path) const {
    std::FILE* const file = std::fopen(path, "w");
    if (!file)
      return false;
    std::fprintf(file, "{\"libraries\": [");
    for (const Library& library : libraries)
      std::fprintf(file, "%s{\"name\": \"%s\", \"level\": \"%s\"}", &library == libraries.data() ? "" : ", ",
                   library.name.c_str(), library.level.c_str());
    std::fprintf(file, "],\n\"results\": [\n");
    for (const Result& r : results) {
      std::fprintf(file,
                   "{\"table\": \"%s\", \"member\": \"%s\", \"type\": \"%s\", \"shape\": \"%s\", \"layout\": \"%s\", "
                   "\"count\": %d, \"ns\": {",
                   r.table.c_str(), r.member.c_str(), r.type.c_str(), r.shape.c_str(), r.layout.c_str(), r.count);
      const char* comma = "";
      for (const auto& [name, ns] : r.ns) {
        std::fprintf(file, "%s\"%s\": %.4g", comma, name.c_str(), ns);
        comma = ", ";
      }
      std::fprintf(file, "}}%s\n", &r == &results.back() ? "" : ",");
    }
    std::fprintf(file, "]}\n");
    return std::fclose(file) == 0;
  }

private:
  static bool isSystem(const Member& member) { return member.name[0] == 'L' || member.name[0] == 'C'; }

  void both(const char* table, const Member& member, const Shape& shape, const Layout& layout, int count) {
    const std::string name = std::string(table) + "/" + member.name + "/" + layout.name + "/" +
                             std::to_string(shape.rows) + "x" + std::to_string(shape.terms) + "x" +
                             std::to_string(shape.columns) + "/" + std::to_string(count);
    for (const std::string& part : wanted)
      if (name.find(part) == std::string::npos)
        return;
    results.push_back(race<Zel32f>(member, shape, layout, count, libraries));
    results.back().table = table;
    results.push_back(race<Zel64f>(member, shape, layout, count, libraries));
    results.back().table = table;
  }

  std::vector<Library> libraries;
  std::vector<std::string> wanted;
  std::vector<Result> results;
};

Library libraryOf(const std::string& text) {
  const std::size_t first = text.find(':');
  const std::size_t second = text.find(':', first + 1);
  if (second == std::string::npos) {
    std::fprintf(stderr, "zelm_bench_grid: --library=<name>:<level>:<path>\n");
    std::exit(EXIT_FAILURE);
  }
  return {text.substr(0, first), text.substr(first + 1, second - first - 1), open(text.substr(second + 1))};
}

} // namespace
} // namespace bench::grid

int main(int argc, char** argv) {
  using namespace bench::grid;
  std::vector<Library> libraries;
  std::vector<std::string> wanted;
  const char* json = nullptr;
  for (int i = 1; i < argc; ++i) {
    if (std::strncmp(argv[i], "--library=", 10) == 0)
      libraries.push_back(libraryOf(argv[i] + 10));
    else if (std::strncmp(argv[i], "--json=", 7) == 0)
      json = argv[i] + 7;
    else
      wanted.emplace_back(argv[i]);
  }
  if (libraries.empty()) {
    const bool widest = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl");
    libraries = {libraryOf("v3:v3:" ZELM_V3_PATH),
                 libraryOf(widest ? "native:native:" ZELM_V4_PATH : "native:native:" ZELM_V3_PATH)};
  }
  omp_set_num_threads(1);
  Grid grid(std::move(libraries), std::move(wanted));
  grid.run();
  grid.print();
  if (json && !grid.write(json)) {
    std::perror(json);
    return EXIT_FAILURE;
  }
  return failed ? EXIT_FAILURE : EXIT_SUCCESS;
}
