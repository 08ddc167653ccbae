// The tests that every member gets: Results, Far, Arguments, Thresholds, Threads.
#include "paths.h"
#include "run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace zelmtest {

namespace {

constexpr int32_t most = std::numeric_limits<int32_t>::max(), least = std::numeric_limits<int32_t>::min();

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

// Collects the cases of one member, numbered, each with a seed of its own.
size_t casesRun = 0;

class Cases {
public:
  Cases(const Member& m, const char* prefix) : member_(m), prefix_(prefix) {
    for (char c : m.name)
      seed_ = seed_ * 31 + static_cast<unsigned char>(c);
    seed_ += std::strtoull(environment("ZELM_SEED").c_str(), nullptr, 0) * 0x9e3779b97f4a7c15u;
  }
  Rng rng() const { return Rng(seed_); }
  void add(CaseSpec spec) {
    spec.id = prefix_ + std::to_string(all_.size());
    spec.seed = seed_ + (all_.size() + 1) * 0xd1342543de82ef95u;
    if (spec.plans.size() == 1)
      spec.plans.assign(member_.operands.size(), spec.plans[0]);
    all_.push_back(std::move(spec));
  }
  // Runs them up to the first failure. ZELM_REPLAY picks one, ZELM_EVERY=n takes one in n, others for other members.
  void run() const {
    static const std::string replay = environment("ZELM_REPLAY");
    static const size_t every = std::max<size_t>(1, std::strtoull(environment("ZELM_EVERY").c_str(), nullptr, 0));
    for (size_t i = replay.empty() ? seed_ % every : 0; i < all_.size(); i += replay.empty() ? every : 1) {
      const CaseSpec& spec = all_[i];
      if (!replay.empty() && replay != member_.name + "#" + spec.id)
        continue;
      ++casesRun;
      std::string wrong = runCase(member_, spec);
      if (!wrong.empty()) {
        ADD_FAILURE() << wrong;
        return;
      }
    }
  }

private:
  const Member& member_;
  std::string prefix_;
  uint64_t seed_ = 0;
  std::vector<CaseSpec> all_;
};

Plan planOf(Spread spread, bool atEnd = true, int offset = -1, int shift = 0) {
  Plan plan;
  plan.spread = spread;
  plan.atEnd = atEnd;
  plan.offset = offset;
  plan.shiftElements = shift;
  return plan;
}

Sizes withCount(const Member& m, Sizes sizes, int32_t count) {
  if (m.hasCount)
    sizes.set("count", count);
  return sizes;
}

int64_t weight(const Member& m, const Sizes& sizes) {
  int64_t elements = 1;
  for (const OperandInfo& op : m.operands)
    if (!op.value && !op.scratch) {
      Shape shape = m.storedShape(op, sizes);
      elements = std::max<int64_t>(elements, int64_t{shape.rows} * shape.cols);
    }
  return elements;
}

constexpr Spread unitSpreads[] = {Spread::Packed,  Spread::PaddedRows,  Spread::PaddedObjects,
                                  Spread::Pitch16, Spread::CombObjects, Spread::CombRows};

Plan randomPlan(const Member& m, Rng& rng, bool unit) {
  Spread spread = unit ? unitSpreads[rng.below(6)] : static_cast<Spread>(rng.below(static_cast<int>(Spread::Count_)));
  int offset = rng.chance(2) ? -1 : rng.chance(6) ? rng.below(16) : m.elem * rng.below(16 / m.elem);
  return planOf(spread, rng.chance(2), offset, rng.chance(2) ? 0 : rng.within(1, 1000));
}

int dataKind(const Member& m, Rng& rng) {
  const std::vector<int>& kinds = m.family->dataKinds;
  return kinds[static_cast<size_t>(rng.below(static_cast<int>(kinds.size())))];
}

std::vector<int> inPlaceSources(const Member& m) {
  std::vector<int> sources;
  for (size_t o = 0; o < m.operands.size(); ++o)
    if ((" " + std::string(m.form->inPlace) + " ").find(" " + m.operands[o].name + " ") != std::string::npos)
      sources.push_back(static_cast<int>(o));
  return sources;
}

// ---- Results
// ---------------------------------------------------------------------------------------------------------

void results(const Member& m) {
  Cases cases(m, "R");
  Rng rng = cases.rng();
  constexpr int counts[] = {1, 2, 3, 7, 4, 8, 9, 16, 17, 5, 33};
  auto count = [&](const Sizes& sizes) { return counts[rng.below(weight(m, sizes) > 100 ? 4 : 11)]; };
  const std::vector<Sizes> shapes = m.shapes();
  auto add = [&](const Sizes& sizes, std::vector<Plan> plans, int inPlace = -1) {
    CaseSpec spec;
    spec.sizes = withCount(m, sizes, count(sizes));
    spec.plans = std::move(plans);
    spec.inPlace = inPlace;
    spec.dataKind = dataKind(m, rng);
    cases.add(spec);
  };
  // Every shape in every layout class, flush with either guard.
  for (const Sizes& sizes : shapes)
    for (int spread = 0; spread < static_cast<int>(Spread::Count_); ++spread)
      for (bool atEnd : {true, false})
        add(sizes, {planOf(static_cast<Spread>(spread), atEnd, -1, spread % 3)});
  // Every operand at every offset from 16, and at no multiple of the element size, the others at 0.
  std::vector<int> offsets = {1, 2};
  for (int offset = 0; offset < 16; offset += m.elem)
    offsets.push_back(offset);
  for (int n : {3, 4, 5, 6})
    for (Spread spread : {Spread::Packed, Spread::PaddedRows})
      for (size_t o = 0; o < m.operands.size(); ++o)
        for (int offset : offsets) {
          std::vector<Plan> plans(m.operands.size(), planOf(spread, true, 0));
          plans[o].offset = offset;
          add(m.square(n, 1), plans);
        }
  // Any mixture.
  for (int i = 0; i < 300; ++i) {
    std::vector<Plan> plans;
    bool unit = rng.chance(2);
    for (size_t o = 0; o < m.operands.size(); ++o)
      plans.push_back(randomPlan(m, rng, unit));
    const Sizes& sizes = rng.chance(2) ? shapes[static_cast<size_t>(rng.below(static_cast<int>(shapes.size())))]
                                       : m.square(rng.within(3, 6), 1);
    add(sizes, plans);
  }
  // Batches of many small objects: of a family with very many members, half of the placements for each.
  const int step = members().size() > 100 ? 2 : 1;
  for (int n : {1, 2, 3, 4, 5, 6, 7})
    for (int i = rng.below(step); m.hasCount && i < 8; i += step) {
      CaseSpec spec;
      spec.sizes = m.square(n, rng.within(100, n < 5 ? 900 : 300));
      for (size_t o = 0; o < m.operands.size(); ++o)
        spec.plans.push_back(i < 2   ? planOf(Spread::Packed, true, rng.below(4) * m.elem)
                             : i < 5 ? planOf(Spread::ObjectsInside, rng.chance(2))
                                     : randomPlan(m, rng, i < 6));
      spec.dataKind = dataKind(m, rng);
      cases.add(spec);
    }
  // In place: each way on which vectors may go over an object or a whole array, at any address; then any mixture.
  for (int source : inPlaceSources(m)) {
    auto addInPlace = [&](const Sizes& sizes, int32_t batch, Spread spread, int offset) {
      CaseSpec spec;
      spec.sizes = withCount(m, sizes, batch);
      spec.plans = {planOf(spread, offset != 0, offset)};
      spec.inPlace = source;
      spec.dataKind = m.family->dataKinds[0];
      cases.add(spec);
    };
    for (Spread spread : {Spread::Packed, Spread::PaddedRows}) {
      for (const Sizes& sizes : shapes)
        for (int offset : {-1, m.elem})
          addInPlace(sizes, 3, spread, offset);
      for (int n : {3, 4, 5, 6})
        for (int offset : {-1, 0, 16 - m.elem})
          addInPlace(m.square(n, 1), 19, spread, offset);
    }
    for (const Sizes& sizes : shapes)
      for (int i = 0; i < 6; ++i) {
        std::vector<Plan> plans;
        for (size_t o = 0; o < m.operands.size(); ++o)
          plans.push_back(randomPlan(m, rng, i < 3));
        add(sizes, plans, source);
      }
  }
  cases.run();
}

// Offsets that do not fit 32 bits, of objects, rows and columns, and of the shares of four threads. A wrapped address
// meets an inaccessible page.
void far(const Member& m) {
  Cases cases(m, "F");
  for (const char axis : {'k', 'i', 'j'})
    for (int n : {2, 3, 4, 6, 7}) {
      if (axis == 'k' && !m.hasCount)
        continue;
      // The last: objects of the pointer layout are neighbours, and all others have contiguous rows.
      for (Spread spread : {Spread::Packed, Spread::Double, Spread::ObjectsInside}) {
        CaseSpec spec;
        spec.sizes = m.square(n, 4);
        for (const OperandInfo& op : m.operands) {
          spec.plans.push_back(planOf(spread == Spread::ObjectsInside && op.layout != 'P' ? Spread::Packed : spread));
          spec.plans.back().far = axis;
        }
        cases.add(spec);
      }
    }
  if (!m.front.empty()) {
    // Four objects that pass the limit, where such are small enough to be worked on in no time.
    const int largest = m.sizeNames == std::vector<std::string>{"len"} ? 4000 : 100;
    int n = 3;
    while (n < largest && !m.goesToFront(true, m.square(n, 4)))
      n += n / 8 + 1;
    if (n < largest) {
      CaseSpec spec;
      spec.sizes = m.square(n, 4);
      Plan plan = planOf(Spread::Packed);
      plan.far = 'k';
      spec.plans = {plan};
      spec.threads = 4;
      cases.add(spec);
    }
  }
  cases.run();
}

// ---- Arguments
// -------------------------------------------------------------------------------------------------------

struct Fault {
  std::string text;
  std::vector<std::pair<size_t, int32_t>> values; // a null pointer where the argument is one
};

std::vector<Fault> faults(const Member& m) {
  std::vector<Fault> all;
  for (size_t i = 0; i < m.arguments.size(); ++i) {
    std::vector<int32_t> bad;
    switch (m.arguments[i].role) {
    case Role::Pointer:
      bad = {0};
      break;
    case Role::Size:
    case Role::Count:
      bad = {0, -1, least};
      break;
    case Role::Shift:
      bad = {-m.elem, 1, m.elem / 2, m.elem + 1, m.elem * 5 / 2, -1, least, most};
      break;
    case Role::Value:
      break;
    default:
      bad = {0, -m.elem, 1, m.elem / 2, m.elem + 1, m.elem * 3 / 2, -1, least, most};
    }
    for (int32_t value : bad)
      all.push_back({m.arguments[i].name + "=" + std::to_string(value), {{i, value}}});
  }
  Rng rng(7);
  for (int found = 0, tries = 0; found < 6 && tries < 1000 && m.order.find('M') != std::string::npos; ++tries) {
    Sizes sizes;
    Fault fault;
    for (size_t i = 0; i < m.arguments.size(); ++i)
      if (m.arguments[i].role == Role::Size) {
        sizes.set(m.arguments[i].name, rng.within(1, 4));
        fault.values.emplace_back(i, sizes.get(m.arguments[i].name));
      }
    fault.text = "sizes" + sizes.text();
    if (!m.agrees(sizes)) {
      all.push_back(fault);
      ++found;
    }
  }
  return all;
}

void apply(const Member& m, const Fault& fault, std::vector<Slot>& slots) {
  for (auto [argument, value] : fault.values)
    if (m.arguments[argument].role == Role::Pointer)
      slots[argument].pointer = nullptr;
    else
      slots[argument].integer = value;
}

bool unitSlots(const Member& m, const std::vector<Slot>& slots) {
  for (size_t i = 0; i < slots.size(); ++i)
    if (m.arguments[i].role == Role::Stride2 && slots[i].integer != m.elem)
      return false;
  return true;
}

// What a call with these arguments enters first.
std::string expectedEntry(const Member& m, const std::vector<Slot>& slots) {
  Sizes sizes;
  for (size_t i = 0; i < slots.size(); ++i)
    if (m.arguments[i].role == Role::Size || m.arguments[i].role == Role::Count)
      sizes.set(m.arguments[i].name, slots[i].integer);
  bool unit = unitSlots(m, slots);
  return m.goesToFront(unit, sizes) ? m.front : unit ? m.kernelUnit : m.kernelAny;
}

// Whether a call that passes the tests can be left before it touches an operand.
bool canProbe(const Member& m) {
  return countedBuild && m.family->hasKernels;
}

// All pointers, and so the lists, the elements and what lies around them, are inaccessible here: a call that reads or
// writes anything faults.
bool argumentCall(const Member& m, const std::vector<Slot>& slots, const std::string& text) {
  announce(m.name + " with " + text);
  const ZelStatus expected = m.expectedStatus(slots);
  if (!canProbe(m)) {
    if (expected == zelStatusOk)
      return true;
    ZelStatus status = m.function.call(slots.data());
    EXPECT_EQ(expected, status) << m.name << " with " << text;
    return status == expected;
  }
  ZelStatus status = zelStatusOk;
  std::string entered = probe(m, slots, &status);
  std::string entry = expected == zelStatusOk ? expectedEntry(m, slots) : "";
  EXPECT_EQ(entry, entered) << m.name << " with " << text;
  EXPECT_EQ(expected, status) << m.name << " with " << text;
  return entry == entered && status == expected;
}

void arguments(const Member& m) {
  const std::vector<Slot> good = wildSlots(m, m.square(3, 2));
  const std::vector<Fault> all = faults(m);
  for (size_t i = 0; i < all.size(); ++i)
    for (size_t j = i; j < all.size(); ++j) {
      std::vector<Slot> slots = good;
      apply(m, all[i], slots);
      apply(m, all[j], slots);
      if (!argumentCall(m, slots, all[i].text + (j == i ? "" : " " + all[j].text)))
        return;
    }
}

// ---- Thresholds
// ------------------------------------------------------------------------------------------------------

// The lowest count that goes to the front, or 0 if none does before the estimate wraps.
int32_t forkingCount(const Member& m, const Sizes& sizes, bool unit, int32_t highest = 20000) {
  int32_t low = 0, high = 1;
  while (high <= highest && !m.goesToFront(unit, withCount(m, sizes, high)))
    low = high, high *= 2;
  if (m.front.empty() || high > highest)
    return 0;
  while (high - low > 1) {
    int32_t middle = low + (high - low) / 2;
    (m.goesToFront(unit, withCount(m, sizes, middle)) ? high : low) = middle;
  }
  return high;
}

bool thresholdProbe(const Member& m, const Sizes& sizes, bool unit, Rng& rng) {
  if (m.needsNoKernel(sizes))
    return true;
  std::vector<Slot> slots = wildSlots(m, sizes);
  std::vector<size_t> strides;
  for (size_t i = 0; i < slots.size(); ++i)
    if (m.arguments[i].role == Role::Stride2)
      strides.push_back(i);
  if (!unit) // any one of them, perhaps all
    for (size_t i = 0, one = static_cast<size_t>(rng.below(static_cast<int>(strides.size()))); i < strides.size(); ++i)
      if (i == one || rng.chance(3))
        slots[strides[i]].integer = m.elem * rng.within(2, 5);
  for (size_t i = 0; i < slots.size(); ++i) // the other strides and the shifts play no role
    if (rng.chance(2)) {
      Role role = m.arguments[i].role;
      if (role == Role::Shift || role == Role::Stride0 || role == Role::Stride1)
        slots[i].integer = m.elem * rng.within(1, rng.chance(2) ? 9 : most / 8);
    }
  std::string entry = expectedEntry(m, slots), entered = probe(m, slots);
  EXPECT_EQ(entry, entered) << m.name << sizes.text() << (unit ? "" : ", a stride2 of more than an element");
  return entry == entered;
}

void thresholds(const Member& m) {
  Rng rng(11);
  std::vector<Sizes> shapes = m.shapes();
  for (int i = 0; i < 250 && !m.sizeNames.empty(); ++i)
    shapes.push_back(i < 40 ? m.square(i + 1, 1) : m.randomShape(rng, i < 150 ? 12 : 40));
  bool branches = m.kernelUnit != m.kernelAny;
  for (bool unit : {true, false}) {
    if (!unit && !branches)
      continue;
    for (const Sizes& sizes : shapes) {
      int32_t count = forkingCount(m, sizes, unit);
      for (int32_t near : {1, count - 1, count, count + 1})
        if (near >= 1 && !thresholdProbe(m, withCount(m, sizes, near), unit, rng))
          return;
    }
    // Estimates that wrap, to either side of the limit.
    for (int i = 0; i < 1500; ++i) {
      Sizes sizes = withCount(m, m.randomShape(rng, most >> rng.below(31)), rng.within(1, most >> rng.below(31)));
      if (!thresholdProbe(m, sizes, unit, rng))
        return;
    }
  }
}

// ---- Threads
// ---------------------------------------------------------------------------------------------------------

void threads(const Member& m) {
  Cases cases(m, "T");
  Rng rng = cases.rng();
  auto add = [&](const Sizes& sizes, int32_t count, bool unit, int asked, Team kind) {
    CaseSpec spec;
    spec.sizes = withCount(m, sizes, count);
    constexpr Spread anySpreads[] = {Spread::Interleaved, Spread::Double, Spread::Triple, Spread::ObjectsInside};
    for (size_t o = 0; o < m.operands.size(); ++o) {
      Plan plan = randomPlan(m, rng, true);
      if (plan.spread == Spread::CombObjects || plan.spread == Spread::CombRows)
        plan.spread = Spread::Packed;
      if (!unit || m.layout == 'P')
        plan.spread = anySpreads[rng.below(4)];
      spec.plans.push_back(plan);
    }
    std::vector<int> sources = inPlaceSources(m); // an object that is done twice shows in place
    if (!sources.empty() && rng.chance(2))
      spec.inPlace = sources[static_cast<size_t>(rng.below(static_cast<int>(sources.size())))];
    spec.threads = asked;
    if (rng.chance(2))
      spec.team = rng.within(1, asked);
    spec.kind = kind;
    // What becomes of a team that may be smaller than asked for is known from the entries alone; without them no object
    // may fail.
    const bool unknownTeam = kind != Team::Plain && !countedBuild;
    spec.dataKind = spec.inPlace >= 0 || unknownTeam ? m.family->dataKinds[0] : dataKind(m, rng);
    cases.add(spec);
  };
  std::vector<Sizes> shapes = m.shapes();
  for (bool unit : {true, false})
    for (int n : {3, 4, 5, 6, 2, 7, 0}) {
      Sizes sizes = n != 0 ? m.square(n, 1) : shapes[static_cast<size_t>(rng.below(static_cast<int>(shapes.size())))];
      int32_t count = forkingCount(m, sizes, unit, 4000);
      if (count == 0)
        continue;
      for (int asked : {1, 2, 3, 4, 7}) {
        add(sizes, count + rng.below(9), unit, asked, Team::Plain);
        if (count > 1)
          add(sizes, count - 1, unit, asked, Team::Plain);
      }
      add(sizes, count, unit, 4, Team::Serialised);
      add(sizes, count, unit, 4, Team::Dynamic);
    }
  // Objects so large that fewer of them than threads pass the limit: the front is entered and does not fork.
  for (bool unit : {true, false})
    for (int32_t few : {1, 2, 3})
      for (int n = 8; n < 100; ++n)
        if (!m.sizeNames.empty() && m.goesToFront(unit, m.square(n, few))) {
          add(m.square(n, few), few, unit, few + 1, Team::Plain);
          add(m.square(n, few), few, unit, few, Team::Plain);
          break;
        }
  cases.run();
}

// Arrays without a front stay with the caller, however many threads there are.
void alone(const Member& m) {
  Cases cases(m, "T");
  Rng rng = cases.rng();
  for (const Sizes& sizes : m.shapes())
    for (int32_t count : {1, 4, weight(m, sizes) > 1000 ? 7 : 70}) {
      CaseSpec spec;
      spec.sizes = withCount(m, sizes, count);
      for (size_t o = 0; o < m.operands.size(); ++o)
        spec.plans.push_back(randomPlan(m, rng, true));
      spec.threads = 4;
      spec.dataKind = dataKind(m, rng);
      if (weight(m, spec.sizes) <= 20000)
        cases.add(spec);
    }
  cases.run();
}

// Without kernels and fronts of its own a member has no limit either.
void unlimited(const Member& m) {
  EXPECT_TRUE(m.front.empty() && !m.form->estimate) << m.name;
}

// ---- Lanes
// ------------------------------------------------------------------------------------------------------------

// Objects that go side by side take fewer instructions than one by one; if they went through lanes in vain, and then
// through the code for one object, it would be more. Side 5: elements that no whole vectors hold, and few of them.
void lanes(const Member& m) {
  const Spread spread = m.layout == 'P' ? Spread::ObjectsInside : Spread::Packed;
  const auto stepsOf = [&](int side, int32_t objects) {
    uint64_t steps = 0;
    CaseSpec spec;
    spec.id = "L";
    spec.sizes = m.square(side, objects);
    spec.plans.assign(m.operands.size(), planOf(spread));
    spec.steps = &steps;
    EXPECT_EQ("", runCase(m, spec));
    return steps;
  };
  const auto check = [&](int side, int32_t count, uint64_t tenths) {
    const uint64_t together = stepsOf(side, count), one = stepsOf(side, 1);
    EXPECT_LT(together * 10, one * static_cast<uint64_t>(count) * tenths)
        << m.name << " side " << side << ": " << together << " for " << count << ", " << one << " for one";
  };
  // Iterations: stepping takes its time. Two lanes wait for each other, but not as long as for the code for one object.
  if (stepsOf(3, 1) > 2000)
    return check(3, 8, m.elem == 8 ? 18 : 9);
  check(5, 16, m.name.rfind("zelmMul_", 0) == 0 ? 9 : 7); // all but the call itself is gained
  if (m.canFail()) {
    // Without what a call takes besides: eight objects more against a lone one more. Two lanes gain little.
    const uint64_t eight = stepsOf(5, 8), nine = stepsOf(5, 9), sixteen = stepsOf(5, 16);
    EXPECT_LT((sixteen - eight) * 100, (nine - eight) * 8 * (m.elem == 8 ? 98 : 90))
        << m.name << ": " << eight << " for 8, " << nine << " for 9, " << sixteen << " for 16";
  }
}

// ---- Registration
// ----------------------------------------------------------------------------------------------------

class Check : public testing::Test {
public:
  Check(void (*check)(const Member&), const Member& m) : check_(check), member_(m) {}
  void TestBody() override { check_(member_); }

private:
  void (*check_)(const Member&);
  const Member& member_;
};

} // namespace

size_t ranCases() {
  return casesRun;
}

void registerChecks() {
  auto add = [](const char* suite, const Member& m, void (*check)(const Member&)) {
    testing::RegisterTest(suite, m.name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [check, &m]() -> testing::Test* { return new Check(check, m); });
  };
  for (const Member& m : members()) {
    add("Results", m, results);
    add("Far", m, far);
    add("Arguments", m, arguments);
    if (countedBuild)
      add("Thresholds", m, canProbe(m) ? thresholds : unlimited);
    if (m.hasCount && countedBuild)
      add("Lanes", m, lanes);
    if (m.hasCount)
      add("Threads", m, m.front.empty() ? alone : threads);
  }
}

} // namespace zelmtest
