// What the grid and its alternatives share: an operand in memory, as the strides or the list of a call describe it.
#pragma once

#include "alternative.h"

namespace bench::grid {

// How an operand lies, as far as code that is written for its layout can tell.
enum class Kind { rows, list, padded, columns, apart };

struct Operand {
  Kind kind;
  char* first;
  char* const* list; // the objects one by one, whatever the layout
  std::ptrdiff_t stride0;
  std::ptrdiff_t stride1;
  std::ptrdiff_t stride2;
};

} // namespace bench::grid
