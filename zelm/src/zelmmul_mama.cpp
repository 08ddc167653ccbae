// Exported functions: Mul on two arrays of matrices.
#include "zelmmulsignature.h"

// clang-format off
//           exported function   arguments   type    order of tests   estimate  forks: unit  any          kernels: unit strides  any                      front
STRIDE_FIRST(zelmMul_mama_32f,   MUL_MAMA, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_mama_32f,   ownzelmMul_mama_32f_S2,  ownOMP_zelmMul_mama_32f)
STRIDE_FIRST(zelmMul_mata_32f,   MUL_MATA, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_mata_32f,   ownzelmMul_mata_32f_S2,  ownOMP_zelmMul_mata_32f)
STRIDE_FIRST(zelmMul_tama_32f,   MUL_TAMA, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_tama_32f,   ownzelmMul_tama_32f_S2,  ownOMP_zelmMul_tama_32f)
STRIDE_FIRST(zelmMul_tata_32f,   MUL_TATA, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_tata_32f,   ownzelmMul_tata_32f_S2,  ownOMP_zelmMul_tata_32f)
STRIDE_FIRST(zelmMul_mama_64f,   MUL_MAMA, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_mama_64f,   ownzelmMul_mama_64f_S2,  ownOMP_zelmMul_mama_64f)
STRIDE_FIRST(zelmMul_mata_64f,   MUL_MATA, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_mata_64f,   ownzelmMul_mata_64f_S2,  ownOMP_zelmMul_mata_64f)
STRIDE_FIRST(zelmMul_tama_64f,   MUL_TAMA, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_tama_64f,   ownzelmMul_tama_64f_S2,  ownOMP_zelmMul_tama_64f)
STRIDE_FIRST(zelmMul_tata_64f,   MUL_TATA, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_tata_64f,   ownzelmMul_tata_64f_S2,  ownOMP_zelmMul_tata_64f)
STRIDE_FIRST(zelmMul_mama_32f_L, MUL_MAMA, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mama_32f_L, ownzelmMul_mama_32f_LS2, ownOMP_zelmMul_mama_32f_L)
STRIDE_FIRST(zelmMul_mata_32f_L, MUL_MATA, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mata_32f_L, ownzelmMul_mata_32f_LS2, ownOMP_zelmMul_mata_32f_L)
STRIDE_FIRST(zelmMul_tama_32f_L, MUL_TAMA, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tama_32f_L, ownzelmMul_tama_32f_LS2, ownOMP_zelmMul_tama_32f_L)
STRIDE_FIRST(zelmMul_tata_32f_L, MUL_TATA, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tata_32f_L, ownzelmMul_tata_32f_LS2, ownOMP_zelmMul_tata_32f_L)
STRIDE_FIRST(zelmMul_mama_64f_L, MUL_MAMA, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mama_64f_L, ownzelmMul_mama_64f_LS2, ownOMP_zelmMul_mama_64f_L)
STRIDE_FIRST(zelmMul_mata_64f_L, MUL_MATA, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mata_64f_L, ownzelmMul_mata_64f_LS2, ownOMP_zelmMul_mata_64f_L)
STRIDE_FIRST(zelmMul_tama_64f_L, MUL_TAMA, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tama_64f_L, ownzelmMul_tama_64f_LS2, ownOMP_zelmMul_tama_64f_L)
STRIDE_FIRST(zelmMul_tata_64f_L, MUL_TATA, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tata_64f_L, ownzelmMul_tata_64f_LS2, ownOMP_zelmMul_tata_64f_L)

//            exported function   arguments   type    order of tests   estimate  forks        kernel                 front
ARRAY_POINTER(zelmMul_mama_32f_P, MUL_MAMA, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mama_32f_P, ownOMP_zelmMul_mama_32f_P)
ARRAY_POINTER(zelmMul_mata_32f_P, MUL_MATA, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mata_32f_P, ownOMP_zelmMul_mata_32f_P)
ARRAY_POINTER(zelmMul_tama_32f_P, MUL_TAMA, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tama_32f_P, ownOMP_zelmMul_tama_32f_P)
ARRAY_POINTER(zelmMul_tata_32f_P, MUL_TATA, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tata_32f_P, ownOMP_zelmMul_tata_32f_P)
ARRAY_POINTER(zelmMul_mama_64f_P, MUL_MAMA, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mama_64f_P, ownOMP_zelmMul_mama_64f_P)
ARRAY_POINTER(zelmMul_mata_64f_P, MUL_MATA, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mata_64f_P, ownOMP_zelmMul_mata_64f_P)
ARRAY_POINTER(zelmMul_tama_64f_P, MUL_TAMA, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tama_64f_P, ownOMP_zelmMul_tama_64f_P)
ARRAY_POINTER(zelmMul_tata_64f_P, MUL_TATA, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tata_64f_P, ownOMP_zelmMul_tata_64f_P)
// clang-format on
