// Exported functions: Extract on arrays of vectors. They have neither kernels nor fronts.
#include "zelmmove.h"

// clang-format off
//     function              arguments  layout  type  order of tests  body
DIRECT(zelmExtract_va_32f,   EXTRACT_VA, S, float,  N_Z_C_S,   extract)
DIRECT(zelmExtract_va_32f_L, EXTRACT_VA, L, float,  N_Z_C_H_S, extract)
DIRECT(zelmExtract_va_32f_P, EXTRACT_VA, P, float,  N_Z_C_H_S, extract)
DIRECT(zelmExtract_va_64f,   EXTRACT_VA, S, double, N_Z_C_S,   extract)
DIRECT(zelmExtract_va_64f_L, EXTRACT_VA, L, double, N_Z_C_H_S, extract)
DIRECT(zelmExtract_va_64f_P, EXTRACT_VA, P, double, N_Z_C_H_S, extract)
// clang-format on
