// Operands: what the library knows of addressing.
//
// An argument of a call is one of the small types below. Each answers the questions that the frame asks of it (is it
// null, is a stride bad, ...) and can be advanced to the share of a thread. An operand also gives its object k as a
// view, and a view answers where an element lies. A transposed operand is the untransposed one with row and column
// exchanged.
//
// Offsets are 64 bits wide from here on: a shift plus k strides does not fit 32.
#pragma once

#include <zelm.h>

#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#ifdef __FAST_MATH__
#  error "results are pinned to the bit: build without -ffast-math"
#endif

#define ZELM_INLINE inline __attribute__((always_inline))
// A function of its own: called from several places, or seldom, or for registers that nothing else needs.
#define ZELM_NOINLINE __attribute__((noinline))

namespace zelm {

using std::int32_t;
using std::int64_t;
using std::uint32_t;

// The share of the objects that one thread works on, and its part of the front's scratch block (null when unthreaded).
struct Share {
  int64_t first;
  int32_t count;
  int32_t thread;
  char* scratch;
};

// ---------------------------------------------------------------------------------------------------------------------
// Elements

// Addresses are not required to be aligned to the element: every access is a copy of bytes.
template <class T> using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;

template <class T> ZELM_INLINE std::remove_const_t<T> loadElement(const char* address) {
  std::remove_const_t<T> value;
  std::memcpy(&value, address, sizeof value);
  return value;
}

template <class T> ZELM_INLINE void storeElement(char* address, T value) {
  std::memcpy(address, &value, sizeof value);
}

// ---------------------------------------------------------------------------------------------------------------------
// Steps: the distance between neighbouring elements, known to the compiler or not

struct AnyStep {
  int64_t bytes;
  constexpr AnyStep(int64_t step) : bytes(step) {}
  constexpr operator int64_t() const { return bytes; }
};

template <class T> struct UnitStep {
  constexpr operator int64_t() const { return sizeof(T); }
};

// How a kernel takes stride2: AnyStride as an argument, UnitStride as the element size.
struct AnyStride {
  template <class T> using Step = AnyStep;
};
struct UnitStride {
  template <class T> using Step = UnitStep<T>;
};

// ---------------------------------------------------------------------------------------------------------------------
// Views of one object

// Element (i, j) at origin + i * rowStep + j * columnStep.
template <class T, class RowStep, class ColumnStep> struct StridedMatrixView {
  using Element = std::remove_const_t<T>;
  static constexpr bool strided = true;
  static constexpr bool unitRows = std::is_same_v<ColumnStep, UnitStep<T>>; // the elements of a row are neighbours
  static constexpr bool unitColumns = std::is_same_v<RowStep, UnitStep<T>>; // the elements of a column are
  Byte<T>* origin;
  RowStep rowStep;
  ColumnStep columnStep;

  ZELM_INLINE Byte<T>* address(int64_t i, int64_t j) const { return origin + i * rowStep + j * columnStep; }
  ZELM_INLINE Element load(int64_t i, int64_t j) const { return loadElement<T>(address(i, j)); }
  ZELM_INLINE void store(int64_t i, int64_t j, Element value) const { storeElement(address(i, j), value); }
  ZELM_INLINE auto transposed() const { return StridedMatrixView<T, ColumnStep, RowStep>{origin, columnStep, rowStep}; }
};

// Element (i, j) at list[i * rowStep + j * columnStep] + offset.
template <class T> struct PointerMatrixView {
  using Element = std::remove_const_t<T>;
  static constexpr bool strided = false;
  static constexpr bool unitRows = false;
  static constexpr bool unitColumns = false;
  T* const* list;
  int64_t offset;
  int64_t rowStep;
  int64_t columnStep;

  ZELM_INLINE Byte<T>* address(int64_t i, int64_t j) const {
    return reinterpret_cast<Byte<T>*>(list[i * rowStep + j * columnStep]) + offset;
  }
  ZELM_INLINE Element load(int64_t i, int64_t j) const { return loadElement<T>(address(i, j)); }
  ZELM_INLINE void store(int64_t i, int64_t j, Element value) const { storeElement(address(i, j), value); }
  ZELM_INLINE auto transposed() const { return PointerMatrixView{list, offset, columnStep, rowStep}; }
};

// Element j at origin + j * step.
template <class T, class ElementStep> struct StridedVectorView {
  using Element = std::remove_const_t<T>;
  static constexpr bool strided = true;
  static constexpr bool unitRows = std::is_same_v<ElementStep, UnitStep<T>>;
  Byte<T>* origin;
  ElementStep step;

  ZELM_INLINE Byte<T>* address(int64_t j) const { return origin + j * step; }
  ZELM_INLINE Element load(int64_t j) const { return loadElement<T>(address(j)); }
  ZELM_INLINE void store(int64_t j, Element value) const { storeElement(address(j), value); }
};

// Element j at list[j] + offset.
template <class T> struct PointerVectorView {
  using Element = std::remove_const_t<T>;
  static constexpr bool strided = false;
  static constexpr bool unitRows = false;
  T* const* list;
  int64_t offset;

  ZELM_INLINE Byte<T>* address(int64_t j) const { return reinterpret_cast<Byte<T>*>(list[j]) + offset; }
  ZELM_INLINE Element load(int64_t j) const { return loadElement<T>(address(j)); }
  ZELM_INLINE void store(int64_t j, Element value) const { storeElement(address(j), value); }
};

// ---------------------------------------------------------------------------------------------------------------------
// Arguments

// What an argument answers unless it knows better.
struct Argument {
  static constexpr bool isArray = false;
  static constexpr bool null() { return false; }
  static constexpr bool badCount() { return false; }
  static constexpr bool badSize() { return false; }
  static constexpr bool badObjectStride() { return false; }  // from object to object
  static constexpr bool badElementStride() { return false; } // within an object
  static constexpr bool badShift() { return false; }
  static constexpr bool unit() { return true; }
  // Bytes of scratch that each thread of a front needs.
  static constexpr int32_t scratch() { return 0; }
};

template <class T> constexpr bool isBadStride(int32_t stride) {
  return (stride & static_cast<int32_t>(sizeof(T) - 1)) != 0 || stride < 1;
}
template <class T> constexpr bool isBadShift(int32_t shift) {
  return (shift & static_cast<int32_t>(sizeof(T) - 1)) != 0 || shift < 0;
}

// A size: width, height, len, widthHeight, src1Width, ...
struct Size : Argument {
  int32_t value;
  constexpr Size(int32_t size) : value(size) {}
  constexpr operator int32_t() const { return value; }
  constexpr bool badSize() const { return value < 1; }
  template <class> constexpr Size forKernel() const { return *this; }
  constexpr Size advanced(const Share&) const { return *this; }
};

struct Count : Argument {
  int32_t value;
  int32_t whole; // the call's, in a thread's share
  constexpr Count(int32_t count) : value(count), whole(count) {}
  constexpr Count(int32_t count, int32_t all) : value(count), whole(all) {}
  constexpr operator int32_t() const { return value; }
  constexpr bool badCount() const { return value < 1; }
  template <class> constexpr Count forKernel() const { return *this; }
  constexpr Count advanced(const Share& share) const { return {share.count, whole}; }
};

// The objects of the call, where a count is one or a plain number.
constexpr int64_t wholeOf(const Count& count) {
  return count.whole;
}
constexpr int64_t wholeOf(int64_t count) {
  return count;
}

// A constant passed by value.
template <class T> struct Constant : Argument {
  using Element = T;
  static constexpr bool isArray = false;
  T value;
  constexpr Constant(T constant) : value(constant) {}
  constexpr operator T() const { return value; }
  template <class> constexpr Constant forKernel() const { return *this; }
  constexpr Constant advanced(const Share&) const { return *this; }
};

// A plain pointer with `each` elements for each object of the batch (0: shared by all objects).
template <class T> struct Plain : Argument {
  T* pointer;
  int32_t each;
  constexpr Plain(T* address, int32_t perObject) : pointer(address), each(perObject) {}
  constexpr operator T*() const { return pointer; }
  constexpr bool null() const { return pointer == nullptr; }
  template <class> constexpr Plain forKernel() const { return *this; }
  constexpr Plain advanced(const Share& share) const { return {pointer + share.first * each, each}; }
  constexpr Plain single(int64_t k) const { return {pointer + k * each, each}; }
};

template <class T> ZELM_INLINE void storeResult(const Plain<T>& dst, int64_t k, T value) {
  storeElement(reinterpret_cast<char*>(dst.pointer + k), value);
}

// The caller's scratch of `size` elements for one object, or bytes of void; in a front, the thread's part of the
// front's block.
template <class T> struct Buffer : Argument {
  T* pointer;
  int32_t size;
  constexpr Buffer(T* address, int32_t elements) : pointer(address), size(elements) {}
  constexpr operator T*() const { return pointer; }
  constexpr bool null() const { return pointer == nullptr; }
  // More than fits is the most that fits: no front can have two of those.
  constexpr int32_t scratch() const {
    const int64_t bytes = int64_t{size} * static_cast<int64_t>(sizeof(std::conditional_t<std::is_void_v<T>, char, T>));
    return bytes <= INT32_MAX ? static_cast<int32_t>(bytes) : INT32_MAX;
  }
  template <class> constexpr Buffer forKernel() const { return *this; }
  Buffer advanced(const Share& share) const {
    return {reinterpret_cast<T*>(share.scratch + share.thread * static_cast<int64_t>(scratch())), size};
  }
};

// m, standard and list layout.
template <class T, class Stride = AnyStride> struct Matrix : Argument {
  using Element = std::remove_const_t<T>;
  using Step = typename Stride::template Step<T>;
  static constexpr bool isArray = false;
  T* pointer;
  int32_t stride1;
  Step stride2;
  constexpr Matrix(T* x, int32_t s1, Step s2) : pointer(x), stride1(s1), stride2(s2) {}
  constexpr bool null() const { return pointer == nullptr; }
  constexpr bool badElementStride() const {
    return isBadStride<T>(stride1) || isBadStride<T>(static_cast<int32_t>(static_cast<int64_t>(stride2)));
  }
  constexpr bool unit() const { return stride2 == static_cast<int64_t>(sizeof(T)); }
  template <class S> constexpr Matrix<T, S> forKernel() const {
    if constexpr (std::is_same_v<S, UnitStride>)
      return {pointer, stride1, {}};
    else
      return *this;
  }
  constexpr Matrix advanced(const Share&) const { return *this; }
  constexpr Matrix single(int64_t) const { return *this; }
  // Rows of width elements without gaps, one behind the other.
  ZELM_INLINE bool packed(int32_t width, int32_t) const {
    return stride1 == static_cast<int64_t>(width) * static_cast<int64_t>(sizeof(T));
  }
  ZELM_INLINE auto object(int64_t, int64_t /* rowLength */) const {
    return StridedMatrixView<T, AnyStep, Step>{reinterpret_cast<Byte<T>*>(pointer), stride1, stride2};
  }
};

// m, pointer layout.
template <class T> struct MatrixP : Argument {
  using Element = std::remove_const_t<T>;
  static constexpr bool isArray = false;
  T* const* list;
  int64_t shift;
  constexpr MatrixP(T* const* x, int64_t bytes) : list(x), shift(bytes) {}
  constexpr bool null() const { return list == nullptr; }
  constexpr bool badShift() const { return isBadShift<T>(static_cast<int32_t>(shift)); }
  template <class> constexpr MatrixP forKernel() const { return *this; }
  constexpr MatrixP advanced(const Share&) const { return *this; }
  ZELM_INLINE int64_t objectStride() const { return 0; }
  ZELM_INLINE auto object(int64_t, int64_t rowLength) const { return PointerMatrixView<T>{list, shift, rowLength, 1}; }
};

// ma, standard layout.
template <class T, class Stride = AnyStride> struct Matrices : Argument {
  using Element = std::remove_const_t<T>;
  using Step = typename Stride::template Step<T>;
  static constexpr bool isArray = true;
  T* pointer;
  int32_t stride0;
  int32_t stride1;
  Step stride2;
  constexpr Matrices(T* x, int32_t s0, int32_t s1, Step s2) : pointer(x), stride0(s0), stride1(s1), stride2(s2) {}
  constexpr bool null() const { return pointer == nullptr; }
  constexpr bool badObjectStride() const { return isBadStride<T>(stride0); }
  constexpr bool badElementStride() const {
    return isBadStride<T>(stride1) || isBadStride<T>(static_cast<int32_t>(static_cast<int64_t>(stride2)));
  }
  constexpr bool unit() const { return stride2 == static_cast<int64_t>(sizeof(T)); }
  template <class S> constexpr Matrices<T, S> forKernel() const {
    if constexpr (std::is_same_v<S, UnitStride>)
      return {pointer, stride0, stride1, {}};
    else
      return *this;
  }
  Matrices advanced(const Share& share) const {
    return {reinterpret_cast<T*>(reinterpret_cast<Byte<T>*>(pointer) + share.first * stride0), stride0, stride1,
            stride2};
  }
  // Objects of height rows of width elements without gaps, one behind the other.
  ZELM_INLINE bool packed(int32_t width, int32_t height) const {
    const int64_t row = static_cast<int64_t>(width) * static_cast<int64_t>(sizeof(T));
    return stride1 == row && stride0 == row * height;
  }
  ZELM_INLINE int64_t objectStride() const { return stride0; }
  // Object k as a single operand.
  Matrix<T, Stride> single(int64_t k) const {
    return {reinterpret_cast<T*>(reinterpret_cast<Byte<T>*>(pointer) + k * stride0), stride1, stride2};
  }
  ZELM_INLINE auto object(int64_t k, int64_t /* rowLength */) const {
    return StridedMatrixView<T, AnyStep, Step>{reinterpret_cast<Byte<T>*>(pointer) + k * stride0, stride1, stride2};
  }
};

// ma, list layout.
template <class T, class Stride = AnyStride> struct MatricesL : Argument {
  using Element = std::remove_const_t<T>;
  using Step = typename Stride::template Step<T>;
  static constexpr bool isArray = true;
  T* const* list;
  int32_t shift;
  int32_t stride1;
  Step stride2;
  constexpr MatricesL(T* const* x, int32_t bytes, int32_t s1, Step s2)
      : list(x), shift(bytes), stride1(s1), stride2(s2) {}
  constexpr bool null() const { return list == nullptr; }
  constexpr bool badElementStride() const {
    return isBadStride<T>(stride1) || isBadStride<T>(static_cast<int32_t>(static_cast<int64_t>(stride2)));
  }
  constexpr bool badShift() const { return isBadShift<T>(shift); }
  constexpr bool unit() const { return stride2 == static_cast<int64_t>(sizeof(T)); }
  template <class S> constexpr MatricesL<T, S> forKernel() const {
    if constexpr (std::is_same_v<S, UnitStride>)
      return {list, shift, stride1, {}};
    else
      return *this;
  }
  constexpr MatricesL advanced(const Share& share) const { return {list + share.first, shift, stride1, stride2}; }
  // Object k as a single operand.
  Matrix<T, Stride> single(int64_t k) const {
    return {reinterpret_cast<T*>(reinterpret_cast<Byte<T>*>(list[k]) + shift), stride1, stride2};
  }
  ZELM_INLINE auto object(int64_t k, int64_t /* rowLength */) const {
    return StridedMatrixView<T, AnyStep, Step>{reinterpret_cast<Byte<T>*>(list[k]) + shift, stride1, stride2};
  }
};

// ma, pointer layout. The offset is the shift, and what the share of a thread adds to it.
template <class T> struct MatricesP : Argument {
  using Element = std::remove_const_t<T>;
  static constexpr bool isArray = true;
  T* const* list;
  int64_t offset;
  int32_t stride0;
  constexpr MatricesP(T* const* x, int64_t bytes, int32_t s0) : list(x), offset(bytes), stride0(s0) {}
  constexpr bool null() const { return list == nullptr; }
  constexpr bool badObjectStride() const { return isBadStride<T>(stride0); }
  constexpr bool badShift() const { return isBadShift<T>(static_cast<int32_t>(offset)); }
  template <class> constexpr MatricesP forKernel() const { return *this; }
  constexpr MatricesP advanced(const Share& share) const { return {list, offset + share.first * stride0, stride0}; }
  // Object k as a single operand.
  MatrixP<T> single(int64_t k) const { return {list, offset + k * stride0}; }
  ZELM_INLINE int64_t objectStride() const { return stride0; }
  ZELM_INLINE auto object(int64_t k, int64_t rowLength) const {
    return PointerMatrixView<T>{list, offset + k * stride0, rowLength, 1};
  }
};

// v, standard and list layout.
template <class T, class Stride = AnyStride> struct Vector : Argument {
  using Element = std::remove_const_t<T>;
  using Step = typename Stride::template Step<T>;
  static constexpr bool isArray = false;
  T* pointer;
  Step stride2;
  constexpr Vector(T* x, Step s2) : pointer(x), stride2(s2) {}
  constexpr bool null() const { return pointer == nullptr; }
  constexpr bool badElementStride() const {
    return isBadStride<T>(static_cast<int32_t>(static_cast<int64_t>(stride2)));
  }
  constexpr bool unit() const { return stride2 == static_cast<int64_t>(sizeof(T)); }
  template <class S> constexpr Vector<T, S> forKernel() const {
    if constexpr (std::is_same_v<S, UnitStride>)
      return {pointer, {}};
    else
      return *this;
  }
  constexpr Vector advanced(const Share&) const { return *this; }
  constexpr Vector single(int64_t) const { return *this; }
  ZELM_INLINE auto object(int64_t) const {
    return StridedVectorView<T, Step>{reinterpret_cast<Byte<T>*>(pointer), stride2};
  }
};

// v, pointer layout.
template <class T> struct VectorP : Argument {
  using Element = std::remove_const_t<T>;
  static constexpr bool isArray = false;
  T* const* list;
  int32_t shift;
  constexpr VectorP(T* const* x, int32_t bytes) : list(x), shift(bytes) {}
  constexpr bool null() const { return list == nullptr; }
  constexpr bool badShift() const { return isBadShift<T>(shift); }
  template <class> constexpr VectorP forKernel() const { return *this; }
  constexpr VectorP advanced(const Share&) const { return *this; }
  ZELM_INLINE int64_t objectStride() const { return 0; }
  ZELM_INLINE auto object(int64_t) const { return PointerVectorView<T>{list, shift}; }
};

// va, standard layout.
template <class T, class Stride = AnyStride> struct Vectors : Argument {
  using Element = std::remove_const_t<T>;
  using Step = typename Stride::template Step<T>;
  static constexpr bool isArray = true;
  T* pointer;
  int32_t stride0;
  Step stride2;
  constexpr Vectors(T* x, int32_t s0, Step s2) : pointer(x), stride0(s0), stride2(s2) {}
  constexpr bool null() const { return pointer == nullptr; }
  constexpr bool badObjectStride() const { return isBadStride<T>(stride0); }
  constexpr bool badElementStride() const {
    return isBadStride<T>(static_cast<int32_t>(static_cast<int64_t>(stride2)));
  }
  constexpr bool unit() const { return stride2 == static_cast<int64_t>(sizeof(T)); }
  template <class S> constexpr Vectors<T, S> forKernel() const {
    if constexpr (std::is_same_v<S, UnitStride>)
      return {pointer, stride0, {}};
    else
      return *this;
  }
  Vectors advanced(const Share& share) const {
    return {reinterpret_cast<T*>(reinterpret_cast<Byte<T>*>(pointer) + share.first * stride0), stride0, stride2};
  }
  ZELM_INLINE bool packed(int32_t len) const {
    return stride0 == static_cast<int64_t>(len) * static_cast<int64_t>(sizeof(T));
  }
  ZELM_INLINE int64_t objectStride() const { return stride0; }
  ZELM_INLINE auto object(int64_t k) const {
    return StridedVectorView<T, Step>{reinterpret_cast<Byte<T>*>(pointer) + k * stride0, stride2};
  }
};

// va, list layout.
template <class T, class Stride = AnyStride> struct VectorsL : Argument {
  using Element = std::remove_const_t<T>;
  using Step = typename Stride::template Step<T>;
  static constexpr bool isArray = true;
  T* const* list;
  int32_t shift;
  Step stride2;
  constexpr VectorsL(T* const* x, int32_t bytes, Step s2) : list(x), shift(bytes), stride2(s2) {}
  constexpr bool null() const { return list == nullptr; }
  constexpr bool badElementStride() const {
    return isBadStride<T>(static_cast<int32_t>(static_cast<int64_t>(stride2)));
  }
  constexpr bool badShift() const { return isBadShift<T>(shift); }
  constexpr bool unit() const { return stride2 == static_cast<int64_t>(sizeof(T)); }
  template <class S> constexpr VectorsL<T, S> forKernel() const {
    if constexpr (std::is_same_v<S, UnitStride>)
      return {list, shift, {}};
    else
      return *this;
  }
  constexpr VectorsL advanced(const Share& share) const { return {list + share.first, shift, stride2}; }
  Vector<T, Stride> single(int64_t k) const {
    return {reinterpret_cast<T*>(reinterpret_cast<Byte<T>*>(list[k]) + shift), stride2};
  }
  ZELM_INLINE auto object(int64_t k) const {
    return StridedVectorView<T, Step>{reinterpret_cast<Byte<T>*>(list[k]) + shift, stride2};
  }
};

// va, pointer layout.
template <class T> struct VectorsP : Argument {
  using Element = std::remove_const_t<T>;
  static constexpr bool isArray = true;
  T* const* list;
  int64_t offset;
  int32_t stride0;
  constexpr VectorsP(T* const* x, int64_t bytes, int32_t s0) : list(x), offset(bytes), stride0(s0) {}
  constexpr bool null() const { return list == nullptr; }
  constexpr bool badObjectStride() const { return isBadStride<T>(stride0); }
  constexpr bool badShift() const { return isBadShift<T>(static_cast<int32_t>(offset)); }
  template <class> constexpr VectorsP forKernel() const { return *this; }
  constexpr VectorsP advanced(const Share& share) const { return {list, offset + share.first * stride0, stride0}; }
  ZELM_INLINE int64_t objectStride() const { return stride0; }
  ZELM_INLINE auto object(int64_t k) const { return PointerVectorView<T>{list, offset + k * stride0}; }
};

// ca, standard and pointer layout.
template <class T> struct Constants : Argument {
  using Element = std::remove_const_t<T>;
  static constexpr bool isArray = true;
  T* pointer;
  int32_t stride0;
  constexpr Constants(T* x, int32_t s0) : pointer(x), stride0(s0) {}
  constexpr bool null() const { return pointer == nullptr; }
  constexpr bool badObjectStride() const { return isBadStride<T>(stride0); }
  template <class> constexpr Constants forKernel() const { return *this; }
  Constants advanced(const Share& share) const {
    return {reinterpret_cast<T*>(reinterpret_cast<Byte<T>*>(pointer) + share.first * stride0), stride0};
  }
  ZELM_INLINE Element load(int64_t k) const {
    return loadElement<T>(reinterpret_cast<Byte<T>*>(pointer) + k * stride0);
  }
};

// ca, list layout.
template <class T> struct ConstantsL : Argument {
  using Element = std::remove_const_t<T>;
  static constexpr bool isArray = true;
  T* const* list;
  int32_t shift;
  constexpr ConstantsL(T* const* x, int32_t bytes) : list(x), shift(bytes) {}
  constexpr bool null() const { return list == nullptr; }
  constexpr bool badShift() const { return isBadShift<T>(shift); }
  template <class> constexpr ConstantsL forKernel() const { return *this; }
  constexpr ConstantsL advanced(const Share& share) const { return {list + share.first, shift}; }
  ZELM_INLINE Element load(int64_t k) const { return loadElement<T>(reinterpret_cast<Byte<T>*>(list[k]) + shift); }
};

// The t kinds: the operand with i and j exchanged. rowLength is that of the stored rows.
template <class Operand> struct Transposed : Operand {
  using Operand::Operand;
  constexpr Transposed(const Operand& stored) : Operand(stored) {}
  constexpr const Operand& stored() const { return *this; }
  template <class S> constexpr auto forKernel() const {
    return Transposed<decltype(stored().template forKernel<S>())>(stored().template forKernel<S>());
  }
  constexpr Transposed advanced(const Share& share) const { return Operand::advanced(share); }
  constexpr auto single(int64_t k) const { return Transposed<decltype(Operand::single(k))>(Operand::single(k)); }
  ZELM_INLINE auto object(int64_t k, int64_t rowLength) const { return Operand::object(k, rowLength).transposed(); }
};

// The operand as a kernel for unit stride2 takes it.
template <class Operand> using UnitOf = decltype(std::declval<const Operand&>().template forKernel<UnitStride>());

template <class> constexpr bool isTransposed = false;
template <class Operand> constexpr bool isTransposed<Transposed<Operand>> = true;

// The operand with its rows as they are stored.
template <class Operand> ZELM_INLINE const auto& asStored(const Operand& x) {
  if constexpr (isTransposed<Operand>)
    return x.stored();
  else
    return x;
}

// Whether the elements of a vector operand are known to be neighbours.
template <class Operand> constexpr bool hasUnitRows = decltype(std::declval<const Operand&>().object(0))::unitRows;

// Vectors in the standard layout with unit strides: can they have no gaps at all? Have they, with n elements each? A
// single vector has none.
template <class> constexpr bool isRun = false;
template <class T> constexpr bool isRun<Vector<T, UnitStride>> = true;
template <class T> constexpr bool isRun<Vectors<T, UnitStride>> = true;
template <class Operand> ZELM_INLINE bool isPackedRun(const Operand& x, int32_t n) {
  if constexpr (Operand::isArray)
    return x.packed(n);
  else
    return true;
}

constexpr int smaller(int a, int b) {
  return a < b ? a : b;
}
constexpr int larger(int a, int b) {
  return a > b ? a : b;
}

} // namespace zelm
