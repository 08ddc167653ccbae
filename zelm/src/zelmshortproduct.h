// Products of few elements.
#pragma once

#include "zelmproduct.h"

namespace zelm {

// Multiplies as many objects at a time as a vector has lanes, of extents that the compiler knows, and tells whether it
// has: matrices by columns and rows by matrices of extents up to `longestShort`, and matrices of 2 and 3, where the
// objects of every operand lie one behind the other without gaps and fill a vector. Takes a sixth to a half of what
// object by object takes.
template <class T>
bool multiplyShort(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                   const ProductShape& shape, T first, int64_t count);

} // namespace zelm
