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

// Whether data of the kinds that a family runs with tells two sums of n terms apart, src3 added if there is one.
template <class T>
bool toldApart(const Member& m, int n, const std::function<T(const std::vector<T>&)>& one,
               const std::function<T(const std::vector<T>&)>& other) {
  Rng rng(5);
  const bool adds = m.operands[2].name == "src3";
  for (int trial = 0; trial < 40; ++trial)
    for (int kind : m.family->dataKinds) {
      Job job(m, m.square(n, 3));
      for (size_t o = 0; o < m.operands.size(); ++o)
        if (!m.operands[o].output)
          fillDense(job.operands[o], rng, kind);
      Typed<T> typed(job);
      if constexpr (sizeof(T) == 4)
        m.family->fill.single(typed, rng, kind);
      else
        m.family->fill.twofold(typed, rng, kind);
      auto matrix = typed["src1"], vector = typed["src2"];
      for (int i = 0; i < n; ++i) {
        std::vector<T> terms;
        for (int k = 0; k < n; ++k)
          terms.push_back(matrix(0, i, k) * vector(0, k));
        T a = one(terms), b = other(terms);
        if (adds) {
          a = a + typed["src3"](0, i);
          b = b + typed["src3"](0, i);
        }
        if (!sameElement(reinterpret_cast<const unsigned char*>(&a), reinterpret_cast<const unsigned char*>(&b),
                         sizeof(T), false, false))
          return true;
      }
    }
  return false;
}

// Every pair of different sums of the same length.
template <class T> void checkDataTellsApart(const Member& m) {
  for (int n = 3; n <= 6; ++n) {
    std::vector<std::string> texts = {"zero chain"};
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
        EXPECT_TRUE(toldApart<T>(m, n, evaluate(texts[a]), evaluate(texts[b])))
            << m.name << " n " << n << ": " << texts[a] << " and " << texts[b];
  }
}

} // namespace zelmtest

#endif
