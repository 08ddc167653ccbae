// Matrices of which only the lower triangle can be touched.
#ifndef ZELMTEST_TRIANGLE_H
#define ZELMTEST_TRIANGLE_H

#include "../harness/run.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <stdexcept>

namespace zelmtest {

// Every row ends with its diagonal element at the end of a page of its own; what would lie behind is inaccessible. The
// diagonal is one value, all below it zero.
template <class T> class LowerTriangles {
public:
  LowerTriangles(int n, int count, int step, T diagonal)
      : n_(n), step_(step), bytes_(toothPitch * static_cast<size_t>(n) * static_cast<size_t>(count)),
        base_(static_cast<char*>(mmap(nullptr, bytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))) {
    if (base_ == MAP_FAILED)
      throw std::runtime_error("no memory");
    for (size_t row = 0; row < static_cast<size_t>(n * count); ++row)
      mprotect(base_ + row * toothPitch, page, PROT_READ | PROT_WRITE);
    for (int k = 0; k < count; ++k)
      for (int i = 0; i < n; ++i)
        for (int j = 0; j <= i; ++j)
          *at(k, i, j) = i == j ? diagonal : T(0);
  }
  LowerTriangles(const LowerTriangles&) = delete;
  LowerTriangles& operator=(const LowerTriangles&) = delete;
  ~LowerTriangles() { munmap(base_, bytes_); }
  T* at(int k, int i, int j) const {
    return reinterpret_cast<T*>(base_ + k * stride0() + i * stride1() + j * stride2() + page) - 1;
  }
  int32_t stride0() const { return static_cast<int32_t>(toothPitch) * n_; }
  int32_t stride1() const { return static_cast<int32_t>(toothPitch) - stride2(); }
  int32_t stride2() const { return step_ * static_cast<int32_t>(sizeof(T)); }

private:
  int n_, step_;
  size_t bytes_;
  char* base_;
};

// Calls the member, a Cholesky decomposition in place or a back substitution, with such matrices. In the pointer layout
// the lists have addresses of inaccessible memory for the upper elements.
template <class T> void checkUpperUntouched(const Member& m) {
  const bool decomposes = m.operands.size() == 2;
  for (int n : {1, 2, 3, 4, 5, 6, 7, 9})
    for (int count : {1, 2, 8, 11})
      for (int step : {1, 2}) {
        if ((!m.hasCount && count > 1) || (m.layout == 'P' && step > 1))
          continue;
        const LowerTriangles<T> matrices(n, count, step, decomposes ? T(4) : T(0.5));
        std::vector<T> vectors(static_cast<size_t>(n * count), T(1)), results(vectors.size(), T(-1));
        std::vector<std::vector<const void*>> lists(m.operands.size());
        std::vector<Slot> slots = wildSlots(m, m.square(n, count));
        for (size_t a = 0; a < slots.size(); ++a) {
          if (m.arguments[a].operand < 0)
            continue;
          const auto o = static_cast<size_t>(m.arguments[a].operand);
          const OperandInfo& op = m.operands[o];
          const bool matrix = op.kind[0] == 'm';
          const auto address = [&](int k, int i, int j) -> const void* {
            return matrix ? matrices.at(k, i, j) : &(op.output ? results : vectors)[static_cast<size_t>(k * n + j)];
          };
          switch (m.arguments[a].role) {
          case Role::Pointer:
            for (int k = 0; op.layout == 'L' && k < count; ++k)
              lists[o].push_back(address(k, 0, 0));
            for (int e = 0; op.layout == 'P' && e < (matrix ? n * n : n); ++e)
              lists[o].push_back(address(0, e / n, e % n));
            slots[a].pointer = op.listed() ? lists[o].data() : address(0, 0, 0);
            break;
          case Role::Stride0:
            slots[a].integer = matrix ? matrices.stride0() : n * m.elem;
            break;
          case Role::Stride1:
            slots[a].integer = matrices.stride1();
            break;
          case Role::Stride2:
            slots[a].integer = matrix ? matrices.stride2() : m.elem;
            break;
          default:
            break;
          }
        }
        announce(m.name + " touches an element above the diagonal");
        ASSERT_EQ(m.function.call(slots.data()), zelStatusOk) << m.name;
        for (int k = 0; decomposes && k < count; ++k)
          for (int i = 0; i < n; ++i)
            for (int j = 0; j <= i; ++j)
              ASSERT_EQ(*matrices.at(k, i, j), i == j ? T(0.5) : T(0)) << m.name << " " << n << " " << count;
        const std::vector<T> expected(results.size(), decomposes ? T(-1) : T(0.25));
        ASSERT_EQ(results, expected) << m.name << " " << n << " " << count;
      }
}

inline void checkUpperUntouched() {
  for (const Member& m : members())
    if (m.elem == 4)
      checkUpperUntouched<float>(m);
    else
      checkUpperUntouched<double>(m);
}

} // namespace zelmtest

#endif
