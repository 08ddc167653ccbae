// Queries: the size of the work buffers of the general eigen families.
#include "zelmeigenvaluessignature.h"

namespace zelm {
namespace {

// The null test before that of the size.
ZelStatus reportSize(int32_t side, int32_t* size, int32_t bytes) {
  if (size == nullptr)
    return zelStatusNullPointer;
  if (side < 1)
    return zelStatusBadSize;
  storeElement(reinterpret_cast<char*>(size), bytes);
  return zelStatusOk;
}

} // namespace
} // namespace zelm

// SQUARES: how many squares of the side there are beside five runs.
#define EIGEN_BUF_SIZE(FUNCTION, T, SQUARES)                                                                           \
  extern "C" ZelStatus FUNCTION(int32_t widthHeight, int32_t* size) {                                                  \
    return zelm::reportSize(widthHeight, size, zelm::eigenBytes<T>(widthHeight, SQUARES));                             \
  }

// clang-format off
//             exported function                     type    squares
EIGEN_BUF_SIZE(zelmEigenValuesGetBufSize_32f,        float,  1)
EIGEN_BUF_SIZE(zelmEigenValuesGetBufSize_64f,        double, 1)
EIGEN_BUF_SIZE(zelmEigenValuesVectorsGetBufSize_32f, float,  3)
EIGEN_BUF_SIZE(zelmEigenValuesVectorsGetBufSize_64f, double, 3)
// clang-format on
