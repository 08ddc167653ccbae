// Work estimates of Add, Sub and Mul by a constant; their argument lists are those of all element-wise families.
#pragma once

#include "zelmframe.h"

namespace zelm {

// One array of matrices as source.
constexpr Wrapping oneArray(Size width, Size height, Count count) {
  return Wrapping(width) * height * (Wrapping(2) * count + 1);
}
// Two arrays of matrices.
constexpr Wrapping twoArrays(Size width, Size height, Count count) {
  return Wrapping(3) * width * height * count;
}

// One array of vectors, with a vector or a constant.
constexpr Wrapping oneArrayOfVectors(Size len, Count count) {
  return Wrapping(len) * (Wrapping(2) * count + 1);
}
// Two arrays of vectors.
constexpr Wrapping twoArraysOfVectors(Size len, Count count) {
  return Wrapping(3) * len * count;
}
// One vector with an array of constants.
constexpr Wrapping vectorAndConstants(Size len, Count count) {
  return Wrapping(len) * count + len + count;
}
// An array of vectors with one of constants.
constexpr Wrapping vectorsAndConstants(Size len, Count count) {
  return Wrapping(count) * (Wrapping(2) * len + 1);
}
// Sub of an array of vectors from a constant: the length plays no part, in this form alone.
constexpr Wrapping constantAndVectors(Size, Count count) {
  return Wrapping(2) * count + 1;
}

// Mul of an array of matrices by a constant.
constexpr Wrapping scaledMatrices(Size width, Size height, Count count) {
  return Wrapping(2) * width * height * count;
}
// Mul of an array of vectors by a constant.
constexpr Wrapping scaledVectors(Size len, Count count) {
  return Wrapping(2) * len * count;
}

} // namespace zelm
