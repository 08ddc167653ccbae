// Packed matrices of N by N as Eigen's fixed-size maps, aligned where every matrix of a batch is.
#pragma once

#include <Eigen/Core>

namespace bench {

template <class T, int N> using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;

template <class T, int N>
constexpr int alignment = N* N * sizeof(T) % 32 == 0   ? Eigen::Aligned32
                          : N* N * sizeof(T) % 16 == 0 ? Eigen::Aligned16
                                                       : Eigen::Unaligned;

template <class T, int N> using In = Eigen::Map<const Matrix<T, N>, alignment<T, N>>;

template <class T, int N> using Out = Eigen::Map<Matrix<T, N>, alignment<T, N>>;

} // namespace bench
