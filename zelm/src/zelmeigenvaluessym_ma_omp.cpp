// Parallel fronts: eigenvalues of an array of symmetric matrices.
#include "zelmfront.h"
#include "zelmsymmetricsignature.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmEigenValuesSym_ma_32f,   SYM_VALUES_MA, S, float,  Merges, ownzelmEigenValuesSym_ma_32f,   ownzelmEigenValuesSym_ma_32f_S2)
FRONT(ownOMP_zelmEigenValuesSym_ma_64f,   SYM_VALUES_MA, S, double, Merges, ownzelmEigenValuesSym_ma_64f,   ownzelmEigenValuesSym_ma_64f_S2)
FRONT(ownOMP_zelmEigenValuesSym_ma_32f_L, SYM_VALUES_MA, L, float,  Merges, ownzelmEigenValuesSym_ma_32f_L, ownzelmEigenValuesSym_ma_32f_LS2)
FRONT(ownOMP_zelmEigenValuesSym_ma_64f_L, SYM_VALUES_MA, L, double, Merges, ownzelmEigenValuesSym_ma_64f_L, ownzelmEigenValuesSym_ma_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmEigenValuesSym_ma_32f_P, SYM_VALUES_MA, P, float,  Merges, ownzelmEigenValuesSym_ma_32f_P)
FRONT_POINTER(ownOMP_zelmEigenValuesSym_ma_64f_P, SYM_VALUES_MA, P, double, Merges, ownzelmEigenValuesSym_ma_64f_P)
// clang-format on
