#include "run.h"

#include "paths.h"
#include "steps.h"

#include <omp.h>
#include <unistd.h>
#include <xmmintrin.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <csignal>
#include <limits>
#include <numeric>
#include <optional>
#include <set>

namespace zelmtest {

// ---- Data
// ------------------------------------------------------------------------------------------------------------

namespace {

template <class T, class Bits> T bitsToValue(Bits bits) {
  T value;
  std::memcpy(&value, &bits, sizeof(T));
  return value;
}

template <class T> T denseValue(Rng& rng) {
  double mantissa = 1.0 + static_cast<double>(rng.next() >> 11) * 0x1p-53;
  return static_cast<T>(std::ldexp(rng.chance(2) ? mantissa : -mantissa, rng.within(-3, 3)));
}

template <class T, class Bits> T anyValue(Rng& rng, int kind) {
  using L = std::numeric_limits<T>;
  constexpr Bits sign = Bits{1} << (sizeof(T) * 8 - 1);
  static const T specials[] = {T(0),
                               L::denorm_min(),
                               L::min() - L::denorm_min(),
                               L::min(),
                               L::max(),
                               L::infinity(),
                               L::quiet_NaN(),
                               bitsToValue<T>(static_cast<Bits>(bitsToValue<Bits>(L::infinity()) | 5)),
                               T(1),
                               L::epsilon(),
                               T(1) + L::epsilon(),
                               T(1) / T(3)};
  auto flip = [&](T value) {
    return bitsToValue<T>(static_cast<Bits>(bitsToValue<Bits>(value) ^ (rng.chance(2) ? sign : 0)));
  };
  switch (kind) {
  case 1:
    return rng.chance(2) ? flip(specials[rng.below(sizeof specials / sizeof *specials)]) : denseValue<T>(rng);
  case 2:
    return bitsToValue<T>(static_cast<Bits>(rng.next()));
  case 3:
    return flip(rng.chance(4) ? L::denorm_min() * T(rng.below(5)) : T(0));
  case 4:
    return flip(T(std::ldexp(1.0, 10 * rng.below(3))) * (T(1) + L::epsilon() * T(rng.below(2))));
  default:
    return denseValue<T>(rng);
  }
}

template <class T, class Bits> void fillAs(Dense& dense, Rng& rng, int kind) {
  for (size_t i = 0; i < dense.bytes.size(); i += sizeof(T)) {
    T value = anyValue<T, Bits>(rng, kind);
    std::memcpy(&dense.bytes[i], &value, sizeof(T));
  }
}

} // namespace

void fillDense(Dense& dense, Rng& rng, int kind) {
  if (dense.elem == 4)
    fillAs<float, uint32_t>(dense, rng, kind);
  else
    fillAs<double, uint64_t>(dense, rng, kind);
}

Job::Job(const Member& m, const Sizes& s) : member(m), sizes(s), count(m.hasCount ? s.get("count") : 1) {
  for (const OperandInfo& op : m.operands) {
    Shape shape = m.storedShape(op, s);
    Dense dense{op.array ? count : 1,
                shape.rows,
                shape.cols,
                op.array,
                op.transposed,
                op.integer       ? size_t{4}
                : op.kind == "y" ? size_t{1}
                                 : static_cast<size_t>(m.elem),
                {},
                {}};
    size_t all = dense.perObject() * static_cast<size_t>(dense.objects);
    dense.bytes.resize(all * dense.elem);
    dense.states.assign(all, op.scratch ? State::Free : State::Untouched);
    operands.push_back(dense);
  }
  status.assign(static_cast<size_t>(count), zelStatusOk);
}

bool sameElement(const unsigned char* a, const unsigned char* b, size_t elem, bool integer, bool exactNaN) {
  if (std::memcmp(a, b, elem) == 0)
    return true;
  if (integer || exactNaN)
    return false;
  auto nan = [elem](const unsigned char* bytes) {
    float single;
    double twofold;
    std::memcpy(&single, bytes, sizeof single);
    if (elem == 4)
      return std::isnan(single);
    std::memcpy(&twofold, bytes, sizeof twofold);
    return std::isnan(twofold);
  };
  return nan(a) && nan(b);
}

// ---- Placement
// -------------------------------------------------------------------------------------------------------

namespace {

// Where an operand lies and what the call is told of it.
struct Placed {
  std::vector<unsigned char*> elements; // by position in the dense operand
  const void* pointer = nullptr;
  int32_t stride0 = 0, stride1 = 0, stride2 = 0, shift = 0;
  Arena* arena = nullptr;
  std::vector<const unsigned char*> list;
};

// One axis of the nest that an operand's addresses form, from the innermost outwards.
struct Axis {
  char id; // k object, i row, j column, e element position
  int length;
  bool scattered;
  int64_t stride = 0;
  std::vector<int64_t> offsets = {};
};

// Lays the axis around `extent` bytes of what lies inside it, at the given stride or padded by `pad` elements, and
// returns the extent of the whole.
int64_t layAxis(Axis& axis, int64_t extent, int64_t stride, int jitter, int64_t elem, Rng& rng) {
  axis.stride = stride + jitter * elem;
  std::vector<int> order(static_cast<size_t>(axis.length));
  std::iota(order.begin(), order.end(), 0);
  if (axis.scattered)
    for (int i = axis.length - 1; i > 0; --i)
      std::swap(order[static_cast<size_t>(i)], order[static_cast<size_t>(rng.below(i + 1))]);
  int64_t last = 0;
  for (int place : order) {
    axis.offsets.push_back(place * axis.stride + (jitter > 0 ? rng.within(0, jitter) * elem : 0));
    last = std::max(last, axis.offsets.back());
  }
  return last + extent;
}

int64_t roundUp(int64_t value, int64_t unit) {
  return (value + unit - 1) / unit * unit;
}

Placed place(const OperandInfo& op, const Dense& dense, Plan plan, size_t slot, Rng& rng) {
  const auto elem = static_cast<int64_t>(dense.elem);
  const bool byList = op.listed() && op.layout == 'L', byPosition = op.listed() && op.layout == 'P';
  if (op.plain || op.value)
    plan.far = 0;
  // The shift reaches far inside an object too; in the pointer layout nothing else does.
  if (plan.far != 0 && plan.far != 'k' && op.listed())
    plan.shiftElements = static_cast<int>(0x60000000 / elem);
  const int positions = dense.rows * dense.cols;
  const Spread spread = op.plain || op.value ? Spread::Packed : plan.spread;
  const bool random = spread == Spread::Random;
  // Neighbours at one distance are a layout that products know.
  const bool even = spread == Spread::Packed || (byPosition && spread == Spread::Pitch16);
  const bool scatter = op.listed() && !even && !(random && rng.chance(3));

  // The nest, inside first.
  std::vector<Axis> axes;
  if (byPosition) {
    axes = {{'e', positions, scatter}, {'k', dense.objects, false}};
    if (spread != Spread::Packed && spread != Spread::PaddedObjects && spread != Spread::CombObjects &&
        !(random && rng.chance(3)))
      std::swap(axes[0], axes[1]);
  } else {
    axes = {{'j', dense.cols, false}, {'i', dense.rows, false}, {'k', dense.objects, byList && scatter}};
    if (spread == Spread::Interleaved || spread == Spread::Columns)
      std::swap(axes[0], axes[1]);
    else if (spread == Spread::ObjectsInside)
      std::rotate(axes.begin(), axes.begin() + 2, axes.end());
    else if (random)
      for (size_t i = 2; i > 0; --i)
        std::swap(axes[i], axes[static_cast<size_t>(rng.below(static_cast<int>(i) + 1))]);
  }
  int multiple = spread == Spread::Double ? 2 : spread == Spread::Triple ? 3 : random ? rng.within(1, 3) : 1;

  // The far axis lies around the others.
  if (plan.far != 0)
    std::stable_partition(axes.begin(), axes.end(), [&](const Axis& axis) { return axis.id != plan.far; });

  // Which axis steps from guard to guard, if the operand is small enough for the comb.
  char toothAxis = spread == Spread::CombObjects ? 'k' : spread == Spread::CombRows ? (byPosition ? 'e' : 'i') : 0;
  if (toothAxis == 'i' && dense.rows * dense.objects > 200)
    toothAxis = 'k';
  if (toothAxis != 0 && (dense.objects > 200 || positions > 200))
    toothAxis = 0;

  int64_t extent = elem, inTooth = 0;
  bool combed = false;
  for (size_t level = 0; level < axes.size(); ++level) {
    Axis& axis = axes[level];
    int64_t stride = level == 0 ? elem * multiple : roundUp(extent, elem);
    int jitter = axis.scattered ? 3 : 0;
    if (level > 0 && ((spread == Spread::PaddedRows && axis.id != 'k') || spread == Spread::Interleaved ||
                      spread == Spread::Triple || (spread == Spread::PaddedObjects && axis.id == 'k')))
      stride += elem * rng.within(1, 3);
    if (random)
      stride += elem * (rng.chance(2) ? rng.within(0, 9) : 0);
    if (spread == Spread::Pitch16 && level > 0)
      stride = roundUp(stride, 16);
    if (spread == Spread::Pitch16)
      jitter = 0;
    if (plan.far == axis.id && axis.length > 1)
      stride = std::max(stride, int64_t{0x60000000});
    if (toothAxis != 0 && axis.id == toothAxis && !combed && extent <= static_cast<int64_t>(page)) {
      combed = true;
      inTooth = extent;
      stride = toothPitch;
      jitter = 0;
    } else if (combed) {
      stride = roundUp(extent, toothPitch);
      jitter = 0;
    }
    extent = layAxis(axis, extent, stride, jitter, elem, rng);
  }

  Placed placed;
  placed.arena = &operandArena(plan.far != 0 ? Arena::Far : combed ? Arena::Comb : Arena::Plain, slot);
  if (extent > static_cast<int64_t>(placed.arena->size()) - 64) {
    std::fprintf(stderr, "an operand of %lld bytes does not fit its arena\n", static_cast<long long>(extent));
    std::abort();
  }
  unsigned char* base = placed.arena->begin();
  if (combed && plan.atEnd)
    base += static_cast<int64_t>(page) - inTooth;
  else if (!combed && plan.atEnd)
    base = placed.arena->end() - extent;
  int offset = spread == Spread::Pitch16 ? 0 : plan.offset;
  if (op.integer && offset > 0)
    offset = offset / 4 * 4;
  if (!combed && offset >= 0) {
    int off = (offset - static_cast<int>(reinterpret_cast<uintptr_t>(base) % 16) + 16) % 16;
    base += plan.atEnd ? (off == 0 ? 0 : off - 16) : off;
  }

  auto axisOf = [&](char id) -> const Axis& {
    return *std::find_if(axes.begin(), axes.end(), [&](const Axis& axis) { return axis.id == id; });
  };
  const Axis& k = axisOf('k');
  if (plan.far != 0)
    placed.arena->close();
  placed.elements.reserve(static_cast<size_t>(dense.objects) * static_cast<size_t>(positions));
  for (int object = 0; object < dense.objects; ++object)
    for (int p = 0; p < positions; ++p) {
      int64_t inside = byPosition ? axisOf('e').offsets[static_cast<size_t>(p)]
                                  : axisOf('i').offsets[static_cast<size_t>(p / dense.cols)] +
                                        axisOf('j').offsets[static_cast<size_t>(p % dense.cols)];
      placed.elements.push_back(base + k.offsets[static_cast<size_t>(object)] + inside);
      if (plan.far != 0)
        placed.arena->open(placed.elements.back());
    }

  placed.shift = static_cast<int32_t>(plan.shiftElements * elem);
  placed.stride0 = static_cast<int32_t>(k.stride);
  if (!byPosition) {
    placed.stride1 = static_cast<int32_t>(axisOf('i').stride);
    placed.stride2 = static_cast<int32_t>(axisOf('j').stride);
  }
  // A stride that nothing steps by may be anything that passes the tests.
  if (random && dense.objects == 1 && rng.chance(2))
    placed.stride0 = static_cast<int32_t>(0x7ffffff8);
  if (random && dense.rows == 1 && rng.chance(2))
    placed.stride1 = static_cast<int32_t>(0x7ffffff8);

  placed.pointer = placed.elements.front();
  if (op.listed()) {
    size_t entries = byPosition ? static_cast<size_t>(positions) : static_cast<size_t>(dense.objects);
    for (size_t entry = 0; entry < entries; ++entry)
      placed.list.push_back(placed.elements[byPosition ? entry : entry * static_cast<size_t>(positions)] -
                            placed.shift);
    unsigned char* at = listArena(slot).end() - entries * sizeof(void*);
    std::memcpy(at, placed.list.data(), entries * sizeof(void*));
    placed.pointer = at;
  }
  return placed;
}

// ---- Windows: the bytes around what a call works on
// --------------------------------------------------------------------

struct Window {
  size_t operand;
  unsigned char* begin;
  std::vector<unsigned char> before;
};

void addWindows(std::vector<Window>& windows, size_t operand, const Placed& placed, size_t elem, Rng& rng) {
  constexpr ptrdiff_t margin = 96;
  std::vector<unsigned char*> sorted = placed.elements;
  if (!std::is_sorted(sorted.begin(), sorted.end()))
    std::sort(sorted.begin(), sorted.end());
  unsigned char *begin = nullptr, *end = nullptr;
  auto close = [&] {
    if (begin == nullptr)
      return;
    windows.push_back({operand, begin, std::vector<unsigned char>(static_cast<size_t>(end - begin))});
    for (unsigned char* p = begin; p < end; p += 8) {
      uint64_t bits = rng.next();
      std::memcpy(p, &bits, static_cast<size_t>(std::min<ptrdiff_t>(8, end - p)));
    }
  };
  for (unsigned char* address : sorted) {
    unsigned char* low = std::max(address - margin, placed.arena->runBegin(address));
    unsigned char* high = std::min(address + elem + margin, placed.arena->runEnd(address));
    if (begin != nullptr && low <= end && low >= begin) {
      end = std::max(end, high);
      continue;
    }
    close();
    begin = low;
    end = high;
  }
  close();
}

// ---- Crash report
// ----------------------------------------------------------------------------------------------------

char announced[4096];

void crashed(int signal) {
  const char text[] = "\ncrash in: ";
  ssize_t done = write(2, text, sizeof text - 1);
  done = write(2, announced, std::strlen(announced));
  done = write(2, "\n", 1);
  (void)done;
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

std::string planText(const OperandInfo& op, const Plan& plan, const Placed& placed) {
  return "; " + op.name + " class " + std::to_string(static_cast<int>(plan.spread)) + " strides " +
         std::to_string(placed.stride0) + "," + std::to_string(placed.stride1) + "," + std::to_string(placed.stride2) +
         " shift " + std::to_string(placed.shift) + " address%16 " +
         std::to_string(reinterpret_cast<uintptr_t>(placed.elements.front()) % 16);
}

std::string hex(const unsigned char* bytes, size_t n) {
  std::string text = "0x";
  for (size_t i = n; i-- > 0;) {
    char two[3];
    std::snprintf(two, sizeof two, "%02x", bytes[i]);
    text += two;
  }
  return text;
}

} // namespace

void announce(const std::string& line) {
  size_t n = std::min(line.size(), sizeof announced - 1);
  std::memcpy(announced, line.data(), n);
  announced[n] = 0;
}

void installCrashReport() {
  std::signal(SIGSEGV, crashed);
  std::signal(SIGBUS, crashed);
}

std::vector<Slot> wildSlots(const Member& m, const Sizes& sizes) {
  std::vector<Slot> slots(m.arguments.size());
  for (size_t i = 0; i < slots.size(); ++i)
    switch (m.arguments[i].role) {
    case Role::Pointer:
      slots[i].pointer = wildPointer();
      break;
    case Role::Size:
    case Role::Count:
      slots[i].integer = sizes.get(m.arguments[i].name);
      break;
    case Role::Shift:
      slots[i].integer = 0;
      break;
    case Role::Value:
      if (m.elem == 4)
        slots[i].single = 1;
      else
        slots[i].twofold = 1;
      break;
    default:
      slots[i].integer = m.elem;
    }
  return slots;
}

std::string entered(const char* name, int n, int32_t count, const char* argument, int32_t value) {
  const Member& m = member(name);
  std::vector<Slot> slots = wildSlots(m, m.square(n, count));
  for (size_t i = 0; i < slots.size(); ++i)
    if (m.arguments[i].name == argument)
      slots[i].integer = value;
  return probe(m, slots);
}

// ---- One case
// --------------------------------------------------------------------------------------------------------

namespace {

std::vector<Slot> slotsOf(const Member& m, const Job& job, const std::vector<Placed>& placed) {
  std::vector<Slot> slots = wildSlots(m, job.sizes);
  for (size_t i = 0; i < slots.size(); ++i) {
    const Argument& a = m.arguments[i];
    if (a.operand < 0)
      continue;
    auto o = static_cast<size_t>(a.operand);
    switch (a.role) {
    case Role::Pointer:
      slots[i].pointer = placed[o].pointer;
      break;
    case Role::Shift:
      slots[i].integer = placed[o].shift;
      break;
    case Role::Value:
      std::memcpy(&slots[i], job.operands[o].bytes.data(), static_cast<size_t>(m.elem));
      break;
    default:
      slots[i].integer = a.role == Role::Stride0   ? placed[o].stride0
                         : a.role == Role::Stride1 ? placed[o].stride1
                                                   : placed[o].stride2;
    }
  }
  return slots;
}

// A result in the place of a longer vector has the front of it.
void keepCommon(Placed& placed, const Dense& source, const Dense& result) {
  std::vector<unsigned char*> kept;
  for (int k = 0; k < result.objects; ++k)
    for (int row = 0; row < result.rows; ++row)
      for (int col = 0; col < result.cols; ++col)
        kept.push_back(placed.elements[source.position(k, row, col)]);
  placed.elements = std::move(kept);
}

ZelStatus callWith(const Member& m, const std::vector<Slot>& slots, const CaseSpec& spec) {
  teamSize = spec.team;
  omp_set_num_threads(spec.threads);
  omp_set_dynamic(spec.kind == Team::Dynamic);
  ZelStatus status = zelStatusOk;
  if (spec.kind == Team::Serialised) {
#pragma omp parallel num_threads(2)
    {
#pragma omp master
      {
        omp_set_num_threads(spec.threads);
        status = m.function.call(slots.data());
      }
    }
  } else
    status = m.function.call(slots.data());
  omp_set_dynamic(0);
  omp_set_num_threads(1);
  teamSize = allThreads;
  return status;
}

std::string delegateOf(const Member& m, const Job& job) {
  return m.family->delegate ? m.family->delegate(m, job.sizes, job.unit) : "";
}

// The entries of a call: front and kernel as the table has them, and what the kernel may call. *calls is how often the
// kernel was called; 0 on entry if that is not known.
std::string checkEntries(const Member& m, const Job& job, bool front, int* calls) {
  int fronts = 0, kernels = 0, delegated = 0;
  const std::string& kernel = job.unit ? m.kernelUnit : m.kernelAny;
  const std::string delegate = delegateOf(m, job);
  const std::string delegateOfAll = m.family->delegateOfAll ? m.family->delegateOfAll(job) : "";
  if (m.needsNoKernel(job.sizes))
    return entries().empty() ? "" : entries().front() + " was entered without need";
  for (const std::string& name : entries()) {
    if (!m.front.empty() && name == m.front)
      ++fronts;
    else if (name == kernel)
      ++kernels;
    else if (!delegateOfAll.empty() && name == delegateOfAll)
      ++delegated;
    else if (const auto& inner = m.family->inner;
             name != delegate && std::find(inner.begin(), inner.end(), name) == inner.end())
      return name + " was entered beside or instead of " + kernel;
  }
  if (fronts != (front ? 1 : 0))
    return m.front + " entered " + std::to_string(fronts) + " times, should be " + std::to_string(front ? 1 : 0);
  if (kernel.empty())
    return "";
  if (*calls > 0 ? kernels != *calls : kernels < 1)
    return kernel + " entered " + std::to_string(kernels) + " times, should be " + std::to_string(*calls);
  if (!delegateOfAll.empty() && delegated != kernels)
    return delegateOfAll + " entered " + std::to_string(delegated) + " times, should be " + std::to_string(kernels);
  *calls = kernels;
  return "";
}

} // namespace

std::string runCase(const Member& m, const CaseSpec& asked) {
  CaseSpec spec = asked;
  if (m.family->worksInPlace && !m.family->worksInPlace(m, spec.sizes))
    spec.inPlace = -1;
  Rng rng(spec.seed);
  Job job(m, spec.sizes);
  const size_t n = m.operands.size();
  for (size_t o = 0; o < n; ++o)
    if (!m.operands[o].output && !m.operands[o].integer)
      fillDense(job.operands[o], rng, spec.dataKind);
  Typed<float> single(job);
  Typed<double> twofold(job);
  if (m.elem == 4 && m.family->fill.single)
    m.family->fill.single(single, rng, spec.dataKind);
  if (m.elem == 8 && m.family->fill.twofold)
    m.family->fill.twofold(twofold, rng, spec.dataKind);

  // Placement. A dst in place takes its source's.
  std::vector<Placed> placed(n);
  std::vector<Window> windows;
  std::string text = m.name + spec.sizes.text() + " data " + std::to_string(spec.dataKind) + " threads " +
                     std::to_string(spec.threads) +
                     (spec.team < spec.threads ? " of which " + std::to_string(spec.team) : "") +
                     (spec.kind == Team::Serialised ? " serialised" : "") + (spec.inPlace >= 0 ? " in place" : "");
  for (size_t o = 0; o < n; ++o) {
    const OperandInfo& op = m.operands[o];
    if (op.output && op.name == "dst" && spec.inPlace >= 0) {
      placed[o] = placed[static_cast<size_t>(spec.inPlace)];
      placed[o].shift = placed[static_cast<size_t>(spec.inPlace)].shift;
      keepCommon(placed[o], job.operands[static_cast<size_t>(spec.inPlace)], job.operands[o]);
    } else {
      Plan plan = spec.plans[o];
      if (op.kind == "y" && rng.chance(2))
        plan.offset = rng.below(16);
      placed[o] = place(op, job.operands[o], plan, o, rng);
      addWindows(windows, o, placed[o], job.operands[o].elem, rng);
      if (!op.output)
        for (size_t e = 0; e < placed[o].elements.size(); ++e)
          std::memcpy(placed[o].elements[e], &job.operands[o].bytes[e * job.operands[o].elem], job.operands[o].elem);
    }
    job.operands[o].address = placed[o].elements.front();
    job.operands[o].stride0 = placed[o].stride0;
    job.operands[o].stride1 = placed[o].stride1;
    text += planText(op, spec.plans[o], placed[o]);
  }
  for (size_t o = 0; o < n; ++o)
    if (m.operands[o].output) {
      Dense& dense = job.operands[o];
      for (size_t e = 0; e < placed[o].elements.size(); ++e)
        std::memcpy(&dense.bytes[e * dense.elem], placed[o].elements[e], dense.elem);
      if (!m.operands[o].scratch)
        std::fill(dense.states.begin(), dense.states.end(), State::Untouched);
    }
  // Where stride0 is tested only if there are several objects, a single one forgives anything.
  if (m.order.find('0') != std::string::npos && job.count == 1)
    for (Placed& operand : placed)
      operand.stride0 = std::array<int32_t, 5>{3, -4, 0, std::numeric_limits<int32_t>::min(),
                                               operand.stride0}[static_cast<size_t>(rng.below(5))];
  std::sort(windows.begin(), windows.end(), [](const Window& a, const Window& b) { return a.begin < b.begin; });
  for (Window& window : windows)
    std::memcpy(window.before.data(), window.begin, window.before.size());

  std::vector<Slot> slots = slotsOf(m, job, placed);
  for (size_t i = 0; i < slots.size(); ++i)
    if (m.arguments[i].role == Role::Stride2)
      job.unit = job.unit && slots[i].integer == m.elem;
  if (m.elem == 4)
    m.family->reference.single(single);
  else
    m.family->reference.twofold(twofold);

  // The call.
  const bool front = m.goesToFront(job.unit, spec.sizes);
  const bool forks = front && spec.threads >= 2 && job.count >= spec.threads;
  // Threads have scratch memory of their own: the buffer stays as it is.
  for (size_t o = 0; forks && o < n; ++o)
    if (m.operands[o].scratch)
      std::fill(job.operands[o].states.begin(), job.operands[o].states.end(), State::Untouched);
  // The threads that come have a share each; if fewer were wanted from the start, there are shares as for all of them,
  // and these are calls of their own where they can fail.
  const bool isUnknown = spec.kind == Team::Dynamic && forks;
  const bool grouped = forks && spec.team < spec.threads;
  const int wanted = std::min(spec.team, spec.threads);
  const int come = !forks || spec.kind == Team::Serialised ? 1 : std::min(wanted, omp_get_thread_limit());
  int calls = grouped && m.canFail() ? spec.threads : isUnknown ? 0 : come;
  text += "; replay: ZELM_REPLAY=" + m.name + "#" + spec.id;
  announce(text);
  clearEntries();
  constexpr unsigned control = 0xffc0u; // the exception flags may change
  std::optional<Steps> steps;
  if (spec.steps != nullptr)
    steps.emplace(*spec.steps);
  const ZelStatus status = callWith(m, slots, spec);
  steps.reset();
  if ((_mm_getcsr() & control) != 0x1f80u) // as programs start, whatever came before
    return "the control register is not as it was: " + text;
  if (countedBuild) {
    std::string wrong = checkEntries(m, job, front, &calls);
    if (!wrong.empty())
      return wrong + ": " + text;
    if (grouped && calls > wanted && !m.canFail())
      return m.kernelUnit + " was called more often than there are threads: " + text;
  } else if (isUnknown) {
    calls = 1; // no object of such a case fails, so that the shares do not show
  }

  // Which objects are done, where a share stops at its first failure.
  std::vector<bool> reached(static_cast<size_t>(job.count), true);
  std::set<ZelStatus> statuses;
  const int shares = grouped || (forks && !countedBuild) ? spec.threads : calls;
  const int quotient = job.count / shares, remainder = job.count % shares;
  for (int t = 0, k = 0; t < shares; ++t) {
    bool stopped = false;
    ZelStatus own = zelStatusOk;
    for (int last = k + quotient + (t < remainder ? 1 : 0); k < last; ++k) {
      auto object = static_cast<size_t>(k);
      reached[object] = !stopped;
      if (job.status[object] != zelStatusOk && own == zelStatusOk) {
        own = job.status[object];
        stopped = m.family->stopsAtFailure;
      }
    }
    if (own != zelStatusOk)
      statuses.insert(own);
  }
  if (const std::string delegate = delegateOf(m, job); countedBuild && !delegate.empty()) {
    const std::vector<std::string> all = entries();
    const auto found = std::count(all.begin(), all.end(), delegate);
    const auto expected = std::count(reached.begin(), reached.end(), true);
    if (found != expected)
      return delegate + " entered " + std::to_string(found) + " times, should be " + std::to_string(expected) + ": " +
             text;
  }
  if (statuses.empty())
    statuses.insert(zelStatusOk);
  if (statuses.count(status) == 0)
    return "status " + std::to_string(status) + ", should be " + std::to_string(*statuses.begin()) + ": " + text;

  // Results, then every other byte.
  auto windowOf = [&](const unsigned char* address) -> unsigned char* {
    auto behind = std::upper_bound(windows.begin(), windows.end(), address,
                                   [](const unsigned char* a, const Window& window) { return a < window.begin; });
    return &(behind - 1)->before[static_cast<size_t>(address - (behind - 1)->begin)];
  };
  for (size_t o = 0; o < n; ++o) {
    const Dense& dense = job.operands[o];
    for (size_t e = 0; m.operands[o].output && e < placed[o].elements.size(); ++e) {
      size_t object = e / dense.perObject();
      if (dense.states[e] == State::Untouched || (m.operands[o].array && !reached[object]))
        continue;
      const unsigned char* got = placed[o].elements[e];
      if (dense.states[e] == State::Set &&
          !sameElement(got, &dense.bytes[e * dense.elem], dense.elem, m.operands[o].integer, m.family->movesBits))
        return m.operands[o].name + " object " + std::to_string(object) + " element " +
               std::to_string(e % dense.perObject()) + " is " + hex(got, dense.elem) + ", should be " +
               hex(&dense.bytes[e * dense.elem], dense.elem) + ": " + text;
      std::memcpy(windowOf(got), got, dense.elem);
    }
  }
  for (const Window& window : windows)
    if (std::memcmp(window.before.data(), window.begin, window.before.size()) != 0) {
      size_t byte = 0;
      while (window.before[byte] == window.begin[byte])
        ++byte;
      return "byte " + std::to_string(byte) + " of " + std::to_string(window.before.size()) + " around " +
             m.operands[window.operand].name + " was changed: " + text;
    }
  for (size_t o = 0; o < n; ++o)
    if (!placed[o].list.empty() &&
        std::memcmp(placed[o].pointer, placed[o].list.data(), placed[o].list.size() * sizeof(void*)) != 0)
      return "the list of " + m.operands[o].name + " was changed: " + text;
  return "";
}

} // namespace zelmtest
