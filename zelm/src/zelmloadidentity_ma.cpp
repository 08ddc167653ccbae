// Exported functions: LoadIdentity. They have neither kernels nor fronts.
#include "zelmmove.h"

// clang-format off
//     function                   arguments      layout type  order of tests  body, straight-line sizes
DIRECT(zelmLoadIdentity_ma_32f,   LOAD_IDENTITY, S, float,  N_Z_C_E_O,   loadIdentity<Sizes<3, 4, 5, 6>>)
DIRECT(zelmLoadIdentity_ma_32f_L, LOAD_IDENTITY, L, float,  N_Z_C_E_H_O, loadIdentity<Sizes<3, 4, 5, 6>>)
DIRECT(zelmLoadIdentity_ma_32f_P, LOAD_IDENTITY, P, float,  N_Z_H_C_O,   loadIdentity<Sizes<>>) // the order is not its 64f sibling's
DIRECT(zelmLoadIdentity_ma_64f,   LOAD_IDENTITY, S, double, N_Z_C_E_O,   loadIdentity<Sizes<3, 4, 5, 6>>)
DIRECT(zelmLoadIdentity_ma_64f_L, LOAD_IDENTITY, L, double, N_Z_C_E_H_O, loadIdentity<Sizes<3, 4, 5, 6>>)
DIRECT(zelmLoadIdentity_ma_64f_P, LOAD_IDENTITY, P, double, N_Z_C_H_O,   loadIdentity<Sizes<>>)
// clang-format on
