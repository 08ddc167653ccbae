// What the element-wise families share: work estimates, orders of tests, references, and what no test of the arguments
// looks at.
#ifndef ZELMTEST_ELEMENTWISE_H
#define ZELMTEST_ELEMENTWISE_H

#include "../harness/job.h"

#include <gtest/gtest.h>

#include <cstring>

namespace zelmtest {

inline uint32_t oneArray(const Sizes& s) {
  return s["width"] * s["height"] * (2 * s["count"] + 1);
}
inline uint32_t allArrays(const Sizes& s) {
  return 3 * s["width"] * s["height"] * s["count"];
}
inline uint32_t oneArrayOfVectors(const Sizes& s) {
  return s["len"] * (2 * s["count"] + 1);
}
inline uint32_t arraysOfVectors(const Sizes& s) {
  return 3 * s["len"] * s["count"];
}
inline uint32_t vectorsAndConstants(const Sizes& s) {
  return s["count"] * (2 * s["len"] + 1);
}
inline uint32_t vectorAndConstants(const Sizes& s) {
  return s["len"] * s["count"] + s["len"] + s["count"];
}

constexpr Orders single = {"NZS", nullptr, "NZH"}, array = {"NCZS", "NCZSH", "NCZSH"};
// Of some matrices by a single one: the size test of the standard layout comes last.
constexpr Orders sizeLast = {"NCSZ", "NCZSH", "NCZSH"};
// Of vectors by a single one: the count is tested behind the strides, in the list layout behind the shifts.
constexpr Orders countLast = {"NZSC", "NZSHC", "NZSCH"};

// Add and Sub.
constexpr Limits matrices32 = {3000, 2000, 2000, 2000, 2000}, matrices64 = {2000, 2000, 2000, 2000, 2000};
constexpr Limits vectors32 = {4800, 4800, 2500, 2500, 1500}, vectors64 = {1400, 1400, 2500, 2500, 1500};

template <class Op> References ofMatrices(Op op) {
  return both([op](auto& job) {
    auto src1 = job["src1"], src2 = job["src2"], dst = job["dst"];
    for (int k = 0; k < job.count(); ++k)
      for (int i = 0; i < job.size("height"); ++i)
        for (int j = 0; j < job.size("width"); ++j)
          dst.set(k, i, j, op(src1(k, i, j), src2(k, i, j)));
  });
}
// src1 is the vector where one is a constant, whichever comes first in the name.
template <class Op> References ofVectors(Op op) {
  return both([op](auto& job) {
    auto src1 = job["src1"], src2 = job["src2"], dst = job["dst"];
    const std::string& form = job.member().formName;
    const bool constant = form.find('c') != std::string::npos;
    for (int k = 0; k < job.count(); ++k)
      for (int j = 0; j < job.size("len"); ++j) {
        const auto a = src1(k, 0, j), b = src2(k, 0, constant ? 0 : j);
        dst.set(k, 0, j, form[0] == 'c' ? op(b, a) : op(a, b));
      }
  });
}

// Which kernels of the list layout call one of the single form for each vector.
inline std::string delegateOfVectors(const Member& m, const Sizes&, bool unit) {
  return m.layout == 'L' && !unit && (m.formName == "vav" || m.formName == "vava") ? m.kernelOfOne("_S2") : "";
}

// A vector with each of two constants, in the pointer layout: call(src, shift, constants, dst). Shifts that are no
// multiples of an element, and shifts below 0.
template <class T, class Op, class Call> void checkUntestedShifts(Op op, Call call) {
  constexpr int E = sizeof(T);
  alignas(T) char memory[200] = {};
  const T given[] = {T(1.5), T(-2.25), 3}, constants[] = {10, 20};
  for (int shift : {-8, -3, 0, E / 2, 13}) {
    std::memcpy(memory + 16 + shift, given, sizeof given);
    const T* src[3];
    T* dst[3];
    for (int j = 0; j < 3; ++j) {
      src[j] = reinterpret_cast<const T*>(memory + 16 + E * j);
      dst[j] = reinterpret_cast<T*>(memory + 100 - shift + 2 * E * j);
    }
    ASSERT_EQ(zelStatusOk, call(src, shift, constants, dst));
    for (int k = 0; k < 2; ++k)
      for (int j = 0; j < 3; ++j) {
        T result;
        std::memcpy(&result, memory + 100 + E * (2 * j + k), sizeof result);
        ASSERT_EQ(op(constants[k], given[j]), result) << "shift " << shift;
      }
  }
}

} // namespace zelmtest

#endif
