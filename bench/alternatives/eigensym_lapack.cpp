// Symmetric eigenproblems of packed matrices by LAPACK's syev, one at a time.
#include "alternative.h"

#include <lapack.h>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

void symmetric(char* job, char* uplo, int* n, float* a, float* w, float* work, int* size, int* info) {
  LAPACK_ssyev(job, uplo, n, a, n, w, work, size, info);
}
void symmetric(char* job, char* uplo, int* n, double* a, double* w, double* work, int* size, int* info) {
  LAPACK_dsyev(job, uplo, n, a, n, w, work, size, info);
}

// Values ascend here, and descend in the result.
template <class T, int N, char job> void solve(const bench::Block& b) {
  T* vectors = bench::result<T>(b, 1);
  T* values = bench::result<T>(b, 2);
  char what = job, upper = 'U';
  int n = N, info = 0;
  T work[64 * N];
  int size = 64 * N;
  std::memcpy(vectors, bench::source<T>(b, 0), sizeof(T) * N * N * static_cast<std::size_t>(b.count));
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    symmetric(&what, &upper, &n, vectors + k * N * N, values + k * N, work, &size, &info);
    std::reverse(values + k * N, values + (k + 1) * N);
  }
}

template <class T, int N> constexpr auto valuesOf = bench::repeat<solve<T, N, 'N'>>;
template <class T, int N> constexpr auto vectorsOf = bench::repeat<solve<T, N, 'V'>>;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"EigenValuesSym/ma/64f/3",        "lapack", Role::alternative, valuesOf<double, 3>},
    {"EigenValuesSym/ma/64f/4",        "lapack", Role::alternative, valuesOf<double, 4>},
    {"EigenValuesSym/ma/64f/5",        "lapack", Role::alternative, valuesOf<double, 5>},
    {"EigenValuesSym/ma/64f/6",        "lapack", Role::alternative, valuesOf<double, 6>},
    {"EigenValuesSym/ma/32f/3",        "lapack", Role::alternative, valuesOf<float, 3>},
    {"EigenValuesSym/ma/32f/4",        "lapack", Role::alternative, valuesOf<float, 4>},
    {"EigenValuesSym/ma/32f/5",        "lapack", Role::alternative, valuesOf<float, 5>},
    {"EigenValuesSym/ma/32f/6",        "lapack", Role::alternative, valuesOf<float, 6>},
    {"EigenValuesVectorsSym/ma/64f/3", "lapack", Role::alternative, vectorsOf<double, 3>},
    {"EigenValuesVectorsSym/ma/64f/4", "lapack", Role::alternative, vectorsOf<double, 4>},
    {"EigenValuesVectorsSym/ma/64f/5", "lapack", Role::alternative, vectorsOf<double, 5>},
    {"EigenValuesVectorsSym/ma/64f/6", "lapack", Role::alternative, vectorsOf<double, 6>},
    {"EigenValuesVectorsSym/ma/32f/3", "lapack", Role::alternative, vectorsOf<float, 3>},
    {"EigenValuesVectorsSym/ma/32f/4", "lapack", Role::alternative, vectorsOf<float, 4>},
    {"EigenValuesVectorsSym/ma/32f/5", "lapack", Role::alternative, vectorsOf<float, 5>},
    {"EigenValuesVectorsSym/ma/32f/6", "lapack", Role::alternative, vectorsOf<float, 6>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
