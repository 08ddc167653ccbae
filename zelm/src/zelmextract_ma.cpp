// Exported functions: Extract on arrays of matrices. They have neither kernels nor fronts.
#include "zelmmove.h"

// clang-format off
//     function              arguments  layout  type  order of tests  body
DIRECT(zelmExtract_ma_32f,   EXTRACT_MA, S, float,  N_Z_C_S,   extract)
DIRECT(zelmExtract_ma_32f_L, EXTRACT_MA, L, float,  N_Z_C_H_S, extract)
DIRECT(zelmExtract_ma_32f_P, EXTRACT_MA, P, float,  N_Z_C_H_S, extract)
DIRECT(zelmExtract_ma_64f,   EXTRACT_MA, S, double, N_Z_C_S,   extract)
DIRECT(zelmExtract_ma_64f_L, EXTRACT_MA, L, double, N_Z_C_H_S, extract)
DIRECT(zelmExtract_ma_64f_P, EXTRACT_MA, P, double, N_Z_C_H_S, extract)
DIRECT(zelmExtract_ta_32f,   EXTRACT_TA, S, float,  N_Z_C_S,   extract)
DIRECT(zelmExtract_ta_32f_L, EXTRACT_TA, L, float,  N_Z_C_H_S, extract)
DIRECT(zelmExtract_ta_32f_P, EXTRACT_TA, P, float,  N_Z_C_H_S, extract)
DIRECT(zelmExtract_ta_64f,   EXTRACT_TA, S, double, N_Z_C_S,   extract)
DIRECT(zelmExtract_ta_64f_L, EXTRACT_TA, L, double, N_Z_C_H_S, extract)
DIRECT(zelmExtract_ta_64f_P, EXTRACT_TA, P, double, N_Z_C_H_S, extract)
// clang-format on
