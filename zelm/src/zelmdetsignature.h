// Determinants: argument lists.
#pragma once

#include "zelmframe.h"
#include "zelmsingular.h"

// clang-format off
#define DET(W, Y, E, S)   ZELM_##S##_##Y(W, src, const E), ZELM_SIZE(W, widthHeight), ZELM_BUFFER(W, buffer, E, zelm::workingElements(widthHeight)), ZELM_PLAIN(W, dst, E, 1)
#define DET_M(W, Y, E)    DET(W, Y, E, M)
#define DET_MA(W, Y, E)   DET(W, Y, E, MA), ZELM_COUNT(W)
// clang-format on

namespace zelm {

// By minors up to side 6, by elimination beyond.
ZELM_WORK(DET_MA) = [](Size widthHeight, Count count) { return 1.0 * widthHeight * widthHeight * widthHeight * count; };

} // namespace zelm
