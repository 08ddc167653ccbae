// Signatures: a form's argument list in a layout, written once.
//
// A signature such as MAM_S(V, T) is a list of tokens, each an operand's kind and layout with its name. The visitor V
// says what becomes of a token:
//   PARAM   the parameters of the exported function: const float* src1, int32_t src1Stride0, ...
//   ARG     the arguments made of them: Matrices<const float>(src1, src1Stride0, ...)
//   ANY     the parameters of a front or a kernel that takes any stride2: const Matrices<const float, AnyStride>& src1
//   UNIT    the parameters of a kernel for unit stride2: const Matrices<const float, UnitStride>& src1
//   NAME    the bare names: src1
//   OBJECT  the arguments of a kernel for single objects, made of object k: src1.single(k)
#pragma once

#include "zelmoperand.h"

// clang-format off
#define PARAM_M_S(x, T)  T* x, int32_t x##Stride1, int32_t x##Stride2
#define PARAM_M_P(x, T)  T* const* x, int32_t x##Shift
#define PARAM_MA_S(x, T) T* x, int32_t x##Stride0, int32_t x##Stride1, int32_t x##Stride2
#define PARAM_MA_L(x, T) T* const* x, int32_t x##Shift, int32_t x##Stride1, int32_t x##Stride2
#define PARAM_MA_P(x, T) T* const* x, int32_t x##Shift, int32_t x##Stride0
#define PARAM_T_S(x, T)  PARAM_M_S(x, T)
#define PARAM_T_P(x, T)  PARAM_M_P(x, T)
#define PARAM_TA_S(x, T) PARAM_MA_S(x, T)
#define PARAM_TA_L(x, T) PARAM_MA_L(x, T)
#define PARAM_TA_P(x, T) PARAM_MA_P(x, T)
#define PARAM_V_S(x, T)  T* x, int32_t x##Stride2
#define PARAM_V_P(x, T)  T* const* x, int32_t x##Shift
#define PARAM_VA_S(x, T) T* x, int32_t x##Stride0, int32_t x##Stride2
#define PARAM_VA_L(x, T) T* const* x, int32_t x##Shift, int32_t x##Stride2
#define PARAM_VA_P(x, T) T* const* x, int32_t x##Shift, int32_t x##Stride0
#define PARAM_CA_S(x, T) T* x, int32_t x##Stride0
#define PARAM_CA_L(x, T) T* const* x, int32_t x##Shift
#define PARAM_C(x, T)    T x
#define PARAM_SIZE(x)    int32_t x
#define PARAM_COUNT      int32_t count
#define PARAM_PLAIN(x, T, each)   T* x
#define PARAM_BUFFER(x, T, size)  T* x

#define ARG_M_S(x, T)  zelm::Matrix<T>(x, x##Stride1, x##Stride2)
#define ARG_M_P(x, T)  zelm::MatrixP<T>(x, x##Shift)
#define ARG_MA_S(x, T) zelm::Matrices<T>(x, x##Stride0, x##Stride1, x##Stride2)
#define ARG_MA_L(x, T) zelm::MatricesL<T>(x, x##Shift, x##Stride1, x##Stride2)
#define ARG_MA_P(x, T) zelm::MatricesP<T>(x, x##Shift, x##Stride0)
#define ARG_T_S(x, T)  zelm::Transposed<zelm::Matrix<T>>(x, x##Stride1, x##Stride2)
#define ARG_T_P(x, T)  zelm::Transposed<zelm::MatrixP<T>>(x, x##Shift)
#define ARG_TA_S(x, T) zelm::Transposed<zelm::Matrices<T>>(x, x##Stride0, x##Stride1, x##Stride2)
#define ARG_TA_L(x, T) zelm::Transposed<zelm::MatricesL<T>>(x, x##Shift, x##Stride1, x##Stride2)
#define ARG_TA_P(x, T) zelm::Transposed<zelm::MatricesP<T>>(x, x##Shift, x##Stride0)
#define ARG_V_S(x, T)  zelm::Vector<T>(x, x##Stride2)
#define ARG_V_P(x, T)  zelm::VectorP<T>(x, x##Shift)
#define ARG_VA_S(x, T) zelm::Vectors<T>(x, x##Stride0, x##Stride2)
#define ARG_VA_L(x, T) zelm::VectorsL<T>(x, x##Shift, x##Stride2)
#define ARG_VA_P(x, T) zelm::VectorsP<T>(x, x##Shift, x##Stride0)
#define ARG_CA_S(x, T) zelm::Constants<T>(x, x##Stride0)
#define ARG_CA_L(x, T) zelm::ConstantsL<T>(x, x##Shift)
#define ARG_C(x, T)    zelm::Constant<T>(x)
#define ARG_SIZE(x)    zelm::Size(x)
#define ARG_COUNT      zelm::Count(count)
#define ARG_PLAIN(x, T, each)   zelm::Plain<T>(x, each)
#define ARG_BUFFER(x, T, size)  zelm::Buffer<T>(x, size)

#define ANY_M_S(x, T)  const zelm::Matrix<T, zelm::AnyStride>& x
#define ANY_M_P(x, T)  const zelm::MatrixP<T>& x
#define ANY_MA_S(x, T) const zelm::Matrices<T, zelm::AnyStride>& x
#define ANY_MA_L(x, T) const zelm::MatricesL<T, zelm::AnyStride>& x
#define ANY_MA_P(x, T) const zelm::MatricesP<T>& x
#define ANY_T_S(x, T)  const zelm::Transposed<zelm::Matrix<T, zelm::AnyStride>>& x
#define ANY_T_P(x, T)  const zelm::Transposed<zelm::MatrixP<T>>& x
#define ANY_TA_S(x, T) const zelm::Transposed<zelm::Matrices<T, zelm::AnyStride>>& x
#define ANY_TA_L(x, T) const zelm::Transposed<zelm::MatricesL<T, zelm::AnyStride>>& x
#define ANY_TA_P(x, T) const zelm::Transposed<zelm::MatricesP<T>>& x
#define ANY_V_S(x, T)  const zelm::Vector<T, zelm::AnyStride>& x
#define ANY_V_P(x, T)  const zelm::VectorP<T>& x
#define ANY_VA_S(x, T) const zelm::Vectors<T, zelm::AnyStride>& x
#define ANY_VA_L(x, T) const zelm::VectorsL<T, zelm::AnyStride>& x
#define ANY_VA_P(x, T) const zelm::VectorsP<T>& x
#define ANY_CA_S(x, T) const zelm::Constants<T>& x
#define ANY_CA_L(x, T) const zelm::ConstantsL<T>& x
#define ANY_C(x, T)    zelm::Constant<T> x
#define ANY_SIZE(x)    zelm::Size x
#define ANY_COUNT      zelm::Count count
#define ANY_PLAIN(x, T, each)   zelm::Plain<T> x
#define ANY_BUFFER(x, T, size)  zelm::Buffer<T> x

#define UNIT_M_S(x, T)  const zelm::Matrix<T, zelm::UnitStride>& x
#define UNIT_MA_S(x, T) const zelm::Matrices<T, zelm::UnitStride>& x
#define UNIT_MA_L(x, T) const zelm::MatricesL<T, zelm::UnitStride>& x
#define UNIT_T_S(x, T)  const zelm::Transposed<zelm::Matrix<T, zelm::UnitStride>>& x
#define UNIT_TA_S(x, T) const zelm::Transposed<zelm::Matrices<T, zelm::UnitStride>>& x
#define UNIT_TA_L(x, T) const zelm::Transposed<zelm::MatricesL<T, zelm::UnitStride>>& x
#define UNIT_V_S(x, T)  const zelm::Vector<T, zelm::UnitStride>& x
#define UNIT_VA_S(x, T) const zelm::Vectors<T, zelm::UnitStride>& x
#define UNIT_VA_L(x, T) const zelm::VectorsL<T, zelm::UnitStride>& x
#define UNIT_CA_S(x, T) const zelm::Constants<T>& x
#define UNIT_CA_L(x, T) const zelm::ConstantsL<T>& x
#define UNIT_C(x, T)    zelm::Constant<T> x
#define UNIT_SIZE(x)    zelm::Size x
#define UNIT_COUNT      zelm::Count count
#define UNIT_PLAIN(x, T, each)   zelm::Plain<T> x
#define UNIT_BUFFER(x, T, size)  zelm::Buffer<T> x

#define NAME_M_S(x, T)  x
#define NAME_M_P(x, T)  x
#define NAME_MA_S(x, T) x
#define NAME_MA_L(x, T) x
#define NAME_MA_P(x, T) x
#define NAME_T_S(x, T)  x
#define NAME_T_P(x, T)  x
#define NAME_TA_S(x, T) x
#define NAME_TA_L(x, T) x
#define NAME_TA_P(x, T) x
#define NAME_V_S(x, T)  x
#define NAME_V_P(x, T)  x
#define NAME_VA_S(x, T) x
#define NAME_VA_L(x, T) x
#define NAME_VA_P(x, T) x
#define NAME_CA_S(x, T) x
#define NAME_CA_L(x, T) x
#define NAME_C(x, T)    x
#define NAME_SIZE(x)    x
#define NAME_COUNT      count
#define NAME_PLAIN(x, T, each)   x
#define NAME_BUFFER(x, T, size)  x

#define OBJECT_M_S(x, T)  x.single(k)
#define OBJECT_T_S(x, T)  x.single(k)
#define OBJECT_V_S(x, T)  x.single(k)
#define OBJECT_C(x, T)    x
#define OBJECT_SIZE(x)    x
#define OBJECT_PLAIN(x, T, each)   x.single(k)
#define OBJECT_BUFFER(x, T, size)  x

// Two sources and a result of one shape, width by height: the element-wise families.
#define TWO_MATRICES(V, T, A, B, D)        V##_##A(src1, const T), V##_##B(src2, const T), V##_##D(dst, T), V##_SIZE(width), V##_SIZE(height)
#define TWO_MATRICES_BATCH(V, T, A, B, D)  TWO_MATRICES(V, T, A, B, D), V##_COUNT

#define MM_S(V, T)    TWO_MATRICES(V, T, M_S, M_S, M_S)
#define TM_S(V, T)    TWO_MATRICES(V, T, T_S, M_S, M_S)
#define TT_S(V, T)    TWO_MATRICES(V, T, T_S, T_S, M_S)
#define MM_P(V, T)    TWO_MATRICES(V, T, M_P, M_P, M_P)
#define TM_P(V, T)    TWO_MATRICES(V, T, T_P, M_P, M_P)
#define TT_P(V, T)    TWO_MATRICES(V, T, T_P, T_P, M_P)
#define MAM_S(V, T)   TWO_MATRICES_BATCH(V, T, MA_S, M_S, MA_S)
#define MAT_S(V, T)   TWO_MATRICES_BATCH(V, T, MA_S, T_S, MA_S)
#define TAM_S(V, T)   TWO_MATRICES_BATCH(V, T, TA_S, M_S, MA_S)
#define TAT_S(V, T)   TWO_MATRICES_BATCH(V, T, TA_S, T_S, MA_S)
#define MAMA_S(V, T)  TWO_MATRICES_BATCH(V, T, MA_S, MA_S, MA_S)
#define TAMA_S(V, T)  TWO_MATRICES_BATCH(V, T, TA_S, MA_S, MA_S)
#define TATA_S(V, T)  TWO_MATRICES_BATCH(V, T, TA_S, TA_S, MA_S)
#define MAM_L(V, T)   TWO_MATRICES_BATCH(V, T, MA_L, M_S, MA_L)
#define MAT_L(V, T)   TWO_MATRICES_BATCH(V, T, MA_L, T_S, MA_L)
#define TAM_L(V, T)   TWO_MATRICES_BATCH(V, T, TA_L, M_S, MA_L)
#define TAT_L(V, T)   TWO_MATRICES_BATCH(V, T, TA_L, T_S, MA_L)
#define MAMA_L(V, T)  TWO_MATRICES_BATCH(V, T, MA_L, MA_L, MA_L)
#define TAMA_L(V, T)  TWO_MATRICES_BATCH(V, T, TA_L, MA_L, MA_L)
#define TATA_L(V, T)  TWO_MATRICES_BATCH(V, T, TA_L, TA_L, MA_L)
#define MAM_P(V, T)   TWO_MATRICES_BATCH(V, T, MA_P, M_P, MA_P)
#define MAT_P(V, T)   TWO_MATRICES_BATCH(V, T, MA_P, T_P, MA_P)
#define TAM_P(V, T)   TWO_MATRICES_BATCH(V, T, TA_P, M_P, MA_P)
#define TAT_P(V, T)   TWO_MATRICES_BATCH(V, T, TA_P, T_P, MA_P)
#define MAMA_P(V, T)  TWO_MATRICES_BATCH(V, T, MA_P, MA_P, MA_P)
#define TAMA_P(V, T)  TWO_MATRICES_BATCH(V, T, TA_P, MA_P, MA_P)
#define TATA_P(V, T)  TWO_MATRICES_BATCH(V, T, TA_P, TA_P, MA_P)
// clang-format on
