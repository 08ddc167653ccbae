// Portable kernels: Cholesky decomposition of an array of matrices, any strides and pointer layout.
#include "zelmcholesky.h"

ZELM_DECLARE(ownzelmCholeskyDecomp_m_32f_P, CHOLESKY_FACTOR_M, P, ANY, float);
ZELM_DECLARE(ownzelmCholeskyDecomp_m_64f_P, CHOLESKY_FACTOR_M, P, ANY, double);

namespace zelm {

struct Single32fP {
  using Pivots = AboveEpsilonAt3;
  static constexpr auto kernel = ownzelmCholeskyDecomp_m_32f_P;
};
struct Single64fP {
  using Pivots = AboveEpsilonAt3;
  static constexpr auto kernel = ownzelmCholeskyDecomp_m_64f_P;
};

} // namespace zelm

// clang-format off
//               kernel  arguments strides type  body  pivots
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_32f_S2, CHOLESKY_FACTOR_MA, S, ANY, float, choleskyFactors<AboveZero>)
// Alone with this limit; its sibling in the list layout has none.
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_64f_S2, CHOLESKY_FACTOR_MA, S, ANY, double, choleskyFactors<AboveEpsilonFrom6On>)
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_32f_LS2, CHOLESKY_FACTOR_MA, L, ANY, float,  choleskyFactors<AboveZero>)
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_64f_LS2, CHOLESKY_FACTOR_MA, L, ANY, double, choleskyFactors<AboveZero>)

// Sides without straight-line code go to the kernel of the single object.
//               kernel  arguments strides type  body  single
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_32f_P, CHOLESKY_FACTOR_MA, P, ANY, float,  choleskyFactorsBySingle<Single32fP>)
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_64f_P, CHOLESKY_FACTOR_MA, P, ANY, double, choleskyFactorsBySingle<Single64fP>)
// clang-format on
