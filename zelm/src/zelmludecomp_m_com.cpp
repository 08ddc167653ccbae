// The general loops of LUDecomp, which the kernels call: apart from those, so that the tests can see these calls.
#include "zelmludecomp.h"

// clang-format off
#define GENERAL_LOOP(LOOP, SOURCES, RESULTS)                                                                           \
  extern "C" ZelStatus LOOP(const zelm::SOURCES& src, const zelm::Plain<int32_t>& index, const zelm::RESULTS& dst,     \
                            int32_t side, int32_t count) {                                                             \
    return zelm::decomposeGeneral(src, index, dst, side, count);                                                       \
  }

#define ZELM_STRIDED(T, STRIDE) StridedMatrices<T, zelm::STRIDE>

//           loop                          matrices                               factors
GENERAL_LOOP(ownzelmLUDecomp_m_32f_S_com,  ZELM_STRIDED(const float, UnitStride),  ZELM_STRIDED(float, UnitStride))
GENERAL_LOOP(ownzelmLUDecomp_m_64f_S_com,  ZELM_STRIDED(const double, UnitStride), ZELM_STRIDED(double, UnitStride))
GENERAL_LOOP(ownzelmLUDecomp_m_32f_S2_com, ZELM_STRIDED(const float, AnyStride),   ZELM_STRIDED(float, AnyStride))
GENERAL_LOOP(ownzelmLUDecomp_m_64f_S2_com, ZELM_STRIDED(const double, AnyStride),  ZELM_STRIDED(double, AnyStride))
GENERAL_LOOP(ownzelmLUDecomp_m_32f_P_com,  MatricesP<const float>,                 MatricesP<float>)
GENERAL_LOOP(ownzelmLUDecomp_m_64f_P_com,  MatricesP<const double>,                MatricesP<double>)
// clang-format on
