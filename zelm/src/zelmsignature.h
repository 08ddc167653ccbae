// Signatures: a form's argument list, written once, with the layout as a parameter.
//
// A signature such as MAM(W, Y, E) is a list of tokens, each an operand's kind with its name; E is the element type, Y
// the layout, S, L or P. W says what becomes of a token:
//   PARAM   the parameters of the exported function: const float* src1, int32_t src1Stride0, ...
//   ARG     the arguments made of them: Matrices<const float>(src1, src1Stride0, ...)
//   ANY     the parameters of a front or a kernel that takes any stride2: const Matrices<const float>& src1
//   UNIT    the parameters of a kernel for unit stride2: const UnitOf<Matrices<const float>>& src1
//   NAME    the bare names: src1
//   OBJECT  the arguments of a kernel for single objects, made of object k: src1.single(k)
#pragma once

#include "zelmoperand.h"

// clang-format off
// An operand: its kind and layout, its C++ type, the parameters that describe it, the names of these.
#define ZELM_M_S(V, x, T)   V##_OPERAND(x, zelm::Matrix<T>,    (T* x, int32_t x##Stride1, int32_t x##Stride2), (x, x##Stride1, x##Stride2))
#define ZELM_M_P(V, x, T)   V##_OPERAND(x, zelm::MatrixP<T>,   (T* const* x, int32_t x##Shift), (x, x##Shift))
#define ZELM_MA_S(V, x, T)  V##_OPERAND(x, zelm::Matrices<T>,  (T* x, int32_t x##Stride0, int32_t x##Stride1, int32_t x##Stride2), (x, x##Stride0, x##Stride1, x##Stride2))
#define ZELM_MA_L(V, x, T)  V##_OPERAND(x, zelm::MatricesL<T>, (T* const* x, int32_t x##Shift, int32_t x##Stride1, int32_t x##Stride2), (x, x##Shift, x##Stride1, x##Stride2))
#define ZELM_MA_P(V, x, T)  V##_OPERAND(x, zelm::MatricesP<T>, (T* const* x, int32_t x##Shift, int32_t x##Stride0), (x, x##Shift, x##Stride0))
#define ZELM_T_S(V, x, T)   V##_OPERAND(x, zelm::Transposed<zelm::Matrix<T>>,    (T* x, int32_t x##Stride1, int32_t x##Stride2), (x, x##Stride1, x##Stride2))
#define ZELM_T_P(V, x, T)   V##_OPERAND(x, zelm::Transposed<zelm::MatrixP<T>>,   (T* const* x, int32_t x##Shift), (x, x##Shift))
#define ZELM_TA_S(V, x, T)  V##_OPERAND(x, zelm::Transposed<zelm::Matrices<T>>,  (T* x, int32_t x##Stride0, int32_t x##Stride1, int32_t x##Stride2), (x, x##Stride0, x##Stride1, x##Stride2))
#define ZELM_TA_L(V, x, T)  V##_OPERAND(x, zelm::Transposed<zelm::MatricesL<T>>, (T* const* x, int32_t x##Shift, int32_t x##Stride1, int32_t x##Stride2), (x, x##Shift, x##Stride1, x##Stride2))
#define ZELM_TA_P(V, x, T)  V##_OPERAND(x, zelm::Transposed<zelm::MatricesP<T>>, (T* const* x, int32_t x##Shift, int32_t x##Stride0), (x, x##Shift, x##Stride0))
#define ZELM_V_S(V, x, T)   V##_OPERAND(x, zelm::Vector<T>,     (T* x, int32_t x##Stride2), (x, x##Stride2))
#define ZELM_V_P(V, x, T)   V##_OPERAND(x, zelm::VectorP<T>,    (T* const* x, int32_t x##Shift), (x, x##Shift))
#define ZELM_VA_S(V, x, T)  V##_OPERAND(x, zelm::Vectors<T>,    (T* x, int32_t x##Stride0, int32_t x##Stride2), (x, x##Stride0, x##Stride2))
#define ZELM_VA_L(V, x, T)  V##_OPERAND(x, zelm::VectorsL<T>,   (T* const* x, int32_t x##Shift, int32_t x##Stride2), (x, x##Shift, x##Stride2))
#define ZELM_VA_P(V, x, T)  V##_OPERAND(x, zelm::VectorsP<T>,   (T* const* x, int32_t x##Shift, int32_t x##Stride0), (x, x##Shift, x##Stride0))
#define ZELM_CA_S(V, x, T)  V##_OPERAND(x, zelm::Constants<T>,  (T* x, int32_t x##Stride0), (x, x##Stride0))
#define ZELM_CA_L(V, x, T)  V##_OPERAND(x, zelm::ConstantsL<T>, (T* const* x, int32_t x##Shift), (x, x##Shift))
// What a layout has no description of its own for: single operands in lists, constants by their element pointers.
#define ZELM_M_L(V, x, T)   ZELM_M_S(V, x, T)
#define ZELM_T_L(V, x, T)   ZELM_T_S(V, x, T)
#define ZELM_V_L(V, x, T)   ZELM_V_S(V, x, T)
#define ZELM_CA_P(V, x, T)  ZELM_CA_S(V, x, T)
// The same in every layout: a constant by value, a size, the count, a plain pointer with `each` elements for each object,
// the scratch of `size` elements for one object.
#define ZELM_C(V, x, T)             V##_VALUE(x, zelm::Constant<T>, T x, (x))
#define ZELM_C_S(V, x, T)           ZELM_C(V, x, T)
#define ZELM_C_L(V, x, T)           ZELM_C(V, x, T)
#define ZELM_C_P(V, x, T)           ZELM_C(V, x, T)
#define ZELM_SIZE(V, x)             V##_VALUE(x, zelm::Size, int32_t x, (x))
#define ZELM_COUNT(V)               V##_VALUE(count, zelm::Count, int32_t count, (count))
#define ZELM_PLAIN(V, x, T, each)   V##_PLAIN(x, zelm::Plain<T>, T* x, (x, each))
#define ZELM_BUFFER(V, x, T, size)  V##_VALUE(x, zelm::Buffer<T>, T* x, (x, size))

#define ZELM_SPREAD(...)                            __VA_ARGS__
#define PARAM_OPERAND(x, TYPE, PARAMETERS, NAMES)   ZELM_SPREAD PARAMETERS
#define PARAM_VALUE(x, TYPE, PARAMETER, NAMES)      PARAMETER
#define PARAM_PLAIN(x, TYPE, PARAMETER, NAMES)      PARAMETER
#define ARG_OPERAND(x, TYPE, PARAMETERS, NAMES)     TYPE NAMES
#define ARG_VALUE(x, TYPE, PARAMETER, NAMES)        TYPE NAMES
#define ARG_PLAIN(x, TYPE, PARAMETER, NAMES)        TYPE NAMES
#define ANY_OPERAND(x, TYPE, PARAMETERS, NAMES)     const TYPE& x
#define ANY_VALUE(x, TYPE, PARAMETER, NAMES)        TYPE x
#define ANY_PLAIN(x, TYPE, PARAMETER, NAMES)        TYPE x
#define UNIT_OPERAND(x, TYPE, PARAMETERS, NAMES)    const zelm::UnitOf<TYPE>& x
#define UNIT_VALUE(x, TYPE, PARAMETER, NAMES)       TYPE x
#define UNIT_PLAIN(x, TYPE, PARAMETER, NAMES)       TYPE x
#define NAME_OPERAND(x, TYPE, PARAMETERS, NAMES)    x
#define NAME_VALUE(x, TYPE, PARAMETER, NAMES)       x
#define NAME_PLAIN(x, TYPE, PARAMETER, NAMES)       x
#define OBJECT_OPERAND(x, TYPE, PARAMETERS, NAMES)  x.single(k)
#define OBJECT_VALUE(x, TYPE, PARAMETER, NAMES)     x
#define OBJECT_PLAIN(x, TYPE, PARAMETER, NAMES)     x.single(k)

// Two sources and a result of one shape, width by height: the element-wise families.
#define TWO_MATRICES(W, Y, E, A, B, D)  ZELM_##A##_##Y(W, src1, const E), ZELM_##B##_##Y(W, src2, const E), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, width), ZELM_SIZE(W, height)
#define MM(W, Y, E)    TWO_MATRICES(W, Y, E, M, M, M)
#define MT(W, Y, E)    TWO_MATRICES(W, Y, E, M, T, M)
#define TM(W, Y, E)    TWO_MATRICES(W, Y, E, T, M, M)
#define TT(W, Y, E)    TWO_MATRICES(W, Y, E, T, T, M)
#define MAM(W, Y, E)   TWO_MATRICES(W, Y, E, MA, M, MA), ZELM_COUNT(W)
#define MAT(W, Y, E)   TWO_MATRICES(W, Y, E, MA, T, MA), ZELM_COUNT(W)
#define TAM(W, Y, E)   TWO_MATRICES(W, Y, E, TA, M, MA), ZELM_COUNT(W)
#define TAT(W, Y, E)   TWO_MATRICES(W, Y, E, TA, T, MA), ZELM_COUNT(W)
#define MMA(W, Y, E)   TWO_MATRICES(W, Y, E, M, MA, MA), ZELM_COUNT(W)
#define MTA(W, Y, E)   TWO_MATRICES(W, Y, E, M, TA, MA), ZELM_COUNT(W)
#define TMA(W, Y, E)   TWO_MATRICES(W, Y, E, T, MA, MA), ZELM_COUNT(W)
#define TTA(W, Y, E)   TWO_MATRICES(W, Y, E, T, TA, MA), ZELM_COUNT(W)
#define MAMA(W, Y, E)  TWO_MATRICES(W, Y, E, MA, MA, MA), ZELM_COUNT(W)
#define MATA(W, Y, E)  TWO_MATRICES(W, Y, E, MA, TA, MA), ZELM_COUNT(W)
#define TAMA(W, Y, E)  TWO_MATRICES(W, Y, E, TA, MA, MA), ZELM_COUNT(W)
#define TATA(W, Y, E)  TWO_MATRICES(W, Y, E, TA, TA, MA), ZELM_COUNT(W)

// The same on vectors of len elements, and a vector with a constant.
#define TWO_VECTORS(W, Y, E, A, B, D)  ZELM_##A##_##Y(W, src1, const E), ZELM_##B##_##Y(W, src2, const E), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, len)
#define VV(W, Y, E)    TWO_VECTORS(W, Y, E, V, V, V)
#define VAV(W, Y, E)   TWO_VECTORS(W, Y, E, VA, V, VA), ZELM_COUNT(W)
#define VVA(W, Y, E)   TWO_VECTORS(W, Y, E, V, VA, VA), ZELM_COUNT(W)
#define VAVA(W, Y, E)  TWO_VECTORS(W, Y, E, VA, VA, VA), ZELM_COUNT(W)

#define VECTOR_BY_VALUE(W, Y, E, A, D)      ZELM_##A##_##Y(W, src, const E), ZELM_C(W, val, E), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, len)
#define VECTOR_BY_CONSTANTS(W, Y, E, A, D)  ZELM_##A##_##Y(W, src, const E), ZELM_CA_##Y(W, val, const E), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, len)
#define VC(W, Y, E)    VECTOR_BY_VALUE(W, Y, E, V, V)
#define VAC(W, Y, E)   VECTOR_BY_VALUE(W, Y, E, VA, VA), ZELM_COUNT(W)
#define VCA(W, Y, E)   VECTOR_BY_CONSTANTS(W, Y, E, V, VA), ZELM_COUNT(W)
#define VACA(W, Y, E)  VECTOR_BY_CONSTANTS(W, Y, E, VA, VA), ZELM_COUNT(W)
// The constant first: the vector's arguments come first all the same.
#define CV(W, Y, E)    VC(W, Y, E)
#define CVA(W, Y, E)   VAC(W, Y, E)
#define CAV(W, Y, E)   VCA(W, Y, E)
#define CAVA(W, Y, E)  VACA(W, Y, E)

// A matrix with a constant.
#define MATRIX_BY_VALUE(W, Y, E, A, D)  ZELM_##A##_##Y(W, src, const E), ZELM_C(W, val, E), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, width), ZELM_SIZE(W, height)
#define MC(W, Y, E)    MATRIX_BY_VALUE(W, Y, E, M, M)
#define TC(W, Y, E)    MATRIX_BY_VALUE(W, Y, E, T, M)
#define MAC(W, Y, E)   MATRIX_BY_VALUE(W, Y, E, MA, MA), ZELM_COUNT(W)
#define TAC(W, Y, E)   MATRIX_BY_VALUE(W, Y, E, TA, MA), ZELM_COUNT(W)
// clang-format on
