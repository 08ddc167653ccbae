// The frame of an exported function: the ordered tests, the work estimate, the choice between kernel and front.
#pragma once

#include "zelmkernel.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Tests of the arguments

struct TestNull {
  template <class... A> static ZelStatus test(const A&... a) {
    return (a.null() || ...) ? zelStatusNullPointer : zelStatusOk;
  }
};
struct TestCount {
  template <class... A> static ZelStatus test(const A&... a) {
    return (a.badCount() || ...) ? zelStatusBadCount : zelStatusOk;
  }
};
struct TestSize {
  template <class... A> static ZelStatus test(const A&... a) {
    return (a.badSize() || ...) ? zelStatusBadSize : zelStatusOk;
  }
};
struct TestStride {
  template <class... A> static ZelStatus test(const A&... a) {
    return (a.badStride() || ...) ? zelStatusBadStride : zelStatusOk;
  }
};
struct TestShift {
  template <class... A> static ZelStatus test(const A&... a) {
    return (a.badShift() || ...) ? zelStatusBadShift : zelStatusOk;
  }
};
// The agreement of the operands' sizes: Rule::agree looks at the arguments that it needs.
template <class Rule> struct TestAgreement {
  template <class... A> static ZelStatus test(const A&... a) {
    return Rule::agree(a...) ? zelStatusOk : zelStatusSizeMismatch;
  }
};

// The tests of a member in their order; the first that fails decides the status.
template <class... Tests> struct Order {
  template <class... A> ZELM_INLINE static ZelStatus test(const A&... a) {
    ZelStatus status = zelStatusOk;
    static_cast<void>(((status = Tests::test(a...), status == zelStatusOk) && ...));
    return status;
  }
};

// N null, C count, Z size, M agreement, S stride, H shift.
// clang-format off
using N_Z_S     = Order<TestNull, TestSize, TestStride>;
using N_Z_H     = Order<TestNull, TestSize, TestShift>;
using N_C_S     = Order<TestNull, TestCount, TestStride>;
using N_C_Z_S   = Order<TestNull, TestCount, TestSize, TestStride>;
using N_C_S_Z   = Order<TestNull, TestCount, TestStride, TestSize>;
using N_C_Z_S_H = Order<TestNull, TestCount, TestSize, TestStride, TestShift>;
using N_S_H_Z_C = Order<TestNull, TestStride, TestShift, TestSize, TestCount>;
template <class Rule> using N_Z_M_S     = Order<TestNull, TestSize, TestAgreement<Rule>, TestStride>;
template <class Rule> using N_Z_M_H     = Order<TestNull, TestSize, TestAgreement<Rule>, TestShift>;
template <class Rule> using N_C_Z_M_S   = Order<TestNull, TestCount, TestSize, TestAgreement<Rule>, TestStride>;
template <class Rule> using N_C_Z_M_S_H = Order<TestNull, TestCount, TestSize, TestAgreement<Rule>, TestStride, TestShift>;
template <class Rule> using N_Z_S_M     = Order<TestNull, TestSize, TestStride, TestAgreement<Rule>>;
template <class Rule> using N_Z_H_M     = Order<TestNull, TestSize, TestShift, TestAgreement<Rule>>;
template <class Rule> using N_C_Z_S_M   = Order<TestNull, TestCount, TestSize, TestStride, TestAgreement<Rule>>;
template <class Rule> using N_C_Z_S_H_M = Order<TestNull, TestCount, TestSize, TestStride, TestShift, TestAgreement<Rule>>;
// clang-format on

// ---------------------------------------------------------------------------------------------------------------------
// Work estimates

// Arithmetic of the estimates: 32 bits that wrap.
struct Wrapping {
  uint32_t value;
  constexpr Wrapping(uint32_t v) : value(v) {}
  constexpr Wrapping(int v) : value(static_cast<uint32_t>(v)) {}
  constexpr Wrapping(const Size& size) : value(static_cast<uint32_t>(size.value)) {}
  constexpr Wrapping(const Count& count) : value(static_cast<uint32_t>(count.value)) {}
  friend constexpr Wrapping operator+(Wrapping a, Wrapping b) { return {a.value + b.value}; }
  friend constexpr Wrapping operator*(Wrapping a, Wrapping b) { return {a.value * b.value}; }
};

// From which estimate on a call forks, in the three comparisons that are in use. The wrapped estimate is compared as a
// signed number: one that has wrapped below zero stays on the calling thread.
struct Forks {
  int64_t from;
  constexpr bool operator()(Wrapping estimate) const { return static_cast<int32_t>(estimate.value) >= from; }
};
constexpr Forks from(int32_t limit) {
  return {limit};
}
constexpr Forks above(int32_t limit) {
  return {static_cast<int64_t>(limit) + 1};
}
// For the families that state it the other way round: below the limit a call stays unthreaded. The same as from().
constexpr Forks notBelow(int32_t limit) {
  return {limit};
}

// ---------------------------------------------------------------------------------------------------------------------
// Frames

template <class... A> ZELM_INLINE bool unitStrides(const A&... a) {
  return (a.unit() && ...);
}

template <class Kernel, class... A> ZELM_INLINE ZelStatus callUnit(Kernel kernel, const A&... a) {
  return kernel(a.template forKernel<UnitStride>()...);
}

// Fast kernel or any-stride kernel: single objects, standard layout.
template <class Tests, class Unit, class Any, class... A>
ZELM_INLINE ZelStatus single(Tests, Unit unitKernel, Any anyKernel, const A&... a) {
  if (const ZelStatus status = Tests::test(a...); status != zelStatusOk)
    return status;
  return unitStrides(a...) ? callUnit(unitKernel, a...) : anyKernel(a...);
}

// Single objects, pointer layout.
template <class Tests, class Kernel, class... A>
ZELM_INLINE ZelStatus singlePointer(Tests, Kernel kernel, const A&... a) {
  if (const ZelStatus status = Tests::test(a...); status != zelStatusOk)
    return status;
  return kernel(a...);
}

// Arrays in the standard and list layouts: the strides first, then the estimate of the branch.
template <class Tests, class Estimate, class Unit, class Any, class Front, class... A>
ZELM_INLINE ZelStatus strideFirst(Tests, Estimate, Forks unitForks, Forks anyForks, Unit unitKernel, Any anyKernel,
                                  Front front, const A&... a) {
  if (const ZelStatus status = Tests::test(a...); status != zelStatusOk)
    return status;
  const Wrapping estimate = Estimate::of(a...);
  if (unitStrides(a...))
    return unitForks(estimate) ? front(a...) : callUnit(unitKernel, a...);
  return anyForks(estimate) ? front(a...) : anyKernel(a...);
}

// Arrays in the standard and list layouts: the estimate first; the strides only on the calling thread.
template <class Tests, class Estimate, class Unit, class Any, class Front, class... A>
ZELM_INLINE ZelStatus estimateFirst(Tests, Estimate, Forks forks, Unit unitKernel, Any anyKernel, Front front,
                                    const A&... a) {
  if (const ZelStatus status = Tests::test(a...); status != zelStatusOk)
    return status;
  if (forks(Estimate::of(a...)))
    return front(a...);
  return unitStrides(a...) ? callUnit(unitKernel, a...) : anyKernel(a...);
}

// Arrays in the pointer layout.
template <class Tests, class Estimate, class Kernel, class Front, class... A>
ZELM_INLINE ZelStatus arrayPointer(Tests, Estimate, Forks forks, Kernel kernel, Front front, const A&... a) {
  if (const ZelStatus status = Tests::test(a...); status != zelStatusOk)
    return status;
  return forks(Estimate::of(a...)) ? front(a...) : kernel(a...);
}

} // namespace zelm

// ---------------------------------------------------------------------------------------------------------------------
// Rows of exported functions, which the public header makes visible. SIG is a signature of zelmsignature.h, ORDER and
// ESTIMATE are types.

// Single objects, standard layout.
#define SINGLE(FUNCTION, SIG, T, ORDER, UNIT_KERNEL, ANY_KERNEL)                                                       \
  ZELM_DECLARE(UNIT_KERNEL, SIG, UNIT, T);                                                                             \
  ZELM_DECLARE(ANY_KERNEL, SIG, ANY, T);                                                                               \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, T)) {                                                                       \
    return zelm::single(zelm::ORDER{}, UNIT_KERNEL, ANY_KERNEL, SIG(ARG, T));                                          \
  }

// Single objects, pointer layout.
#define SINGLE_POINTER(FUNCTION, SIG, T, ORDER, KERNEL)                                                                \
  ZELM_DECLARE(KERNEL, SIG, ANY, T);                                                                                   \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, T)) {                                                                       \
    return zelm::singlePointer(zelm::ORDER{}, KERNEL, SIG(ARG, T));                                                    \
  }

// Arrays, standard and list layout, strides before the estimate.
#define STRIDE_FIRST(FUNCTION, SIG, T, ORDER, ESTIMATE, UNIT_FORKS, ANY_FORKS, UNIT_KERNEL, ANY_KERNEL, FRONT)         \
  ZELM_DECLARE(UNIT_KERNEL, SIG, UNIT, T);                                                                             \
  ZELM_DECLARE(ANY_KERNEL, SIG, ANY, T);                                                                               \
  ZELM_DECLARE(FRONT, SIG, ANY, T);                                                                                    \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, T)) {                                                                       \
    return zelm::strideFirst(zelm::ORDER{}, zelm::ESTIMATE{}, zelm::UNIT_FORKS, zelm::ANY_FORKS, UNIT_KERNEL,          \
                             ANY_KERNEL, FRONT, SIG(ARG, T));                                                          \
  }

// Arrays, standard and list layout, estimate before the strides.
#define ESTIMATE_FIRST(FUNCTION, SIG, T, ORDER, ESTIMATE, FORKS, UNIT_KERNEL, ANY_KERNEL, FRONT)                       \
  ZELM_DECLARE(UNIT_KERNEL, SIG, UNIT, T);                                                                             \
  ZELM_DECLARE(ANY_KERNEL, SIG, ANY, T);                                                                               \
  ZELM_DECLARE(FRONT, SIG, ANY, T);                                                                                    \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, T)) {                                                                       \
    return zelm::estimateFirst(zelm::ORDER{}, zelm::ESTIMATE{}, zelm::FORKS, UNIT_KERNEL, ANY_KERNEL, FRONT,           \
                               SIG(ARG, T));                                                                           \
  }

// Arrays, pointer layout.
#define ARRAY_POINTER(FUNCTION, SIG, T, ORDER, ESTIMATE, FORKS, KERNEL, FRONT)                                         \
  ZELM_DECLARE(KERNEL, SIG, ANY, T);                                                                                   \
  ZELM_DECLARE(FRONT, SIG, ANY, T);                                                                                    \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, T)) {                                                                       \
    return zelm::arrayPointer(zelm::ORDER{}, zelm::ESTIMATE{}, zelm::FORKS, KERNEL, FRONT, SIG(ARG, T));               \
  }
