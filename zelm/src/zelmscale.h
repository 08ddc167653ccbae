// Mul by a constant: one product for each element, so the results do not depend on the kernel.
#pragma once

#include "zelmelementwise.h"
#include "zelmframe.h"
#include "zelmtile.h"

// clang-format off
#define SCALE_MATRIX(V, T, A, D)     V##_##A(src, const T), V##_C(val, T), V##_##D(dst, T), V##_SIZE(width), V##_SIZE(height)
#define SCALE_VECTOR(V, T, A, C, D)  V##_##A(src, const T), V##_##C, V##_##D(dst, T), V##_SIZE(len)

#define MC_S(V, T)    SCALE_MATRIX(V, T, M_S, M_S)
#define TC_S(V, T)    SCALE_MATRIX(V, T, T_S, M_S)
#define MC_P(V, T)    SCALE_MATRIX(V, T, M_P, M_P)
#define TC_P(V, T)    SCALE_MATRIX(V, T, T_P, M_P)
#define MAC_S(V, T)   SCALE_MATRIX(V, T, MA_S, MA_S), V##_COUNT
#define TAC_S(V, T)   SCALE_MATRIX(V, T, TA_S, MA_S), V##_COUNT
#define MAC_L(V, T)   SCALE_MATRIX(V, T, MA_L, MA_L), V##_COUNT
#define TAC_L(V, T)   SCALE_MATRIX(V, T, TA_L, MA_L), V##_COUNT
#define MAC_P(V, T)   SCALE_MATRIX(V, T, MA_P, MA_P), V##_COUNT
#define TAC_P(V, T)   SCALE_MATRIX(V, T, TA_P, MA_P), V##_COUNT

#define VC_S(V, T)    SCALE_VECTOR(V, T, V_S,  C(val, T), V_S)
#define VC_P(V, T)    SCALE_VECTOR(V, T, V_P,  C(val, T), V_P)
#define VAC_S(V, T)   SCALE_VECTOR(V, T, VA_S, C(val, T), VA_S), V##_COUNT
#define VAC_L(V, T)   SCALE_VECTOR(V, T, VA_L, C(val, T), VA_L), V##_COUNT
#define VAC_P(V, T)   SCALE_VECTOR(V, T, VA_P, C(val, T), VA_P), V##_COUNT
#define VCA_S(V, T)   SCALE_VECTOR(V, T, V_S,  CA_S(val, const T), VA_S), V##_COUNT
#define VCA_L(V, T)   SCALE_VECTOR(V, T, V_S,  CA_L(val, const T), VA_L), V##_COUNT
#define VCA_P(V, T)   SCALE_VECTOR(V, T, V_P,  CA_S(val, const T), VA_P), V##_COUNT
#define VACA_S(V, T)  SCALE_VECTOR(V, T, VA_S, CA_S(val, const T), VA_S), V##_COUNT
#define VACA_L(V, T)  SCALE_VECTOR(V, T, VA_L, CA_L(val, const T), VA_L), V##_COUNT
#define VACA_P(V, T)  SCALE_VECTOR(V, T, VA_P, CA_S(val, const T), VA_P), V##_COUNT
// clang-format on

namespace zelm {

// Element-wise work takes two sources; a scaled operand is given as both, and the second is not looked at.
template <class T> struct Times {
  T factor;
  template <class V> ZELM_INLINE V operator()(V a, V) const { return a * factor; }
};

struct Product {
  template <class V> ZELM_INLINE V operator()(V a, V b) const { return a * b; }
};

// ---------------------------------------------------------------------------------------------------------------------
// Matrices

template <int... N, class A, class T, class D>
ZELM_INLINE ZelStatus scaleMatrices(Sizes<N...> sizes, const A& src, const Constant<T>& val, const D& dst, Size width,
                                    Size height, Count count = 1) {
  return combineObjects(sizes, Times<T>{val}, src, src, dst, width, height, count);
}

// Pointer layout: one code for all sizes.
struct EverySize {};
template <class A, class T, class D>
inline ZelStatus scalePositions(EverySize, const A& src, const Constant<T>& val, const D& dst, Size width, Size height,
                                Count count = 1) {
  return combinePositions(Times<T>{val}, src, src, dst, width, height, count);
}

// ---------------------------------------------------------------------------------------------------------------------
// Vectors

// A vector operand as matrices of one row.
template <class T> ZELM_INLINE auto asRows(const VectorP<T>& x) {
  return MatrixP<T>(x.list, x.shift);
}
template <class T> ZELM_INLINE auto asRows(const VectorsP<T>& x) {
  return MatricesP<T>(x.list, x.offset, x.stride0);
}

// The constant of object k.
template <class T> ZELM_INLINE T constantOf(const Constant<T>& val, int64_t) {
  return val;
}
template <class Constants> ZELM_INLINE auto constantOf(const Constants& val, int64_t k) {
  return val.load(k);
}

template <class> constexpr bool isPackedVectors = false;
template <class T> constexpr bool isPackedVectors<Vectors<T, UnitStride>> = true;
template <class> constexpr bool isOneConstant = false;
template <class T> constexpr bool isOneConstant<Constant<T>> = true;

template <int N, class A, class C, class D>
inline void scaleVectorsFixed(const A& src, const C& val, const D& dst, int32_t count) {
  using T = typename D::Element;
  for (int64_t k = 0; k < count; ++k) {
    const T factor = constantOf(val, k);
    const auto x = src.object(k);
    const auto y = dst.object(k);
    T element[N];
    ZELM_UNROLL
    for (int j = 0; j < N; ++j)
      element[j] = x.load(j) * factor;
    ZELM_UNROLL
    for (int j = 0; j < N; ++j)
      y.store(j, element[j]);
  }
}

template <class A, class C, class D>
inline void scaleVectorsGeneral(const A& src, const C& val, const D& dst, int32_t len, int32_t count) {
  using T = typename D::Element;
  for (int64_t k = 0; k < count; ++k) {
    const T factor = constantOf(val, k);
    const auto x = src.object(k);
    const auto y = dst.object(k);
    if constexpr (decltype(x)::unitRows && decltype(y)::unitRows) {
      runPair<T>(Times<T>{factor}, y.address(0), x.address(0), x.address(0), len);
    } else {
      for (int32_t j = 0; j < len; ++j)
        y.store(j, x.load(j) * factor);
    }
  }
}

// Standard and list layout.
template <int... N, class A, class C, class D>
ZELM_INLINE ZelStatus scaleVectors(Sizes<N...> sizes, const A& src, const C& val, const D& dst, Size len,
                                   Count count = 1) {
  using T = typename D::Element;
  // Arrays without gaps are one vector.
  if constexpr (isPackedVectors<A> && isPackedVectors<D> && isOneConstant<C>) {
    if (src.packed(len) && dst.packed(len)) {
      runPair<T>(Times<T>{val}, bytesOf(dst), bytesOf(src), bytesOf(src), static_cast<int64_t>(len) * count);
      return zelStatusOk;
    }
  }
  return forSize(
      sizes, len,
      [&](auto length) {
        scaleVectorsFixed<length>(src, val, dst, count);
        return zelStatusOk;
      },
      [&] {
        scaleVectorsGeneral(src, val, dst, len, count);
        return zelStatusOk;
      });
}

// An array of constants as matrices of one row whose elements are all the object's constant.
template <class T> struct ConstantRows {
  using Element = std::remove_const_t<T>;
  static constexpr bool isArray = true;
  Constants<T> constants;
  struct View {
    const char* constant;
    ZELM_INLINE const char* address(int64_t, int64_t) const { return constant; }
  };
  ZELM_INLINE int64_t objectStride() const { return constants.stride0; }
  ZELM_INLINE View object(int64_t k, int64_t) const {
    return {reinterpret_cast<const char*>(constants.pointer) + k * constants.stride0};
  }
};

// Pointer layout. Where the source is single it stands second: a product's operands may change places.
template <class A, class C, class D>
inline ZelStatus scaleVectorPositions(EverySize, const A& src, const C& val, const D& dst, Size len, Count count = 1) {
  using T = typename D::Element;
  if constexpr (isOneConstant<C>)
    return combinePositions(Times<T>{val}, asRows(src), asRows(src), asRows(dst), len, 1, count);
  else if constexpr (A::isArray)
    return combinePositions(Product{}, asRows(src), ConstantRows<const T>{val}, asRows(dst), len, 1, count);
  else
    return combinePositions(Product{}, ConstantRows<const T>{val}, asRows(src), asRows(dst), len, 1, count);
}

// ---------------------------------------------------------------------------------------------------------------------
// Work estimates

// mac tac: 2 * width * height * count
struct ScaledMatrices {
  template <class A, class C, class D>
  static Wrapping of(const A&, const C&, const D&, Size width, Size height, Count count) {
    return Wrapping(2) * width * height * count;
  }
};
// vac: 2 * len * count
struct ScaledVectors {
  template <class A, class C, class D> static Wrapping of(const A&, const C&, const D&, Size len, Count count) {
    return Wrapping(2) * len * count;
  }
};
// vca: len * count + len + count
struct OneVectorScaled {
  template <class A, class C, class D> static Wrapping of(const A&, const C&, const D&, Size len, Count count) {
    return Wrapping(len) * count + len + count;
  }
};
// vaca: count * (2 * len + 1)
struct VectorsScaled {
  template <class A, class C, class D> static Wrapping of(const A&, const C&, const D&, Size len, Count count) {
    return Wrapping(count) * (Wrapping(2) * len + 1);
  }
};

} // namespace zelm
