// The table of members as the tests know it. A family lists its forms; a form lists its functions, the tokens of its
// argument list, the order of its tests and its thresholds. Everything else (argument roles, kernel and front names)
// follows from the names and is worked out in member.cpp. Nothing here comes from the library but the public header.
#ifndef ZELMTEST_MEMBER_H
#define ZELMTEST_MEMBER_H

#include <zelm.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace zelmtest {

// ---- Calls through one generic signature
// -----------------------------------------------------------------------------

union Slot {
  const void* pointer;
  int32_t integer;
  float single;
  double twofold;
};

struct Function {
  const char* name;
  ZelStatus (*call)(const Slot*);
  std::vector<std::string> types; // of the parameters, as typeName spells them
};

template <class T> T unpack(const Slot& slot) {
  if constexpr (std::is_pointer_v<T>)
    return static_cast<T>(const_cast<void*>(slot.pointer));
  else if constexpr (std::is_same_v<T, int32_t>)
    return slot.integer;
  else if constexpr (std::is_same_v<T, float>)
    return slot.single;
  else
    return slot.twofold;
}

template <class T> std::string typeName() {
  if constexpr (std::is_pointer_v<T> && std::is_const_v<T>)
    return typeName<std::remove_const_t<T>>() + "const";
  else if constexpr (std::is_pointer_v<T>)
    return typeName<std::remove_pointer_t<T>>() + "*";
  else if constexpr (std::is_const_v<T>)
    return "const " + typeName<std::remove_const_t<T>>();
  else if constexpr (std::is_same_v<T, float>)
    return "float";
  else if constexpr (std::is_same_v<T, double>)
    return "double";
  else if constexpr (std::is_void_v<T>)
    return "void";
  else {
    static_assert(std::is_same_v<T, int32_t>);
    return "int";
  }
}

template <class... A, size_t... I>
ZelStatus invoke(ZelStatus (*f)(A...), const Slot* slots, std::index_sequence<I...>) {
  return f(unpack<A>(slots[I])...);
}

template <auto F, class... A> Function describe(const char* name, ZelStatus (*)(A...)) {
  return {name, [](const Slot* s) { return invoke<A...>(F, s, std::index_sequence_for<A...>()); }, {typeName<A>()...}};
}

#define ZELMTEST_FN(f) zelmtest::describe<f>(#f, f)
// The members of a form without an array, of a form with one.
#define ZELMTEST_SINGLE(stem)                                                                                          \
  { ZELMTEST_FN(stem##_32f), ZELMTEST_FN(stem##_64f), ZELMTEST_FN(stem##_32f_P), ZELMTEST_FN(stem##_64f_P) }
#define ZELMTEST_ARRAY(stem)                                                                                           \
  {                                                                                                                    \
    ZELMTEST_FN(stem##_32f), ZELMTEST_FN(stem##_64f), ZELMTEST_FN(stem##_32f_L), ZELMTEST_FN(stem##_64f_L),            \
        ZELMTEST_FN(stem##_32f_P), ZELMTEST_FN(stem##_64f_P)                                                           \
  }

// ---- Sizes
// -----------------------------------------------------------------------------------------------------------

// The size arguments of a call and its count, by name. operator[] is unsigned, so that an estimate written with it
// wraps.
class Sizes {
public:
  bool has(std::string_view name) const;
  int32_t get(std::string_view name) const;
  uint32_t operator[](std::string_view name) const { return static_cast<uint32_t>(get(name)); }
  void set(std::string_view name, int32_t value);
  std::string text() const;

private:
  std::vector<std::pair<std::string, int32_t>> values_;
};

struct Shape {
  int rows, cols; // as stored
};

// ---- The table
// -------------------------------------------------------------------------------------------------------

class Job;
template <class T> class Typed;
class Rng;
struct Member;

// One generic lambda serves both element types: both([](auto& job) { ... }).
struct References {
  std::function<void(Typed<float>&)> single;
  std::function<void(Typed<double>&)> twofold;
};
template <class F> References both(F f) {
  return {f, f};
}
struct Fills {
  std::function<void(Typed<float>&, Rng&, int)> single;
  std::function<void(Typed<double>&, Rng&, int)> twofold;
};
template <class F> Fills bothFill(F f) {
  return {f, f};
}

enum class Fork { AtLeast, Above }; // the front takes estimates from the limit on, or those beyond it

// Limits by layout and by "all stride2 equal the element size" or not.
struct Limits {
  int32_t unit, any, listUnit, listAny, pointer;
};

// Orders of tests. N null, C count, Z size, M agreement, S strides, H shifts; h and s only those of the first operand;
// 0 at the end: stride0 is tested there, if count is above 1, and not under S.
struct Orders {
  const char *standard, *list, *pointer;
};

struct Form {
  std::vector<Function> functions;
  // "src1:ma src2:m dst:ma width height count". Kinds behind the colon: m t v c, ma ta va ca; r one plain element per
  // object, e widthHeight plain elements per object, x plain packed objects of the family's shape, i and I widthHeight
  // plain integers per object that are read or written, b the buffer (free after a call without threads, else
  // untouched), y a buffer of bytes, which may lie at any address.
  const char* tokens;
  Orders orders;
  const char* inPlace = ""; // sources that dst may be the same memory as, with equal strides
  std::function<uint32_t(const Sizes&)> estimate = nullptr; // none: the form has no front
  Limits limits32 = {}, limits64 = {};
};

struct Family {
  const char* name;
  std::vector<Form> forms;
  Fork fork = Fork::AtLeast;
  References reference;

  // All of the following have a default.
  std::function<bool(const Member&, const Sizes&)> agrees = nullptr; // the agreement test
  // The stored shape of an operand where the default rule of storedShape does not give it; {0, 0} leaves it the
  // default.
  std::function<Shape(const Member&, const std::string& operand, const Sizes&)> shape = nullptr;
  std::function<std::vector<Sizes>(const Member&)> shapes = nullptr; // sizes to run, instead of the default list
  Fills fill = {};                                                   // changes the inputs that the default filled
  std::vector<int> dataKinds = {0, 0, 1, 2, 3, 4};                   // see fillDense
  bool movesBits = false;                                            // NaN payloads are results
  bool hasKernels = true;                                            // false: the exported functions work themselves
  bool stopsAtFailure = true;                                        // a failing object ends its share
  // The kernel that a member's own one calls for each object; none if empty. Member::kernelOfOne spells it.
  std::function<std::string(const Member&, const Sizes&, bool unit)> delegate = nullptr;
  std::vector<std::string> inner = {}; // what the delegate may enter, any number of times
  // The kernel that a member's own one calls once for all its objects; none if empty.
  std::function<std::string(const Job&)> delegateOfAll = nullptr;
  // Calls that the exported function finishes by itself, without a kernel.
  std::function<bool(const Sizes&)> needsNoKernel = nullptr;
  // Whether what the form says of in place holds for these sizes; by default it does for all.
  std::function<bool(const Member&, const Sizes&)> worksInPlace = nullptr;
  std::vector<int> laneSides = {4, 5};                                 // sides of arrays whose objects go side by side
  std::map<std::string, std::function<void(Member&)>> exceptions = {}; // members that deviate from their form's row
};

// ---- A member, worked out
// --------------------------------------------------------------------------------------------

enum class Role { Pointer, Shift, Stride0, Stride1, Stride2, Size, Count, Value };

struct Argument {
  std::string name;
  Role role;
  int operand; // index, or -1 for sizes and count
};

struct OperandInfo {
  std::string name, kind;
  char layout;
  bool array, transposed, output, integer, plain, value, scratch;
  bool listed() const {
    return !plain && !value && kind != "ca" ? layout == 'P' || (layout == 'L' && array) : layout == 'L' && kind == "ca";
  }
};

struct Member {
  const Family* family;
  const Form* form;
  Function function;
  std::string name;
  std::string formName; // "mam"
  char layout;          // S, L or P; the source's in Copy pairs
  int elem;             // 4 or 8
  std::vector<OperandInfo> operands;
  std::vector<Argument> arguments;
  std::vector<std::string> sizeNames;
  bool hasCount;
  std::string order;
  std::vector<std::string> omitted;         // strides and shifts that are not tested
  std::string kernelUnit, kernelAny, front; // front empty: none
  int32_t limitUnit = 0, limitAny = 0;

  int operandIndex(std::string_view operand) const;
  bool agrees(const Sizes& sizes) const { return !family->agrees || family->agrees(*this, sizes); }
  bool goesToFront(bool unit, const Sizes& sizes) const;
  bool canFail() const; // the kernel: an object may have a status of its own
  bool needsNoKernel(const Sizes& sizes) const { return family->needsNoKernel && family->needsNoKernel(sizes); }
  std::string kernelOfOne(const char* suffix) const; // "ownzelmAdd_mm_32f_S2" of zelmAdd_mama_32f_L and "_S2"
  Shape storedShape(const OperandInfo& operand, const Sizes& sizes) const;
  Sizes square(int n, int32_t count) const; // all sizes n
  std::vector<Sizes> shapes() const;        // without count; all agree
  Sizes randomShape(Rng& rng, int32_t max) const;
  ZelStatus expectedStatus(const std::vector<Slot>& slots) const; // of the argument tests alone
};

// A family file holds one object of this class; its members get all tests of checks.cpp.
class Registration {
public:
  explicit Registration(Family family);
};
const std::vector<Member>& members();
const Member& member(std::string_view name);

} // namespace zelmtest

#endif
