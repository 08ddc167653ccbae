// The frame of the benchmark program. A family registers its cases (a row each, see add.cpp); the frame lays out and
// fills the operands, adds the alternatives that know the case's name, times all contenders in alternating short slices
// and reports nanoseconds per object and ratios as the counters of one Google Benchmark entry.
#pragma once

#include "alternative.h"

#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// The library's baseline build and alternatives at plain -O3, or its x86-64-v3 build and alternatives at -march=native.
enum class Build { base, wide };

using Random = std::mt19937;

// Makes one object; the elements are converted to the case's type afterwards.
using Fill = std::function<void(double* object, Random& random)>;

struct Operand {
  int elements; // of one object
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
  std::string contiguous = {}; // row of alternatives/contiguous.cpp, or nothing
  double tolerance = 0;        // relative, between the contenders' results
  std::vector<Figure> figures = {};
  std::function<void(const Block&)> prepare = {}; // called when the operands are in place
};

// Registers the case once for each cache level, with a count that makes all operands together fit it.
void add(const Case& entry);
// Registers it once with this count, under name/suffix.
void add(const Case& entry, const std::string& suffix, int count);

// The address of an exported function in one of the library's two builds.
void* libraryAddress(Build build, const char* symbol);

// The two builds of an exported function `symbol` as contenders. `call(function, block)` makes one call on the block.
template <class Function, class Call>
std::vector<Contender> library(const char* symbol, Call call, const char* who = "lib", Role role = Role::library,
                               int group = 0) {
  std::vector<Contender> pair;
  for (const Build build : {Build::base, Build::wide}) {
    const auto function = reinterpret_cast<Function>(libraryAddress(build, symbol));
    pair.push_back({who, build, role,
                    [function, call](const Block& block, long repetitions) {
                      for (; repetitions > 0; --repetitions)
                        call(function, block);
                    },
                    group});
  }
  return pair;
}

// Run by main before the benchmarks, one for each family.
void registerAdd();

} // namespace bench

// Two builds of an exported function, typed by its declaration in the public header.
#define BENCH_LIBRARY(function, ...) bench::library<decltype(&function)>(#function, __VA_ARGS__)
