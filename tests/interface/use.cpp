// The header from C++: the types are what they are documented to be, and the functions link as C functions.
#include <zelm.h>

#include <cstdint>
#include <cstdio>
#include <type_traits>

static_assert(std::is_same<Zel32f, float>::value, "Zel32f");
static_assert(std::is_same<Zel64f, double>::value, "Zel64f");
static_assert(std::is_same<ZelStatus, std::int32_t>::value, "ZelStatus");
static_assert(zelStatusOk == 0 && zelStatusNoConvergence == -205, "status values");
static_assert(std::is_same<decltype(ZelLibVersion::targetCode), char[4]>::value, "targetCode");
static_assert(std::is_same<decltype(zelmGetLibVersion()), const ZelLibVersion*>::value, "zelmGetLibVersion");

using Single = ZelStatus (*)(const Zel32f*, int32_t, int32_t, const Zel32f*, int32_t, int32_t, Zel32f*, int32_t,
                             int32_t, int32_t, int32_t);
using Pointers = ZelStatus (*)(const Zel64f* const*, int32_t, int32_t, const Zel64f* const*, int32_t, Zel64f* const*,
                               int32_t, int32_t, int32_t, int32_t, int32_t);

int main() {
  const Single single = zelmAdd_mm_32f;
  const Pointers pointers = zelmAdd_mam_64f_P;

  const Zel32f a[4] = {1, 2, 3, 4}, b[4] = {10, 20, 30, 40};
  Zel32f sum[4] = {};
  ZelStatus status = single(a, 8, 4, b, 8, 4, sum, 8, 4, 2, 2);
  bool good = status == zelStatusOk && sum[0] == 11 && sum[1] == 22 && sum[2] == 33 && sum[3] == 44;

  // Two objects of 1 by 2, element by element side by side.
  const Zel64f c[2][2] = {{1, 2}, {3, 4}}, d[2] = {10, 20};
  Zel64f sums[2][2] = {};
  const Zel64f* const cList[2] = {c[0], c[1]};
  const Zel64f* const dList[2] = {&d[0], &d[1]};
  Zel64f* const sumsList[2] = {sums[0], sums[1]};
  status = pointers(cList, 0, 8, dList, 0, sumsList, 0, 8, 2, 1, 2);
  good = good && status == zelStatusOk;
  good = good && sums[0][0] == 11 && sums[0][1] == 12 && sums[1][0] == 23 && sums[1][1] == 24;

  good = good && zelmGetLibVersion()->major == 6;
  std::puts(good ? "good" : "failed");
  return good ? 0 : 1;
}
