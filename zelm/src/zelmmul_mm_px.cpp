// Portable kernels: Mul on single matrices, any strides and pointer layout.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mm_32f_S2, MUL_MM_S,  ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mt_32f_S2, MUL_MT_S,  ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tm_32f_S2, MUL_TM_S,  ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tt_32f_S2, MUL_TT_S,  ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mm_64f_S2, MUL_MM_S,  ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mt_64f_S2, MUL_MT_S,  ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tm_64f_S2, MUL_TM_S,  ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tt_64f_S2, MUL_TT_S,  ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mm_32f_P,  MUL_MM_P,  ANY,     float,  multiply, SizesByOr)
KERNEL(ownzelmMul_mt_32f_P,  MUL_MT_P,  ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tm_32f_P,  MUL_TM_P,  ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tt_32f_P,  MUL_TT_P,  ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mm_64f_P,  MUL_MM_P,  ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mt_64f_P,  MUL_MT_P,  ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tm_64f_P,  MUL_TM_P,  ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tt_64f_P,  MUL_TT_P,  ANY,     double, multiply, SizesByOr)
// clang-format on
