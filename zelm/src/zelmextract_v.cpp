// Exported functions: Extract on single vectors. They have neither kernels nor fronts.
#include "zelmmove.h"

// clang-format off
// In the pointer layout the size test stands before the null test, here and nowhere else, and of v only in 64f.
//     function              arguments  layout  type  order of tests  body
DIRECT(zelmExtract_v_32f,   EXTRACT_V, S, float,  N_Z_S, extract)
DIRECT(zelmExtract_v_32f_P, EXTRACT_V, P, float,  N_Z_H, extract)
DIRECT(zelmExtract_v_64f,   EXTRACT_V, S, double, N_Z_S, extract)
DIRECT(zelmExtract_v_64f_P, EXTRACT_V, P, double, Z_N_H, extract)
// clang-format on
