// The dense side of a call: every operand as a plain array, for references and data. Also the random source.
#ifndef ZELMTEST_JOB_H
#define ZELMTEST_JOB_H

#include "member.h"

#include <cstring>
#include <stdexcept>

namespace zelmtest {

class Rng {
public:
  explicit Rng(uint64_t seed) : state_(seed) {}
  uint64_t next() {
    uint64_t z = (state_ += 0x9e3779b97f4a7c15u);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
  }
  int below(int n) { return static_cast<int>(next() % static_cast<uint64_t>(n)); }
  int within(int low, int high) { return low + below(high - low + 1); }
  bool chance(int oneIn) { return below(oneIn) == 0; }

private:
  uint64_t state_;
};

enum class State : unsigned char { Untouched, Set, Free };

// One operand. Objects, rows and columns as stored.
struct Dense {
  int objects, rows, cols;
  bool array, transposed;
  size_t elem;
  std::vector<unsigned char> bytes;
  std::vector<State> states; // of a result's elements after the call; what a reference does not set stays Untouched
  const unsigned char* address = nullptr; // of element (0,0) of object 0 in the call
  int32_t stride0 = 0, stride1 = 0;       // as the call is told, where the operand has them

  size_t perObject() const { return static_cast<size_t>(rows) * static_cast<size_t>(cols); }
  size_t position(int object, int row, int col) const {
    if (object < 0 || row < 0 || col < 0 || (array && object >= objects) || row >= rows || col >= cols)
      throw std::out_of_range("element of a dense operand");
    return (array ? static_cast<size_t>(object) : 0) * perObject() +
           static_cast<size_t>(row) * static_cast<size_t>(cols) + static_cast<size_t>(col);
  }
};

// Element access as the operation sees the operand: t operands exchange row and column, single operands ignore k.
template <class T> class View {
public:
  explicit View(Dense& dense) : dense_(&dense) {}
  int rows() const { return dense_->transposed ? dense_->cols : dense_->rows; }
  int cols() const { return dense_->transposed ? dense_->rows : dense_->cols; }
  const unsigned char* address() const { return dense_->address; }
  int32_t stride0() const { return dense_->stride0; }
  int32_t stride1() const { return dense_->stride1; }
  T operator()(int k, int i, int j) const {
    T value;
    std::memcpy(&value, &dense_->bytes[at(k, i, j) * sizeof(T)], sizeof(T));
    return value;
  }
  T operator()(int k, int j) const { return (*this)(k, 0, j); }
  // A result element; also how a fill hook writes an input.
  void set(int k, int i, int j, T value) {
    std::memcpy(&dense_->bytes[at(k, i, j) * sizeof(T)], &value, sizeof(T));
    dense_->states[at(k, i, j)] = State::Set;
  }
  void set(int k, int j, T value) { set(k, 0, j, value); }
  // The call leaves this element as it is.
  void leave(int k, int i, int j) { dense_->states[at(k, i, j)] = State::Untouched; }
  // The call may leave anything in this element.
  void free(int k, int i, int j) { dense_->states[at(k, i, j)] = State::Free; }

private:
  size_t at(int k, int i, int j) const {
    return dense_->transposed ? dense_->position(k, j, i) : dense_->position(k, i, j);
  }
  Dense* dense_;
};

class Job {
public:
  Job(const Member& m, const Sizes& s);
  const Member& member;
  Sizes sizes;
  int count;                     // 1 in forms without an array
  bool unit = true;              // every stride2 of the call equals the element size
  std::vector<Dense> operands;   // in the order of member.operands
  std::vector<ZelStatus> status; // of each object; a reference sets failures
};

template <class T> class Typed {
public:
  explicit Typed(Job& job) : job_(&job) {}
  View<T> operator[](std::string_view name) { return View<T>(dense(name)); }
  View<int32_t> ints(std::string_view name) { return View<int32_t>(dense(name)); }
  int size(std::string_view name) const { return job_->sizes.get(name); }
  int count() const { return job_->count; }
  bool unit() const { return job_->unit; }
  const Member& member() const { return job_->member; }
  ZelStatus& status(int k) { return job_->status[static_cast<size_t>(k)]; }

private:
  Dense& dense(std::string_view name) { return job_->operands[static_cast<size_t>(job_->member.operandIndex(name))]; }
  Job* job_;
};

// Kinds of data: 0 dense mantissas of near exponents, 1 half of them special values, 2 any bit pattern, 3 zeros of both
// signs and denormals, 4 values that cancel.
void fillDense(Dense& dense, Rng& rng, int kind);

} // namespace zelmtest

#endif
