// Portable kernels: Mul on single matrices, any strides and pointer layout.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mm_32f_S2, MUL_MM, S,  ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mt_32f_S2, MUL_MT, S,  ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tm_32f_S2, MUL_TM, S,  ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tt_32f_S2, MUL_TT, S,  ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mm_64f_S2, MUL_MM, S,  ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mt_64f_S2, MUL_MT, S,  ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tm_64f_S2, MUL_TM, S,  ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tt_64f_S2, MUL_TT, S,  ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mm_32f_P,  MUL_MM, P,  ANY,     float,  multiply<SizesByOr>)
KERNEL(ownzelmMul_mt_32f_P,  MUL_MT, P,  ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tm_32f_P,  MUL_TM, P,  ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tt_32f_P,  MUL_TT, P,  ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mm_64f_P,  MUL_MM, P,  ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mt_64f_P,  MUL_MT, P,  ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tm_64f_P,  MUL_TM, P,  ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tt_64f_P,  MUL_TT, P,  ANY,     double, multiply<SizesByOr>)
// clang-format on
