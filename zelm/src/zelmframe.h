// The frame of an exported function: the ordered tests, the work estimate, the choice between kernel and front.
#pragma once

#include "zelmkernel.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Tests of the arguments

template <class... A> constexpr int32_t countOf(const A&... a) {
  int32_t count = 0;
  const auto look = [&count](const auto& argument) {
    if constexpr (std::is_same_v<std::decay_t<decltype(argument)>, Count>)
      count = argument;
  };
  (look(a), ...);
  return count;
}

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
    return ((a.badObjectStride() || a.badElementStride()) || ...) ? zelStatusBadStride : zelStatusOk;
  }
};
struct TestElementStride {
  template <class... A> static ZelStatus test(const A&... a) {
    return (a.badElementStride() || ...) ? zelStatusBadStride : zelStatusOk;
  }
};
// A single object has no use for the stride to the next one.
struct TestObjectStrideOfSeveral {
  template <class... A> static ZelStatus test(const A&... a) {
    return countOf(a...) > 1 && (a.badObjectStride() || ...) ? zelStatusBadStride : zelStatusOk;
  }
};
// The strides of all operands but the first.
struct TestRestStride {
  template <class First, class... A> static ZelStatus test(const First&, const A&... a) {
    return TestStride::test(a...);
  }
};
struct TestShift {
  template <class... A> static ZelStatus test(const A&... a) {
    return (a.badShift() || ...) ? zelStatusBadShift : zelStatusOk;
  }
};
// The shift and the strides of the source, then those of the results.
struct TestSourceFirst {
  template <class Source, class... A> static ZelStatus test(const Source& src, const A&... rest) {
    if (const ZelStatus status = TestShift::test(src); status != zelStatusOk)
      return status;
    if (const ZelStatus status = TestStride::test(src); status != zelStatusOk)
      return status;
    if (const ZelStatus status = TestShift::test(rest...); status != zelStatusOk)
      return status;
    return TestStride::test(rest...);
  }
};
// The agreement of the operands' sizes: Rule::agree looks at the arguments that it needs.
template <class Rule> struct TestAgreement {
  template <class... A> static ZelStatus test(const A&... a) {
    return Rule::agree(a...) ? zelStatusOk : zelStatusSizeMismatch;
  }
};

// The tests of a member in their order; the first that fails decides the status. What settles a call needs no kernel: a
// test that fails; in some families, work that is done before a kernel is chosen.
template <class... Tests> struct Order {
  template <class... A> ZELM_INLINE static bool settles(ZelStatus& status, const A&... a) {
    return ((status = Tests::test(a...), status != zelStatusOk) || ...);
  }
};

// N null, C count, Z size, M agreement, S stride, R stride but of the first operand, H shift. E strides but those from
// object to object, O these, if there are several objects.
// clang-format off
using N_Z_S     = Order<TestNull, TestSize, TestStride>;
using N_Z_H     = Order<TestNull, TestSize, TestShift>;
using N_Z_C_S   = Order<TestNull, TestSize, TestCount, TestStride>;
using N_Z_C_H_S = Order<TestNull, TestSize, TestCount, TestShift, TestStride>;
using N_Z_C_H_S_H_S = Order<TestNull, TestSize, TestCount, TestSourceFirst>;
using N_Z_C_E_O   = Order<TestNull, TestSize, TestCount, TestElementStride, TestObjectStrideOfSeveral>;
using N_Z_C_E_H_O = Order<TestNull, TestSize, TestCount, TestElementStride, TestShift, TestObjectStrideOfSeveral>;
using N_Z_C_H_E_O = Order<TestNull, TestSize, TestCount, TestShift, TestElementStride, TestObjectStrideOfSeveral>;
using N_Z_C_H_O   = Order<TestNull, TestSize, TestCount, TestShift, TestObjectStrideOfSeveral>;
using N_Z_H_C_O   = Order<TestNull, TestSize, TestShift, TestCount, TestObjectStrideOfSeveral>;
using Z_N_H     = Order<TestSize, TestNull, TestShift>;
using N_S       = Order<TestNull, TestStride>;
using N_H       = Order<TestNull, TestShift>;
using N_C_S     = Order<TestNull, TestCount, TestStride>;
using N_C_S_H   = Order<TestNull, TestCount, TestStride, TestShift>;
using N_S_C     = Order<TestNull, TestStride, TestCount>;
using N_S_H_C   = Order<TestNull, TestStride, TestShift, TestCount>;
using N_S_C_H   = Order<TestNull, TestStride, TestCount, TestShift>;
using N_C_Z_S   = Order<TestNull, TestCount, TestSize, TestStride>;
using N_C_S_Z   = Order<TestNull, TestCount, TestStride, TestSize>;
using N_C_Z_S_H = Order<TestNull, TestCount, TestSize, TestStride, TestShift>;
using N_Z_S_C   = Order<TestNull, TestSize, TestStride, TestCount>;
using N_Z_S_H_C = Order<TestNull, TestSize, TestStride, TestShift, TestCount>;
using N_Z_S_C_H = Order<TestNull, TestSize, TestStride, TestCount, TestShift>;
using N_C_Z_R_H = Order<TestNull, TestCount, TestSize, TestRestStride, TestShift>;
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

// An estimate is a function of the call's sizes and count, in their order. (Products need the operands besides: it
// depends on them what their sizes mean.)
template <class Estimate> ZELM_INLINE auto estimateOfSizes(const Estimate& estimate) {
  return estimate();
}
template <class Estimate, class First, class... Rest>
ZELM_INLINE auto estimateOfSizes(const Estimate& estimate, const First& first, const Rest&... rest) {
  if constexpr (std::is_same_v<First, Size> || std::is_same_v<First, Count>)
    return estimateOfSizes([&](const auto&... more) { return estimate(first, more...); }, rest...);
  else
    return estimateOfSizes(estimate, rest...);
}
template <class Estimate, class... A> ZELM_INLINE auto estimateOf(const Estimate& estimate, const A&... a) {
  if constexpr (std::is_invocable_v<Estimate, const A&...>)
    return estimate(a...);
  else
    return estimateOfSizes(estimate, a...);
}

// Traces, determinants.
constexpr Wrapping sides(Size widthHeight, Count count) {
  return Wrapping(widthHeight) * count;
}
// Decompositions of square matrices.
constexpr Wrapping squares(Size widthHeight, Count count) {
  return Wrapping(widthHeight) * widthHeight * count;
}
// A factor for each right side.
constexpr Wrapping factorEach(Size widthHeight, Count count) {
  return (Wrapping(widthHeight) + 2) * widthHeight * count;
}
// One factor for all right sides.
constexpr Wrapping oneFactor(Size widthHeight, Count count) {
  return (Wrapping(2) * count + widthHeight) * widthHeight;
}

// From which estimate on a call forks, in the comparisons that are in use. The wrapped estimate is compared as a
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

// ---------------------------------------------------------------------------------------------------------------------
// Work: how much there is to do for the threads of a front

// Functions like the estimates, which count what is computed: in additions, and without wrapping.

// Unless its family says otherwise a call moves the elements of its arrays, mostly beyond the first cache level: what
// is worth a thread does not fit it.
struct Moves {
  static constexpr double scattered = 6; // times as long where elements are loaded and stored one by one
  static double extent(const Size& size) { return size.value; }
  static double extent(const Count& count) { return count.value; }
  template <class Operand> static double extent(const Operand&) { return 1; }
  template <class... A> double operator()(const A&... a) const {
    return 1.5 * (static_cast<double>(A::isArray) + ...) * (extent(a) * ...);
  }
};
template <class Signature> inline constexpr Moves workFor;
// ZELM_WORK(SIG) = function; says what a call with the arguments SIG is worth.
#define ZELM_WORK(SIG)                                                                                                 \
  struct SIG##_Work;                                                                                                   \
  template <> inline constexpr auto workFor<SIG##_Work>

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
  if (ZelStatus status = zelStatusOk; Tests::settles(status, a...))
    return status;
  return unitStrides(a...) ? callUnit(unitKernel, a...) : anyKernel(a...);
}

// Single objects, pointer layout.
template <class Tests, class Kernel, class... A>
ZELM_INLINE ZelStatus singlePointer(Tests, Kernel kernel, const A&... a) {
  if (ZelStatus status = zelStatusOk; Tests::settles(status, a...))
    return status;
  return kernel(a...);
}

// Arrays in the standard and list layouts: the strides first, then the estimate of the branch.
template <class Tests, class Estimate, class Unit, class Any, class Front, class... A>
ZELM_INLINE ZelStatus strideFirst(Tests, const Estimate& estimateOfCall, Forks unitForks, Forks anyForks,
                                  Unit unitKernel, Any anyKernel, Front front, const A&... a) {
  if (ZelStatus status = zelStatusOk; Tests::settles(status, a...))
    return status;
  const Wrapping estimate = estimateOf(estimateOfCall, a...);
  if (unitStrides(a...))
    return unitForks(estimate) ? front(a...) : callUnit(unitKernel, a...);
  return anyForks(estimate) ? front(a...) : anyKernel(a...);
}

// Arrays in the standard and list layouts: the estimate first; the strides only on the calling thread.
template <class Tests, class Estimate, class Unit, class Any, class Front, class... A>
ZELM_INLINE ZelStatus estimateFirst(Tests, const Estimate& estimate, Forks forks, Unit unitKernel, Any anyKernel,
                                    Front front, const A&... a) {
  if (ZelStatus status = zelStatusOk; Tests::settles(status, a...))
    return status;
  if (forks(estimateOf(estimate, a...)))
    return front(a...);
  return unitStrides(a...) ? callUnit(unitKernel, a...) : anyKernel(a...);
}

// Arrays in the pointer layout.
template <class Tests, class Estimate, class Kernel, class Front, class... A>
ZELM_INLINE ZelStatus arrayPointer(Tests, const Estimate& estimate, Forks forks, Kernel kernel, Front front,
                                   const A&... a) {
  if (ZelStatus status = zelStatusOk; Tests::settles(status, a...))
    return status;
  return forks(estimateOf(estimate, a...)) ? front(a...) : kernel(a...);
}

// Functions that work themselves, without kernel or front: body(a...) for unit strides and for any.
template <class Tests, class Body, class... A> ZELM_INLINE ZelStatus direct(Tests, const Body& body, const A&... a) {
  if (ZelStatus status = zelStatusOk; Tests::settles(status, a...))
    return status;
  return unitStrides(a...) ? callUnit(body, a...) : body(a...);
}

} // namespace zelm

// ---------------------------------------------------------------------------------------------------------------------
// Rows of exported functions, which the public header makes visible. SIG is a signature of zelmsignature.h, Y its
// layout, ORDER a type, ESTIMATE a function of sizes and count.

// Single objects, standard layout.
#define SINGLE(FUNCTION, SIG, Y, T, ORDER, UNIT_KERNEL, ANY_KERNEL)                                                    \
  ZELM_DECLARE(UNIT_KERNEL, SIG, Y, UNIT, T);                                                                          \
  ZELM_DECLARE(ANY_KERNEL, SIG, Y, ANY, T);                                                                            \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, Y, T)) {                                                                    \
    return zelm::single(zelm::ORDER{}, UNIT_KERNEL, ANY_KERNEL, SIG(ARG, Y, T));                                       \
  }

// Single objects, pointer layout.
#define SINGLE_POINTER(FUNCTION, SIG, Y, T, ORDER, KERNEL)                                                             \
  ZELM_DECLARE(KERNEL, SIG, Y, ANY, T);                                                                                \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, Y, T)) {                                                                    \
    return zelm::singlePointer(zelm::ORDER{}, KERNEL, SIG(ARG, Y, T));                                                 \
  }

// Arrays, standard and list layout, strides before the estimate.
#define STRIDE_FIRST(FUNCTION, SIG, Y, T, ORDER, ESTIMATE, UNIT_FORKS, ANY_FORKS, UNIT_KERNEL, ANY_KERNEL, FRONT)      \
  ZELM_DECLARE(UNIT_KERNEL, SIG, Y, UNIT, T);                                                                          \
  ZELM_DECLARE(ANY_KERNEL, SIG, Y, ANY, T);                                                                            \
  ZELM_DECLARE(FRONT, SIG, Y, ANY, T);                                                                                 \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, Y, T)) {                                                                    \
    return zelm::strideFirst(zelm::ORDER{}, zelm::ESTIMATE, zelm::UNIT_FORKS, zelm::ANY_FORKS, UNIT_KERNEL,            \
                             ANY_KERNEL, FRONT, SIG(ARG, Y, T));                                                       \
  }

// Arrays, standard and list layout, estimate before the strides.
#define ESTIMATE_FIRST(FUNCTION, SIG, Y, T, ORDER, ESTIMATE, FORKS, UNIT_KERNEL, ANY_KERNEL, FRONT)                    \
  ZELM_DECLARE(UNIT_KERNEL, SIG, Y, UNIT, T);                                                                          \
  ZELM_DECLARE(ANY_KERNEL, SIG, Y, ANY, T);                                                                            \
  ZELM_DECLARE(FRONT, SIG, Y, ANY, T);                                                                                 \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, Y, T)) {                                                                    \
    return zelm::estimateFirst(zelm::ORDER{}, zelm::ESTIMATE, zelm::FORKS, UNIT_KERNEL, ANY_KERNEL, FRONT,             \
                               SIG(ARG, Y, T));                                                                        \
  }

// Arrays, pointer layout.
#define ARRAY_POINTER(FUNCTION, SIG, Y, T, ORDER, ESTIMATE, FORKS, KERNEL, FRONT)                                      \
  ZELM_DECLARE(KERNEL, SIG, Y, ANY, T);                                                                                \
  ZELM_DECLARE(FRONT, SIG, Y, ANY, T);                                                                                 \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, Y, T)) {                                                                    \
    return zelm::arrayPointer(zelm::ORDER{}, zelm::ESTIMATE, zelm::FORKS, KERNEL, FRONT, SIG(ARG, Y, T));              \
  }

// Functions that work themselves. The body stands last, as in the row of a kernel.
#define DIRECT(FUNCTION, SIG, Y, T, ORDER, ...)                                                                        \
  extern "C" ZelStatus FUNCTION(SIG(PARAM, Y, T)) {                                                                    \
    using namespace zelm;                                                                                              \
    return direct(                                                                                                     \
        ORDER{}, [](const auto&... a) __attribute__((always_inline)) { return __VA_ARGS__(a...); }, SIG(ARG, Y, T));   \
  }
