// The frame of the benchmark program. A family registers its cases (a row each, see add.cpp); the frame lays out and
// fills the operands, adds the alternatives that know the case's name, times all contenders in alternating short slices
// and reports nanoseconds per object and ratios as the counters of one Google Benchmark entry.
//
// A new family is a file with a function like registerAdd(), declared below and called by main, files of alternatives
// whose rows carry the cases' names, and a line for each of those in CMakeLists.txt. An alternative is named once and
// gets its two builds from there.
#pragma once

#include "alternative.h"

#include <array>
#include <functional>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace bench {

// The library's baseline build and alternatives at plain -O3, its x86-64-v3 build and alternatives at that level, and
// the widest build that this processor runs with alternatives at -march=native.
enum class Build { base, v3, native };
inline constexpr Build builds[] = {Build::base, Build::v3, Build::native};

using Random = std::mt19937;

// Makes one object; the elements are converted to the case's type afterwards.
using Fill = std::function<void(double* object, Random& random)>;

struct Operand {
  int elements; // of one object; pivot indices and scratch are operands too, big enough in elements of the case's type
  bool isArray; // Block::count objects one behind the other, or a single one
  bool isResult;
  Fill fill; // elements between 0.5 and 1.5 where this is empty
};

inline Operand array(int elements, Fill fill = {}) {
  return {elements, true, false, std::move(fill)};
}
inline Operand single(int elements, Fill fill = {}) {
  return {elements, false, false, std::move(fill)};
}
inline Operand results(int elements) {
  return {elements, true, true, {}};
}

struct Contender {
  std::string who;
  Build build;
  Role role;
  std::function<void(const Block&, long repetitions)> run;
  int group = 0; // contenders of a group must give the same results; negative: not compared
};

// A figure of the case's own, computed from two contenders of the same build: first / second, or first - second.
struct Figure {
  std::string name;
  std::string first;
  std::string second;
  bool isDifference = false;
};

struct Case {
  std::string name;              // family/form/type/size
  int elementSize;               // 4 or 8
  std::vector<Operand> operands; // sources in order, then results
  std::vector<Contender> contenders;
  std::string contiguous = {}; // key of a row in alternatives/contiguous.cpp, or nothing
  double tolerance = 0;        // relative, between the contenders' results
  std::vector<Figure> figures = {};
  std::function<void(const Block&)> prepare = {};    // called when the operands are in place
  std::array<int, 3> contiguousOperands = {0, 1, 2}; // which operands that row takes as src1, src2 and dst
};

// Registers the case once for each cache level, with a count that makes all operands together fit it.
void add(const Case& entry);
// Registers it once with this count, under name/suffix.
void add(const Case& entry, const std::string& suffix, int count);

// The address of an exported function in one of the library's builds.
void* libraryAddress(Build build, const char* symbol);

// The builds of exported functions as contenders. `call(function..., block)` works once on the block; it may call
// several functions, such as a decomposition and the solution with it.
template <class... Functions, class Call>
std::vector<Contender> library(const std::array<const char*, sizeof...(Functions)>& symbols, Call call,
                               const char* who = "lib", Role role = Role::library, int group = 0) {
  std::vector<Contender> all;
  for (const Build build : builds) {
    const auto functions = std::apply(
        [build](auto... symbol) { return std::tuple(reinterpret_cast<Functions>(libraryAddress(build, symbol))...); },
        symbols);
    all.push_back({who, build, role,
                   [functions, call](const Block& block, long repetitions) {
                     for (; repetitions > 0; --repetitions)
                       std::apply([&](auto... function) { call(function..., block); }, functions);
                   },
                   group});
  }
  return all;
}

// Run by main before the benchmarks, one for each family.
void registerAdd();
void registerCholesky();
void registerEigen();
void registerEigenSym();
void registerLu();
void registerMeasures();
void registerQR();
void registerMulMatrices();
void registerMulVectors();
void registerVectors();
void registerMoves();

} // namespace bench

// bench::library for one or two functions, typed by their declarations in the public header; behind the names come the
// call and, where they differ from the defaults, name, role and group.
#define BENCH_LIBRARY(function, ...) bench::library<decltype(&function)>({#function}, __VA_ARGS__)
#define BENCH_LIBRARY_2(first, second, ...)                                                                            \
  bench::library<decltype(&first), decltype(&second)>({#first, #second}, __VA_ARGS__)
