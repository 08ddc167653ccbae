// Sums of products as they are documented: text with the brackets as evaluated, digits are terms. Data that tell them
// apart.
#ifndef ZELMTEST_SUMS_H
#define ZELMTEST_SUMS_H

#include "../harness/run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <stdexcept>

namespace zelmtest {

// One line of a table of sums, by length. `last` is the sum of the last result element where it differs.
struct SumRow {
  const char* name;
  const char* of[7];
  const char* last[7];
};

// clang-format off
constexpr SumRow sumRows[] = {
    {"chain",      {"", "", "", "0+1+2", "0+1+2+3",     "0+1+2+3+4",     "0+1+2+3+4+5"},     {}},
    {"even-odd",   {"", "", "", "0+1+2", "(0+2)+(1+3)", "((0+1)+4)+(2+3)", "((0+2)+4)+((1+3)+5)"},
                   {"", "", "", "",      "",            "((0+2)+4)+(1+3)", ""}},
    {"pairs 32",   {"", "", "", "0+1+2", "(0+1)+(2+3)", "((0+1)+4)+(2+3)", "((0+1)+(2+3))+(4+5)"}, {}},
    {"pairs 64",   {"", "", "", "0+1+2", "(0+1)+(2+3)", "((0+1)+(2+3))+4", "((0+1)+(2+3))+(4+5)"}, {}},
    {"tail first", {"", "", "", "0+1+2", "3+0+1+2",     "4+0+1+2+3",     "5+0+1+2+3+4"},     {}},
    {"tail pair",  {"", "", "", "0+1+2", "3+0+1+2",     "4+0+1+2+3",     "5+4+0+1+2+3"},     {}},
    {"two pairs",  {"", "", "", "0+1+2", "(0+1)+(2+3)", "0+1+2+3+4",     "0+1+2+3+4+5"},     {}},
    {"dot 64",     {"", "", "", "0+1+2", "(0+2)+(1+3)", "((0+2)+(1+3))+4", "(0+(2+4))+(1+(3+5))"}, {}},
    {"norm 64",    {"", "", "", "2+0+1", "(0+2)+(1+3)", "((0+2)+4)+(1+3)", "((0+2)+4)+((1+3)+5)"}, {}},
    {"norm 32",    {"", "", "", "0+1+2", "0+1+2+3",     "((0+1)+(2+3))+4", "((0+2)+4)+((1+3)+5)"}, {}},
};
// clang-format on

// Reads a sum, left to right; brackets first.
template <class T> T readSum(const char*& text, const std::vector<T>& terms) {
  const auto operand = [&] {
    if (*text != '(')
      return terms[static_cast<size_t>(*text++ - '0')];
    ++text;
    const T inner = readSum(text, terms);
    ++text;
    return inner;
  };
  T sum = operand();
  while (*text == '+') {
    ++text;
    sum = sum + operand();
  }
  return sum;
}

// The sum with this name of result element i of square matrices of side 3 to 6. All other sizes, and "zero chain" at
// any size, start from +0.0.
template <class T> T sumOf(std::string_view name, int width, int height, int i, const std::vector<T>& terms) {
  const SumRow* const row =
      std::find_if(std::begin(sumRows), std::end(sumRows), [&](const SumRow& r) { return name == r.name; });
  const bool named = row != std::end(sumRows);
  if (!named && name != "zero chain")
    throw std::logic_error("no sum is called " + std::string(name));
  if (named && width == height && width >= 3 && width <= 6) {
    const char* text = row->of[width];
    if (i == width - 1 && row->last[width] != nullptr && *row->last[width] != '\0')
      text = row->last[width];
    return readSum(text, terms);
  }
  T sum = 0;
  for (T term : terms)
    sum = sum + term;
  return sum;
}

// Data whose products are all -0.0, and what is added to their sum too.
constexpr int negativeZeros = 9;

template <class Job> void fillNegativeZeros(Job& job, Rng& rng) {
  for (const OperandInfo& op : job.member().operands) {
    auto view = job[op.name];
    for (int k = 0; !op.output && k < job.count(); ++k)
      for (int i = 0; i < view.rows(); ++i)
        for (int j = 0; j < view.cols(); ++j)
          view.set(k, i, j, op.name == "src1" ? static_cast<float>(rng.within(1, 9)) : -0.0f);
  }
}

// The start of the sum in every kernel at every size.
inline void checkNegativeZeros() {
  for (const Member& m : members())
    for (const Sizes& s : m.shapes())
      for (Spread spread : {Spread::Packed, Spread::PaddedRows, Spread::Double})
        for (int32_t count : {1, 19}) {
          CaseSpec spec;
          spec.id = "Z";
          spec.sizes = s;
          if (m.hasCount)
            spec.sizes.set("count", count);
          Plan plan;
          plan.spread = spread;
          spec.plans.assign(m.operands.size(), plan);
          spec.dataKind = negativeZeros;
          ASSERT_EQ("", runCase(m, spec)) << m.name << s.text();
        }
}

// Data for families of sums: in some of it all terms of some elements are -0.0, which tells a sum that starts from +0.0
// from one that starts with a term.
template <class Job> void fillSums(Job& job, Rng& rng, int kind) {
  if (kind == negativeZeros)
    fillNegativeZeros(job, rng);
  if (kind != 3)
    return;
  auto matrix = job["src1"];
  auto vector = job["src2"];
  for (int k = 0; k < job.count(); ++k) {
    for (int j = 0; j < vector.cols(); ++j)
      vector.set(k, j, vector(k, j) < 0 ? -vector(k, j) : vector(k, j));
    const int row = rng.below(matrix.rows());
    for (int j = 0; j < matrix.cols(); ++j) {
      matrix.set(k, row, j, -0.0f);
      if (j < vector.cols() && std::signbit(vector(k, j)))
        vector.set(k, j, 0.0f);
    }
  }
}

// Calls visit(terms, result) for the sums of a job's first object; result(sum) is what becomes of a sum.
template <class T> using Visit = std::function<void(const std::vector<T>&, const std::function<T(T)>&)>;
template <class T> void visitProducts(Typed<T>& job, const Visit<T>& visit) {
  auto matrix = job["src1"], vector = job["src2"];
  const bool adds = job.member().operands[2].name == "src3";
  for (int i = 0; i < matrix.rows(); ++i) {
    std::vector<T> terms;
    for (int k = 0; k < matrix.cols(); ++k)
      terms.push_back(matrix(0, i, k) * vector(0, k));
    visit(terms, [&](T sum) { return adds ? sum + job["src3"](0, i) : sum; });
  }
}

// Whether data of the kinds that a family runs with tells two sums of n terms apart.
template <class T, class Sums>
bool toldApart(const Member& m, int n, const Sums& sums, const std::function<T(const std::vector<T>&)>& one,
               const std::function<T(const std::vector<T>&)>& other) {
  Rng rng(5);
  for (int trial = 0; trial < 40; ++trial)
    for (int kind : m.family->dataKinds) {
      Job job(m, m.square(n, 3));
      for (size_t o = 0; o < m.operands.size(); ++o)
        if (!m.operands[o].output)
          fillDense(job.operands[o], rng, kind);
      Typed<T> typed(job);
      if constexpr (sizeof(T) == 4) {
        if (m.family->fill.single)
          m.family->fill.single(typed, rng, kind);
      } else if (m.family->fill.twofold) {
        m.family->fill.twofold(typed, rng, kind);
      }
      bool differ = false;
      sums(typed, [&](const std::vector<T>& terms, const std::function<T(T)>& result) {
        const T a = result(one(terms)), b = result(other(terms));
        differ = differ || !sameElement(reinterpret_cast<const unsigned char*>(&a),
                                        reinterpret_cast<const unsigned char*>(&b), sizeof(T), false, false);
      });
      if (differ)
        return true;
    }
  return false;
}

// Every pair of different sums of the same length. Where no term can be -0.0, a chain is the same from +0.0 on.
template <class T, class Sums> void checkDataTellsApart(const Member& m, const Sums& sums, bool startShows = true) {
  for (int n = 3; n <= 6; ++n) {
    std::vector<std::string> texts(startShows ? 1 : 0, "zero chain");
    for (const SumRow& row : sumRows)
      for (const char* text : {row.of[n], row.last[n]})
        if (text != nullptr && *text != '\0' && std::find(texts.begin(), texts.end(), text) == texts.end())
          texts.push_back(text);
    const auto evaluate = [](const std::string& text) -> std::function<T(const std::vector<T>&)> {
      if (text == "zero chain")
        return [](const std::vector<T>& terms) { return sumOf<T>("zero chain", 1, 1, 0, terms); };
      return [text](const std::vector<T>& terms) {
        const char* at = text.c_str();
        return readSum(at, terms);
      };
    };
    for (size_t a = 0; a < texts.size(); ++a)
      for (size_t b = 0; b < a; ++b)
        EXPECT_TRUE(toldApart<T>(m, n, sums, evaluate(texts[a]), evaluate(texts[b])))
            << m.name << " n " << n << ": " << texts[a] << " and " << texts[b];
  }
}
template <class T> void checkDataTellsApart(const Member& m) {
  checkDataTellsApart<T>(m, visitProducts<T>);
}

// A long run in the two accumulators that its address gives it: the terms before the first multiple of 16 start lane 0
// of the first. Runs that are too short, or can never be aligned, are added one by one from +0.0.
template <class T> T longSum(uintptr_t address, const std::vector<T>& t) {
  const size_t lanes = 16 / sizeof(T), lead = (16 - address % 16) % 16 / sizeof(T);
  if (address % sizeof(T) != 0 || t.size() < lead + 8)
    return sumOf("zero chain", 0, 0, 0, t);
  const size_t end = t.size() - (t.size() - lead) % 8;
  std::vector<T> a(lanes), b(lanes);
  for (size_t k = 0; k < lead; ++k)
    a[0] = a[0] + t[k];
  for (size_t k = lead; k < end; ++k) {
    std::vector<T>& lane = (k - lead) / lanes % 2 == 0 ? a : b;
    lane[(k - lead) % lanes] = lane[(k - lead) % lanes] + t[k];
  }
  for (size_t w = 0; w < lanes; ++w)
    a[w] = a[w] + b[w];
  T sum = lanes == 4 ? (a[0] + a[1]) + (a[2] + a[3]) : a[0] + a[1];
  for (size_t k = end; k < t.size(); ++k)
    sum = sum + t[k];
  return sum;
}

// Long and short runs of the single members at every address of `tested`, the other operands anywhere.
inline void checkLongSums(const char* tested) {
  Rng rng(3);
  for (const Member& m : members())
    for (int len = 1; !m.hasCount && m.layout == 'S' && len < 200; len += len < 45 ? 1 : 51)
      for (int offset = 0; offset < 16; ++offset)
        for (int kind : m.family->dataKinds) {
          CaseSpec spec;
          spec.id = "L";
          spec.sizes = m.square(len, 1);
          spec.dataKind = kind;
          spec.seed = rng.next();
          for (const OperandInfo& op : m.operands) {
            Plan plan;
            plan.atEnd = rng.chance(2);
            plan.offset = op.name == tested ? offset : rng.below(16);
            spec.plans.push_back(plan);
          }
          ASSERT_EQ("", runCase(m, spec)) << m.name << " len " << len << " offset " << offset;
        }
}

// The data tells the long sums of every two alignments apart.
template <class T, class Sums> void checkDataTellsLongSumsApart(const Member& m, const Sums& sums) {
  for (int n : {11, 16, 17, 33})
    for (uintptr_t a = 0; a <= 16; a += sizeof(T))
      for (uintptr_t b = 0; b < a; b += sizeof(T)) {
        const auto at = [](uintptr_t address) { // the last is no multiple of the element's size
          return [=](const std::vector<T>& terms) { return longSum(address == 16 ? 1 : address, terms); };
        };
        EXPECT_TRUE(toldApart<T>(m, n, sums, at(a), at(b))) << m.name << " n " << n << ": " << a << " and " << b;
      }
}

} // namespace zelmtest

#endif
