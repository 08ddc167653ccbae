// Exported functions: Copy on arrays of vectors. They have neither kernels nor fronts.
#include "zelmmove.h"

// clang-format off
// Of the 32f alone, LP and SP test the shifts before the strides.
//     function              arguments     source's layout  type  order of tests  body
DIRECT(zelmCopy_va_32f_SS, COPY_VA_TO_S, S, float,  N_Z_C_E_O,   copy)
DIRECT(zelmCopy_va_32f_SL, COPY_VA_TO_L, S, float,  N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_32f_SP, COPY_VA_TO_P, S, float,  N_Z_C_H_E_O, copy)
DIRECT(zelmCopy_va_32f_LS, COPY_VA_TO_S, L, float,  N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_32f_LL, COPY_VA_TO_L, L, float,  N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_32f_LP, COPY_VA_TO_P, L, float,  N_Z_C_H_E_O, copy)
DIRECT(zelmCopy_va_32f_PS, COPY_VA_TO_S, P, float,  N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_32f_PL, COPY_VA_TO_L, P, float,  N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_32f_PP, COPY_VA_TO_P, P, float,  N_Z_C_H_O,   copy)
DIRECT(zelmCopy_va_64f_SS, COPY_VA_TO_S, S, double, N_Z_C_E_O,   copy)
DIRECT(zelmCopy_va_64f_SL, COPY_VA_TO_L, S, double, N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_64f_SP, COPY_VA_TO_P, S, double, N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_64f_LS, COPY_VA_TO_S, L, double, N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_64f_LL, COPY_VA_TO_L, L, double, N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_64f_LP, COPY_VA_TO_P, L, double, N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_64f_PS, COPY_VA_TO_S, P, double, N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_64f_PL, COPY_VA_TO_L, P, double, N_Z_C_E_H_O, copy)
DIRECT(zelmCopy_va_64f_PP, COPY_VA_TO_P, P, double, N_Z_C_H_O,   copy)
// clang-format on
