// Exported functions: Extract on single matrices. They have neither kernels nor fronts.
#include "zelmmove.h"

// clang-format off
// In the pointer layout the size test stands before the null test, here and nowhere else.
//     function              arguments  layout  type  order of tests  body
DIRECT(zelmExtract_m_32f,   EXTRACT_M, S, float,  N_Z_S, extract)
DIRECT(zelmExtract_m_32f_P, EXTRACT_M, P, float,  Z_N_H, extract)
DIRECT(zelmExtract_m_64f,   EXTRACT_M, S, double, N_Z_S, extract)
DIRECT(zelmExtract_m_64f_P, EXTRACT_M, P, double, Z_N_H, extract)
DIRECT(zelmExtract_t_32f,   EXTRACT_T, S, float,  N_Z_S, extract)
DIRECT(zelmExtract_t_32f_P, EXTRACT_T, P, float,  Z_N_H, extract)
DIRECT(zelmExtract_t_64f,   EXTRACT_T, S, double, N_Z_S, extract)
DIRECT(zelmExtract_t_64f_P, EXTRACT_T, P, double, Z_N_H, extract)
// clang-format on
