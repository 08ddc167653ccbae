// Sums of matrices: packed batches in the standard layout, the pointer layout on neighbours and on scattered elements,
// the cost of one call, and two threads.
#include "bench.h"

#include <omp.h>
#include <zelm.h>

#include <algorithm>
#include <memory>

namespace bench {
namespace {

template <class T> constexpr const char* typeName = sizeof(T) == 4 ? "32f" : "64f";

template <class T> std::string caseName(const char* form, int size) {
  return std::string("Add/") + form + "/" + typeName<T> + "/" + std::to_string(size);
}

// ---- standard layout, packed

// The calls of all forms with three array operands, and of those whose second source is a single matrix.
template <class T> auto arrayByArray(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, source<T>(b, 1), n * n * e, n * e, e, result<T>(b, 2), n * n * e,
             n * e, e, n, n, b.count);
  };
}

template <class T> auto arrayBySingle(int n) {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), n * n * e, n * e, e, source<T>(b, 1), n * e, e, result<T>(b, 2), n * n * e, n * e, e, n,
             n, b.count);
  };
}

template <class T> Case packed(const char* form, int n, bool isSecondArray, std::vector<Contender> contenders) {
  const int nn = n * n;
  return {caseName<T>(form, n),
          sizeof(T),
          {array(nn), isSecondArray ? array(nn) : single(nn), results(nn)},
          std::move(contenders),
          std::string("contiguous/") + (isSecondArray ? "2/" : "1/") + typeName<T>};
}

// clang-format off
void addPacked(int n) {
  add(packed<Zel32f>("mama", n, true,  BENCH_LIBRARY(zelmAdd_mama_32f, arrayByArray<Zel32f>(n))));
  add(packed<Zel64f>("mama", n, true,  BENCH_LIBRARY(zelmAdd_mama_64f, arrayByArray<Zel64f>(n))));
  add(packed<Zel32f>("mam",  n, false, BENCH_LIBRARY(zelmAdd_mam_32f,  arrayBySingle<Zel32f>(n))));
  add(packed<Zel64f>("mam",  n, false, BENCH_LIBRARY(zelmAdd_mam_64f,  arrayBySingle<Zel64f>(n))));
  add(packed<Zel32f>("tam",  n, false, BENCH_LIBRARY(zelmAdd_tam_32f,  arrayBySingle<Zel32f>(n))));
  add(packed<Zel64f>("tam",  n, false, BENCH_LIBRARY(zelmAdd_tam_64f,  arrayBySingle<Zel64f>(n))));
}
// clang-format on

// ---- pointer layout

// The same bytes through two sets of element lists: each element position a run of its own with stride0 equal to the
// element size, or the positions of one object next to each other in mixed order, so that an object's elements are
// neither neighbours nor in sequence and those of the next object lie an object's size further on.
struct Lists {
  std::vector<void*> neighbours[3];
  std::vector<void*> scattered[3];
};

template <class T> void makeLists(Lists& lists, const Block& block, int nn, bool isSecondArray) {
  std::vector<int> mixed(static_cast<std::size_t>(nn));
  for (int p = 0; p < nn; ++p)
    mixed[static_cast<std::size_t>(p)] = p;
  Random random(7);
  std::shuffle(mixed.begin(), mixed.end(), random);
  for (int operand = 0; operand < 3; ++operand) {
    const bool isArray = operand != 1 || isSecondArray;
    lists.neighbours[operand].clear();
    lists.scattered[operand].clear();
    for (int p = 0; p < nn; ++p) {
      T* at = result<T>(block, operand);
      lists.neighbours[operand].push_back(at + (isArray ? static_cast<std::ptrdiff_t>(p) * block.count : p));
      lists.scattered[operand].push_back(at + mixed[static_cast<std::size_t>(p)]);
    }
  }
}

template <class T> const T* const* sourceList(const std::vector<void*>& list) {
  return reinterpret_cast<const T* const*>(list.data());
}

template <class T> T* const* resultList(const std::vector<void*>& list) {
  return reinterpret_cast<T* const*>(list.data());
}

template <class T>
auto listsByArray(int n, const std::vector<void*> (&lists)[3], std::shared_ptr<Lists> owner, int stride0) {
  return [=, &lists](auto function, const Block& b) {
    function(sourceList<T>(lists[0]), 0, stride0, sourceList<T>(lists[1]), 0, stride0, resultList<T>(lists[2]), 0,
             stride0, n, n, b.count);
    (void)owner;
  };
}

template <class T>
auto listsBySingle(int n, const std::vector<void*> (&lists)[3], std::shared_ptr<Lists> owner, int stride0) {
  return [=, &lists](auto function, const Block& b) {
    function(sourceList<T>(lists[0]), 0, stride0, sourceList<T>(lists[1]), 0, resultList<T>(lists[2]), 0, stride0, n, n,
             b.count);
    (void)owner;
  };
}

// `calls` builds the call on one set of lists, `pair` the contenders of that call.
template <class T, class Calls, class Pair>
void addPointer(const char* form, int n, bool isSecondArray, Calls calls, Pair pair) {
  const int e = sizeof(T);
  const auto lists = std::make_shared<Lists>();
  Case entry = packed<T>(form, n, isSecondArray, pair(calls(n, lists->neighbours, lists, e), "lib", Role::library, 1));
  for (Contender& contender : pair(calls(n, lists->scattered, lists, n * n * e), "scattered", Role::other, 2))
    entry.contenders.push_back(std::move(contender));
  entry.figures = {{"scattered", "scattered", "lib"}};
  entry.prepare = [lists, n, isSecondArray](const Block& b) { makeLists<T>(*lists, b, n * n, isSecondArray); };
  add(entry);
  if (n == 4)
    add(entry, "4096", 4096); // runs at a distance of whole pages: the worst place for caches
}

#define POINTER_PAIR(function)                                                                                         \
  [](auto call, const char* who, Role role, int group) { return BENCH_LIBRARY(function, call, who, role, group); }

// clang-format off
void addPointers(int n) {
  const auto array32 = [](auto&&... a) { return listsByArray<Zel32f>(a...); };
  const auto array64 = [](auto&&... a) { return listsByArray<Zel64f>(a...); };
  const auto single32 = [](auto&&... a) { return listsBySingle<Zel32f>(a...); };
  const auto single64 = [](auto&&... a) { return listsBySingle<Zel64f>(a...); };
  addPointer<Zel32f>("mama_P", n, true,  array32,  POINTER_PAIR(zelmAdd_mama_32f_P));
  addPointer<Zel64f>("mama_P", n, true,  array64,  POINTER_PAIR(zelmAdd_mama_64f_P));
  addPointer<Zel32f>("mam_P",  n, false, single32, POINTER_PAIR(zelmAdd_mam_32f_P));
  addPointer<Zel64f>("mam_P",  n, false, single64, POINTER_PAIR(zelmAdd_mam_64f_P));
}
// clang-format on

// ---- one call on one matrix of 3 by 3

template <class T> auto oneMatrix() {
  const int e = sizeof(T);
  return [=](auto function, const Block& b) {
    function(source<T>(b, 0), 3 * e, e, source<T>(b, 1), 3 * e, e, result<T>(b, 2), 3 * e, e, 3, 3);
  };
}

template <class T> auto oneMatrixByLists(std::shared_ptr<Lists> lists) {
  return [=](auto function, const Block&) {
    function(sourceList<T>(lists->neighbours[0]), 0, sourceList<T>(lists->neighbours[1]), 0,
             resultList<T>(lists->neighbours[2]), 0, 3, 3);
  };
}

template <class T> void addCall(std::shared_ptr<Lists> lists, const std::vector<std::vector<Contender>>& calls) {
  Case entry{caseName<T>("call", 3), sizeof(T), {array(9), array(9), results(9)}, {}};
  for (const std::vector<Contender>& call : calls)
    entry.contenders.insert(entry.contenders.end(), call.begin(), call.end());
  entry.figures = {{"mm", "lib", "bare", true},
                   {"mama", "mama", "bare", true},
                   {"mm_P", "mm_P", "bare", true},
                   {"tm", "tm", "bare", true}};
  entry.prepare = [lists](const Block& b) { makeLists<T>(*lists, b, 9, true); };
  add(entry, "one", 1);
}

// clang-format off
void addCalls() {
  const auto lists32 = std::make_shared<Lists>();
  const auto lists64 = std::make_shared<Lists>();
  addCall<Zel32f>(lists32, {BENCH_LIBRARY(zelmAdd_mm_32f,   oneMatrix<Zel32f>()),
                            BENCH_LIBRARY(zelmAdd_mama_32f, arrayByArray<Zel32f>(3),           "mama", Role::other),
                            BENCH_LIBRARY(zelmAdd_mm_32f_P, oneMatrixByLists<Zel32f>(lists32), "mm_P", Role::other),
                            BENCH_LIBRARY(zelmAdd_tm_32f,   oneMatrix<Zel32f>(),               "tm",   Role::other, 1)});
  addCall<Zel64f>(lists64, {BENCH_LIBRARY(zelmAdd_mm_64f,   oneMatrix<Zel64f>()),
                            BENCH_LIBRARY(zelmAdd_mama_64f, arrayByArray<Zel64f>(3),           "mama", Role::other),
                            BENCH_LIBRARY(zelmAdd_mm_64f_P, oneMatrixByLists<Zel64f>(lists64), "mm_P", Role::other),
                            BENCH_LIBRARY(zelmAdd_tm_64f,   oneMatrix<Zel64f>(),               "tm",   Role::other, 1)});
}
// clang-format on

// ---- two threads

template <class T> void addThreads(int n, std::vector<Contender> one) {
  Case entry = packed<T>("threads", n, true, std::move(one));
  for (std::size_t i = 0; i < 2; ++i) {
    Contender two = entry.contenders[i];
    two.who = "two";
    two.role = Role::other;
    two.run = [onOne = two.run](const Block& block, long repetitions) {
      omp_set_num_threads(2);
      onOne(block, repetitions);
      omp_set_num_threads(1);
    };
    entry.contenders.push_back(std::move(two));
  }
  entry.contiguous.clear();
  entry.figures = {{"speedup", "lib", "two"}};
  add(entry, "100000", 100000);
}

void addThreadCases(int n) {
  addThreads<Zel32f>(n, BENCH_LIBRARY(zelmAdd_mama_32f, arrayByArray<Zel32f>(n)));
  addThreads<Zel64f>(n, BENCH_LIBRARY(zelmAdd_mama_64f, arrayByArray<Zel64f>(n)));
}

} // namespace

void registerAdd() {
  for (int n = 3; n <= 6; ++n)
    addPacked(n);
  for (int n = 3; n <= 6; ++n)
    addPointers(n);
  addCalls();
  addThreadCases(3);
  addThreadCases(6);
}

} // namespace bench
