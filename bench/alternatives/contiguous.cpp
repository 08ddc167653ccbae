// The bandwidth reference: one loop over contiguous elements that reads and writes as many bytes as the case does.
// Cases name the row that they want in Case::contiguous. For these rows Block::count is the number of elements of the
// result, and operands 0, 1 and 2 are src1, src2 and dst (one element of src2 is enough for the rows with one source).
#include "alternative.h"

#include <iterator>

// clang unrolls vector loops by itself. g++ leaves one vector an iteration, and then the loop's place in the code
// decides how fast it is.
#ifdef __clang__
#  define UNROLLED
#else
#  define UNROLLED _Pragma("GCC unroll 4")
#endif

namespace {

template <class T>
void twoSources(const T* __restrict src1, const T* __restrict src2, T* __restrict dst, std::ptrdiff_t count) {
  UNROLLED
  for (std::ptrdiff_t i = 0; i < count; ++i)
    dst[i] = src1[i] + src2[i];
}

template <class T> void oneSource(const T* __restrict src, T value, T* __restrict dst, std::ptrdiff_t count) {
  UNROLLED
  for (std::ptrdiff_t i = 0; i < count; ++i)
    dst[i] = src[i] + value;
}

template <class T> void two(const bench::Block& block) {
  twoSources(bench::source<T>(block, 0), bench::source<T>(block, 1), bench::result<T>(block, 2), block.count);
}

template <class T> void one(const bench::Block& block) {
  oneSource(bench::source<T>(block, 0), *bench::source<T>(block, 1), bench::result<T>(block, 2), block.count);
}

using bench::repeat;
using bench::Role;

const bench::Row rows[] = {
    {"contiguous/2/32f", "contiguous", Role::contiguous, repeat<two<float>>},
    {"contiguous/2/64f", "contiguous", Role::contiguous, repeat<two<double>>},
    {"contiguous/1/32f", "contiguous", Role::contiguous, repeat<one<float>>},
    {"contiguous/1/64f", "contiguous", Role::contiguous, repeat<one<double>>},
};

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
