#include "member.h"

#include "job.h"

#include <cstdio>
#include <cstdlib>
#include <list>
#include <set>
#include <sstream>

namespace zelmtest {

namespace {

[[noreturn]] void broken(const std::string& what) {
  std::fprintf(stderr, "table of members: %s\n", what.c_str());
  std::abort();
}

std::vector<std::string> words(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> all;
  for (std::string word; in >> word;)
    all.push_back(word);
  return all;
}

// The arguments of one operand, and the C types that the public header must show for them.
void addOperand(Member& m, const std::string& name, const std::string& kind, char layout,
                std::vector<std::string>& types) {
  OperandInfo op{};
  op.name = name;
  op.kind = kind;
  op.layout = layout;
  op.array = kind.size() == 2;
  op.transposed = kind[0] == 't';
  op.integer = kind == "i" || kind == "I";
  op.plain = kind.find_first_not_of("rexiIby") == std::string::npos;
  op.value = kind == "c";
  op.scratch = kind == "b" || kind == "y";
  op.output = kind == "I" || op.scratch || name.rfind("dst", 0) == 0 || name.rfind("vectors", 0) == 0 ||
              name.rfind("values", 0) == 0;
  if (op.plain)
    op.array = !op.scratch;
  int index = static_cast<int>(m.operands.size());
  m.operands.push_back(op);

  std::string element = op.integer ? "int" : kind == "y" ? "void" : m.elem == 4 ? "float" : "double";
  std::string pointer = (op.output ? "" : "const ") + element + "*";
  auto add = [&](const std::string& suffix, Role role, const std::string& type) {
    m.arguments.push_back({name + suffix, role, index});
    types.push_back(type);
  };
  if (op.value)
    return add("", Role::Value, element);
  add("", Role::Pointer, op.listed() ? pointer + "const*" : pointer);
  if (op.plain)
    return;
  bool matrix = kind[0] == 'm' || kind[0] == 't', constant = kind == "ca";
  if (layout == 'P' && !constant) {
    add("Shift", Role::Shift, "int");
    if (op.array)
      add("Stride0", Role::Stride0, "int");
    return;
  }
  if (op.array && layout == 'L')
    add("Shift", Role::Shift, "int");
  else if (op.array)
    add("Stride0", Role::Stride0, "int");
  if (matrix)
    add("Stride1", Role::Stride1, "int");
  if (!constant)
    add("Stride2", Role::Stride2, "int");
}

Member build(const Family& family, const Form& form, const Function& function) {
  Member m{};
  m.family = &family;
  m.form = &form;
  m.function = function;
  m.name = function.name;
  size_t first = m.name.find('_'), second = m.name.find('_', first + 1);
  m.formName = m.name.substr(first + 1, second - first - 1);
  m.elem = m.name.substr(second + 1, 3) == "32f" ? 4 : 8;
  std::string layouts = m.name.size() > second + 5 ? m.name.substr(second + 5) : "S";
  m.layout = layouts[0];

  std::vector<std::string> types;
  for (const std::string& token : words(form.tokens)) {
    size_t colon = token.find(':');
    if (colon != std::string::npos) {
      char layout = layouts.size() == 2 && !m.operands.empty() ? layouts[1] : layouts[0];
      addOperand(m, token.substr(0, colon), token.substr(colon + 1), layout, types);
      continue;
    }
    m.arguments.push_back({token, token == "count" ? Role::Count : Role::Size, -1});
    types.push_back("int");
    if (token != "count")
      m.sizeNames.push_back(token);
    else
      m.hasCount = true;
  }
  if (function.types.size() != types.size())
    broken(m.name + " has another number of arguments");
  for (size_t i = 0; i < types.size(); ++i)
    if (function.types[i] != types[i])
      broken(m.name + ": " + m.arguments[i].name + " is a " + function.types[i] + ", not a " + types[i]);

  m.order = m.layout == 'S' ? form.orders.standard : m.layout == 'L' ? form.orders.list : form.orders.pointer;
  if (!family.hasKernels)
    ;
  else if (m.layout == 'S')
    m.kernelUnit = "own" + m.name, m.kernelAny = m.kernelUnit + "_S2";
  else if (m.layout == 'L')
    m.kernelUnit = "own" + m.name, m.kernelAny = m.kernelUnit + "S2";
  else
    m.kernelUnit = m.kernelAny = "own" + m.name;
  if (form.estimate) {
    m.front = "ownOMP_" + m.name;
    const Limits& limits = m.elem == 4 ? form.limits32 : form.limits64;
    m.limitUnit = m.layout == 'S' ? limits.unit : m.layout == 'L' ? limits.listUnit : limits.pointer;
    m.limitAny = m.layout == 'S' ? limits.any : m.layout == 'L' ? limits.listAny : limits.pointer;
  }
  auto exception = family.exceptions.find(m.name);
  if (exception != family.exceptions.end())
    exception->second(m);
  return m;
}

std::vector<Member>& table() {
  static std::vector<Member> all;
  return all;
}

} // namespace

Registration::Registration(Family family) {
  static std::list<Family> families; // members point into it
  const Family& kept = families.emplace_back(std::move(family));
  std::set<std::string> unused;
  for (const auto& exception : kept.exceptions)
    unused.insert(exception.first);
  for (const Form& form : kept.forms)
    for (const Function& function : form.functions) {
      table().push_back(build(kept, form, function));
      unused.erase(function.name);
    }
  if (!unused.empty())
    broken("an exception for " + *unused.begin() + ", which is no member");
}

const std::vector<Member>& members() {
  return table();
}

const Member& member(std::string_view name) {
  for (const Member& m : table())
    if (m.name == name)
      return m;
  broken("no member " + std::string(name));
}

// ---- Sizes
// -----------------------------------------------------------------------------------------------------------

bool Sizes::has(std::string_view name) const {
  for (const auto& value : values_)
    if (value.first == name)
      return true;
  return false;
}

int32_t Sizes::get(std::string_view name) const {
  for (const auto& value : values_)
    if (value.first == name)
      return value.second;
  broken("no size " + std::string(name));
}

void Sizes::set(std::string_view name, int32_t value) {
  for (auto& old : values_)
    if (old.first == name) {
      old.second = value;
      return;
    }
  values_.emplace_back(name, value);
}

std::string Sizes::text() const {
  std::string all;
  for (const auto& value : values_)
    all += " " + value.first + "=" + std::to_string(value.second);
  return all;
}

// ---- Member
// ----------------------------------------------------------------------------------------------------------

int Member::operandIndex(std::string_view operand) const {
  for (size_t i = 0; i < operands.size(); ++i)
    if (operands[i].name == operand)
      return static_cast<int>(i);
  broken(name + " has no operand " + std::string(operand));
}

bool Member::canFail() const {
  for (const char* failing : {"LUDecomp", "CholeskyDecomp", "QRDecomp", "Invert", "AffineTransform3DH", "EigenValues"})
    if (name.rfind(std::string("zelm") + failing, 0) == 0)
      return true;
  return false;
}

bool Member::goesToFront(bool unit, const Sizes& sizes) const {
  if (needsNoKernel(sizes))
    return false;
  if (front.empty())
    return false;
  auto estimate = static_cast<int32_t>(form->estimate(sizes));
  int32_t limit = unit ? limitUnit : limitAny;
  return family->fork == Fork::AtLeast ? estimate >= limit : estimate > limit;
}

std::string Member::kernelOfOne(const char* suffix) const {
  std::string single = "own" + name.substr(0, name.find('_') + 1);
  for (char letter : formName)
    if (letter != 'a')
      single += letter;
  return single + (elem == 4 ? "_32f" : "_64f") + suffix;
}

Shape Member::storedShape(const OperandInfo& op, const Sizes& sizes) const {
  if (family->shape) {
    Shape shape = family->shape(*this, op.name, sizes);
    if (shape.rows != 0)
      return shape;
  }
  auto size = [&](const std::string& own, const char* shared) {
    if (sizes.has(op.name + own))
      return sizes.get(op.name + own);
    return sizes.get(sizes.has("widthHeight") ? "widthHeight" : shared);
  };
  switch (op.kind[0]) {
  case 'c':
  case 'r':
    return {1, 1};
  case 'v':
    return {1, size("Len", "len")};
  case 'e':
  case 'i':
  case 'I':
    return {1, sizes.get("widthHeight")};
  case 'm':
  case 't': {
    Shape shape{size("Height", "height"), size("Width", "width")};
    // Sizes of the operand's own describe it as stored; common ones describe the result.
    if (op.transposed && !sizes.has(op.name + "Width"))
      std::swap(shape.rows, shape.cols);
    return shape;
  }
  default:
    broken(name + ": the family gives no shape of " + op.name);
  }
}

Sizes Member::square(int n, int32_t count) const {
  Sizes sizes;
  for (const std::string& size : sizeNames)
    sizes.set(size, n);
  if (hasCount)
    sizes.set("count", count);
  return sizes;
}

Sizes Member::randomShape(Rng& rng, int32_t max) const {
  for (;;) {
    int32_t pair[] = {rng.within(1, max), rng.within(1, max)};
    bool free = rng.chance(2);
    Sizes sizes;
    for (const std::string& size : sizeNames)
      sizes.set(size, free ? rng.within(1, max) : pair[rng.below(2)]);
    if (agrees(sizes))
      return sizes;
  }
}

std::vector<Sizes> Member::shapes() const {
  if (family->shapes)
    return family->shapes(*this);
  std::vector<Sizes> all;
  for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 17})
    if (all.empty() || !sizeNames.empty())
      all.push_back(square(n, 1));
  if (sizeNames.size() == 1)
    for (int n : {10, 11, 15, 16, 33})
      all.push_back(square(n, 1));
  else if (sizeNames.size() == 2 && sizeNames[0] == "width") {
    constexpr int pairs[][2] = {{1, 5}, {5, 1}, {3, 4}, {4, 3},  {2, 6}, {6, 5},
                                {5, 6}, {7, 3}, {4, 8}, {17, 4}, {4, 17}};
    for (auto [width, height] : pairs) {
      all.emplace_back();
      all.back().set("width", width);
      all.back().set("height", height);
    }
  } else if (!sizeNames.empty()) {
    Rng rng(1);
    for (int i = 0; i < 30; ++i)
      all.push_back(randomShape(rng, 9));
  }
  std::vector<Sizes> agreeing;
  for (Sizes& sizes : all)
    if (agrees(sizes))
      agreeing.push_back(sizes);
  return agreeing;
}

ZelStatus Member::expectedStatus(const std::vector<Slot>& slots) const {
  Sizes sizes;
  for (size_t i = 0; i < arguments.size(); ++i)
    if (arguments[i].role == Role::Size || arguments[i].role == Role::Count)
      sizes.set(arguments[i].name, slots[i].integer);
  bool lateStride0 = order.find('0') != std::string::npos;
  for (char test : order) {
    if (test == 'M') {
      if (!agrees(sizes))
        return zelStatusSizeMismatch;
      continue;
    }
    for (size_t i = 0; i < arguments.size(); ++i) {
      const Argument& a = arguments[i];
      bool stride = a.role == Role::Stride0 || a.role == Role::Stride1 || a.role == Role::Stride2;
      bool ragged = slots[i].integer % elem != 0, omit = false;
      for (const std::string& untested : omitted)
        omit = omit || untested == a.name;
      if (omit || ((test == 's' || test == 'h') && a.operand != 0))
        continue;
      if (test == 'N' && a.role == Role::Pointer && slots[i].pointer == nullptr)
        return zelStatusNullPointer;
      if (test == 'C' && a.role == Role::Count && slots[i].integer < 1)
        return zelStatusBadCount;
      if (test == 'Z' && a.role == Role::Size && slots[i].integer < 1)
        return zelStatusBadSize;
      if ((test == 'H' || test == 'h') && a.role == Role::Shift && (ragged || slots[i].integer < 0))
        return zelStatusBadShift;
      bool due = test == '0' ? a.role == Role::Stride0 && sizes.get("count") > 1
                             : (test == 'S' || test == 's') && stride && !(lateStride0 && a.role == Role::Stride0);
      if (due && (ragged || slots[i].integer < 1))
        return zelStatusBadStride;
    }
  }
  return zelStatusOk;
}

} // namespace zelmtest
