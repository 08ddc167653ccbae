/* zelm: operations on very many tiny matrices and vectors (libzelmn8.so.6.1).
 *
 * Emitted by tools/interface.py from the grammar of the names; edit that, not this file.
 * C99 and later, C++11 and later. */
#ifndef ZELM_H
#define ZELM_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#  pragma GCC visibility push(default)
#endif

/**
 * @mainpage zelm
 *
 * The library works on very many tiny matrices and vectors: sizes 3, 4, 5 and 6 above all, other sizes as well. A call
 * does the same thing to one object, or to an array of count objects independently of each other. Functions take plain
 * pointers and integers, return a status and print nothing; the library keeps no state and needs no initialisation, and
 * every function may be called from any thread at any time.
 *
 * Names. A function is named zelm, the family, the operands, the element type and the layout, as in zelmAdd_mam_32f_L.
 * The operands are the letters of the sources in their order:
 *
 * @code
 * m   matrix                        ma  array of count matrices
 * t   matrix read transposed        ta  array of these
 * v   vector                        va  array of vectors
 * c   constant                      ca  array of constants
 * @endcode
 *
 * So mam is an array of matrices with one matrix, which is used again with every object of the array. The result is an
 * array if any source is one. 32f is Zel32f, 64f is Zel64f. The layout is the standard layout, the list layout (_L) or
 * the pointer layout (_P), and is that of all operands of the call.
 *
 * Units. Every stride and every shift is a number of BYTES, and a multiple of the element size (4 for 32f, 8 for 64f).
 * Strides are at least 1, shifts at least 0. Sizes and count are numbers of elements and objects, at least 1. width is
 * the number of columns, height the number of rows.
 *
 * Strides. Stride0 leads from one object of an array to the next, Stride1 from one row of a matrix to the next, Stride2
 * from one element of a row or vector to the next. They may stand in any order: rows may be padded or interleaved, and
 * elements lie apart. Calls with every Stride2 equal to the element size are the fast ones; column-major matrices,
 * whose Stride1 is the element size, are as fast in most families.
 *
 * Layouts. X is the operand's argument, k the object, i the row, j the column (of a vector, the element), all from 0;
 * XShift, XStride0, XStride1, XStride2 are the arguments behind it. All arithmetic is in bytes.
 *
 * @code
 * standard layout: X is the address of element (0,0) of object 0
 *   m, ma   X + k*XStride0 + i*XStride1 + j*XStride2
 *   t, ta   X + k*XStride0 + j*XStride1 + i*XStride2
 *   v, va   X + k*XStride0 + j*XStride2
 *   ca      X + k*XStride0
 *
 * list layout: X is a list of count addresses, one for each object
 *   ma      X[k] + XShift + i*XStride1 + j*XStride2
 *   ta      X[k] + XShift + j*XStride1 + i*XStride2
 *   va      X[k] + XShift + j*XStride2
 *   ca      X[k] + XShift
 *   m, t, v as in the standard layout: a single operand has no list and no shift
 *
 * pointer layout: X is a list of addresses, one for each element of an object; the list of a matrix
 * has width*height entries, row after row as stored, that of a vector len entries
 *   m, ma   X[i*width + j] + XShift + k*XStride0
 *   t, ta   X[j*height + i] + XShift + k*XStride0
 *   v, va   X[j] + XShift + k*XStride0
 *   ca      X + k*XStride0, as in the standard layout
 * @endcode
 *
 * A single operand has no Stride0, and its k is 0. Where width and height belong to the result (element-wise families),
 * a t operand is stored with width rows of height elements; where an operand has its own size pair (the products), the
 * pair describes the operand as it is stored.
 *
 * Arguments. Each operand is followed by its shift and strides in the order above: with ma in the standard layout X,
 * XStride0, XStride1, XStride2; in the list layout X, XShift, XStride1, XStride2; in the pointer layout X, XShift,
 * XStride0. Sources come first, then the result, then sizes, then count; in products the sizes of an operand stand
 * behind it, and where a family has one pair of sizes for its source, they stand before the result, as a buffer does.
 *
 * Status. A call tests its arguments before it does anything; the first test that fails gives the status, and nothing
 * has been read or written but the arguments themselves. What list entries point to is not tested. Only elements of
 * results are written, never padding between them.
 *
 * Threads. Arrays whose work passes a limit are spread over OpenMP threads, one contiguous share of the objects for
 * each; OMP_NUM_THREADS and omp_set_num_threads rule how many. The number of threads changes no result of a call that
 * succeeds. Objects of one result must not overlap. A result that overlaps a source is undefined but where a family
 * says otherwise.
 *
 * Numbers. Every operation is rounded once in the element type but where a family says otherwise, products and sums are
 * not fused. The library leaves the rounding and denormal modes alone and is meant for those of a fresh thread. The
 * same call gives the same bits on every processor but where a family says otherwise. NaN results are NaN; their sign
 * and payload are not defined.
 */

/** A single precision number (IEEE 754 binary32). */
typedef float Zel32f;

/** A double precision number (IEEE 754 binary64). */
typedef double Zel64f;

/** What a computing function returns: zelStatusOk, or a negative value that tells what is wrong. */
typedef int32_t ZelStatus;

/** The values of ZelStatus. */
enum {
  zelStatusOk = 0,                     /**< success */
  zelStatusFailed = -2,                /**< an eigenvector computation could not be completed */
  zelStatusBadSize = -6,               /**< a width, height, length or side is less than 1 */
  zelStatusNullPointer = -8,           /**< a pointer argument is null */
  zelStatusDivideByZero = -10,         /**< the computation would divide by zero */
  zelStatusNotPositiveDefinite = -179, /**< the matrix is not positive definite */
  zelStatusBadStride = -182,           /**< a stride is less than 1 or not a multiple of the element size */
  zelStatusSingular = -195,            /**< the matrix is singular */
  zelStatusBadShift = -202,            /**< a shift is negative or not a multiple of the element size */
  zelStatusBadCount = -203,            /**< count is less than 1 */
  zelStatusSizeMismatch = -204,        /**< the operands' sizes do not agree */
  zelStatusNoConvergence = -205        /**< an eigenvalue iteration reached its limit */
};

/** What zelmGetLibVersion tells of this build. */
typedef struct ZelLibVersion {
  int32_t major;         /**< major version */
  int32_t minor;         /**< minor version */
  int32_t majorBuild;    /**< major build number */
  int32_t build;         /**< build number */
  char targetCode[4];    /**< the processor family that the build is for, padded with zero bytes */
  const char* name;      /**< file name of the library */
  const char* version;   /**< the version as text */
  const char* buildDate; /**< the build date as text */
} ZelLibVersion;

/** The version record of the library: constant, owned by the library, the same at every call. Never fails. */
const ZelLibVersion* zelmGetLibVersion(void);

/**
 * @defgroup zelmAddMatrices Add on matrices
 *
 * The sum of two matrices, either of which may be read transposed, or of arrays of these. The forms that are missing
 * (mt, mma and so on) are had by exchanging the sources.
 *
 * Arguments. width and height are those of the result: dst and an m source have height rows of width elements, a t
 * source is stored as width rows of height elements. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or height below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift. They are tested in this order, as far as the form has them, with one
 * exception: zelmAdd_mam_32f and zelmAdd_mam_64f (standard layout only) test pointers, count, strides, and the sizes
 * last.
 *
 * In place. dst may be the m source of a single form or the ma source of an array form, with the same strides (and the
 * same list and shift). It must not overlap a t source, nor the single source of an array form.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. The single forms run on the calling thread. An array form is spread over threads when width*height*(2*count
 * + 1) (mam, mat, tam, tat) or 3*width*height*count (mama, tama, tata), as a 32-bit integer that wraps, is at least
 * 2000; in the standard layout of 32f with every Stride2 equal to 4, when it is at least 3000.
 *
 * Example:
 *
 * @code
 * Zel32f batch[100][3][3] = {{{1}}}, offset[3][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
 * // batch[k] = batch[k] + offset for 100 matrices of 3 by 3
 * ZelStatus status = zelmAdd_mam_32f(&batch[0][0][0], 36, 12, 4, &offset[0][0], 12, 4,
 *                                    &batch[0][0][0], 36, 12, 4, 3, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name Add mm: dst(i,j) = src1(i,j) + src2(i,j)
 * @{ */
ZelStatus zelmAdd_mm_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmAdd_mm_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                           Zel32f* const* dst, int32_t dstShift, int32_t width, int32_t height);
ZelStatus zelmAdd_mm_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmAdd_mm_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                           Zel64f* const* dst, int32_t dstShift, int32_t width, int32_t height);
/** @} */

/** @name Add tm: dst(i,j) = src1(j,i) + src2(i,j)
 * @{ */
ZelStatus zelmAdd_tm_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmAdd_tm_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                           Zel32f* const* dst, int32_t dstShift, int32_t width, int32_t height);
ZelStatus zelmAdd_tm_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmAdd_tm_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                           Zel64f* const* dst, int32_t dstShift, int32_t width, int32_t height);
/** @} */

/** @name Add tt: dst(i,j) = src1(j,i) + src2(j,i)
 * @{ */
ZelStatus zelmAdd_tt_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmAdd_tt_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                           Zel32f* const* dst, int32_t dstShift, int32_t width, int32_t height);
ZelStatus zelmAdd_tt_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmAdd_tt_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                           Zel64f* const* dst, int32_t dstShift, int32_t width, int32_t height);
/** @} */

/** @name Add mam: dst[k](i,j) = src1[k](i,j) + src2(i,j)
 * @{ */
ZelStatus zelmAdd_mam_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_mam_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmAdd_mam_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_mam_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_mam_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmAdd_mam_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Add mat: dst[k](i,j) = src1[k](i,j) + src2(j,i)
 * @{ */
ZelStatus zelmAdd_mat_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_mat_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmAdd_mat_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_mat_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_mat_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmAdd_mat_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Add tam: dst[k](i,j) = src1[k](j,i) + src2(i,j)
 * @{ */
ZelStatus zelmAdd_tam_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tam_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmAdd_tam_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tam_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tam_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmAdd_tam_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Add tat: dst[k](i,j) = src1[k](j,i) + src2(j,i)
 * @{ */
ZelStatus zelmAdd_tat_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tat_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmAdd_tat_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tat_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tat_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmAdd_tat_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Add mama: dst[k](i,j) = src1[k](i,j) + src2[k](i,j)
 * @{ */
ZelStatus zelmAdd_mama_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmAdd_mama_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_mama_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_mama_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmAdd_mama_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_mama_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Add tama: dst[k](i,j) = src1[k](j,i) + src2[k](i,j)
 * @{ */
ZelStatus zelmAdd_tama_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmAdd_tama_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tama_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tama_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmAdd_tama_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tama_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Add tata: dst[k](i,j) = src1[k](j,i) + src2[k](j,i)
 * @{ */
ZelStatus zelmAdd_tata_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmAdd_tata_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tata_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tata_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmAdd_tata_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmAdd_tata_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmAddVectors Add on vectors
 *
 * The sum of two vectors, or of arrays of these. A vector with an array is vav with the sources exchanged.
 *
 * Arguments. Vectors have len elements. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift, tested in this order as far as the form has them. vav tests the count later: last, in
 * the pointer layout before the shifts.
 *
 * In place. dst may be a source of vv, the va source of vav and either source of vava, with the same strides (and the
 * same list and shift). It must not overlap the single source of vav.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. vv runs on the calling thread. An array form is spread over threads when len*(2*count + 1) (vav) or
 * 3*len*count (vava), as a 32-bit integer that wraps, is above a limit. The limit is 4800 for 32f and 1400 for 64f in
 * the standard layout, 2500 in the list layout, 1500 in the pointer layout.
 *
 * Example:
 *
 * @code
 * Zel32f points[100][3] = {{1, 2, 3}}, offset[3] = {10, 20, 30};
 * // points[k] = points[k] + offset
 * ZelStatus status = zelmAdd_vav_32f(&points[0][0], 12, 4, offset, 4, &points[0][0], 12, 4, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name Add vv: dst(j) = src1(j) + src2(j)
 * @{ */
ZelStatus zelmAdd_vv_32f(const Zel32f* src1, int32_t src1Stride2, const Zel32f* src2, int32_t src2Stride2, Zel32f* dst,
                         int32_t dstStride2, int32_t len);
ZelStatus zelmAdd_vv_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                           Zel32f* const* dst, int32_t dstShift, int32_t len);
ZelStatus zelmAdd_vv_64f(const Zel64f* src1, int32_t src1Stride2, const Zel64f* src2, int32_t src2Stride2, Zel64f* dst,
                         int32_t dstStride2, int32_t len);
ZelStatus zelmAdd_vv_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                           Zel64f* const* dst, int32_t dstShift, int32_t len);
/** @} */

/** @name Add vav: dst[k](j) = src1[k](j) + src2(j)
 * @{ */
ZelStatus zelmAdd_vav_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel32f* src2,
                          int32_t src2Stride2, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                          int32_t count);
ZelStatus zelmAdd_vav_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2, const Zel32f* src2,
                            int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                            int32_t count);
ZelStatus zelmAdd_vav_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmAdd_vav_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel64f* src2,
                          int32_t src2Stride2, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                          int32_t count);
ZelStatus zelmAdd_vav_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2, const Zel64f* src2,
                            int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                            int32_t count);
ZelStatus zelmAdd_vav_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Add vava: dst[k](j) = src1[k](j) + src2[k](j)
 * @{ */
ZelStatus zelmAdd_vava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel32f* src2,
                           int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                           int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmAdd_vava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel64f* src2,
                           int32_t src2Stride0, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                           int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmAddConstants Add of vectors and constants
 *
 * A vector, or an array of vectors, with a constant added to each of its elements, or an array of constants.
 *
 * Arguments. Vectors have len elements. Strides and shifts are in bytes. val is the value itself, or an array of
 * constants with its stride or, in the list layout, shift; in the pointer layout an array of constants is a plain run
 * with valStride0.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift, tested in this order as far as the form has them. Two members leave tests out:
 * zelmAdd_vca_64f_P those of srcShift and dstShift, zelmAdd_vaca_32f_P that of srcStride0; with such a value the call
 * runs on what it got.
 *
 * In place. dst may be the v source of vc and the va source of vac and vaca, with the same strides (and the same list
 * and shift), but not the single vector of vca.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. vc runs on the calling thread. An array form is spread over threads when its work, as a 32-bit integer that
 * wraps, is above a limit; the work is len*(2*count + 1) for vac, len*count + len + count for vca, count*(2*len + 1)
 * for vaca. The limit is 4800 for 32f and 1400 for 64f in the standard layout, 2500 in the list layout, 1500 in the
 * pointer layout.
 *
 * Example:
 *
 * @code
 * Zel64f points[100][3] = {{1, 2, 3}}, levels[100] = {0.5};
 * // points[k] = points[k] + levels[k]
 * ZelStatus status = zelmAdd_vaca_64f(&points[0][0], 24, 8, levels, 8, &points[0][0], 24, 8, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name Add vc: dst(j) = src(j) + val
 * @{ */
ZelStatus zelmAdd_vc_32f(const Zel32f* src, int32_t srcStride2, Zel32f val, Zel32f* dst, int32_t dstStride2,
                         int32_t len);
ZelStatus zelmAdd_vc_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f val, Zel32f* const* dst, int32_t dstShift,
                           int32_t len);
ZelStatus zelmAdd_vc_64f(const Zel64f* src, int32_t srcStride2, Zel64f val, Zel64f* dst, int32_t dstStride2,
                         int32_t len);
ZelStatus zelmAdd_vc_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f val, Zel64f* const* dst, int32_t dstShift,
                           int32_t len);
/** @} */

/** @name Add vac: dst[k](j) = src[k](j) + val
 * @{ */
ZelStatus zelmAdd_vac_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, Zel32f val, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vac_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vac_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmAdd_vac_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, Zel64f val, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vac_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vac_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Add vca: dst[k](j) = src(j) + val[k]
 * @{ */
ZelStatus zelmAdd_vca_32f(const Zel32f* src, int32_t srcStride2, const Zel32f* val, int32_t valStride0, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vca_32f_L(const Zel32f* src, int32_t srcStride2, const Zel32f* const* val, int32_t valShift,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vca_32f_P(const Zel32f* const* src, int32_t srcShift, const Zel32f* val, int32_t valStride0,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmAdd_vca_64f(const Zel64f* src, int32_t srcStride2, const Zel64f* val, int32_t valStride0, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vca_64f_L(const Zel64f* src, int32_t srcStride2, const Zel64f* const* val, int32_t valShift,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmAdd_vca_64f_P(const Zel64f* const* src, int32_t srcShift, const Zel64f* val, int32_t valStride0,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Add vaca: dst[k](j) = src[k](j) + val[k]
 * @{ */
ZelStatus zelmAdd_vaca_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, const Zel32f* val,
                           int32_t valStride0, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                           int32_t count);
ZelStatus zelmAdd_vaca_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, const Zel32f* const* val,
                             int32_t valShift, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                             int32_t count);
ZelStatus zelmAdd_vaca_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, const Zel32f* val,
                             int32_t valStride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                             int32_t count);
ZelStatus zelmAdd_vaca_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, const Zel64f* val,
                           int32_t valStride0, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                           int32_t count);
ZelStatus zelmAdd_vaca_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, const Zel64f* const* val,
                             int32_t valShift, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                             int32_t count);
ZelStatus zelmAdd_vaca_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, const Zel64f* val,
                             int32_t valStride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                             int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmSubMatrices Sub on matrices
 *
 * The difference of two matrices, either of which may be read transposed, or of arrays of these.
 *
 * Arguments. width and height are those of the result: dst and an m source have height rows of width elements, a t
 * source is stored as width rows of height elements. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or height below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift. They are tested in this order, as far as the form has them, with one
 * exception: mam and mma in the standard layout test pointers, count, strides, and the sizes last.
 *
 * In place. dst may be an m source of a single form or an ma source of an array form, with the same strides (and the
 * same list and shift). It must not overlap a t source, nor the single source of an array form.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. The single forms run on the calling thread. An array form is spread over threads when width*height*(2*count
 * + 1) (one array) or 3*width*height*count (two), as a 32-bit integer that wraps, is at least 2000; in the standard
 * layout of 32f with every Stride2 equal to 4, when it is at least 3000.
 *
 * Example:
 *
 * @code
 * Zel64f mean[2][2] = {{1, 2}, {3, 4}}, batch[100][2][2] = {{{5, 6}, {7, 8}}};
 * // batch[k] = mean - batch[k] for 100 matrices of 2 by 2
 * ZelStatus status = zelmSub_mma_64f(&mean[0][0], 16, 8, &batch[0][0][0], 32, 16, 8,
 *                                    &batch[0][0][0], 32, 16, 8, 2, 2, 100);
 * @endcode
 *
 * @{
 */

/** @name Sub mm: dst(i,j) = src1(i,j) - src2(i,j)
 * @{ */
ZelStatus zelmSub_mm_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmSub_mm_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                           Zel32f* const* dst, int32_t dstShift, int32_t width, int32_t height);
ZelStatus zelmSub_mm_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmSub_mm_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                           Zel64f* const* dst, int32_t dstShift, int32_t width, int32_t height);
/** @} */

/** @name Sub mt: dst(i,j) = src1(i,j) - src2(j,i)
 * @{ */
ZelStatus zelmSub_mt_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmSub_mt_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                           Zel32f* const* dst, int32_t dstShift, int32_t width, int32_t height);
ZelStatus zelmSub_mt_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmSub_mt_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                           Zel64f* const* dst, int32_t dstShift, int32_t width, int32_t height);
/** @} */

/** @name Sub tm: dst(i,j) = src1(j,i) - src2(i,j)
 * @{ */
ZelStatus zelmSub_tm_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmSub_tm_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                           Zel32f* const* dst, int32_t dstShift, int32_t width, int32_t height);
ZelStatus zelmSub_tm_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmSub_tm_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                           Zel64f* const* dst, int32_t dstShift, int32_t width, int32_t height);
/** @} */

/** @name Sub tt: dst(i,j) = src1(j,i) - src2(j,i)
 * @{ */
ZelStatus zelmSub_tt_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmSub_tt_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                           Zel32f* const* dst, int32_t dstShift, int32_t width, int32_t height);
ZelStatus zelmSub_tt_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                         int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride1, int32_t dstStride2,
                         int32_t width, int32_t height);
ZelStatus zelmSub_tt_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                           Zel64f* const* dst, int32_t dstShift, int32_t width, int32_t height);
/** @} */

/** @name Sub mam: dst[k](i,j) = src1[k](i,j) - src2(i,j)
 * @{ */
ZelStatus zelmSub_mam_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mam_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_mam_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mam_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mam_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_mam_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub mat: dst[k](i,j) = src1[k](i,j) - src2(j,i)
 * @{ */
ZelStatus zelmSub_mat_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mat_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_mat_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mat_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mat_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_mat_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub tam: dst[k](i,j) = src1[k](j,i) - src2(i,j)
 * @{ */
ZelStatus zelmSub_tam_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tam_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_tam_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tam_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tam_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_tam_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub tat: dst[k](i,j) = src1[k](j,i) - src2(j,i)
 * @{ */
ZelStatus zelmSub_tat_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tat_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_tat_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tat_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tat_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_tat_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub mma: dst[k](i,j) = src1(i,j) - src2[k](i,j)
 * @{ */
ZelStatus zelmSub_mma_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                          int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                          int32_t count);
ZelStatus zelmSub_mma_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* const* src2,
                            int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_mma_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mma_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                          int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                          int32_t count);
ZelStatus zelmSub_mma_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* const* src2,
                            int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_mma_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub mta: dst[k](i,j) = src1(i,j) - src2[k](j,i)
 * @{ */
ZelStatus zelmSub_mta_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                          int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                          int32_t count);
ZelStatus zelmSub_mta_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* const* src2,
                            int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_mta_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mta_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                          int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                          int32_t count);
ZelStatus zelmSub_mta_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* const* src2,
                            int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_mta_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub tma: dst[k](i,j) = src1(j,i) - src2[k](i,j)
 * @{ */
ZelStatus zelmSub_tma_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                          int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                          int32_t count);
ZelStatus zelmSub_tma_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* const* src2,
                            int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_tma_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tma_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                          int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                          int32_t count);
ZelStatus zelmSub_tma_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* const* src2,
                            int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_tma_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub tta: dst[k](i,j) = src1(j,i) - src2[k](j,i)
 * @{ */
ZelStatus zelmSub_tta_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                          int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                          int32_t count);
ZelStatus zelmSub_tta_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* const* src2,
                            int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_tta_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tta_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                          int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                          int32_t count);
ZelStatus zelmSub_tta_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* const* src2,
                            int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmSub_tta_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub mama: dst[k](i,j) = src1[k](i,j) - src2[k](i,j)
 * @{ */
ZelStatus zelmSub_mama_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmSub_mama_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mama_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mama_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmSub_mama_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mama_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub mata: dst[k](i,j) = src1[k](i,j) - src2[k](j,i)
 * @{ */
ZelStatus zelmSub_mata_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmSub_mata_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mata_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mata_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmSub_mata_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_mata_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub tama: dst[k](i,j) = src1[k](j,i) - src2[k](i,j)
 * @{ */
ZelStatus zelmSub_tama_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmSub_tama_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tama_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tama_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmSub_tama_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tama_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Sub tata: dst[k](i,j) = src1[k](j,i) - src2[k](j,i)
 * @{ */
ZelStatus zelmSub_tata_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmSub_tata_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tata_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tata_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                           Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                           int32_t height, int32_t count);
ZelStatus zelmSub_tata_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmSub_tata_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmSubVectors Sub on vectors
 *
 * The difference of two vectors, or of arrays of these.
 *
 * Arguments. Vectors have len elements. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift, tested in this order as far as the form has them. vav tests the count later: last, in
 * the pointer layout before the shifts.
 *
 * In place. dst may be a source of vv and a va source of an array form, with the same strides (and the same list and
 * shift). It must not overlap the single source of an array form.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. vv runs on the calling thread, and so does zelmSub_vva_64f_P. Another array form is spread over threads when
 * len*(2*count + 1) (vav, vva) or 3*len*count (vava), as a 32-bit integer that wraps, is above a limit. The limit is
 * 4800 for 32f and 1400 for 64f in the standard layout, 2500 in the list layout, 1500 in the pointer layout.
 *
 * Example:
 *
 * @code
 * Zel32f points[100][3] = {{1, 2, 3}}, origin[3] = {10, 20, 30};
 * // points[k] = points[k] - origin
 * ZelStatus status = zelmSub_vav_32f(&points[0][0], 12, 4, origin, 4, &points[0][0], 12, 4, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name Sub vv: dst(j) = src1(j) - src2(j)
 * @{ */
ZelStatus zelmSub_vv_32f(const Zel32f* src1, int32_t src1Stride2, const Zel32f* src2, int32_t src2Stride2, Zel32f* dst,
                         int32_t dstStride2, int32_t len);
ZelStatus zelmSub_vv_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                           Zel32f* const* dst, int32_t dstShift, int32_t len);
ZelStatus zelmSub_vv_64f(const Zel64f* src1, int32_t src1Stride2, const Zel64f* src2, int32_t src2Stride2, Zel64f* dst,
                         int32_t dstStride2, int32_t len);
ZelStatus zelmSub_vv_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                           Zel64f* const* dst, int32_t dstShift, int32_t len);
/** @} */

/** @name Sub vav: dst[k](j) = src1[k](j) - src2(j)
 * @{ */
ZelStatus zelmSub_vav_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel32f* src2,
                          int32_t src2Stride2, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                          int32_t count);
ZelStatus zelmSub_vav_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2, const Zel32f* src2,
                            int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                            int32_t count);
ZelStatus zelmSub_vav_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmSub_vav_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel64f* src2,
                          int32_t src2Stride2, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                          int32_t count);
ZelStatus zelmSub_vav_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2, const Zel64f* src2,
                            int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                            int32_t count);
ZelStatus zelmSub_vav_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                            const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                            int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Sub vva: dst[k](j) = src1(j) - src2[k](j)
 * @{ */
ZelStatus zelmSub_vva_32f(const Zel32f* src1, int32_t src1Stride2, const Zel32f* src2, int32_t src2Stride0,
                          int32_t src2Stride2, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                          int32_t count);
ZelStatus zelmSub_vva_32f_L(const Zel32f* src1, int32_t src1Stride2, const Zel32f* const* src2, int32_t src2Shift,
                            int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                            int32_t count);
ZelStatus zelmSub_vva_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                            int32_t count);
ZelStatus zelmSub_vva_64f(const Zel64f* src1, int32_t src1Stride2, const Zel64f* src2, int32_t src2Stride0,
                          int32_t src2Stride2, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                          int32_t count);
ZelStatus zelmSub_vva_64f_L(const Zel64f* src1, int32_t src1Stride2, const Zel64f* const* src2, int32_t src2Shift,
                            int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                            int32_t count);
ZelStatus zelmSub_vva_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2, int32_t src2Shift,
                            int32_t src2Stride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                            int32_t count);
/** @} */

/** @name Sub vava: dst[k](j) = src1[k](j) - src2[k](j)
 * @{ */
ZelStatus zelmSub_vava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel32f* src2,
                           int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                           int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmSub_vava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel64f* src2,
                           int32_t src2Stride0, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                           int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmSubConstants Sub of vectors and constants
 *
 * A constant taken from each element of a vector, or each element from a constant, single or in arrays. The forms whose
 * name begins with c take the same arguments as those that begin with v, the vector first: zelmSub_vca_32f and
 * zelmSub_cav_32f differ in the order of the subtraction alone.
 *
 * Arguments. Vectors have len elements. Strides and shifts are in bytes. val is the value itself, or an array of
 * constants with its stride or, in the list layout, shift; in the pointer layout an array of constants is a plain run
 * with valStride0.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift, tested in this order as far as the form has them. One member leaves tests out:
 * zelmSub_cav_32f_P those of srcShift and dstShift; with such a value the call runs on what it got.
 *
 * In place. dst may be the v source of vc and cv and the va source of an array form, with the same strides (and the
 * same list and shift), but not the single vector of vca and cav.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. vc and cv run on the calling thread. An array form is spread over threads when its work, as a 32-bit integer
 * that wraps, is above a limit; the work is len*(2*count + 1) for vac, len*count + len + count for vca and cav,
 * count*(2*len + 1) for vaca and cava, 2*count + 1 for cva, whatever its len. The limit is 4800 for 32f and 1400 for
 * 64f in the standard layout, 2500 in the list layout, 1500 in the pointer layout.
 *
 * Example:
 *
 * @code
 * Zel32f src[4] = {1, 2, 3, 4}, dst[4];
 * // dst = 10 - src
 * ZelStatus status = zelmSub_cv_32f(src, 4, 10, dst, 4, 4);
 * @endcode
 *
 * @{
 */

/** @name Sub vc: dst(j) = src(j) - val
 * @{ */
ZelStatus zelmSub_vc_32f(const Zel32f* src, int32_t srcStride2, Zel32f val, Zel32f* dst, int32_t dstStride2,
                         int32_t len);
ZelStatus zelmSub_vc_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f val, Zel32f* const* dst, int32_t dstShift,
                           int32_t len);
ZelStatus zelmSub_vc_64f(const Zel64f* src, int32_t srcStride2, Zel64f val, Zel64f* dst, int32_t dstStride2,
                         int32_t len);
ZelStatus zelmSub_vc_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f val, Zel64f* const* dst, int32_t dstShift,
                           int32_t len);
/** @} */

/** @name Sub cv: dst(j) = val - src(j)
 * @{ */
ZelStatus zelmSub_cv_32f(const Zel32f* src, int32_t srcStride2, Zel32f val, Zel32f* dst, int32_t dstStride2,
                         int32_t len);
ZelStatus zelmSub_cv_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f val, Zel32f* const* dst, int32_t dstShift,
                           int32_t len);
ZelStatus zelmSub_cv_64f(const Zel64f* src, int32_t srcStride2, Zel64f val, Zel64f* dst, int32_t dstStride2,
                         int32_t len);
ZelStatus zelmSub_cv_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f val, Zel64f* const* dst, int32_t dstShift,
                           int32_t len);
/** @} */

/** @name Sub vac: dst[k](j) = src[k](j) - val
 * @{ */
ZelStatus zelmSub_vac_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, Zel32f val, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vac_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vac_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmSub_vac_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, Zel64f val, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vac_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vac_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Sub vca: dst[k](j) = src(j) - val[k]
 * @{ */
ZelStatus zelmSub_vca_32f(const Zel32f* src, int32_t srcStride2, const Zel32f* val, int32_t valStride0, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vca_32f_L(const Zel32f* src, int32_t srcStride2, const Zel32f* const* val, int32_t valShift,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vca_32f_P(const Zel32f* const* src, int32_t srcShift, const Zel32f* val, int32_t valStride0,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmSub_vca_64f(const Zel64f* src, int32_t srcStride2, const Zel64f* val, int32_t valStride0, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vca_64f_L(const Zel64f* src, int32_t srcStride2, const Zel64f* const* val, int32_t valShift,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_vca_64f_P(const Zel64f* const* src, int32_t srcShift, const Zel64f* val, int32_t valStride0,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Sub vaca: dst[k](j) = src[k](j) - val[k]
 * @{ */
ZelStatus zelmSub_vaca_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, const Zel32f* val,
                           int32_t valStride0, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                           int32_t count);
ZelStatus zelmSub_vaca_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, const Zel32f* const* val,
                             int32_t valShift, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                             int32_t count);
ZelStatus zelmSub_vaca_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, const Zel32f* val,
                             int32_t valStride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                             int32_t count);
ZelStatus zelmSub_vaca_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, const Zel64f* val,
                           int32_t valStride0, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                           int32_t count);
ZelStatus zelmSub_vaca_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, const Zel64f* const* val,
                             int32_t valShift, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                             int32_t count);
ZelStatus zelmSub_vaca_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, const Zel64f* val,
                             int32_t valStride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                             int32_t count);
/** @} */

/** @name Sub cva: dst[k](j) = val - src[k](j)
 * @{ */
ZelStatus zelmSub_cva_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, Zel32f val, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_cva_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_cva_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmSub_cva_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, Zel64f val, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_cva_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_cva_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Sub cav: dst[k](j) = val[k] - src(j)
 * @{ */
ZelStatus zelmSub_cav_32f(const Zel32f* src, int32_t srcStride2, const Zel32f* val, int32_t valStride0, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_cav_32f_L(const Zel32f* src, int32_t srcStride2, const Zel32f* const* val, int32_t valShift,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_cav_32f_P(const Zel32f* const* src, int32_t srcShift, const Zel32f* val, int32_t valStride0,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmSub_cav_64f(const Zel64f* src, int32_t srcStride2, const Zel64f* val, int32_t valStride0, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_cav_64f_L(const Zel64f* src, int32_t srcStride2, const Zel64f* const* val, int32_t valShift,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSub_cav_64f_P(const Zel64f* const* src, int32_t srcShift, const Zel64f* val, int32_t valStride0,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Sub cava: dst[k](j) = val[k] - src[k](j)
 * @{ */
ZelStatus zelmSub_cava_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, const Zel32f* val,
                           int32_t valStride0, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                           int32_t count);
ZelStatus zelmSub_cava_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, const Zel32f* const* val,
                             int32_t valShift, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                             int32_t count);
ZelStatus zelmSub_cava_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, const Zel32f* val,
                             int32_t valStride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                             int32_t count);
ZelStatus zelmSub_cava_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, const Zel64f* val,
                           int32_t valStride0, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                           int32_t count);
ZelStatus zelmSub_cava_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, const Zel64f* const* val,
                             int32_t valShift, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                             int32_t count);
ZelStatus zelmSub_cava_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, const Zel64f* val,
                             int32_t valStride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                             int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmMulConstants Mul by a constant
 *
 * A matrix or a vector, or an array of these, times a constant or an array of constants.
 *
 * Arguments. width and height, or len, are those of the result: a t source is stored as width rows of height elements.
 * val is the value itself, or in vca and vaca an array of constants with its stride or, in the list layout, shift; in
 * the pointer layout val is a plain run with valStride0. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a size below 1 zelStatusBadSize,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. dst may be an m, ma, v or va source with the same strides, but not the single vector of vca, nor a t
 * source.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. The single forms run on the calling thread. An array form is spread over threads when its work is above a
 * limit; the work, as a 32-bit integer that wraps, is 2*width*height*count for mac and tac, 2*len*count for vac,
 * len*count + len + count for vca, count*(2*len + 1) for vaca. The limits, unit meaning that every Stride2 of src and
 * dst is the element size:
 *
 * @code
 *             standard, unit    any    list, unit    any    pointer
 * mac tac 32f           3500   3500          3500   1500       1700
 * mac tac 64f           3500   3500          3500   3500       1700
 * vac     32f           2500   1440          3600   1440       1440
 * vac     64f           3600   1440          3600   1440       1440
 * vca vaca              2100   2100          1200   1200        650
 * @endcode
 *
 * Example:
 *
 * @code
 * Zel32f points[100][3] = {{1, 2, 3}}, weights[100] = {0.5f};
 * // points[k] = points[k] * weights[k]
 * ZelStatus status = zelmMul_vaca_32f(&points[0][0], 12, 4, weights, 4, &points[0][0], 12, 4, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name Mul mc: dst(i,j) = src(i,j) * val
 * @{ */
ZelStatus zelmMul_mc_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f val, Zel32f* dst,
                         int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
ZelStatus zelmMul_mc_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f val, Zel32f* const* dst, int32_t dstShift,
                           int32_t width, int32_t height);
ZelStatus zelmMul_mc_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f val, Zel64f* dst,
                         int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
ZelStatus zelmMul_mc_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f val, Zel64f* const* dst, int32_t dstShift,
                           int32_t width, int32_t height);
/** @} */

/** @name Mul tc: dst(i,j) = src(j,i) * val
 * @{ */
ZelStatus zelmMul_tc_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f val, Zel32f* dst,
                         int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
ZelStatus zelmMul_tc_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f val, Zel32f* const* dst, int32_t dstShift,
                           int32_t width, int32_t height);
ZelStatus zelmMul_tc_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f val, Zel64f* dst,
                         int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
ZelStatus zelmMul_tc_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f val, Zel64f* const* dst, int32_t dstShift,
                           int32_t width, int32_t height);
/** @} */

/** @name Mul vc: dst(j) = src(j) * val
 * @{ */
ZelStatus zelmMul_vc_32f(const Zel32f* src, int32_t srcStride2, Zel32f val, Zel32f* dst, int32_t dstStride2,
                         int32_t len);
ZelStatus zelmMul_vc_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f val, Zel32f* const* dst, int32_t dstShift,
                           int32_t len);
ZelStatus zelmMul_vc_64f(const Zel64f* src, int32_t srcStride2, Zel64f val, Zel64f* dst, int32_t dstStride2,
                         int32_t len);
ZelStatus zelmMul_vc_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f val, Zel64f* const* dst, int32_t dstShift,
                           int32_t len);
/** @} */

/** @name Mul mac: dst[k](i,j) = src[k](i,j) * val
 * @{ */
ZelStatus zelmMul_mac_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel32f val,
                          Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                          int32_t height, int32_t count);
ZelStatus zelmMul_mac_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                            Zel32f val, Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                            int32_t width, int32_t height, int32_t count);
ZelStatus zelmMul_mac_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmMul_mac_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel64f val,
                          Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                          int32_t height, int32_t count);
ZelStatus zelmMul_mac_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                            Zel64f val, Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                            int32_t width, int32_t height, int32_t count);
ZelStatus zelmMul_mac_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                            int32_t count);
/** @} */

/** @name Mul tac: dst[k](i,j) = src[k](j,i) * val
 * @{ */
ZelStatus zelmMul_tac_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel32f val,
                          Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                          int32_t height, int32_t count);
ZelStatus zelmMul_tac_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                            Zel32f val, Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                            int32_t width, int32_t height, int32_t count);
ZelStatus zelmMul_tac_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                            int32_t count);
ZelStatus zelmMul_tac_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel64f val,
                          Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                          int32_t height, int32_t count);
ZelStatus zelmMul_tac_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                            Zel64f val, Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                            int32_t width, int32_t height, int32_t count);
ZelStatus zelmMul_tac_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                            int32_t count);
/** @} */

/** @name Mul vac: dst[k](j) = src[k](j) * val
 * @{ */
ZelStatus zelmMul_vac_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, Zel32f val, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmMul_vac_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmMul_vac_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f val,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmMul_vac_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, Zel64f val, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmMul_vac_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmMul_vac_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f val,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Mul vca: dst[k](j) = src(j) * val[k]
 * @{ */
ZelStatus zelmMul_vca_32f(const Zel32f* src, int32_t srcStride2, const Zel32f* val, int32_t valStride0, Zel32f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmMul_vca_32f_L(const Zel32f* src, int32_t srcStride2, const Zel32f* const* val, int32_t valShift,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmMul_vca_32f_P(const Zel32f* const* src, int32_t srcShift, const Zel32f* val, int32_t valStride0,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmMul_vca_64f(const Zel64f* src, int32_t srcStride2, const Zel64f* val, int32_t valStride0, Zel64f* dst,
                          int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmMul_vca_64f_L(const Zel64f* src, int32_t srcStride2, const Zel64f* const* val, int32_t valShift,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmMul_vca_64f_P(const Zel64f* const* src, int32_t srcShift, const Zel64f* val, int32_t valStride0,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Mul vaca: dst[k](j) = src[k](j) * val[k]
 * @{ */
ZelStatus zelmMul_vaca_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, const Zel32f* val,
                           int32_t valStride0, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                           int32_t count);
ZelStatus zelmMul_vaca_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, const Zel32f* const* val,
                             int32_t valShift, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                             int32_t count);
ZelStatus zelmMul_vaca_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, const Zel32f* val,
                             int32_t valStride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                             int32_t count);
ZelStatus zelmMul_vaca_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, const Zel64f* val,
                           int32_t valStride0, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t len,
                           int32_t count);
ZelStatus zelmMul_vaca_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, const Zel64f* const* val,
                             int32_t valShift, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len,
                             int32_t count);
ZelStatus zelmMul_vaca_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, const Zel64f* val,
                             int32_t valStride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len,
                             int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmMulMatrices Mul, matrix by matrix
 *
 * The product of two matrices, either of which may be read transposed, or of arrays of these.
 *
 * Arguments. src1Width, src1Height, src2Width, src2Height describe the sources as they are stored, t sources too. dst
 * has no sizes of its own. Strides and shifts are in bytes. With [k] left out:
 *
 * @code
 *       must be equal            rows of dst   columns of dst
 * mm    src1Width, src2Height    src1Height    src2Width
 * mt    src1Width, src2Width     src1Height    src2Height
 * tm    src1Height, src2Height   src1Width     src2Width
 * tt    src1Height, src2Width    src1Width     src2Height
 * @endcode
 *
 * In the pointer layout the list of a source runs through its stored rows, and that of dst through the rows of the
 * result.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a size below 1 zelStatusBadSize,
 * sizes that do not agree zelStatusSizeMismatch, a stride below 1 or not a multiple of the element size
 * zelStatusBadStride, a shift below 0 or not a multiple of the element size zelStatusBadShift, tested in this order as
 * far as the form has them.
 *
 * In place. Not supported: dst must not overlap a source.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. The single forms run on the calling thread. An array form is spread over threads when the number of elements
 * that it touches (those of a single source counted once, all others count times; a 32-bit integer that wraps) is above
 * 1440; where every Stride2 is the element size, above 3600, or 2500 in the standard layout of 32f.
 *
 * Notes. Each element of the result is one sum of rounded products in ascending order of the inner index, in the
 * element type, not fused. Where a function has code of its own for a size (3 to 6, but not all of them in every
 * function and layout), sums start from the first product, otherwise from +0.0, which shows only where every product is
 * -0.0.
 *
 * Two combinations read and write beyond the sizes that they were given. zelmMul_mm_32f_P and zelmMul_tt_64f_P, when
 * all four sizes are at most 3 and either one of them is 3 or both 1 and 2 are among them, work as if all were 3: the
 * lists need nine entries each. zelmMul_mat_32f with every Stride2 equal to 4, src1 4 by 4 and src2Height 3 reads a
 * fourth row of src2 and writes a fourth column of dst.
 *
 * Example:
 *
 * @code
 * Zel64f turns[100][3][3] = {{{1}}}, frame[3][3] = {{1, 0, 0}, {0, 0, -1}, {0, 1, 0}}, result[100][3][3];
 * // result[k] = turns[k] * transpose(frame)
 * ZelStatus status = zelmMul_mat_64f(&turns[0][0][0], 72, 24, 8, 3, 3, &frame[0][0], 24, 8, 3, 3,
 *                                    &result[0][0][0], 72, 24, 8, 100);
 * @endcode
 *
 * @{
 */

/** @name Mul mm: dst = src1 * src2
 * @{ */
ZelStatus zelmMul_mm_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2,
                         int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmMul_mm_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel32f* const* src2, int32_t src2Shift, int32_t src2Width, int32_t src2Height,
                           Zel32f* const* dst, int32_t dstShift);
ZelStatus zelmMul_mm_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2,
                         int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmMul_mm_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel64f* const* src2, int32_t src2Shift, int32_t src2Width, int32_t src2Height,
                           Zel64f* const* dst, int32_t dstShift);
/** @} */

/** @name Mul mt: dst = src1 * transpose(src2)
 * @{ */
ZelStatus zelmMul_mt_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2,
                         int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmMul_mt_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel32f* const* src2, int32_t src2Shift, int32_t src2Width, int32_t src2Height,
                           Zel32f* const* dst, int32_t dstShift);
ZelStatus zelmMul_mt_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2,
                         int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmMul_mt_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel64f* const* src2, int32_t src2Shift, int32_t src2Width, int32_t src2Height,
                           Zel64f* const* dst, int32_t dstShift);
/** @} */

/** @name Mul tm: dst = transpose(src1) * src2
 * @{ */
ZelStatus zelmMul_tm_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2,
                         int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmMul_tm_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel32f* const* src2, int32_t src2Shift, int32_t src2Width, int32_t src2Height,
                           Zel32f* const* dst, int32_t dstShift);
ZelStatus zelmMul_tm_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2,
                         int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmMul_tm_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel64f* const* src2, int32_t src2Shift, int32_t src2Width, int32_t src2Height,
                           Zel64f* const* dst, int32_t dstShift);
/** @} */

/** @name Mul tt: dst = transpose(src1) * transpose(src2)
 * @{ */
ZelStatus zelmMul_tt_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel32f* src2, int32_t src2Stride1, int32_t src2Stride2,
                         int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmMul_tt_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel32f* const* src2, int32_t src2Shift, int32_t src2Width, int32_t src2Height,
                           Zel32f* const* dst, int32_t dstShift);
ZelStatus zelmMul_tt_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel64f* src2, int32_t src2Stride1, int32_t src2Stride2,
                         int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmMul_tt_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel64f* const* src2, int32_t src2Shift, int32_t src2Width, int32_t src2Height,
                           Zel64f* const* dst, int32_t dstShift);
/** @} */

/** @name Mul mam: dst[k] = src1[k] * src2
 * @{ */
ZelStatus zelmMul_mam_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mam_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mam_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Width,
                            int32_t src2Height, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
ZelStatus zelmMul_mam_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mam_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mam_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Width,
                            int32_t src2Height, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
/** @} */

/** @name Mul mat: dst[k] = src1[k] * transpose(src2)
 * @{ */
ZelStatus zelmMul_mat_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mat_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mat_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Width,
                            int32_t src2Height, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
ZelStatus zelmMul_mat_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mat_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mat_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Width,
                            int32_t src2Height, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
/** @} */

/** @name Mul tam: dst[k] = transpose(src1[k]) * src2
 * @{ */
ZelStatus zelmMul_tam_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tam_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tam_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Width,
                            int32_t src2Height, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
ZelStatus zelmMul_tam_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tam_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tam_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Width,
                            int32_t src2Height, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
/** @} */

/** @name Mul tat: dst[k] = transpose(src1[k]) * transpose(src2)
 * @{ */
ZelStatus zelmMul_tat_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tat_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tat_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Width,
                            int32_t src2Height, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
ZelStatus zelmMul_tat_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tat_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tat_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Width,
                            int32_t src2Height, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
/** @} */

/** @name Mul mma: dst[k] = src1 * src2[k]
 * @{ */
ZelStatus zelmMul_mma_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mma_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mma_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Width,
                            int32_t src2Height, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
ZelStatus zelmMul_mma_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mma_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mma_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Width,
                            int32_t src2Height, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
/** @} */

/** @name Mul mta: dst[k] = src1 * transpose(src2[k])
 * @{ */
ZelStatus zelmMul_mta_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mta_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mta_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Width,
                            int32_t src2Height, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
ZelStatus zelmMul_mta_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mta_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mta_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Width,
                            int32_t src2Height, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
/** @} */

/** @name Mul tma: dst[k] = transpose(src1) * src2[k]
 * @{ */
ZelStatus zelmMul_tma_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tma_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tma_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Width,
                            int32_t src2Height, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
ZelStatus zelmMul_tma_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tma_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tma_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Width,
                            int32_t src2Height, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
/** @} */

/** @name Mul tta: dst[k] = transpose(src1) * transpose(src2[k])
 * @{ */
ZelStatus zelmMul_tta_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tta_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tta_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Width,
                            int32_t src2Height, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
ZelStatus zelmMul_tta_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride1,
                          int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst, int32_t dstStride0,
                          int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tta_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride1,
                            int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* const* dst,
                            int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tta_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Width,
                            int32_t src2Height, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                            int32_t count);
/** @} */

/** @name Mul mama: dst[k] = src1[k] * src2[k]
 * @{ */
ZelStatus zelmMul_mama_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride0,
                           int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst,
                           int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mama_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift,
                             int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t count);
ZelStatus zelmMul_mama_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Width, int32_t src2Height, Zel32f* const* dst, int32_t dstShift,
                             int32_t dstStride0, int32_t count);
ZelStatus zelmMul_mama_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride0,
                           int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst,
                           int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mama_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift,
                             int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t count);
ZelStatus zelmMul_mama_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Width, int32_t src2Height, Zel64f* const* dst, int32_t dstShift,
                             int32_t dstStride0, int32_t count);
/** @} */

/** @name Mul mata: dst[k] = src1[k] * transpose(src2[k])
 * @{ */
ZelStatus zelmMul_mata_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride0,
                           int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst,
                           int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mata_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift,
                             int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t count);
ZelStatus zelmMul_mata_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Width, int32_t src2Height, Zel32f* const* dst, int32_t dstShift,
                             int32_t dstStride0, int32_t count);
ZelStatus zelmMul_mata_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride0,
                           int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst,
                           int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mata_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift,
                             int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t count);
ZelStatus zelmMul_mata_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Width, int32_t src2Height, Zel64f* const* dst, int32_t dstShift,
                             int32_t dstStride0, int32_t count);
/** @} */

/** @name Mul tama: dst[k] = transpose(src1[k]) * src2[k]
 * @{ */
ZelStatus zelmMul_tama_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride0,
                           int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst,
                           int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tama_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift,
                             int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t count);
ZelStatus zelmMul_tama_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Width, int32_t src2Height, Zel32f* const* dst, int32_t dstShift,
                             int32_t dstStride0, int32_t count);
ZelStatus zelmMul_tama_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride0,
                           int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst,
                           int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tama_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift,
                             int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t count);
ZelStatus zelmMul_tama_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Width, int32_t src2Height, Zel64f* const* dst, int32_t dstShift,
                             int32_t dstStride0, int32_t count);
/** @} */

/** @name Mul tata: dst[k] = transpose(src1[k]) * transpose(src2[k])
 * @{ */
ZelStatus zelmMul_tata_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride0,
                           int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel32f* dst,
                           int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tata_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift,
                             int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t count);
ZelStatus zelmMul_tata_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Width, int32_t src2Height, Zel32f* const* dst, int32_t dstShift,
                             int32_t dstStride0, int32_t count);
ZelStatus zelmMul_tata_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride0,
                           int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, Zel64f* dst,
                           int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tata_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift,
                             int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t count);
ZelStatus zelmMul_tata_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Width, int32_t src2Height, Zel64f* const* dst, int32_t dstShift,
                             int32_t dstStride0, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmMulVectors Mul, matrix by vector
 *
 * The product of a matrix, which may be read transposed, and a vector, or of arrays of these.
 *
 * Arguments. src1Width and src1Height describe the matrix as it is stored. In the m forms src1Width and src2Len must be
 * equal and dst has src1Height elements; in the t forms src1Height and src2Len must be equal and dst has src1Width
 * elements. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a size below 1 zelStatusBadSize,
 * sizes that do not agree zelStatusSizeMismatch, a stride below 1 or not a multiple of the element size
 * zelStatusBadStride, a shift below 0 or not a multiple of the element size zelStatusBadShift, tested in this order as
 * far as the form has them.
 *
 * In place. Not supported: dst must not overlap a source.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. The single forms run on the calling thread. An array form is spread over threads when the number of elements
 * that it touches (those of a single source counted once, all others count times; a 32-bit integer that wraps) is above
 * 1440; where every Stride2 is the element size, above 3600, or 2500 in the standard layout of 32f.
 *
 * Notes. Sums are in the element type, of rounded products, not fused. For square matrices of sides 4 to 6 the order of
 * the additions differs between forms, types and layouts, and between calls with and without unit strides; results may
 * then differ in the last bits. Squares of side 3 start from the first product as well; other sizes, and some functions
 * of the list layout at all sizes, start from +0.0, which shows only where every product is -0.0.
 *
 * Example:
 *
 * @code
 * Zel32f matrix[4][4] = {{1, 0, 0, 2}, {0, 1, 0, 3}, {0, 0, 1, 4}, {0, 0, 0, 1}}, points[100][4] = {{1, 2, 3, 1}};
 * Zel32f moved[100][4];
 * // moved[k] = matrix * points[k]
 * ZelStatus status = zelmMul_mva_32f(&matrix[0][0], 16, 4, 4, 4, &points[0][0], 16, 4, 4, &moved[0][0], 16, 4, 100);
 * @endcode
 *
 * @{
 */

/** @name Mul mv: dst = src1 * src2
 * @{ */
ZelStatus zelmMul_mv_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel32f* src2, int32_t src2Stride2, int32_t src2Len, Zel32f* dst,
                         int32_t dstStride2);
ZelStatus zelmMul_mv_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel32f* const* src2, int32_t src2Shift, int32_t src2Len, Zel32f* const* dst,
                           int32_t dstShift);
ZelStatus zelmMul_mv_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel64f* src2, int32_t src2Stride2, int32_t src2Len, Zel64f* dst,
                         int32_t dstStride2);
ZelStatus zelmMul_mv_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel64f* const* src2, int32_t src2Shift, int32_t src2Len, Zel64f* const* dst,
                           int32_t dstShift);
/** @} */

/** @name Mul tv: dst = transpose(src1) * src2
 * @{ */
ZelStatus zelmMul_tv_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel32f* src2, int32_t src2Stride2, int32_t src2Len, Zel32f* dst,
                         int32_t dstStride2);
ZelStatus zelmMul_tv_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel32f* const* src2, int32_t src2Shift, int32_t src2Len, Zel32f* const* dst,
                           int32_t dstShift);
ZelStatus zelmMul_tv_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                         int32_t src1Height, const Zel64f* src2, int32_t src2Stride2, int32_t src2Len, Zel64f* dst,
                         int32_t dstStride2);
ZelStatus zelmMul_tv_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                           const Zel64f* const* src2, int32_t src2Shift, int32_t src2Len, Zel64f* const* dst,
                           int32_t dstShift);
/** @} */

/** @name Mul mav: dst[k] = src1[k] * src2
 * @{ */
ZelStatus zelmMul_mav_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride2,
                          int32_t src2Len, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mav_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride2,
                            int32_t src2Len, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mav_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Len,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
ZelStatus zelmMul_mav_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride2,
                          int32_t src2Len, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mav_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride2,
                            int32_t src2Len, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mav_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Len,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
/** @} */

/** @name Mul tav: dst[k] = transpose(src1[k]) * src2
 * @{ */
ZelStatus zelmMul_tav_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride2,
                          int32_t src2Len, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tav_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride2,
                            int32_t src2Len, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tav_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Len,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
ZelStatus zelmMul_tav_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                          int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride2,
                          int32_t src2Len, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tav_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                            int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride2,
                            int32_t src2Len, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tav_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Len,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
/** @} */

/** @name Mul mva: dst[k] = src1 * src2[k]
 * @{ */
ZelStatus zelmMul_mva_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2,
                          int32_t src2Len, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mva_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                            int32_t src2Len, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mva_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Len,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
ZelStatus zelmMul_mva_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2,
                          int32_t src2Len, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mva_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                            int32_t src2Len, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mva_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Len,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
/** @} */

/** @name Mul tva: dst[k] = transpose(src1) * src2[k]
 * @{ */
ZelStatus zelmMul_tva_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2,
                          int32_t src2Len, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tva_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                            int32_t src2Len, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tva_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Len,
                            Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
ZelStatus zelmMul_tva_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                          int32_t src1Height, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2,
                          int32_t src2Len, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tva_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                            int32_t src2Len, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tva_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                            const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Len,
                            Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
/** @} */

/** @name Mul mava: dst[k] = src1[k] * src2[k]
 * @{ */
ZelStatus zelmMul_mava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride0,
                           int32_t src2Stride2, int32_t src2Len, Zel32f* dst, int32_t dstStride0, int32_t dstStride2,
                           int32_t count);
ZelStatus zelmMul_mava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift,
                             int32_t src2Stride2, int32_t src2Len, Zel32f* const* dst, int32_t dstShift,
                             int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Len, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
ZelStatus zelmMul_mava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride0,
                           int32_t src2Stride2, int32_t src2Len, Zel64f* dst, int32_t dstStride0, int32_t dstStride2,
                           int32_t count);
ZelStatus zelmMul_mava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift,
                             int32_t src2Stride2, int32_t src2Len, Zel64f* const* dst, int32_t dstShift,
                             int32_t dstStride2, int32_t count);
ZelStatus zelmMul_mava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Len, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
/** @} */

/** @name Mul tava: dst[k] = transpose(src1[k]) * src2[k]
 * @{ */
ZelStatus zelmMul_tava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel32f* src2, int32_t src2Stride0,
                           int32_t src2Stride2, int32_t src2Len, Zel32f* dst, int32_t dstStride0, int32_t dstStride2,
                           int32_t count);
ZelStatus zelmMul_tava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift,
                             int32_t src2Stride2, int32_t src2Len, Zel32f* const* dst, int32_t dstShift,
                             int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Len, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
ZelStatus zelmMul_tava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                           int32_t src1Width, int32_t src1Height, const Zel64f* src2, int32_t src2Stride0,
                           int32_t src2Stride2, int32_t src2Len, Zel64f* dst, int32_t dstStride0, int32_t dstStride2,
                           int32_t count);
ZelStatus zelmMul_tava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
                             int32_t src1Width, int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift,
                             int32_t src2Stride2, int32_t src2Len, Zel64f* const* dst, int32_t dstShift,
                             int32_t dstStride2, int32_t count);
ZelStatus zelmMul_tava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, int32_t src1Width,
                             int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                             int32_t src2Len, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmGaxpy Gaxpy, matrix by vector plus vector
 *
 * The product of a matrix and a vector, plus a vector, for one vector or arrays of vectors. The matrix is single.
 *
 * Arguments. src1Width and src2Len must be equal, and src1Height and src3Len; dst has src1Height elements. Strides and
 * shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a size below 1 zelStatusBadSize,
 * sizes that do not agree zelStatusSizeMismatch, a stride below 1 or not a multiple of the element size
 * zelStatusBadStride, a shift below 0 or not a multiple of the element size zelStatusBadShift, tested in this order as
 * far as the form has them.
 *
 * In place. Not supported: dst must not overlap a source.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. mv runs on the calling thread. An array form is spread over threads when its work is above a limit; the
 * work, as a 32-bit integer that wraps, is (2*src3Len + src2Len)*count for mva and (src2Len + src3Len)*count + src3Len
 * for mvav. The limits, unit meaning that every Stride2 is the element size:
 *
 * @code
 *       standard, unit    any    list, unit    any    pointer
 * 32f             7000   5000          7000    500       4500
 * 64f             5000   5000          6000   5000       7000
 * @endcode
 *
 * Method. The generalised saxpy of Golub and Van Loan, Matrix Computations (1983).
 *
 * Notes. Sums are in the element type, of rounded products, not fused; src3 is added last. For square matrices of sides
 * 4 to 6 the order of the additions differs between types, layouts and stride paths.
 *
 * Example:
 *
 * @code
 * Zel32f matrix[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}, points[100][3] = {{1, 2, 3}}, offset[3] = {1, 1, 1};
 * Zel32f moved[100][3];
 * // moved[k] = matrix * points[k] + offset
 * ZelStatus status = zelmGaxpy_mvav_32f(&matrix[0][0], 12, 4, 3, 3, &points[0][0], 12, 4, 3, offset, 4, 3,
 *                                       &moved[0][0], 12, 4, 100);
 * @endcode
 *
 * @{
 */

/** @name Gaxpy mv: dst = src1 * src2 + src3
 * @{ */
ZelStatus zelmGaxpy_mv_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                           int32_t src1Height, const Zel32f* src2, int32_t src2Stride2, int32_t src2Len,
                           const Zel32f* src3, int32_t src3Stride2, int32_t src3Len, Zel32f* dst, int32_t dstStride2);
ZelStatus zelmGaxpy_mv_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                             const Zel32f* const* src2, int32_t src2Shift, int32_t src2Len, const Zel32f* const* src3,
                             int32_t src3Shift, int32_t src3Len, Zel32f* const* dst, int32_t dstShift);
ZelStatus zelmGaxpy_mv_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                           int32_t src1Height, const Zel64f* src2, int32_t src2Stride2, int32_t src2Len,
                           const Zel64f* src3, int32_t src3Stride2, int32_t src3Len, Zel64f* dst, int32_t dstStride2);
ZelStatus zelmGaxpy_mv_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                             const Zel64f* const* src2, int32_t src2Shift, int32_t src2Len, const Zel64f* const* src3,
                             int32_t src3Shift, int32_t src3Len, Zel64f* const* dst, int32_t dstShift);
/** @} */

/** @name Gaxpy mva: dst[k] = src1 * src2[k] + src3[k]
 * @{ */
ZelStatus zelmGaxpy_mva_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2,
                            int32_t src2Len, const Zel32f* src3, int32_t src3Stride0, int32_t src3Stride2,
                            int32_t src3Len, Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmGaxpy_mva_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                              int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                              int32_t src2Len, const Zel32f* const* src3, int32_t src3Shift, int32_t src3Stride2,
                              int32_t src3Len, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmGaxpy_mva_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                              const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Len,
                              const Zel32f* const* src3, int32_t src3Shift, int32_t src3Stride0, int32_t src3Len,
                              Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
ZelStatus zelmGaxpy_mva_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                            int32_t src1Height, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2,
                            int32_t src2Len, const Zel64f* src3, int32_t src3Stride0, int32_t src3Stride2,
                            int32_t src3Len, Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmGaxpy_mva_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                              int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                              int32_t src2Len, const Zel64f* const* src3, int32_t src3Shift, int32_t src3Stride2,
                              int32_t src3Len, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmGaxpy_mva_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                              const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Len,
                              const Zel64f* const* src3, int32_t src3Shift, int32_t src3Stride0, int32_t src3Len,
                              Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
/** @} */

/** @name Gaxpy mvav: dst[k] = src1 * src2[k] + src3
 * @{ */
ZelStatus zelmGaxpy_mvav_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                             int32_t src1Height, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2,
                             int32_t src2Len, const Zel32f* src3, int32_t src3Stride2, int32_t src3Len, Zel32f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmGaxpy_mvav_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                               int32_t src1Height, const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                               int32_t src2Len, const Zel32f* src3, int32_t src3Stride2, int32_t src3Len,
                               Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmGaxpy_mvav_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                               const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Len,
                               const Zel32f* const* src3, int32_t src3Shift, int32_t src3Len, Zel32f* const* dst,
                               int32_t dstShift, int32_t dstStride0, int32_t count);
ZelStatus zelmGaxpy_mvav_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                             int32_t src1Height, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2,
                             int32_t src2Len, const Zel64f* src3, int32_t src3Stride2, int32_t src3Len, Zel64f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t count);
ZelStatus zelmGaxpy_mvav_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                               int32_t src1Height, const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                               int32_t src2Len, const Zel64f* src3, int32_t src3Stride2, int32_t src3Len,
                               Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmGaxpy_mvav_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Width, int32_t src1Height,
                               const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, int32_t src2Len,
                               const Zel64f* const* src3, int32_t src3Shift, int32_t src3Len, Zel64f* const* dst,
                               int32_t dstShift, int32_t dstStride0, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmAffineTransform3DH AffineTransform3DH, points through a homogeneous matrix
 *
 * Moves an array of points through one 4 by 4 homogeneous matrix and divides by the fourth coordinate. There is one
 * function, for 32f in the standard layout.
 *
 * Arguments. src1 is a matrix of 4 by 4, src2 and dst are arrays of vectors of 3 elements; there are no size arguments.
 * Strides are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a stride below 1 or not a
 * multiple of 4 zelStatusBadStride, tested in this order.
 *
 * In place. dst must not overlap a source.
 *
 * Failure. A point whose fourth coordinate is not greater in magnitude than the smallest normal 32f number
 * (1.17549435e-38), NaN included, gets the largest finite 32f number in all three elements, and the call returns
 * zelStatusDivideByZero; all other points are transformed. Which points failed is not recorded elsewhere.
 *
 * Threads. The call is spread over threads when 6*count + 16, as a 32-bit integer that wraps, is above 800 (a count of
 * 131).
 *
 * Notes. A row's sum is ((a0*x0 + a3) + a1*x1) + a2*x2, in 32f; the three coordinates are multiplied by the rounded
 * reciprocal of the fourth.
 *
 * Points that are packed in src2 and dst, 12 bytes apart, go several at a time, whatever the strides of src1; others go
 * one by one.
 *
 * Example:
 *
 * @code
 * Zel32f matrix[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 1, 2}}, points[100][3] = {{1, 2, 3}};
 * Zel32f moved[100][3];
 * ZelStatus status = zelmAffineTransform3DH_mva_32f(&matrix[0][0], 16, 4, &points[0][0], 12, 4,
 *                                                   &moved[0][0], 12, 4, 100);
 * @endcode
 *
 * @{
 */

/** @name AffineTransform3DH mva: dst[k] = (y0, y1, y2) / y3 with y = src1 * (src2[k], 1)
 * @{ */
ZelStatus zelmAffineTransform3DH_mva_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2,
                                         const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst,
                                         int32_t dstStride0, int32_t dstStride2, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmSaxpy Saxpy, a scaled vector plus a vector
 *
 * A vector times a constant plus another vector, or arrays of these. It is always src1 that is scaled.
 *
 * Arguments. All vectors have len elements; val is the value itself. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. dst may be a v source of vv or a va source of an array form, with the same strides (the same list and
 * shift).
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. vv runs on the calling thread. An array form is spread over threads when its work is above a limit; the
 * work, as a 32-bit integer that wraps, is len*(2*count + 1) for vav and vva, 3*len*count for vava. The limits, unit
 * meaning that every Stride2 is the element size:
 *
 * @code
 *               standard, unit    any    list, unit    any    pointer
 * vav vava 32f            3000   2000          1500   1000       1200
 * vva      32f            3000   2000          1500   1500       1200
 * 64f                     3000   1200          1000   1000       1200
 * @endcode
 *
 * Method. The name is that of the Basic Linear Algebra Subprograms (Lawson, Hanson, Kincaid and Krogh 1979).
 *
 * Notes. A product is rounded before it is added: the two are not fused. A val of 0 is no special case.
 *
 * Example:
 *
 * @code
 * Zel32f position[100][3] = {{1, 2, 3}}, velocity[100][3] = {{1, 0, 0}};
 * // position[k] = velocity[k] * 0.1 + position[k]
 * ZelStatus status = zelmSaxpy_vava_32f(&velocity[0][0], 12, 4, 0.1f, &position[0][0], 12, 4,
 *                                       &position[0][0], 12, 4, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name Saxpy vv: dst(j) = src1(j) * val + src2(j)
 * @{ */
ZelStatus zelmSaxpy_vv_32f(const Zel32f* src1, int32_t src1Stride2, Zel32f val, const Zel32f* src2, int32_t src2Stride2,
                           Zel32f* dst, int32_t dstStride2, int32_t len);
ZelStatus zelmSaxpy_vv_32f_P(const Zel32f* const* src1, int32_t src1Shift, Zel32f val, const Zel32f* const* src2,
                             int32_t src2Shift, Zel32f* const* dst, int32_t dstShift, int32_t len);
ZelStatus zelmSaxpy_vv_64f(const Zel64f* src1, int32_t src1Stride2, Zel64f val, const Zel64f* src2, int32_t src2Stride2,
                           Zel64f* dst, int32_t dstStride2, int32_t len);
ZelStatus zelmSaxpy_vv_64f_P(const Zel64f* const* src1, int32_t src1Shift, Zel64f val, const Zel64f* const* src2,
                             int32_t src2Shift, Zel64f* const* dst, int32_t dstShift, int32_t len);
/** @} */

/** @name Saxpy vav: dst[k](j) = src1[k](j) * val + src2(j)
 * @{ */
ZelStatus zelmSaxpy_vav_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, Zel32f val,
                            const Zel32f* src2, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                            int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vav_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2, Zel32f val,
                              const Zel32f* src2, int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift,
                              int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vav_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel32f val,
                              const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                              int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vav_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, Zel64f val,
                            const Zel64f* src2, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                            int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vav_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2, Zel64f val,
                              const Zel64f* src2, int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift,
                              int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vav_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel64f val,
                              const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                              int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Saxpy vva: dst[k](j) = src1(j) * val + src2[k](j)
 * @{ */
ZelStatus zelmSaxpy_vva_32f(const Zel32f* src1, int32_t src1Stride2, Zel32f val, const Zel32f* src2,
                            int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                            int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vva_32f_L(const Zel32f* src1, int32_t src1Stride2, Zel32f val, const Zel32f* const* src2,
                              int32_t src2Shift, int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift,
                              int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vva_32f_P(const Zel32f* const* src1, int32_t src1Shift, Zel32f val, const Zel32f* const* src2,
                              int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst, int32_t dstShift,
                              int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vva_64f(const Zel64f* src1, int32_t src1Stride2, Zel64f val, const Zel64f* src2,
                            int32_t src2Stride0, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                            int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vva_64f_L(const Zel64f* src1, int32_t src1Stride2, Zel64f val, const Zel64f* const* src2,
                              int32_t src2Shift, int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift,
                              int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vva_64f_P(const Zel64f* const* src1, int32_t src1Shift, Zel64f val, const Zel64f* const* src2,
                              int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst, int32_t dstShift,
                              int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name Saxpy vava: dst[k](j) = src1[k](j) * val + src2[k](j)
 * @{ */
ZelStatus zelmSaxpy_vava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, Zel32f val,
                             const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2, Zel32f val,
                               const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel32f* const* dst,
                               int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel32f val,
                               const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst,
                               int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, Zel64f val,
                             const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel64f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2, Zel64f val,
                               const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel64f* const* dst,
                               int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmSaxpy_vava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel64f val,
                               const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst,
                               int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmLComb LComb, linear combination of two vectors
 *
 * The sum of two vectors, each times a constant of its own, or of arrays of these.
 *
 * Arguments. All vectors have len elements; val1 and val2 are the values themselves. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. dst may be a v source of vv or a va source of an array form, with the same strides (the same list and
 * shift).
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. vv runs on the calling thread. An array form is spread over threads when len*(2*count + 1) (vav) or
 * 3*len*count (vava), as a 32-bit integer that wraps, is above 4500; in the list layout of 32f, unless every Stride2 is
 * 4, when it is above 3750.
 *
 * Notes. Products are rounded before they are added: nothing is fused. A factor of 0 is no special case.
 *
 * Example:
 *
 * @code
 * Zel32f a[100][3] = {{1, 2, 3}}, b[100][3] = {{3, 2, 1}}, middle[100][3];
 * // middle[k] = a[k] * 0.5 + b[k] * 0.5
 * ZelStatus status = zelmLComb_vava_32f(&a[0][0], 12, 4, 0.5f, &b[0][0], 12, 4, 0.5f, &middle[0][0], 12, 4, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name LComb vv: dst(j) = src1(j) * val1 + src2(j) * val2
 * @{ */
ZelStatus zelmLComb_vv_32f(const Zel32f* src1, int32_t src1Stride2, Zel32f val1, const Zel32f* src2,
                           int32_t src2Stride2, Zel32f val2, Zel32f* dst, int32_t dstStride2, int32_t len);
ZelStatus zelmLComb_vv_32f_P(const Zel32f* const* src1, int32_t src1Shift, Zel32f val1, const Zel32f* const* src2,
                             int32_t src2Shift, Zel32f val2, Zel32f* const* dst, int32_t dstShift, int32_t len);
ZelStatus zelmLComb_vv_64f(const Zel64f* src1, int32_t src1Stride2, Zel64f val1, const Zel64f* src2,
                           int32_t src2Stride2, Zel64f val2, Zel64f* dst, int32_t dstStride2, int32_t len);
ZelStatus zelmLComb_vv_64f_P(const Zel64f* const* src1, int32_t src1Shift, Zel64f val1, const Zel64f* const* src2,
                             int32_t src2Shift, Zel64f val2, Zel64f* const* dst, int32_t dstShift, int32_t len);
/** @} */

/** @name LComb vav: dst[k](j) = src1[k](j) * val1 + src2(j) * val2
 * @{ */
ZelStatus zelmLComb_vav_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, Zel32f val1,
                            const Zel32f* src2, int32_t src2Stride2, Zel32f val2, Zel32f* dst, int32_t dstStride0,
                            int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmLComb_vav_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2, Zel32f val1,
                              const Zel32f* src2, int32_t src2Stride2, Zel32f val2, Zel32f* const* dst,
                              int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmLComb_vav_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel32f val1,
                              const Zel32f* const* src2, int32_t src2Shift, Zel32f val2, Zel32f* const* dst,
                              int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmLComb_vav_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, Zel64f val1,
                            const Zel64f* src2, int32_t src2Stride2, Zel64f val2, Zel64f* dst, int32_t dstStride0,
                            int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmLComb_vav_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2, Zel64f val1,
                              const Zel64f* src2, int32_t src2Stride2, Zel64f val2, Zel64f* const* dst,
                              int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmLComb_vav_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel64f val1,
                              const Zel64f* const* src2, int32_t src2Shift, Zel64f val2, Zel64f* const* dst,
                              int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @name LComb vava: dst[k](j) = src1[k](j) * val1 + src2[k](j) * val2
 * @{ */
ZelStatus zelmLComb_vava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, Zel32f val1,
                             const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel32f val2, Zel32f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmLComb_vava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2, Zel32f val1,
                               const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel32f val2,
                               Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmLComb_vava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel32f val1,
                               const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f val2,
                               Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmLComb_vava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, Zel64f val1,
                             const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel64f val2, Zel64f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmLComb_vava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2, Zel64f val1,
                               const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel64f val2,
                               Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmLComb_vava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel64f val1,
                               const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f val2,
                               Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmCrossProduct CrossProduct, vector product
 *
 * The vector product of vectors of three elements, or of arrays of these:
 *
 * @code
 * dst(0) = src1(1) * src2(2) - src1(2) * src2(1)
 * dst(1) = src1(2) * src2(0) - src1(0) * src2(2)
 * dst(2) = src1(0) * src2(1) - src1(1) * src2(0)
 * @endcode
 *
 * Arguments. All vectors have three elements, and in the pointer layout lists of three addresses; there is no len.
 * Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a stride below 1 or not a
 * multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the element size
 * zelStatusBadShift. They are tested in this order, as far as the form has them, with one exception: vav tests count
 * behind the strides, and in the list layout behind the shifts too.
 *
 * In place. Not supported: dst must not overlap a source.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. vv runs on the calling thread, and so does zelmCrossProduct_vva_64f_P. Any other array form is spread over
 * threads when 2*count + 1 (vav, vva) or 3*count (vava), as a 32-bit integer that wraps, is above 3000.
 *
 * Notes. Two rounded products and one difference for each element, not fused. A vector by itself gives +0.
 *
 * Example:
 *
 * @code
 * Zel32f arm[100][3] = {{1, 0, 0}}, force[100][3] = {{0, 1, 0}}, torque[100][3];
 * // torque[k] = arm[k] x force[k]
 * ZelStatus status = zelmCrossProduct_vava_32f(&arm[0][0], 12, 4, &force[0][0], 12, 4, &torque[0][0], 12, 4, 100);
 * @endcode
 *
 * @{
 */

/** @name CrossProduct vv: dst = src1 x src2
 * @{ */
ZelStatus zelmCrossProduct_vv_32f(const Zel32f* src1, int32_t src1Stride2, const Zel32f* src2, int32_t src2Stride2,
                                  Zel32f* dst, int32_t dstStride2);
ZelStatus zelmCrossProduct_vv_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2,
                                    int32_t src2Shift, Zel32f* const* dst, int32_t dstShift);
ZelStatus zelmCrossProduct_vv_64f(const Zel64f* src1, int32_t src1Stride2, const Zel64f* src2, int32_t src2Stride2,
                                  Zel64f* dst, int32_t dstStride2);
ZelStatus zelmCrossProduct_vv_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2,
                                    int32_t src2Shift, Zel64f* const* dst, int32_t dstShift);
/** @} */

/** @name CrossProduct vav: dst[k] = src1[k] x src2
 * @{ */
ZelStatus zelmCrossProduct_vav_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel32f* src2,
                                   int32_t src2Stride2, Zel32f* dst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
ZelStatus zelmCrossProduct_vav_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                                     const Zel32f* src2, int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift,
                                     int32_t dstStride2, int32_t count);
ZelStatus zelmCrossProduct_vav_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                     const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                                     int32_t dstStride0, int32_t count);
ZelStatus zelmCrossProduct_vav_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel64f* src2,
                                   int32_t src2Stride2, Zel64f* dst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
ZelStatus zelmCrossProduct_vav_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                                     const Zel64f* src2, int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift,
                                     int32_t dstStride2, int32_t count);
ZelStatus zelmCrossProduct_vav_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                     const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                                     int32_t dstStride0, int32_t count);
/** @} */

/** @name CrossProduct vva: dst[k] = src1 x src2[k]
 * @{ */
ZelStatus zelmCrossProduct_vva_32f(const Zel32f* src1, int32_t src1Stride2, const Zel32f* src2, int32_t src2Stride0,
                                   int32_t src2Stride2, Zel32f* dst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
ZelStatus zelmCrossProduct_vva_32f_L(const Zel32f* src1, int32_t src1Stride2, const Zel32f* const* src2,
                                     int32_t src2Shift, int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift,
                                     int32_t dstStride2, int32_t count);
ZelStatus zelmCrossProduct_vva_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2,
                                     int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst, int32_t dstShift,
                                     int32_t dstStride0, int32_t count);
ZelStatus zelmCrossProduct_vva_64f(const Zel64f* src1, int32_t src1Stride2, const Zel64f* src2, int32_t src2Stride0,
                                   int32_t src2Stride2, Zel64f* dst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
ZelStatus zelmCrossProduct_vva_64f_L(const Zel64f* src1, int32_t src1Stride2, const Zel64f* const* src2,
                                     int32_t src2Shift, int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift,
                                     int32_t dstStride2, int32_t count);
ZelStatus zelmCrossProduct_vva_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2,
                                     int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst, int32_t dstShift,
                                     int32_t dstStride0, int32_t count);
/** @} */

/** @name CrossProduct vava: dst[k] = src1[k] x src2[k]
 * @{ */
ZelStatus zelmCrossProduct_vava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel32f* src2,
                                    int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst, int32_t dstStride0,
                                    int32_t dstStride2, int32_t count);
ZelStatus zelmCrossProduct_vava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                                      const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                                      Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmCrossProduct_vava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                      const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                      Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
ZelStatus zelmCrossProduct_vava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel64f* src2,
                                    int32_t src2Stride0, int32_t src2Stride2, Zel64f* dst, int32_t dstStride0,
                                    int32_t dstStride2, int32_t count);
ZelStatus zelmCrossProduct_vava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                                      const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                                      Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t count);
ZelStatus zelmCrossProduct_vava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                      const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                      Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmDotProduct DotProduct, inner product
 *
 * The inner product of two vectors, or of arrays of these.
 *
 * Arguments. The sources have len elements. dst is a plain run of results, one for each object, in every layout.
 * Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. Not supported: dst must not overlap a source.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. vv runs on the calling thread. An array form is spread over threads when its work is above a limit; the
 * work, as a 32-bit integer that wraps, is len*(count + 1) for vav and 2*len*count for vava. The limits, unit meaning
 * that every Stride2 is the element size:
 *
 * @code
 *       standard, unit    any    list, unit    any    pointer
 * 32f             5000   2620          2400   2400       2400
 * 64f             3500   2000          4200   3300       2000
 * @endcode
 *
 * Notes. Sums are in the element type, of rounded products, not fused. Their order depends on form, type, layout,
 * length and whether the strides are unit, so that results of two functions, or of a call with and one without unit
 * strides, may differ in the last bits. In vv with unit strides the order for vectors of 8 and more elements depends on
 * where src2 lies within 16 bytes as well; everywhere else vectors of other lengths than 3 to 6 are added from +0 on in
 * ascending order.
 *
 * Example:
 *
 * @code
 * Zel32f points[100][3] = {{1, 2, 3}}, normal[3] = {0, 0, 1}, distance[100];
 * // distance[k] = points[k] . normal
 * ZelStatus status = zelmDotProduct_vav_32f(&points[0][0], 12, 4, normal, 4, distance, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name DotProduct vv: dst[0] = src1(0) * src2(0) + src1(1) * src2(1) + ...
 * @{ */
ZelStatus zelmDotProduct_vv_32f(const Zel32f* src1, int32_t src1Stride2, const Zel32f* src2, int32_t src2Stride2,
                                Zel32f* dst, int32_t len);
ZelStatus zelmDotProduct_vv_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2,
                                  int32_t src2Shift, Zel32f* dst, int32_t len);
ZelStatus zelmDotProduct_vv_64f(const Zel64f* src1, int32_t src1Stride2, const Zel64f* src2, int32_t src2Stride2,
                                Zel64f* dst, int32_t len);
ZelStatus zelmDotProduct_vv_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2,
                                  int32_t src2Shift, Zel64f* dst, int32_t len);
/** @} */

/** @name DotProduct vav: dst[k] = src1[k](0) * src2(0) + src1[k](1) * src2(1) + ...
 * @{ */
ZelStatus zelmDotProduct_vav_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel32f* src2,
                                 int32_t src2Stride2, Zel32f* dst, int32_t len, int32_t count);
ZelStatus zelmDotProduct_vav_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                                   const Zel32f* src2, int32_t src2Stride2, Zel32f* dst, int32_t len, int32_t count);
ZelStatus zelmDotProduct_vav_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                   const Zel32f* const* src2, int32_t src2Shift, Zel32f* dst, int32_t len,
                                   int32_t count);
ZelStatus zelmDotProduct_vav_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel64f* src2,
                                 int32_t src2Stride2, Zel64f* dst, int32_t len, int32_t count);
ZelStatus zelmDotProduct_vav_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                                   const Zel64f* src2, int32_t src2Stride2, Zel64f* dst, int32_t len, int32_t count);
ZelStatus zelmDotProduct_vav_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                   const Zel64f* const* src2, int32_t src2Shift, Zel64f* dst, int32_t len,
                                   int32_t count);
/** @} */

/** @name DotProduct vava: dst[k] = src1[k](0) * src2[k](0) + src1[k](1) * src2[k](1) + ...
 * @{ */
ZelStatus zelmDotProduct_vava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel32f* src2,
                                  int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst, int32_t len, int32_t count);
ZelStatus zelmDotProduct_vava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                                    const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel32f* dst,
                                    int32_t len, int32_t count);
ZelStatus zelmDotProduct_vava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                    const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel32f* dst,
                                    int32_t len, int32_t count);
ZelStatus zelmDotProduct_vava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride2, const Zel64f* src2,
                                  int32_t src2Stride0, int32_t src2Stride2, Zel64f* dst, int32_t len, int32_t count);
ZelStatus zelmDotProduct_vava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride2,
                                    const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2, Zel64f* dst,
                                    int32_t len, int32_t count);
ZelStatus zelmDotProduct_vava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                    const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0, Zel64f* dst,
                                    int32_t len, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmL2Norm L2Norm, Euclidean length
 *
 * The Euclidean length of a vector, or of each of an array.
 *
 * Arguments. src has len elements. dst is a plain run of results, one for each object, in every layout. Strides and
 * shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. Not supported: dst must not overlap src.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. v runs on the calling thread. va is spread over threads when len*count, as a 32-bit integer that wraps, is
 * above 1500.
 *
 * Notes. Sums are in the element type, of rounded products, not fused. Their order depends on form, type, layout,
 * length and whether the strides are unit, so that results of two functions, or of a call with and one without unit
 * strides, may differ in the last bits. In v with unit strides the order for vectors of 8 and more elements depends on
 * where src lies within 16 bytes as well; everywhere else vectors of other lengths than 3 to 6 are added from +0 on in
 * ascending order.
 *
 * Nothing is scaled: squares that overflow give infinity, squares that underflow are lost.
 *
 * Example:
 *
 * @code
 * Zel32f points[100][3] = {{3, 0, 4}}, length[100];
 * ZelStatus status = zelmL2Norm_va_32f(&points[0][0], 12, 4, length, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name L2Norm v: dst[0] = sqrt(src(0) * src(0) + src(1) * src(1) + ...)
 * @{ */
ZelStatus zelmL2Norm_v_32f(const Zel32f* src, int32_t srcStride2, Zel32f* dst, int32_t len);
ZelStatus zelmL2Norm_v_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* dst, int32_t len);
ZelStatus zelmL2Norm_v_64f(const Zel64f* src, int32_t srcStride2, Zel64f* dst, int32_t len);
ZelStatus zelmL2Norm_v_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* dst, int32_t len);
/** @} */

/** @name L2Norm va: dst[k] = sqrt(src[k](0) * src[k](0) + src[k](1) * src[k](1) + ...)
 * @{ */
ZelStatus zelmL2Norm_va_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, Zel32f* dst, int32_t len,
                            int32_t count);
ZelStatus zelmL2Norm_va_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, Zel32f* dst, int32_t len,
                              int32_t count);
ZelStatus zelmL2Norm_va_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* dst, int32_t len,
                              int32_t count);
ZelStatus zelmL2Norm_va_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, Zel64f* dst, int32_t len,
                            int32_t count);
ZelStatus zelmL2Norm_va_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, Zel64f* dst, int32_t len,
                              int32_t count);
ZelStatus zelmL2Norm_va_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* dst, int32_t len,
                              int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmTrace Trace, sum of the diagonal
 *
 * Sums the main diagonal of a square matrix, or of each of an array.
 *
 * Arguments. src is square with side widthHeight. dst is a plain pointer in every layout: one element, in ma count
 * elements one after the other. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a widthHeight below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. dst must not overlap src.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*count, as a 32-bit integer that
 * wraps, is at least 3601.
 *
 * Notes. The sum is taken in the element type, down the diagonal. Sides 3 to 6 start with the first two elements, all
 * others with +0.
 *
 * Example:
 *
 * @code
 * Zel64f a[100][3][3] = {{{1, 0, 0}, {0, 2, 0}, {0, 0, 3}}}, trace[100];
 * // trace[k] = sum of the diagonal of a[k], 100 matrices of 3 by 3
 * ZelStatus status = zelmTrace_ma_64f(&a[0][0][0], 72, 24, 8, 3, trace, 100);
 * @endcode
 *
 * @{
 */

/** @name Trace m: dst[0] = src(0,0) + src(1,1) + ...
 * @{ */
ZelStatus zelmTrace_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight, Zel32f* dst);
ZelStatus zelmTrace_m_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t widthHeight, Zel32f* dst);
ZelStatus zelmTrace_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight, Zel64f* dst);
ZelStatus zelmTrace_m_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t widthHeight, Zel64f* dst);
/** @} */

/** @name Trace ma: dst[k] = src[k](0,0) + src[k](1,1) + ...
 * @{ */
ZelStatus zelmTrace_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                           int32_t widthHeight, Zel32f* dst, int32_t count);
ZelStatus zelmTrace_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                             int32_t widthHeight, Zel32f* dst, int32_t count);
ZelStatus zelmTrace_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, int32_t widthHeight,
                             Zel32f* dst, int32_t count);
ZelStatus zelmTrace_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                           int32_t widthHeight, Zel64f* dst, int32_t count);
ZelStatus zelmTrace_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                             int32_t widthHeight, Zel64f* dst, int32_t count);
ZelStatus zelmTrace_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, int32_t widthHeight,
                             Zel64f* dst, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmFrobNorm FrobNorm, Frobenius norm
 *
 * Computes the Frobenius norm of a matrix, or of each of an array.
 *
 * Arguments. src has height rows of width elements. dst is a plain pointer in every layout: one element, in ma count
 * elements one after the other. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or height below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. dst must not overlap src.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when width*height*count, as a 32-bit integer that
 * wraps, reaches a limit: in the standard layout 2501 (32f) and 1801 (64f) if srcStride2 is the element size, else 1801
 * and 1501; in the list layout 1601; in the pointer layout 1501 (32f) and 2501 (64f).
 *
 * Notes. Squares and sums are in the element type and not scaled: a sum that overflows gives infinity. In which order
 * the squares are added depends on the function, the shape and the strides, for one 32f matrix without gaps also on
 * where it lies within 16 bytes, so that results of two functions may differ in the last bits.
 *
 * Example:
 *
 * @code
 * Zel32f a[100][3][4] = {{{3, 0, 0, 4}}}, norm[100];
 * // norm[k] = Frobenius norm of a[k], 100 matrices of 3 rows and 4 columns
 * ZelStatus status = zelmFrobNorm_ma_32f(&a[0][0][0], 48, 16, 4, 4, 3, norm, 100);
 * @endcode
 *
 * @{
 */

/** @name FrobNorm m: dst[0] = square root of the sum of src(i,j)^2
 * @{ */
ZelStatus zelmFrobNorm_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, int32_t width, int32_t height,
                             Zel32f* dst);
ZelStatus zelmFrobNorm_m_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t width, int32_t height, Zel32f* dst);
ZelStatus zelmFrobNorm_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, int32_t width, int32_t height,
                             Zel64f* dst);
ZelStatus zelmFrobNorm_m_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t width, int32_t height, Zel64f* dst);
/** @} */

/** @name FrobNorm ma: dst[k] = square root of the sum of src[k](i,j)^2
 * @{ */
ZelStatus zelmFrobNorm_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                              int32_t width, int32_t height, Zel32f* dst, int32_t count);
ZelStatus zelmFrobNorm_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                int32_t width, int32_t height, Zel32f* dst, int32_t count);
ZelStatus zelmFrobNorm_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, int32_t width,
                                int32_t height, Zel32f* dst, int32_t count);
ZelStatus zelmFrobNorm_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                              int32_t width, int32_t height, Zel64f* dst, int32_t count);
ZelStatus zelmFrobNorm_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                int32_t width, int32_t height, Zel64f* dst, int32_t count);
ZelStatus zelmFrobNorm_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, int32_t width,
                                int32_t height, Zel64f* dst, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmDet Det, determinant
 *
 * Computes the determinant of a square matrix, or of each of an array.
 *
 * Arguments. src is square with side widthHeight. dst is a plain pointer in every layout: one element, in ma count
 * elements one after the other. Strides and shifts are in bytes. buffer is scratch for widthHeight*widthHeight +
 * widthHeight elements, in ma for one matrix in all; it must not be null, though sides 3 to 6 and calls that are spread
 * over threads do not use it. Its contents afterwards mean nothing.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a widthHeight below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. dst must not overlap src or buffer.
 *
 * Failure. Nothing fails once the tests have passed: a singular matrix has the determinant 0 and zelStatusOk. So has,
 * of the sides other than 3 to 6, one whose last pivot is a NaN; a NaN elsewhere mostly gives NaN.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*count, as a 32-bit integer that
 * wraps, is at least 14401.
 *
 * Method. Sides 3 to 6: expansion by minors from the top row down, without pivots; exact for integer elements as long
 * as the minors are integers that the type holds. Every other side: Gaussian elimination with partial pivoting, the
 * first of equal magnitudes winning. There a pivot below 2*n*n*n times the smallest normal number of the type (n the
 * side) counts as zero, and so does a last pivot at or below it. These limits are absolute; a single element of 1e-38
 * has the determinant 0 in 32f.
 *
 * Example:
 *
 * @code
 * Zel32f a[100][4][4], det[100], buffer[4 * 4 + 4];
 * for (int k = 0; k < 100; ++k)
 *   for (int i = 0; i < 16; ++i)
 *     a[k][i / 4][i % 4] = i % 5 == 0 ? 2 : k;
 * // det[k] = determinant of a[k], 100 matrices of 4 by 4
 * ZelStatus status = zelmDet_ma_32f(&a[0][0][0], 64, 16, 4, 4, buffer, det, 100);
 * @endcode
 *
 * @{
 */

/** @name Det m: dst[0] = det(src)
 * @{ */
ZelStatus zelmDet_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight, Zel32f* buffer,
                        Zel32f* dst);
ZelStatus zelmDet_m_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t widthHeight, Zel32f* buffer, Zel32f* dst);
ZelStatus zelmDet_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight, Zel64f* buffer,
                        Zel64f* dst);
ZelStatus zelmDet_m_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t widthHeight, Zel64f* buffer, Zel64f* dst);
/** @} */

/** @name Det ma: dst[k] = det(src[k])
 * @{ */
ZelStatus zelmDet_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                         int32_t widthHeight, Zel32f* buffer, Zel32f* dst, int32_t count);
ZelStatus zelmDet_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                           int32_t widthHeight, Zel32f* buffer, Zel32f* dst, int32_t count);
ZelStatus zelmDet_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, int32_t widthHeight,
                           Zel32f* buffer, Zel32f* dst, int32_t count);
ZelStatus zelmDet_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                         int32_t widthHeight, Zel64f* buffer, Zel64f* dst, int32_t count);
ZelStatus zelmDet_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                           int32_t widthHeight, Zel64f* buffer, Zel64f* dst, int32_t count);
ZelStatus zelmDet_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, int32_t widthHeight,
                           Zel64f* buffer, Zel64f* dst, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmExtract Extract
 *
 * Packs a matrix, which may be read transposed, or a vector, or an array of these, from any layout into one run: one
 * object behind the other, row after row, without gaps.
 *
 * Elements are moved as they stand: the bits of a NaN are kept.
 *
 * Arguments. width and height, or len, are those of the result: a t source is stored as width rows of height elements.
 * dst is a plain pointer in every layout, to width*height or len elements for each object. Strides and shifts are in
 * bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a size below 1 zelStatusBadSize, a count below 1 zelStatusBadCount,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift. The single forms test pointers, the size, the stride or the shift; in the pointer
 * layout the size comes before the pointers, but for zelmExtract_v_32f_P. The array forms test pointers, sizes, count,
 * shifts, strides. The Stride0 of an array is tested with a count of 1 too.
 *
 * In place. Not supported: dst must not overlap src.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. All forms run on the calling thread.
 *
 * Example:
 *
 * @code
 * Zel64f padded[100][3][4] = {{{1}}}, packed[100][3][3];
 * // packed[k]: the first three columns of padded[k]
 * ZelStatus status = zelmExtract_ma_64f(&padded[0][0][0], 96, 32, 8, &packed[0][0][0], 3, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name Extract m: dst[i*width + j] = src(i,j)
 * @{ */
ZelStatus zelmExtract_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* dst, int32_t width,
                            int32_t height);
ZelStatus zelmExtract_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* dst, int32_t width, int32_t height);
ZelStatus zelmExtract_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* dst, int32_t width,
                            int32_t height);
ZelStatus zelmExtract_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* dst, int32_t width, int32_t height);
/** @} */

/** @name Extract t: dst[i*width + j] = src(j,i)
 * @{ */
ZelStatus zelmExtract_t_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* dst, int32_t width,
                            int32_t height);
ZelStatus zelmExtract_t_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* dst, int32_t width, int32_t height);
ZelStatus zelmExtract_t_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* dst, int32_t width,
                            int32_t height);
ZelStatus zelmExtract_t_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* dst, int32_t width, int32_t height);
/** @} */

/** @name Extract v: dst[j] = src(j)
 * @{ */
ZelStatus zelmExtract_v_32f(const Zel32f* src, int32_t srcStride2, Zel32f* dst, int32_t len);
ZelStatus zelmExtract_v_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* dst, int32_t len);
ZelStatus zelmExtract_v_64f(const Zel64f* src, int32_t srcStride2, Zel64f* dst, int32_t len);
ZelStatus zelmExtract_v_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* dst, int32_t len);
/** @} */

/** @name Extract ma: dst[(k*height + i)*width + j] = src[k](i,j)
 * @{ */
ZelStatus zelmExtract_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel32f* dst,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                               Zel32f* dst, int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* dst,
                               int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel64f* dst,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                               Zel64f* dst, int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* dst,
                               int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Extract ta: dst[(k*height + i)*width + j] = src[k](j,i)
 * @{ */
ZelStatus zelmExtract_ta_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel32f* dst,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ta_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                               Zel32f* dst, int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ta_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* dst,
                               int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ta_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel64f* dst,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ta_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                               Zel64f* dst, int32_t width, int32_t height, int32_t count);
ZelStatus zelmExtract_ta_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* dst,
                               int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Extract va: dst[k*len + j] = src[k](j)
 * @{ */
ZelStatus zelmExtract_va_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, Zel32f* dst, int32_t len,
                             int32_t count);
ZelStatus zelmExtract_va_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, Zel32f* dst, int32_t len,
                               int32_t count);
ZelStatus zelmExtract_va_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* dst, int32_t len,
                               int32_t count);
ZelStatus zelmExtract_va_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, Zel64f* dst, int32_t len,
                             int32_t count);
ZelStatus zelmExtract_va_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, Zel64f* dst, int32_t len,
                               int32_t count);
ZelStatus zelmExtract_va_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* dst, int32_t len,
                               int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmCopy Copy
 *
 * Copies an array of matrices or vectors from any layout to any layout, which is how to go from one to another. The
 * letters behind the type are the layouts of src and dst: S standard, L list, P pointer. Elements are moved as they
 * stand: the bits of a NaN are kept.
 *
 * Arguments. width and height, or len, are those of both. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a size below 1 zelStatusBadSize, a count below 1 zelStatusBadCount,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift. They are tested in this order, with these exceptions: zelmCopy_va_32f_LP and
 * zelmCopy_va_32f_SP test shifts before strides, and the Stride0 arguments are tested after all others, and only if
 * count is above 1.
 *
 * In place. Not supported: dst must not overlap src.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. All forms run on the calling thread.
 *
 * Example:
 *
 * @code
 * Zel32f points[100][3] = {{1, 2, 3}}, x[100], y[100], z[100];
 * Zel32f* const planes[3] = {x, y, z};
 * // x[k], y[k], z[k] = points[k]
 * ZelStatus status = zelmCopy_va_32f_SP(&points[0][0], 12, 4, planes, 0, 4, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name Copy ma: dst[k](i,j) = src[k](i,j)
 * @{ */
ZelStatus zelmCopy_ma_32f_SS(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel32f* dst,
                             int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_32f_SL(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmCopy_ma_32f_SP(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_32f_LS(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                             Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                             int32_t height, int32_t count);
ZelStatus zelmCopy_ma_32f_LL(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmCopy_ma_32f_LP(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                             Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_32f_PS(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* dst,
                             int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_32f_PL(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_32f_PP(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
ZelStatus zelmCopy_ma_64f_SS(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, Zel64f* dst,
                             int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_64f_SL(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmCopy_ma_64f_SP(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_64f_LS(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                             Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
                             int32_t height, int32_t count);
ZelStatus zelmCopy_ma_64f_LL(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                             int32_t width, int32_t height, int32_t count);
ZelStatus zelmCopy_ma_64f_LP(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                             Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_64f_PS(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* dst,
                             int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_64f_PL(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
                             int32_t count);
ZelStatus zelmCopy_ma_64f_PP(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Copy va: dst[k](j) = src[k](j)
 * @{ */
ZelStatus zelmCopy_va_32f_SS(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, Zel32f* dst, int32_t dstStride0,
                             int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_32f_SL(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_32f_SP(const Zel32f* src, int32_t srcStride0, int32_t srcStride2, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmCopy_va_32f_LS(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, Zel32f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_32f_LL(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_32f_LP(const Zel32f* const* src, int32_t srcShift, int32_t srcStride2, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmCopy_va_32f_PS(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_32f_PL(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_32f_PP(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmCopy_va_64f_SS(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, Zel64f* dst, int32_t dstStride0,
                             int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_64f_SL(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_64f_SP(const Zel64f* src, int32_t srcStride0, int32_t srcStride2, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmCopy_va_64f_LS(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, Zel64f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_64f_LL(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_64f_LP(const Zel64f* const* src, int32_t srcShift, int32_t srcStride2, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
ZelStatus zelmCopy_va_64f_PS(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* dst,
                             int32_t dstStride0, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_64f_PL(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride2, int32_t len, int32_t count);
ZelStatus zelmCopy_va_64f_PP(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* const* dst,
                             int32_t dstShift, int32_t dstStride0, int32_t len, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmLoadIdentity LoadIdentity
 *
 * Makes each matrix of an array the identity. Matrices that are not square get zeros below or beside it.
 *
 * Arguments. dst has height rows of width elements. Strides and the shift are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a size below 1 zelStatusBadSize, a count below 1 zelStatusBadCount,
 * a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the
 * element size zelStatusBadShift. They are tested in this order, with these exceptions: zelmLoadIdentity_ma_32f_P (not
 * its 64f sibling) tests the shift before count, and dstStride0 is tested after all others, and only if count is above
 * 1.
 *
 * In place. There is no source.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. All forms run on the calling thread.
 *
 * Example:
 *
 * @code
 * Zel32f frames[100][4][4];
 * ZelStatus status = zelmLoadIdentity_ma_32f(&frames[0][0][0], 64, 16, 4, 4, 4, 100);
 * @endcode
 *
 * @{
 */

/** @name LoadIdentity ma: dst[k](i,j) = i == j ? 1 : 0
 * @{ */
ZelStatus zelmLoadIdentity_ma_32f(Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height, int32_t count);
ZelStatus zelmLoadIdentity_ma_32f_L(Zel32f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
ZelStatus zelmLoadIdentity_ma_32f_P(Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width,
                                    int32_t height, int32_t count);
ZelStatus zelmLoadIdentity_ma_64f(Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height, int32_t count);
ZelStatus zelmLoadIdentity_ma_64f_L(Zel64f* const* dst, int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
ZelStatus zelmLoadIdentity_ma_64f_P(Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width,
                                    int32_t height, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmTranspose Transpose
 *
 * Writes the transposition of a matrix, or of each matrix of an array, to another place. Elements are moved as they
 * stand: the bits of a NaN are kept.
 *
 * Arguments. width and height are those of the source: src has height rows of width elements, dst has width rows of
 * height elements. In the pointer layout the list of dst runs through its own rows. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or height below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. Not supported: dst must not overlap src. A call in place is not detected; its result is wrong.
 *
 * Failure. Once the tests have passed nothing can fail, and the function returns zelStatusOk.
 *
 * Threads. All forms run on the calling thread.
 *
 * Method. 32f with every Stride2 equal to 4, other than squares of sides 3 to 6: results that are large beside the
 * largest cache of the machine are written past the caches. That is so for an array (standard and list layout) whose
 * traffic width*height*count*8, as a 32-bit integer that wraps, is above 131072 and above three quarters of the cache,
 * and for a matrix whose sides are both above 128 and whose width*height*8 is above the cache. It changes no result.
 *
 * Example:
 *
 * @code
 * Zel32f picture[48][64] = {{1}}, turned[64][48];
 * ZelStatus status = zelmTranspose_m_32f(&picture[0][0], 64 * 4, 4, 64, 48, &turned[0][0], 48 * 4, 4);
 * @endcode
 *
 * @{
 */

/** @name Transpose m: dst(j,i) = src(i,j)
 * @{ */
ZelStatus zelmTranspose_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, int32_t width, int32_t height,
                              Zel32f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmTranspose_m_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t width, int32_t height,
                                Zel32f* const* dst, int32_t dstShift);
ZelStatus zelmTranspose_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, int32_t width, int32_t height,
                              Zel64f* dst, int32_t dstStride1, int32_t dstStride2);
ZelStatus zelmTranspose_m_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t width, int32_t height,
                                Zel64f* const* dst, int32_t dstShift);
/** @} */

/** @name Transpose ma: dst[k](j,i) = src[k](i,j)
 * @{ */
ZelStatus zelmTranspose_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                               int32_t width, int32_t height, Zel32f* dst, int32_t dstStride0, int32_t dstStride1,
                               int32_t dstStride2, int32_t count);
ZelStatus zelmTranspose_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                 int32_t width, int32_t height, Zel32f* const* dst, int32_t dstShift,
                                 int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmTranspose_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, int32_t width,
                                 int32_t height, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                                 int32_t count);
ZelStatus zelmTranspose_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                               int32_t width, int32_t height, Zel64f* dst, int32_t dstStride0, int32_t dstStride1,
                               int32_t dstStride2, int32_t count);
ZelStatus zelmTranspose_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                 int32_t width, int32_t height, Zel64f* const* dst, int32_t dstShift,
                                 int32_t dstStride1, int32_t dstStride2, int32_t count);
ZelStatus zelmTranspose_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, int32_t width,
                                 int32_t height, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                                 int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmLUDecomp LUDecomp, LU decomposition with row pivoting
 *
 * Factorises a square matrix, or each of an array, into a unit lower triangular and an upper triangular factor with
 * partial pivoting, for LUBackSubst.
 *
 * Arguments. src and dst are square with side widthHeight. index gets widthHeight entries an object, zero based; those
 * of object k begin at entry k*widthHeight, in every layout. Rows are not moved in dst: row index[i] of dst is row i of
 * the factorisation, with the multipliers of L left of its element i (the diagonal of ones is not stored) and U from
 * element i on. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a widthHeight below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. dst may be src with the same strides (the same lists and shift), in every form and layout.
 *
 * Failure. zelStatusSingular if the best pivot of a column is too small in magnitude. The limits are absolute: for
 * sides 3 to 6 a pivot below 2^-125 (32f) or 2^-1021 (64f) fails; for all other sides one of at most 2^-23 or 2^-52.
 * Scale matrices of such sides if their elements are small. A NaN pivot is not a failure.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it.
 *
 * What the failing object leaves: for sides 3 to 6 in the standard and list layouts the rows of dst of finished steps
 * are final and the others as they were; in the pointer layout dst is untouched; for other sides dst holds the partly
 * eliminated matrix. index is not usable.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*widthHeight*count, as a 32-bit
 * integer that wraps, is at least 1001.
 *
 * Method. Gaussian elimination with partial pivoting (Wilkinson 1961; Golub and Van Loan, Matrix Computations). Among
 * equal magnitudes the first row wins; a column is scaled by the reciprocal of its pivot.
 *
 * Example:
 *
 * @code
 * Zel64f a[100][3][3], b[100][3];
 * int32_t index[100][3];
 * for (int k = 0; k < 100; ++k) {
 *   for (int i = 0; i < 9; ++i)
 *     a[k][i / 3][i % 3] = i % 4 == 0 ? 4 + k : 1;
 *   b[k][0] = b[k][1] = b[k][2] = 1;
 * }
 * // b[k] = solution x of a[k] * x = b[k], 100 systems of 3 by 3
 * ZelStatus status = zelmLUDecomp_ma_64f(&a[0][0][0], 72, 24, 8, &index[0][0], &a[0][0][0], 72, 24, 8, 3, 100);
 * if (status == zelStatusOk)
 *   status = zelmLUBackSubst_mava_64f(&a[0][0][0], 72, 24, 8, &index[0][0], &b[0][0], 24, 8, &b[0][0], 24, 8, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name LUDecomp m: src = P * L * U, into index and dst
 * @{ */
ZelStatus zelmLUDecomp_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, int32_t* index, Zel32f* dst,
                             int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
ZelStatus zelmLUDecomp_m_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t* index, Zel32f* const* dst,
                               int32_t dstShift, int32_t widthHeight);
ZelStatus zelmLUDecomp_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, int32_t* index, Zel64f* dst,
                             int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
ZelStatus zelmLUDecomp_m_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t* index, Zel64f* const* dst,
                               int32_t dstShift, int32_t widthHeight);
/** @} */

/** @name LUDecomp ma: src[k] = P[k] * L[k] * U[k], into index and dst
 * @{ */
ZelStatus zelmLUDecomp_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                              int32_t* index, Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                              int32_t widthHeight, int32_t count);
ZelStatus zelmLUDecomp_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                int32_t* index, Zel32f* const* dst, int32_t dstShift, int32_t dstStride1,
                                int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmLUDecomp_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, int32_t* index,
                                Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                                int32_t count);
ZelStatus zelmLUDecomp_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                              int32_t* index, Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                              int32_t widthHeight, int32_t count);
ZelStatus zelmLUDecomp_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                int32_t* index, Zel64f* const* dst, int32_t dstShift, int32_t dstStride1,
                                int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmLUDecomp_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, int32_t* index,
                                Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                                int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmLUBackSubst LUBackSubst, solution from an LU decomposition
 *
 * Solves linear systems from what LUDecomp left in dst and index; A is the matrix that was factorised.
 *
 * Arguments. src1 and index are dst and index of LUDecomp; in mv and mva they serve all right-hand sides, in mava those
 * of object k begin at entry k*widthHeight of index, in every layout. src2 and dst are vectors of widthHeight elements.
 * In the list layout of mva the one matrix is passed as in the standard layout. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a widthHeight below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift, tested in this order as far as the form has them. The entries of
 * index are not tested; one outside 0 to widthHeight - 1 is undefined behaviour.
 *
 * In place. dst may be src2 with the same strides for sides 3 to 6; for all other sides this is right only if index is
 * 0, 1, 2 and so on.
 *
 * Failure. Nothing fails once the tests have passed: a zero on the diagonal of U gives infinities or NaN and
 * zelStatusOk. The result of a decomposition that failed must not be passed.
 *
 * Threads. mv runs on the calling thread. The array forms are spread over threads when (2*count +
 * widthHeight)*widthHeight is at least 701 (mva), or (widthHeight + 2)*widthHeight*count at least 1201 (mava), as
 * 32-bit integers that wrap.
 *
 * Method. Forward and backward substitution. Sides 3 to 6 multiply by rounded reciprocals of the diagonal of U, all
 * other sides divide.
 *
 * Example:
 *
 * @code
 * Zel32f a[3][3] = {{4, 1, 0}, {1, 4, 1}, {0, 1, 4}}, b[100][3] = {{1, 2, 3}};
 * int32_t index[3];
 * // b[k] = solution x of a * x = b[k], one matrix, 100 right-hand sides
 * ZelStatus status = zelmLUDecomp_m_32f(&a[0][0], 12, 4, index, &a[0][0], 12, 4, 3);
 * if (status == zelStatusOk)
 *   status = zelmLUBackSubst_mva_32f(&a[0][0], 12, 4, index, &b[0][0], 12, 4, &b[0][0], 12, 4, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name LUBackSubst mv: solves A * dst = src2
 * @{ */
ZelStatus zelmLUBackSubst_mv_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const int32_t* index,
                                 const Zel32f* src2, int32_t src2Stride2, Zel32f* dst, int32_t dstStride2,
                                 int32_t widthHeight);
ZelStatus zelmLUBackSubst_mv_32f_P(const Zel32f* const* src1, int32_t src1Shift, const int32_t* index,
                                   const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                                   int32_t widthHeight);
ZelStatus zelmLUBackSubst_mv_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const int32_t* index,
                                 const Zel64f* src2, int32_t src2Stride2, Zel64f* dst, int32_t dstStride2,
                                 int32_t widthHeight);
ZelStatus zelmLUBackSubst_mv_64f_P(const Zel64f* const* src1, int32_t src1Shift, const int32_t* index,
                                   const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                                   int32_t widthHeight);
/** @} */

/** @name LUBackSubst mva: solves A * dst[k] = src2[k]
 * @{ */
ZelStatus zelmLUBackSubst_mva_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const int32_t* index,
                                  const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst,
                                  int32_t dstStride0, int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmLUBackSubst_mva_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const int32_t* index,
                                    const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                                    Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t widthHeight,
                                    int32_t count);
ZelStatus zelmLUBackSubst_mva_32f_P(const Zel32f* const* src1, int32_t src1Shift, const int32_t* index,
                                    const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                    Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                                    int32_t count);
ZelStatus zelmLUBackSubst_mva_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const int32_t* index,
                                  const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel64f* dst,
                                  int32_t dstStride0, int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmLUBackSubst_mva_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const int32_t* index,
                                    const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                                    Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t widthHeight,
                                    int32_t count);
ZelStatus zelmLUBackSubst_mva_64f_P(const Zel64f* const* src1, int32_t src1Shift, const int32_t* index,
                                    const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                    Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                                    int32_t count);
/** @} */

/** @name LUBackSubst mava: solves A[k] * dst[k] = src2[k]
 * @{ */
ZelStatus zelmLUBackSubst_mava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                                   const int32_t* index, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2,
                                   Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t widthHeight,
                                   int32_t count);
ZelStatus zelmLUBackSubst_mava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1,
                                     int32_t src1Stride2, const int32_t* index, const Zel32f* const* src2,
                                     int32_t src2Shift, int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift,
                                     int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmLUBackSubst_mava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                     const int32_t* index, const Zel32f* const* src2, int32_t src2Shift,
                                     int32_t src2Stride0, Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                                     int32_t widthHeight, int32_t count);
ZelStatus zelmLUBackSubst_mava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                                   const int32_t* index, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2,
                                   Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t widthHeight,
                                   int32_t count);
ZelStatus zelmLUBackSubst_mava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1,
                                     int32_t src1Stride2, const int32_t* index, const Zel64f* const* src2,
                                     int32_t src2Shift, int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift,
                                     int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmLUBackSubst_mava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                     const int32_t* index, const Zel64f* const* src2, int32_t src2Shift,
                                     int32_t src2Stride0, Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                                     int32_t widthHeight, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmCholeskyDecomp CholeskyDecomp, Cholesky decomposition
 *
 * Factorises a symmetric positive definite matrix, or each of an array, for CholeskyBackSubst.
 *
 * Arguments. src and dst are square with side widthHeight. Only the lower triangle of src, with its diagonal, is read,
 * and only that of dst is written; the rest of dst keeps what it held. Below the diagonal dst holds L, and ON the
 * diagonal the RECIPROCALS of the diagonal of L. Symmetry is not tested. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a widthHeight below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. dst may be src with the same strides (the same lists and shift), in every form and layout.
 *
 * Failure. zelStatusNotPositiveDefinite if a diagonal element, before its root is taken, is not above a limit. The
 * limit is 0, except in the pointer layout for side 3, where it is 2^-23 for both types, and in
 * zelmCholeskyDecomp_ma_64f with a Stride2 other than 8 for sides other than 3, 4 and 5, where it is 2^-52. A NaN is
 * not a failure.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it.
 *
 * The failing object's dst is partly written, up to the failing row.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*widthHeight*count, as a 32-bit
 * integer that wraps, is at least 2001; at least 7501 in the standard layout of 32f; at least 721 in the list layout of
 * 64f with every Stride2 equal to 8.
 *
 * Method. Cholesky's method (Benoit 1924), row by row. In 32f the reciprocal root of a diagonal element is computed in
 * double precision and rounded once (not in zelmCholeskyDecomp_m_32f_P and zelmCholeskyDecomp_ma_32f_P for sides other
 * than 3 to 6, which round the root first).
 *
 * Example:
 *
 * @code
 * Zel64f a[100][6][6] = {{{0}}}, b[100][6];
 * for (int k = 0; k < 100; ++k)
 *   for (int i = 0; i < 6; ++i) {
 *     a[k][i][i] = 1 + k;
 *     b[k][i] = i;
 *   }
 * // b[k] = solution x of a[k] * x = b[k], 100 symmetric systems of 6 by 6
 * ZelStatus status = zelmCholeskyDecomp_ma_64f(&a[0][0][0], 288, 48, 8, &a[0][0][0], 288, 48, 8, 6, 100);
 * if (status == zelStatusOk)
 *   status = zelmCholeskyBackSubst_mava_64f(&a[0][0][0], 288, 48, 8, &b[0][0], 48, 8, &b[0][0], 48, 8, 6, 100);
 * @endcode
 *
 * @{
 */

/** @name CholeskyDecomp m: src = L * transpose(L), L into dst
 * @{ */
ZelStatus zelmCholeskyDecomp_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* dst,
                                   int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
ZelStatus zelmCholeskyDecomp_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* const* dst, int32_t dstShift,
                                     int32_t widthHeight);
ZelStatus zelmCholeskyDecomp_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* dst,
                                   int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
ZelStatus zelmCholeskyDecomp_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* const* dst, int32_t dstShift,
                                     int32_t widthHeight);
/** @} */

/** @name CholeskyDecomp ma: src[k] = L[k] * transpose(L[k]), L[k] into dst[k]
 * @{ */
ZelStatus zelmCholeskyDecomp_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                                    Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyDecomp_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1,
                                      int32_t srcStride2, Zel32f* const* dst, int32_t dstShift, int32_t dstStride1,
                                      int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyDecomp_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0,
                                      Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                                      int32_t count);
ZelStatus zelmCholeskyDecomp_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                                    Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyDecomp_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1,
                                      int32_t srcStride2, Zel64f* const* dst, int32_t dstShift, int32_t dstStride1,
                                      int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyDecomp_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0,
                                      Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                                      int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmCholeskyBackSubst CholeskyBackSubst, solution from a Cholesky decomposition
 *
 * Solves linear systems from what CholeskyDecomp left in dst; A is the matrix that was factorised.
 *
 * Arguments. src1 is dst of CholeskyDecomp, with reciprocals on its diagonal; only its lower triangle is read. src2 and
 * dst are vectors of widthHeight elements. In the list layout of mva the one matrix is passed as in the standard
 * layout. Strides and shifts are in bytes.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a widthHeight below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift, tested in this order as far as the form has them, with one exception:
 * zelmCholeskyBackSubst_mva_32f_L and zelmCholeskyBackSubst_mva_64f_L test pointers, strides, shifts, widthHeight, and
 * count last.
 *
 * In place. dst may be src2 with the same strides (the same list and shift), in every form and layout.
 *
 * Failure. Nothing fails once the tests have passed. The result of a decomposition that failed must not be passed.
 *
 * Threads. mv runs on the calling thread. The array forms are spread over threads when (2*count +
 * widthHeight)*widthHeight (mva) or (widthHeight + 2)*widthHeight*count (mava), as 32-bit integers that wrap, reach a
 * limit:
 *
 * @code
 *                    mva   mava, every Stride2 the element size   mava, other
 * 32f standard      1201                                   2051          1701
 * 32f list           721                                   1701          1701
 * 32f pointer        721                                   1701             -
 * 64f standard       721                                   1701          1701
 * 64f list           721                                   1701          1701
 * 64f pointer        721                                   2051             -
 * @endcode
 *
 * Method. Forward and backward substitution with products by the stored reciprocals; nothing is divided.
 *
 * Example:
 *
 * @code
 * Zel32f a[3][3] = {{4, 1, 0}, {1, 4, 1}, {0, 1, 4}}, b[100][3] = {{1, 2, 3}};
 * // b[k] = solution x of a * x = b[k], one symmetric matrix, 100 right-hand sides
 * ZelStatus status = zelmCholeskyDecomp_m_32f(&a[0][0], 12, 4, &a[0][0], 12, 4, 3);
 * if (status == zelStatusOk)
 *   status = zelmCholeskyBackSubst_mva_32f(&a[0][0], 12, 4, &b[0][0], 12, 4, &b[0][0], 12, 4, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name CholeskyBackSubst mv: solves A * dst = src2
 * @{ */
ZelStatus zelmCholeskyBackSubst_mv_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel32f* src2,
                                       int32_t src2Stride2, Zel32f* dst, int32_t dstStride2, int32_t widthHeight);
ZelStatus zelmCholeskyBackSubst_mv_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2,
                                         int32_t src2Shift, Zel32f* const* dst, int32_t dstShift, int32_t widthHeight);
ZelStatus zelmCholeskyBackSubst_mv_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, const Zel64f* src2,
                                       int32_t src2Stride2, Zel64f* dst, int32_t dstStride2, int32_t widthHeight);
ZelStatus zelmCholeskyBackSubst_mv_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2,
                                         int32_t src2Shift, Zel64f* const* dst, int32_t dstShift, int32_t widthHeight);
/** @} */

/** @name CholeskyBackSubst mva: solves A * dst[k] = src2[k]
 * @{ */
ZelStatus zelmCholeskyBackSubst_mva_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2,
                                        const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst,
                                        int32_t dstStride0, int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyBackSubst_mva_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2,
                                          const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                                          Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t widthHeight,
                                          int32_t count);
ZelStatus zelmCholeskyBackSubst_mva_32f_P(const Zel32f* const* src1, int32_t src1Shift, const Zel32f* const* src2,
                                          int32_t src2Shift, int32_t src2Stride0, Zel32f* const* dst, int32_t dstShift,
                                          int32_t dstStride0, int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyBackSubst_mva_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2,
                                        const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel64f* dst,
                                        int32_t dstStride0, int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyBackSubst_mva_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2,
                                          const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                                          Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t widthHeight,
                                          int32_t count);
ZelStatus zelmCholeskyBackSubst_mva_64f_P(const Zel64f* const* src1, int32_t src1Shift, const Zel64f* const* src2,
                                          int32_t src2Shift, int32_t src2Stride0, Zel64f* const* dst, int32_t dstShift,
                                          int32_t dstStride0, int32_t widthHeight, int32_t count);
/** @} */

/** @name CholeskyBackSubst mava: solves A[k] * dst[k] = src2[k]
 * @{ */
ZelStatus zelmCholeskyBackSubst_mava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1,
                                         int32_t src1Stride2, const Zel32f* src2, int32_t src2Stride0,
                                         int32_t src2Stride2, Zel32f* dst, int32_t dstStride0, int32_t dstStride2,
                                         int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyBackSubst_mava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1,
                                           int32_t src1Stride2, const Zel32f* const* src2, int32_t src2Shift,
                                           int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift,
                                           int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyBackSubst_mava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                           const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                           Zel32f* const* dst, int32_t dstShift, int32_t dstStride0,
                                           int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyBackSubst_mava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1,
                                         int32_t src1Stride2, const Zel64f* src2, int32_t src2Stride0,
                                         int32_t src2Stride2, Zel64f* dst, int32_t dstStride0, int32_t dstStride2,
                                         int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyBackSubst_mava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1,
                                           int32_t src1Stride2, const Zel64f* const* src2, int32_t src2Shift,
                                           int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift,
                                           int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmCholeskyBackSubst_mava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0,
                                           const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                           Zel64f* const* dst, int32_t dstShift, int32_t dstStride0,
                                           int32_t widthHeight, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmQRDecomp QRDecomp, QR decomposition
 *
 * Factorises a matrix with at least as many rows as columns, or each of an array, by Householder reflections, for
 * QRBackSubst.
 *
 * Arguments. src and dst have height rows of width elements. On and above its diagonal dst holds R; below the diagonal
 * of column c the tail of the reflection vector v, whose element at row c is an implied 1. The reflection is the
 * identity plus b * v * transpose(v) with b = -2 / (transpose(v) * v). There is one for each column, in a square matrix
 * none for the last.
 *
 * buffer is scratch of height elements of the function's type, for one object, whatever the count; what it holds before
 * and after has no meaning. Strides and shifts are in bytes.
 *
 * Tests. A null pointer (buffer included) gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or
 * height below 1 zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift
 * below 0 or not a multiple of the element size zelStatusBadShift, and last a width greater than height
 * zelStatusSizeMismatch, tested in this order as far as the form has them.
 *
 * In place. dst may be src with the same strides (the same lists and shift), in every form and layout.
 *
 * Failure. zelStatusDivideByZero if the sum of the squares of a column, from its diagonal down, is below 2^-23 (32f) or
 * 2^-52 (64f). The test is absolute: in 32f a column shorter than about 3.45e-4 fails; scale such matrices. A NaN is
 * not a failure, and the last column of a square matrix is not tested, so that a singular square matrix may pass with a
 * zero at the end of R.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it.
 *
 * The failing object's dst holds the finished columns and the partly reduced rest.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when width*height*2*count, as a 32-bit integer that
 * wraps, is at least 2801 in the standard layout, 1801 in the list and pointer layouts; the threads then have scratch
 * of their own and leave buffer alone.
 *
 * Method. Householder's reflections (Householder 1958; Golub 1965). A diagonal element of R has the sign opposite to
 * the leading element that it replaces; for a zero or NaN leading element it is positive or NaN.
 *
 * Example:
 *
 * @code
 * Zel64f a[100][6][3], b[100][6], x[100][3], buffer[6];
 * for (int k = 0; k < 100; ++k)
 *   for (int i = 0; i < 6; ++i) {
 *     a[k][i][0] = 1;
 *     a[k][i][1] = i;
 *     a[k][i][2] = i * i;
 *     b[k][i] = k + i;
 *   }
 * // x[k] minimises the length of a[k] * x - b[k]: 100 fits of a parabola to 6 points
 * ZelStatus status = zelmQRDecomp_ma_64f(&a[0][0][0], 144, 24, 8, buffer, &a[0][0][0], 144, 24, 8, 3, 6, 100);
 * if (status == zelStatusOk)
 *   status = zelmQRBackSubst_mava_64f(&a[0][0][0], 144, 24, 8, buffer, &b[0][0], 48, 8, &x[0][0], 24, 8, 3, 6, 100);
 * @endcode
 *
 * @{
 */

/** @name QRDecomp m: src = Q * R, both into dst
 * @{ */
ZelStatus zelmQRDecomp_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* buffer, Zel32f* dst,
                             int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
ZelStatus zelmQRDecomp_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* buffer, Zel32f* const* dst,
                               int32_t dstShift, int32_t width, int32_t height);
ZelStatus zelmQRDecomp_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* buffer, Zel64f* dst,
                             int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
ZelStatus zelmQRDecomp_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* buffer, Zel64f* const* dst,
                               int32_t dstShift, int32_t width, int32_t height);
/** @} */

/** @name QRDecomp ma: src[k] = Q[k] * R[k], both into dst[k]
 * @{ */
ZelStatus zelmQRDecomp_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                              Zel32f* buffer, Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                              int32_t width, int32_t height, int32_t count);
ZelStatus zelmQRDecomp_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                Zel32f* buffer, Zel32f* const* dst, int32_t dstShift, int32_t dstStride1,
                                int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmQRDecomp_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* buffer,
                                Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                                int32_t count);
ZelStatus zelmQRDecomp_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                              Zel64f* buffer, Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                              int32_t width, int32_t height, int32_t count);
ZelStatus zelmQRDecomp_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                Zel64f* buffer, Zel64f* const* dst, int32_t dstShift, int32_t dstStride1,
                                int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmQRDecomp_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* buffer,
                                Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width, int32_t height,
                                int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmQRBackSubst QRBackSubst, solution from a QR decomposition
 *
 * Solves linear systems, for matrices with more rows than columns in the least-squares sense, from what QRDecomp left
 * in dst; A is the matrix that was factorised.
 *
 * Arguments. src1 is dst of QRDecomp, with height rows of width elements. src2 has height elements, dst has width. In
 * the list layout of mva the one matrix is passed as in the standard layout.
 *
 * buffer is scratch of height elements of the function's type, for one object, whatever the count; what it holds before
 * and after has no meaning. Strides and shifts are in bytes.
 *
 * Tests. A null pointer (buffer included) gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or
 * height below 1 zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift
 * below 0 or not a multiple of the element size zelStatusBadShift, and last a width greater than height
 * zelStatusSizeMismatch, tested in this order as far as the form has them.
 *
 * In place. dst may be src2 with the same strides (the same list and shift), in every form and layout.
 *
 * Failure. Nothing fails once the tests have passed: a zero on the diagonal of R gives infinities or NaN and
 * zelStatusOk. The result of a decomposition that failed must not be passed.
 *
 * Threads. mv runs on the calling thread. The array forms are spread over threads when width*height + (width +
 * height)*count (mva) or (width*(height + 1) + height)*count (mava), as 32-bit integers that wrap, are at least 2801 in
 * the standard layout, 1801 in the list and pointer layouts; the threads then have scratch of their own and leave
 * buffer alone.
 *
 * Method. The reflections are applied to the right-hand side (Golub 1965), then R is solved backwards with divisions.
 * For square matrices of sides 3 to 6 buffer is not touched.
 *
 * Example:
 *
 * @code
 * Zel32f a[4][2] = {{1, 0}, {1, 1}, {1, 2}, {1, 3}}, b[100][4] = {{1, 3, 5, 7}}, x[100][2], buffer[4];
 * // x[k]: the line through the four values b[k]
 * ZelStatus status = zelmQRDecomp_m_32f(&a[0][0], 8, 4, buffer, &a[0][0], 8, 4, 2, 4);
 * if (status == zelStatusOk)
 *   status = zelmQRBackSubst_mva_32f(&a[0][0], 8, 4, buffer, &b[0][0], 16, 4, &x[0][0], 8, 4, 2, 4, 100);
 * @endcode
 *
 * @{
 */

/** @name QRBackSubst mv: minimises the length of A * dst - src2
 * @{ */
ZelStatus zelmQRBackSubst_mv_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, Zel32f* buffer,
                                 const Zel32f* src2, int32_t src2Stride2, Zel32f* dst, int32_t dstStride2,
                                 int32_t width, int32_t height);
ZelStatus zelmQRBackSubst_mv_32f_P(const Zel32f* const* src1, int32_t src1Shift, Zel32f* buffer,
                                   const Zel32f* const* src2, int32_t src2Shift, Zel32f* const* dst, int32_t dstShift,
                                   int32_t width, int32_t height);
ZelStatus zelmQRBackSubst_mv_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, Zel64f* buffer,
                                 const Zel64f* src2, int32_t src2Stride2, Zel64f* dst, int32_t dstStride2,
                                 int32_t width, int32_t height);
ZelStatus zelmQRBackSubst_mv_64f_P(const Zel64f* const* src1, int32_t src1Shift, Zel64f* buffer,
                                   const Zel64f* const* src2, int32_t src2Shift, Zel64f* const* dst, int32_t dstShift,
                                   int32_t width, int32_t height);
/** @} */

/** @name QRBackSubst mva: minimises the length of A * dst[k] - src2[k]
 * @{ */
ZelStatus zelmQRBackSubst_mva_32f(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, Zel32f* buffer,
                                  const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel32f* dst,
                                  int32_t dstStride0, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmQRBackSubst_mva_32f_L(const Zel32f* src1, int32_t src1Stride1, int32_t src1Stride2, Zel32f* buffer,
                                    const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                                    Zel32f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t width,
                                    int32_t height, int32_t count);
ZelStatus zelmQRBackSubst_mva_32f_P(const Zel32f* const* src1, int32_t src1Shift, Zel32f* buffer,
                                    const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                    Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width,
                                    int32_t height, int32_t count);
ZelStatus zelmQRBackSubst_mva_64f(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, Zel64f* buffer,
                                  const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2, Zel64f* dst,
                                  int32_t dstStride0, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
ZelStatus zelmQRBackSubst_mva_64f_L(const Zel64f* src1, int32_t src1Stride1, int32_t src1Stride2, Zel64f* buffer,
                                    const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride2,
                                    Zel64f* const* dst, int32_t dstShift, int32_t dstStride2, int32_t width,
                                    int32_t height, int32_t count);
ZelStatus zelmQRBackSubst_mva_64f_P(const Zel64f* const* src1, int32_t src1Shift, Zel64f* buffer,
                                    const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                    Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width,
                                    int32_t height, int32_t count);
/** @} */

/** @name QRBackSubst mava: minimises the length of A[k] * dst[k] - src2[k]
 * @{ */
ZelStatus zelmQRBackSubst_mava_32f(const Zel32f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                                   Zel32f* buffer, const Zel32f* src2, int32_t src2Stride0, int32_t src2Stride2,
                                   Zel32f* dst, int32_t dstStride0, int32_t dstStride2, int32_t width, int32_t height,
                                   int32_t count);
ZelStatus zelmQRBackSubst_mava_32f_L(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride1,
                                     int32_t src1Stride2, Zel32f* buffer, const Zel32f* const* src2, int32_t src2Shift,
                                     int32_t src2Stride2, Zel32f* const* dst, int32_t dstShift, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
ZelStatus zelmQRBackSubst_mava_32f_P(const Zel32f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel32f* buffer,
                                     const Zel32f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                     Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width,
                                     int32_t height, int32_t count);
ZelStatus zelmQRBackSubst_mava_64f(const Zel64f* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2,
                                   Zel64f* buffer, const Zel64f* src2, int32_t src2Stride0, int32_t src2Stride2,
                                   Zel64f* dst, int32_t dstStride0, int32_t dstStride2, int32_t width, int32_t height,
                                   int32_t count);
ZelStatus zelmQRBackSubst_mava_64f_L(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride1,
                                     int32_t src1Stride2, Zel64f* buffer, const Zel64f* const* src2, int32_t src2Shift,
                                     int32_t src2Stride2, Zel64f* const* dst, int32_t dstShift, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
ZelStatus zelmQRBackSubst_mava_64f_P(const Zel64f* const* src1, int32_t src1Shift, int32_t src1Stride0, Zel64f* buffer,
                                     const Zel64f* const* src2, int32_t src2Shift, int32_t src2Stride0,
                                     Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t width,
                                     int32_t height, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmInvert Invert, inverse
 *
 * Inverts a square matrix, or each of an array, directly (not by way of LUDecomp).
 *
 * Arguments. src and dst are square with side widthHeight. Strides and shifts are in bytes. buffer is scratch for
 * widthHeight*widthHeight + widthHeight elements, in ma for one matrix in all; it must not be null, though sides 1 and
 * 3 to 6 and calls that are spread over threads do not use it. Its contents afterwards mean nothing.
 *
 * Tests. A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a widthHeight below 1
 * zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a
 * multiple of the element size zelStatusBadShift, tested in this order as far as the form has them.
 *
 * In place. dst may be src with the same strides (the same lists and shift) for sides 1, 3, 4 and 5, and for side 6 in
 * 64f, with any Stride2 other than the element size, and in the pointer layout. Otherwise dst must not overlap src.
 *
 * Failure. zelStatusSingular if the determinant is too small in magnitude. The limit is absolute: 2*n*n*n times the
 * smallest normal number of the type, n being the side; in 64f with unit strides in the standard and list layouts twice
 * that for sides 3 and 4. Scale matrices with small elements: a determinant that underflows makes a regular matrix
 * singular. A determinant of exactly the limit passes for sides 3 to 6 and fails for all others. In 32f with unit
 * strides, sides 5 and 6 test the best pivot of the first row, for side 6 that of the second, and the determinant of
 * the remaining 4 by 4 matrix instead; all other sides but 1, 3 and 4 test each pivot as well. A NaN is singular for
 * side 1 and nowhere else.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it.
 *
 * A failing object leaves its dst untouched, but for sides 5 and 6 in 32f with unit strides, where its first row or two
 * hold anything. For side 4 in 32f, zelmInvert_ma with unit strides, rows of 16 bytes without gaps and everything
 * aligned to 16 bytes works on pairs of objects: if the second of a pair fails, the first is not written either.
 *
 * Threads. m runs on the calling thread, and so does side 1. ma is spread over threads when 2*count*widthHeight, as a
 * 32-bit integer that wraps, is at least 2501; for zelmInvert_ma_32f with unit strides at least 3601.
 *
 * Method. Sides 3 to 6: cofactors and one reciprocal of the determinant, without pivots. Where 32f strides are unit in
 * the standard and list layouts, the reciprocal is the processor's estimate and one step of Newton's method, whose last
 * bits depend on the processor (but zelmInvert_ma_32f divides for side 3), and sides 5 and 6 border the inverse of a 4
 * by 4 block, with pivots from the first row or two. All other sides: one determinant by elimination for each element,
 * which costs the fifth power of the side; elements whose minor is zero come out as tiny numbers, not as zeros. To
 * solve large systems use LUDecomp.
 *
 * Example:
 *
 * @code
 * Zel64f a[100][3][3], buffer[3 * 3 + 3];
 * for (int k = 0; k < 100; ++k)
 *   for (int i = 0; i < 9; ++i)
 *     a[k][i / 3][i % 3] = i % 4 == 0 ? 4 + k : 1;
 * // a[k] = inverse of a[k], in place, 100 matrices of 3 by 3
 * ZelStatus status =
 *     zelmInvert_ma_64f(&a[0][0][0], 72, 24, 8, buffer, &a[0][0][0], 72, 24, 8, 3, 100);
 * @endcode
 *
 * @{
 */

/** @name Invert m: dst = inverse of src
 * @{ */
ZelStatus zelmInvert_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* buffer, Zel32f* dst,
                           int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
ZelStatus zelmInvert_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* buffer, Zel32f* const* dst,
                             int32_t dstShift, int32_t widthHeight);
ZelStatus zelmInvert_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* buffer, Zel64f* dst,
                           int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
ZelStatus zelmInvert_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* buffer, Zel64f* const* dst,
                             int32_t dstShift, int32_t widthHeight);
/** @} */

/** @name Invert ma: dst[k] = inverse of src[k]
 * @{ */
ZelStatus zelmInvert_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                            Zel32f* buffer, Zel32f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                            int32_t widthHeight, int32_t count);
ZelStatus zelmInvert_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                              Zel32f* buffer, Zel32f* const* dst, int32_t dstShift, int32_t dstStride1,
                              int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmInvert_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* buffer,
                              Zel32f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                              int32_t count);
ZelStatus zelmInvert_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                            Zel64f* buffer, Zel64f* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                            int32_t widthHeight, int32_t count);
ZelStatus zelmInvert_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                              Zel64f* buffer, Zel64f* const* dst, int32_t dstShift, int32_t dstStride1,
                              int32_t dstStride2, int32_t widthHeight, int32_t count);
ZelStatus zelmInvert_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* buffer,
                              Zel64f* const* dst, int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                              int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmEigenValuesSym EigenValuesSym, eigenvalues of symmetric matrices
 *
 * Computes the eigenvalues of a symmetric matrix, or of each of an array, in descending order (but see the notes on
 * side 2). It is meant for regular matrices with elements about 1 or more: a singular matrix is a failure.
 *
 * Arguments. src is square with side widthHeight. values gets widthHeight elements an object, without gaps: those of
 * object k begin at element k*widthHeight, in every layout. buffer is scratch for widthHeight*widthHeight elements, in
 * ma for one matrix in all; what it holds before and after has no meaning. Strides and shifts are in bytes.
 *
 * Symmetry is not tested. Side 2 does not look at the element at row 1, column 0; from side 3 on both triangles take
 * part, and what comes out of a matrix that is not symmetric has no meaning.
 *
 * Tests. A null pointer (buffer included) gives zelStatusNullPointer, a widthHeight below 1 zelStatusBadSize, a count
 * below 1 zelStatusBadCount; then a shift below 0 or not a multiple of the element size zelStatusBadShift, a stride
 * below 1 or not a multiple of the element size zelStatusBadStride, tested in this order as far as the form has them.
 *
 * In place. src must not overlap values or buffer.
 *
 * Failure. zelStatusSingular for side 2 if the determinant is at most 2^-23 (32f) or 2^-52 (64f) in magnitude (2^-52
 * also in zelmEigenValuesSym_ma_32f with a Stride2 of 4); values are untouched then. From side 3 on, if the product
 * that stands for the determinant is; values then hold the eigenvalues, not sorted. Side 1 never fails. See the notes.
 *
 * zelStatusNoConvergence if a value takes more than 30 sweeps. A NaN that couples with other elements always ends so.
 * It also happens to ordinary matrices: to about one random matrix in twenty thousand, and to one in a few hundred of
 * those with equal diagonal elements. What is left has no meaning. Such a matrix nearly always converges with its rows
 * and columns in reverse order; in the pointer layout that is the list of src in reverse order.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it. The status does not say which object failed: do the array again
 * object by object, with m, to find it and to go on behind it.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*(widthHeight + 1)*count, as a
 * 32-bit integer that wraps, is at least 1001; the threads then have scratch of their own and leave buffer alone.
 *
 * Method. Side 2 in closed form; from side 3 on Householder reduction to tridiagonal form and implicitly shifted QL or
 * QR iteration (Householder 1958; Bowdler, Martin, Reinsch and Wilkinson 1968), from the end with the smaller diagonal
 * element.
 *
 * Notes. Inputs whose results are poor, and what to do about them:
 * - All limits are absolute: 2^-23 in 32f, 2^-52 in 64f. Off-diagonal elements and columns of that size are taken as
 * zero, from side 3 on also what lies below the subdiagonal of a column that is no longer than 2.4e-4 (32f) or 1.1e-8
 * (64f). Multiply src by a power of two that brings its largest element between 2^10 and 2^20, and divide the values by
 * it: then none of this matters.
 * - The determinant's limit is absolute too: 1e-3 times the unit matrix of side 3 is singular in 32f. Scaling helps
 * here as well; for a matrix that is or may be singular, such as the covariance of points in a plane, add s times the
 * unit matrix with an s that keeps all values away from 0, and subtract s from the values.
 * - If the last diagonal element is at most the first in magnitude, the product that is tested is not that of the
 * values but takes diagonal elements of the iteration more than once: {{1,0,0},{0,0,1},{0,1,0}}, with values 1, 1 and
 * -1, is singular. The values are complete: sort them yourself. And a singular matrix may pass: after
 * {{1,1,1},{1,1,1},{1,1,0}} in 64f the middle value is about 1e-16.
 * - Wrong values with zelStatusOk, from side 3 on: where a rotation leaves a difference within the limit, a step of the
 * iteration is left out. This is rare for measured data (none in 400000 random matrices of side 3, a few for larger
 * sides in 32f), but about 1 in 100 matrices of -1, 0 and 1 meets it, whatever their scale. For the tridiagonal matrix
 * of side 4 with 2 on and -1 beside the diagonal 3.751, 2.498, 1.370 and 0.381 come out instead of 3.618, 2.618, 1.382
 * and 0.382. Where this matters, compare the sum of the squares of the values with the sum of the squares of all
 * elements of src; the sum of the values is right even then. Where the two differ, use the matrix with its rows and
 * columns in reverse order, which is right in nine of ten cases.
 * - Side 2 with a trace below -2^-23 (32f) or -2^-52 (64f) gives the smaller value first: {{-1,0},{0,-3}} gives -3, -1.
 *
 * Example:
 *
 * @code
 * Zel64f a[100][3][3], buffer[3 * 3], values[100][3];
 * for (int k = 0; k < 100; ++k)
 *   for (int i = 0; i < 9; ++i)
 *     a[k][i / 3][i % 3] = i % 4 == 0 ? 1024 + 64 * i + k : 256;
 * // values[k] = eigenvalues of a[k], 100 symmetric matrices of 3 by 3
 * ZelStatus status = zelmEigenValuesSym_ma_64f(&a[0][0][0], 72, 24, 8, buffer, &values[0][0], 3, 100);
 * @endcode
 *
 * @{
 */

/** @name EigenValuesSym m: values = eigenvalues of src
 * @{ */
ZelStatus zelmEigenValuesSym_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* buffer,
                                   Zel32f* values, int32_t widthHeight);
ZelStatus zelmEigenValuesSym_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* buffer, Zel32f* values,
                                     int32_t widthHeight);
ZelStatus zelmEigenValuesSym_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* buffer,
                                   Zel64f* values, int32_t widthHeight);
ZelStatus zelmEigenValuesSym_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* buffer, Zel64f* values,
                                     int32_t widthHeight);
/** @} */

/** @name EigenValuesSym ma: values[k] = eigenvalues of src[k]
 * @{ */
ZelStatus zelmEigenValuesSym_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                                    Zel32f* buffer, Zel32f* values, int32_t widthHeight, int32_t count);
ZelStatus zelmEigenValuesSym_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1,
                                      int32_t srcStride2, Zel32f* buffer, Zel32f* values, int32_t widthHeight,
                                      int32_t count);
ZelStatus zelmEigenValuesSym_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* buffer,
                                      Zel32f* values, int32_t widthHeight, int32_t count);
ZelStatus zelmEigenValuesSym_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                                    Zel64f* buffer, Zel64f* values, int32_t widthHeight, int32_t count);
ZelStatus zelmEigenValuesSym_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1,
                                      int32_t srcStride2, Zel64f* buffer, Zel64f* values, int32_t widthHeight,
                                      int32_t count);
ZelStatus zelmEigenValuesSym_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* buffer,
                                      Zel64f* values, int32_t widthHeight, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmEigenValuesVectorsSym EigenValuesVectorsSym, eigenvalues and eigenvectors of symmetric matrices
 *
 * Computes the eigenvalues of a symmetric matrix, or of each of an array, in descending order (but see the notes on
 * side 2), and orthonormal eigenvectors: column j of vectors belongs to value j.
 *
 * Arguments. src is square with side widthHeight. values gets widthHeight elements an object, without gaps: those of
 * object k begin at element k*widthHeight, in every layout. buffer is scratch for widthHeight*widthHeight elements, in
 * ma for one matrix in all; what it holds before and after has no meaning. Strides and shifts are in bytes. vectors is
 * square like src, in the layout of the form.
 *
 * Symmetry is not tested. Side 2 does not look at the element at row 1, column 0; from side 3 on both triangles take
 * part, and what comes out of a matrix that is not symmetric has no meaning.
 *
 * Tests. A null pointer (buffer included) gives zelStatusNullPointer, a widthHeight below 1 zelStatusBadSize, a count
 * below 1 zelStatusBadCount; then a shift below 0 or not a multiple of the element size zelStatusBadShift, a stride
 * below 1 or not a multiple of the element size zelStatusBadStride, tested in this order as far as the form has them.
 * In the list and pointer layouts of ma the shift and the strides of src are tested before those of vectors.
 *
 * In place. None of src, vectors, values and buffer may overlap another.
 *
 * Failure. zelStatusSingular for side 2 if the determinant is at most 2^-23 (32f) or 2^-52 (64f) in magnitude; vectors
 * and values are untouched then. From side 3 on, if the product of the values is at most that in magnitude, in ma at
 * most 2^-23 for 64f too: there three values of 1e-3 are singular that are not in m. Values and vectors are complete
 * all the same, in m sorted, in ma not sorted. Side 1 never fails.
 *
 * zelStatusNoConvergence if a value takes more than 30 sweeps. A NaN that couples with other elements always ends so.
 * It also happens to ordinary matrices: to about one random matrix in twenty thousand, and to one in a few hundred of
 * those with equal diagonal elements. What is left has no meaning. Such a matrix nearly always converges with its rows
 * and columns in reverse order; in the pointer layout that is the list of src in reverse order. Those of vectors come
 * out in reverse order then, too.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it. The status does not say which object failed: do the array again
 * object by object, with m, to find it and to go on behind it.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*(2*widthHeight + 1)*count, as a
 * 32-bit integer that wraps, is above 700; the threads then have scratch of their own and leave buffer alone.
 *
 * Method. That of EigenValuesSym, with all reflections and rotations applied to the unit matrix. In ma for 32f the
 * product of the values is formed in double precision.
 *
 * Notes. Inputs whose results are poor, and what to do about them:
 * - All limits are absolute: 2^-23 in 32f, 2^-52 in 64f. Off-diagonal elements and columns of that size are taken as
 * zero, from side 3 on also what lies below the subdiagonal of a column that is no longer than 2.4e-4 (32f) or 1.1e-8
 * (64f). Multiply src by a power of two that brings its largest element between 2^10 and 2^20, and divide the values by
 * it: then none of this matters.
 * - From side 3 on a column is taken as tridiagonal if its elements below the subdiagonal are small beside a positive
 * subdiagonal element x: if their length is at most the root of 2^-22*x (32f) or 2^-51*x (64f). In 32f the vectors of
 * {{5,1,3e-4},{1,3,0.5},{3e-4,0.5,2}} are wrong in the fourth digit, the values in the fifth. Scaling up helps down to
 * a length of 3.5e-4*x (32f) or 1.5e-8*x (64f), where rounding says the same; beyond that use 64f, or for values alone
 * EigenValuesSym, which has no such test. zelmEigenValuesVectorsSym_ma_32f_L with every Stride2 equal to 4 has the
 * limit of 64f in this stage.
 * - A matrix that is or may be singular, such as the covariance of points in a plane: in m take what zelStatusSingular
 * leaves; in ma, which stops there, add s times the unit matrix with an s that keeps all values away from 0, and
 * subtract s from the values; the vectors stay the same.
 * - Wrong values with zelStatusOk, from side 3 on: where a rotation leaves a difference within the limit, a step of the
 * iteration is left out. This is rare for measured data (none in 400000 random matrices of side 3, a few for larger
 * sides in 32f), but about 1 in 100 matrices of -1, 0 and 1 meets it, whatever their scale. In 64f the second value of
 * the tridiagonal matrix of side 4 with 2 on and -1 beside the diagonal comes out as 2.630 instead of 2.618, and its
 * vector does not fit. Vectors are orthonormal even then. Where this matters, compare the sum of the squares of the
 * values with the sum of the squares of all elements of src; the sum of the values is right even then. Where the two
 * differ, use the matrix with its rows and columns in reverse order, which is right in nine of ten cases.
 * - Side 2 with a trace below -2^-23 (32f) or -2^-52 (64f) gives the smaller value first, and its vector:
 * {{-1,0},{0,-3}} gives -3, -1. A diagonal matrix of side 2 in descending order gives minus the unit matrix.
 *
 * Example:
 *
 * @code
 * Zel32f a[100][3][3], buffer[3 * 3], axes[100][3][3], values[100][3];
 * for (int k = 0; k < 100; ++k)
 *   for (int i = 0; i < 9; ++i)
 *     a[k][i / 3][i % 3] = i % 4 == 0 ? 1024 + 64 * i + k : 256;
 * // column j of axes[k] = eigenvector of a[k] for values[k][j], 100 symmetric matrices of 3 by 3
 * ZelStatus status = zelmEigenValuesVectorsSym_ma_32f(&a[0][0][0], 36, 12, 4, buffer, &axes[0][0][0], 36, 12, 4,
 *                                                     &values[0][0], 3, 100);
 * @endcode
 *
 * @{
 */

/** @name EigenValuesVectorsSym m: src * vectors = vectors * diagonal matrix of values
 * @{ */
ZelStatus zelmEigenValuesVectorsSym_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* buffer,
                                          Zel32f* vectors, int32_t vectorsStride1, int32_t vectorsStride2,
                                          Zel32f* values, int32_t widthHeight);
ZelStatus zelmEigenValuesVectorsSym_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* buffer,
                                            Zel32f* const* vectors, int32_t vectorsShift, Zel32f* values,
                                            int32_t widthHeight);
ZelStatus zelmEigenValuesVectorsSym_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* buffer,
                                          Zel64f* vectors, int32_t vectorsStride1, int32_t vectorsStride2,
                                          Zel64f* values, int32_t widthHeight);
ZelStatus zelmEigenValuesVectorsSym_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* buffer,
                                            Zel64f* const* vectors, int32_t vectorsShift, Zel64f* values,
                                            int32_t widthHeight);
/** @} */

/** @name EigenValuesVectorsSym ma: src[k] * vectors[k] = vectors[k] * diagonal matrix of values[k]
 * @{ */
ZelStatus zelmEigenValuesVectorsSym_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1,
                                           int32_t srcStride2, Zel32f* buffer, Zel32f* vectors, int32_t vectorsStride0,
                                           int32_t vectorsStride1, int32_t vectorsStride2, Zel32f* values,
                                           int32_t widthHeight, int32_t count);
ZelStatus zelmEigenValuesVectorsSym_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1,
                                             int32_t srcStride2, Zel32f* buffer, Zel32f* const* vectors,
                                             int32_t vectorsShift, int32_t vectorsStride1, int32_t vectorsStride2,
                                             Zel32f* values, int32_t widthHeight, int32_t count);
ZelStatus zelmEigenValuesVectorsSym_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0,
                                             Zel32f* buffer, Zel32f* const* vectors, int32_t vectorsShift,
                                             int32_t vectorsStride0, Zel32f* values, int32_t widthHeight,
                                             int32_t count);
ZelStatus zelmEigenValuesVectorsSym_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1,
                                           int32_t srcStride2, Zel64f* buffer, Zel64f* vectors, int32_t vectorsStride0,
                                           int32_t vectorsStride1, int32_t vectorsStride2, Zel64f* values,
                                           int32_t widthHeight, int32_t count);
ZelStatus zelmEigenValuesVectorsSym_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1,
                                             int32_t srcStride2, Zel64f* buffer, Zel64f* const* vectors,
                                             int32_t vectorsShift, int32_t vectorsStride1, int32_t vectorsStride2,
                                             Zel64f* values, int32_t widthHeight, int32_t count);
ZelStatus zelmEigenValuesVectorsSym_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0,
                                             Zel64f* buffer, Zel64f* const* vectors, int32_t vectorsShift,
                                             int32_t vectorsStride0, Zel64f* values, int32_t widthHeight,
                                             int32_t count);
/** @} */

/** @} */

/**
 * @defgroup zelmEigenValues EigenValues, eigenvalues of general matrices
 *
 * Computes the eigenvalues of a real general square matrix, or of each of an array.
 *
 * Arguments. src has widthHeight rows and columns. The eigenvalues stand where the iteration leaves them; they are not
 * sorted. A real one has the imaginary part +0. A complex pair stands side by side, the positive imaginary part first.
 *
 * valuesRe and valuesIm are plain runs of widthHeight elements for each object, one object behind the other. They may
 * not overlap src or buffer.
 *
 * buffer is scratch for one object, whatever the count, at any byte address; EigenValuesGetBufSize tells how many
 * bytes. What it holds before and after has no meaning. Strides and shifts are in bytes.
 *
 * Tests. A null pointer (buffer included) gives zelStatusNullPointer, a widthHeight below 1 zelStatusBadSize, a count
 * below 1 zelStatusBadCount, tested in this order as far as the form has them. Then, in the standard layout, a stride
 * below 1 or not a multiple of the element size gives zelStatusBadStride; in the list and pointer layouts a shift below
 * 0 or not a multiple of the element size gives zelStatusBadShift, and such a stride zelStatusBadStride, the shift
 * first.
 *
 * In place. src may not overlap the results: an array call reads later objects after it has written earlier ones.
 *
 * Failure. zelStatusNoConvergence if 30 * widthHeight sweeps do not separate all eigenvalues. Those found by then stand
 * at the end of the object's valuesRe and valuesIm, the others are as they were. A singular matrix is not a failure.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*(widthHeight+1)*count, as a 32-bit
 * integer that wraps, is at least 251; the threads then have scratch of their own and leave buffer alone.
 *
 * Method. Reduction to Hessenberg form by reflections (Householder 1958; Wilkinson 1965), double-shift QR iteration
 * (Francis 1961) with exceptional shifts in the 11th and the 21st sweep, standard form of the remaining blocks of two.
 * There is no balancing. All of it works on the transpose of src, which has the same eigenvalues.
 *
 * Notes. - A block of two with equal diagonal elements is reported as a complex pair, also where its other elements
 * have one sign: the matrix {1, 2, 2, 1}, whose eigenvalues are 3 and -1, gives 1 + 2i and 1 - 2i. For symmetric
 * matrices take EigenValuesSym; for others transform first, for instance add row 0 to row 1 and subtract column 1 from
 * column 0, which leaves the eigenvalues and makes the diagonal elements differ.
 * - What is negligible is measured by 2^-23 (32f) or 2^-52 (64f) alone. A matrix that is small as a whole (elements of
 * 1e-9 in 32f) has its values taken from the diagonal of the reduced form, which are wrong. Scale it to elements near 1
 * and the values back, or take EigenValuesVectors, which measures by the diagonal.
 * - Lengths of columns are roots of sums of squares: elements beyond about 1e19 (32f) or 1e154 (64f) overflow, and the
 * result is NaN or zelStatusNoConvergence; below 1e-19 or 1e-154 they count as zero. Scale such matrices to elements
 * near 1 and the values back.
 * - NaN or infinite elements are not looked for: from side 3 on such a matrix usually ends with zelStatusNoConvergence
 * after all its sweeps. With sides 1 and 2 a NaN that the values depend on shows in them; an infinite element may give
 * finite values, and vectors, that mean nothing.
 *
 * Example:
 *
 * @code
 * Zel64f a[100][3][3] = {{{0}}}, re[100][3], im[100][3], buffer[24]; // 3 * (3 + 5) elements
 * for (int k = 0; k < 100; ++k) {
 *   a[k][0][1] = a[k][1][2] = a[k][2][0] = 1; // a rotation, which exchanges the axes
 *   a[k][2][2] = k;
 * }
 * ZelStatus status = zelmEigenValues_ma_64f(&a[0][0][0], 72, 24, 8, &re[0][0], &im[0][0], 3, 100, buffer);
 * @endcode
 *
 * @{
 */

/** @name EigenValues m: valuesRe + i * valuesIm = eigenvalues of src
 * @{ */
ZelStatus zelmEigenValues_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* valuesRe,
                                Zel32f* valuesIm, int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValues_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* valuesRe, Zel32f* valuesIm,
                                  int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValues_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* valuesRe,
                                Zel64f* valuesIm, int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValues_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* valuesRe, Zel64f* valuesIm,
                                  int32_t widthHeight, void* buffer);
/** @} */

/** @name EigenValues ma: valuesRe[k] + i * valuesIm[k] = eigenvalues of src[k]
 * @{ */
ZelStatus zelmEigenValues_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                                 Zel32f* valuesRe, Zel32f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValues_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                   Zel32f* valuesRe, Zel32f* valuesIm, int32_t widthHeight, int32_t count,
                                   void* buffer);
ZelStatus zelmEigenValues_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0, Zel32f* valuesRe,
                                   Zel32f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValues_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                                 Zel64f* valuesRe, Zel64f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValues_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1, int32_t srcStride2,
                                   Zel64f* valuesRe, Zel64f* valuesIm, int32_t widthHeight, int32_t count,
                                   void* buffer);
ZelStatus zelmEigenValues_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0, Zel64f* valuesRe,
                                   Zel64f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
/** @} */

/** @} */

/**
 * @defgroup zelmEigenValuesVectors EigenValuesVectors, eigenvalues and both kinds of eigenvectors
 *
 * Computes the eigenvalues and right and left eigenvectors of a real general square matrix, or of each of an array.
 * Mind what right and left mean here: the functions work on the transpose of src. For column-major data whose columns
 * are passed as rows the names have their usual meaning.
 *
 * Arguments. src has widthHeight rows and columns, and so have vectorsRight and vectorsLeft. With the complex columns
 * written out, vectorsRight holds x with transpose(x) * src = value * transpose(x), vectorsLeft holds y with src * y =
 * conj(value) * y: what is usually called a right vector of src is the conjugate of that.
 *
 * Column j belongs to value j and has the length 1. A complex pair (j, j + 1) has the real part of the vector of value
 * j in column j and its imaginary part in column j + 1, the length of both together being 1 and the largest component
 * real up to rounding; the vector of the other value is the conjugate.
 *
 * The eigenvalues stand where the iteration leaves them; they are not sorted. A real one has the imaginary part +0. A
 * complex pair stands side by side, the positive imaginary part first.
 *
 * valuesRe and valuesIm are plain runs of widthHeight elements for each object, one object behind the other. They may
 * not overlap src or buffer.
 *
 * buffer is scratch for one object, whatever the count, at any byte address; EigenValuesVectorsGetBufSize tells how
 * many bytes. What it holds before and after has no meaning. Strides and shifts are in bytes.
 *
 * Tests. A null pointer (buffer included) gives zelStatusNullPointer, a widthHeight below 1 zelStatusBadSize, a count
 * below 1 zelStatusBadCount, tested in this order as far as the form has them. Then, in the standard layout, a stride
 * below 1 or not a multiple of the element size gives zelStatusBadStride; in the list and pointer layouts a shift below
 * 0 or not a multiple of the element size gives zelStatusBadShift, and such a stride zelStatusBadStride, the shift
 * first: those of src, then those of the vectors.
 *
 * In place. src may not overlap the results: an array call reads later objects after it has written earlier ones.
 *
 * Failure. zelStatusNoConvergence if 30 * widthHeight sweeps do not separate all eigenvalues. Those found by then stand
 * at the end of the object's valuesRe and valuesIm, the others are as they were. A singular matrix is not a failure.
 *
 * zelStatusFailed if, on the way to a pair's vector, all coefficients of a block of two are negligible beside the
 * eigenvalue; known for values whose parts overflow when added. If that happened on the way to a real vector, the call
 * would end with zelStatusOk; no finite input is known to do it. The values are complete then.
 *
 * In all these cases the vectors of the object are as they were: they are written at the very end.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*(3*widthHeight+1)*count, as a
 * 32-bit integer that wraps, is at least 501; the threads then have scratch of their own and leave buffer alone.
 *
 * Method. Reduction to Hessenberg form by reflections (Householder 1958; Wilkinson 1965), double-shift QR iteration
 * (Francis 1961) with exceptional shifts in the 11th and the 21st sweep, standard form of the remaining blocks of two.
 * There is no balancing. All of it works on the transpose of src, which has the same eigenvalues.
 *
 * The transformations are accumulated; the vectors of the triangular rest come from substitution with growth control
 * and are transformed back. What is negligible is measured by its neighbours on the diagonal. In 64f the array forms
 * choose their shifts in single precision, the single ones in double: their values may differ in the last places.
 *
 * Notes. - A block of two with equal diagonal elements is reported as a complex pair, also where its other elements
 * have one sign: the matrix {1, 2, 2, 1}, whose eigenvalues are 3 and -1, gives 1 + 2i and 1 - 2i. For symmetric
 * matrices take EigenValuesSym; for others transform first, for instance add row 0 to row 1 and subtract column 1 from
 * column 0, which leaves the eigenvalues and makes the diagonal elements differ. The vectors of such a pair are
 * meaningless.
 * - A matrix whose eigenvalues coincide may have fewer vectors than columns. Then columns come out nearly alike, or as
 * zeros where their squares overflow ({0, 1, 0, 0}), or the second column of a block of two that has lost the element
 * joining its values ({2, 1, -1, 0}) is no eigenvector. Nothing tells: where it matters, multiply by src and compare.
 * - Lengths of columns are roots of sums of squares: elements beyond about 1e19 (32f) or 1e154 (64f) overflow, and the
 * result is NaN or zelStatusNoConvergence; below 1e-19 or 1e-154 they count as zero. Scale such matrices to elements
 * near 1 and the values back. Where shifts are single the bounds of 32f hold in 64f too.
 * - NaN or infinite elements are not looked for: from side 3 on such a matrix usually ends with zelStatusNoConvergence
 * after all its sweeps. With sides 1 and 2 a NaN that the values depend on shows in them; an infinite element may give
 * finite values, and vectors, that mean nothing.
 * - A vector whose sum of squares is below 2^-125 (32f) or 2^-1021 (64f) is not normalised.
 *
 * Example:
 *
 * @code
 * Zel64f a[2][2] = {{1, 1}, {0, 2}}, right[2][2], left[2][2], re[2], im[2], buffer[22]; // 2 * (3 * 2 + 5)
 * ZelStatus status = zelmEigenValuesVectors_m_64f(&a[0][0], 16, 8, &right[0][0], 16, 8, &left[0][0], 16, 8, re, im,
 *                                                 2, buffer);
 * @endcode
 *
 * @{
 */

/** @name EigenValuesVectors m: right and left eigenvectors and eigenvalues of src
 * @{ */
ZelStatus zelmEigenValuesVectors_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* vectorsRight,
                                       int32_t vectorsRightStride1, int32_t vectorsRightStride2, Zel32f* vectorsLeft,
                                       int32_t vectorsLeftStride1, int32_t vectorsLeftStride2, Zel32f* valuesRe,
                                       Zel32f* valuesIm, int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValuesVectors_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* const* vectorsRight,
                                         int32_t vectorsRightShift, Zel32f* const* vectorsLeft,
                                         int32_t vectorsLeftShift, Zel32f* valuesRe, Zel32f* valuesIm,
                                         int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValuesVectors_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* vectorsRight,
                                       int32_t vectorsRightStride1, int32_t vectorsRightStride2, Zel64f* vectorsLeft,
                                       int32_t vectorsLeftStride1, int32_t vectorsLeftStride2, Zel64f* valuesRe,
                                       Zel64f* valuesIm, int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValuesVectors_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* const* vectorsRight,
                                         int32_t vectorsRightShift, Zel64f* const* vectorsLeft,
                                         int32_t vectorsLeftShift, Zel64f* valuesRe, Zel64f* valuesIm,
                                         int32_t widthHeight, void* buffer);
/** @} */

/** @name EigenValuesVectors ma: right and left eigenvectors and eigenvalues of src[k]
 * @{ */
ZelStatus zelmEigenValuesVectors_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                                        Zel32f* vectorsRight, int32_t vectorsRightStride0, int32_t vectorsRightStride1,
                                        int32_t vectorsRightStride2, Zel32f* vectorsLeft, int32_t vectorsLeftStride0,
                                        int32_t vectorsLeftStride1, int32_t vectorsLeftStride2, Zel32f* valuesRe,
                                        Zel32f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectors_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1,
                                          int32_t srcStride2, Zel32f* const* vectorsRight, int32_t vectorsRightShift,
                                          int32_t vectorsRightStride1, int32_t vectorsRightStride2,
                                          Zel32f* const* vectorsLeft, int32_t vectorsLeftShift,
                                          int32_t vectorsLeftStride1, int32_t vectorsLeftStride2, Zel32f* valuesRe,
                                          Zel32f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectors_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0,
                                          Zel32f* const* vectorsRight, int32_t vectorsRightShift,
                                          int32_t vectorsRightStride0, Zel32f* const* vectorsLeft,
                                          int32_t vectorsLeftShift, int32_t vectorsLeftStride0, Zel32f* valuesRe,
                                          Zel32f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectors_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
                                        Zel64f* vectorsRight, int32_t vectorsRightStride0, int32_t vectorsRightStride1,
                                        int32_t vectorsRightStride2, Zel64f* vectorsLeft, int32_t vectorsLeftStride0,
                                        int32_t vectorsLeftStride1, int32_t vectorsLeftStride2, Zel64f* valuesRe,
                                        Zel64f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectors_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1,
                                          int32_t srcStride2, Zel64f* const* vectorsRight, int32_t vectorsRightShift,
                                          int32_t vectorsRightStride1, int32_t vectorsRightStride2,
                                          Zel64f* const* vectorsLeft, int32_t vectorsLeftShift,
                                          int32_t vectorsLeftStride1, int32_t vectorsLeftStride2, Zel64f* valuesRe,
                                          Zel64f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectors_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0,
                                          Zel64f* const* vectorsRight, int32_t vectorsRightShift,
                                          int32_t vectorsRightStride0, Zel64f* const* vectorsLeft,
                                          int32_t vectorsLeftShift, int32_t vectorsLeftStride0, Zel64f* valuesRe,
                                          Zel64f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
/** @} */

/** @} */

/**
 * @defgroup zelmEigenValuesVectorsLeft EigenValuesVectorsLeft, eigenvalues and left eigenvectors
 *
 * Computes the eigenvalues and left eigenvectors of a real general square matrix, or of each of an array. Mind what
 * right and left mean here: the functions work on the transpose of src. For column-major data whose columns are passed
 * as rows the names have their usual meaning.
 *
 * Arguments. src has widthHeight rows and columns, and so has vectors. With the complex columns written out and D the
 * diagonal matrix of the eigenvalues, vectors holds y with src * y = conj(value) * y, which is the left vector of
 * transpose(src): what is usually called a right vector of src is the conjugate of that.
 *
 * Column j belongs to value j and has the length 1. A complex pair (j, j + 1) has the real part of the vector of value
 * j in column j and its imaginary part in column j + 1, the length of both together being 1 and the largest component
 * real up to rounding; the vector of the other value is the conjugate.
 *
 * The eigenvalues stand where the iteration leaves them; they are not sorted. A real one has the imaginary part +0. A
 * complex pair stands side by side, the positive imaginary part first.
 *
 * valuesRe and valuesIm are plain runs of widthHeight elements for each object, one object behind the other. They may
 * not overlap src or buffer.
 *
 * buffer is scratch for one object, whatever the count, at any byte address; EigenValuesVectorsGetBufSize tells how
 * many bytes. What it holds before and after has no meaning. Strides and shifts are in bytes.
 *
 * Tests. A null pointer (buffer included) gives zelStatusNullPointer, a widthHeight below 1 zelStatusBadSize, a count
 * below 1 zelStatusBadCount, tested in this order as far as the form has them. Then, in the standard layout, a stride
 * below 1 or not a multiple of the element size gives zelStatusBadStride; in the list and pointer layouts a shift below
 * 0 or not a multiple of the element size gives zelStatusBadShift, and such a stride zelStatusBadStride, the shift
 * first: those of src, then those of the vectors.
 *
 * In place. src may not overlap the results: an array call reads later objects after it has written earlier ones.
 *
 * Failure. zelStatusNoConvergence if 30 * widthHeight sweeps do not separate all eigenvalues. Those found by then stand
 * at the end of the object's valuesRe and valuesIm, the others are as they were. A singular matrix is not a failure.
 *
 * zelStatusFailed if, on the way to a pair's vector, all coefficients of a block of two are negligible beside the
 * eigenvalue; known for values whose parts overflow when added. If that happened on the way to a real vector, the call
 * would end with zelStatusOk; no finite input is known to do it. The values are complete then.
 *
 * In all these cases the vectors of the object are as they were: they are written at the very end.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*(3*widthHeight+1)*count, as a
 * 32-bit integer that wraps, is at least 501; the threads then have scratch of their own and leave buffer alone.
 *
 * Method. Reduction to Hessenberg form by reflections (Householder 1958; Wilkinson 1965), double-shift QR iteration
 * (Francis 1961) with exceptional shifts in the 11th and the 21st sweep, standard form of the remaining blocks of two.
 * There is no balancing. All of it works on the transpose of src, which has the same eigenvalues.
 *
 * The transformations are accumulated; the vectors of the triangular rest come from substitution with growth control
 * and are transformed back. What is negligible is measured by its neighbours on the diagonal. In 64f the shifts are
 * chosen in single precision.
 *
 * Notes. - A block of two with equal diagonal elements is reported as a complex pair, also where its other elements
 * have one sign: the matrix {1, 2, 2, 1}, whose eigenvalues are 3 and -1, gives 1 + 2i and 1 - 2i. For symmetric
 * matrices take EigenValuesSym; for others transform first, for instance add row 0 to row 1 and subtract column 1 from
 * column 0, which leaves the eigenvalues and makes the diagonal elements differ. The vectors of such a pair are
 * meaningless.
 * - A matrix whose eigenvalues coincide may have fewer vectors than columns. Then columns come out nearly alike, or as
 * zeros where their squares overflow ({0, 1, 0, 0}), or the second column of a block of two that has lost the element
 * joining its values ({2, 1, -1, 0}) is no eigenvector. Nothing tells: where it matters, multiply by src and compare.
 * - Lengths of columns are roots of sums of squares: elements beyond about 1e19 (32f) or 1e154 (64f) overflow, and the
 * result is NaN or zelStatusNoConvergence; below 1e-19 or 1e-154 they count as zero. Scale such matrices to elements
 * near 1 and the values back. With single shifts the bounds of 32f hold in 64f too.
 * - NaN or infinite elements are not looked for: from side 3 on such a matrix usually ends with zelStatusNoConvergence
 * after all its sweeps. With sides 1 and 2 a NaN that the values depend on shows in them; an infinite element may give
 * finite values, and vectors, that mean nothing.
 * - A vector whose sum of squares is below 2^-125 (32f) or 2^-1021 (64f) is not normalised.
 *
 * Example:
 *
 * @code
 * Zel64f a[2][2] = {{1, 1}, {0, 2}}, vectors[2][2], re[2], im[2], buffer[22]; // 2 * (3 * 2 + 5) elements
 * ZelStatus status = zelmEigenValuesVectorsLeft_m_64f(&a[0][0], 16, 8, &vectors[0][0], 16, 8, re, im, 2, buffer);
 * // a * vectors = vectors * diag(re)
 * @endcode
 *
 * @{
 */

/** @name EigenValuesVectorsLeft m: src * vectors = vectors * conj(D)
 * @{ */
ZelStatus zelmEigenValuesVectorsLeft_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* vectors,
                                           int32_t vectorsStride1, int32_t vectorsStride2, Zel32f* valuesRe,
                                           Zel32f* valuesIm, int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValuesVectorsLeft_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* const* vectors,
                                             int32_t vectorsShift, Zel32f* valuesRe, Zel32f* valuesIm,
                                             int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValuesVectorsLeft_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* vectors,
                                           int32_t vectorsStride1, int32_t vectorsStride2, Zel64f* valuesRe,
                                           Zel64f* valuesIm, int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValuesVectorsLeft_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* const* vectors,
                                             int32_t vectorsShift, Zel64f* valuesRe, Zel64f* valuesIm,
                                             int32_t widthHeight, void* buffer);
/** @} */

/** @name EigenValuesVectorsLeft ma: src[k] * vectors[k] = vectors[k] * conj(D[k])
 * @{ */
ZelStatus zelmEigenValuesVectorsLeft_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1,
                                            int32_t srcStride2, Zel32f* vectors, int32_t vectorsStride0,
                                            int32_t vectorsStride1, int32_t vectorsStride2, Zel32f* valuesRe,
                                            Zel32f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectorsLeft_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1,
                                              int32_t srcStride2, Zel32f* const* vectors, int32_t vectorsShift,
                                              int32_t vectorsStride1, int32_t vectorsStride2, Zel32f* valuesRe,
                                              Zel32f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectorsLeft_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0,
                                              Zel32f* const* vectors, int32_t vectorsShift, int32_t vectorsStride0,
                                              Zel32f* valuesRe, Zel32f* valuesIm, int32_t widthHeight, int32_t count,
                                              void* buffer);
ZelStatus zelmEigenValuesVectorsLeft_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1,
                                            int32_t srcStride2, Zel64f* vectors, int32_t vectorsStride0,
                                            int32_t vectorsStride1, int32_t vectorsStride2, Zel64f* valuesRe,
                                            Zel64f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectorsLeft_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1,
                                              int32_t srcStride2, Zel64f* const* vectors, int32_t vectorsShift,
                                              int32_t vectorsStride1, int32_t vectorsStride2, Zel64f* valuesRe,
                                              Zel64f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectorsLeft_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0,
                                              Zel64f* const* vectors, int32_t vectorsShift, int32_t vectorsStride0,
                                              Zel64f* valuesRe, Zel64f* valuesIm, int32_t widthHeight, int32_t count,
                                              void* buffer);
/** @} */

/** @} */

/**
 * @defgroup zelmEigenValuesVectorsRight EigenValuesVectorsRight, eigenvalues and right eigenvectors
 *
 * Computes the eigenvalues and right eigenvectors of a real general square matrix, or of each of an array. Mind what
 * right and left mean here: the functions work on the transpose of src. For column-major data whose columns are passed
 * as rows the names have their usual meaning.
 *
 * Arguments. src has widthHeight rows and columns, and so has vectors. With the complex columns written out and D the
 * diagonal matrix of the eigenvalues, vectors holds x with transpose(x) * src = value * transpose(x), which is the
 * right vector of transpose(src). For src * y = value * y take EigenValuesVectorsLeft.
 *
 * Column j belongs to value j and has the length 1. A complex pair (j, j + 1) has the real part of the vector of value
 * j in column j and its imaginary part in column j + 1, the length of both together being 1 and the largest component
 * real up to rounding; the vector of the other value is the conjugate.
 *
 * The eigenvalues stand where the iteration leaves them; they are not sorted. A real one has the imaginary part +0. A
 * complex pair stands side by side, the positive imaginary part first.
 *
 * valuesRe and valuesIm are plain runs of widthHeight elements for each object, one object behind the other. They may
 * not overlap src or buffer.
 *
 * buffer is scratch for one object, whatever the count, at any byte address; EigenValuesVectorsGetBufSize tells how
 * many bytes. What it holds before and after has no meaning. Strides and shifts are in bytes.
 *
 * Tests. A null pointer (buffer included) gives zelStatusNullPointer, a widthHeight below 1 zelStatusBadSize, a count
 * below 1 zelStatusBadCount, tested in this order as far as the form has them. Then, in the standard layout, a stride
 * below 1 or not a multiple of the element size gives zelStatusBadStride; in the list and pointer layouts a shift below
 * 0 or not a multiple of the element size gives zelStatusBadShift, and such a stride zelStatusBadStride, the shift
 * first: those of src, then those of the vectors.
 *
 * In place. src may not overlap the results: an array call reads later objects after it has written earlier ones.
 *
 * Failure. zelStatusNoConvergence if 30 * widthHeight sweeps do not separate all eigenvalues. Those found by then stand
 * at the end of the object's valuesRe and valuesIm, the others are as they were. A singular matrix is not a failure.
 *
 * zelStatusFailed if, on the way to a pair's vector, all coefficients of a block of two are negligible beside the
 * eigenvalue; known for values whose parts overflow when added. If that happened on the way to a real vector, the call
 * would end with zelStatusOk; no finite input is known to do it. The values are complete then.
 *
 * In all these cases the vectors of the object are as they were: they are written at the very end.
 *
 * On one thread an array call stops at the first object that fails: objects before it are complete, objects behind it
 * are not written; some may have been read. Where n threads are configured and the call is spread over threads, a
 * failure stops only the share, one of n, that met it.
 *
 * Threads. m runs on the calling thread. ma is spread over threads when widthHeight*(3*widthHeight+1)*count, as a
 * 32-bit integer that wraps, is at least 501; the threads then have scratch of their own and leave buffer alone.
 *
 * Method. Reduction to Hessenberg form by reflections (Householder 1958; Wilkinson 1965), double-shift QR iteration
 * (Francis 1961) with exceptional shifts in the 11th and the 21st sweep, standard form of the remaining blocks of two.
 * There is no balancing. All of it works on the transpose of src, which has the same eigenvalues.
 *
 * The transformations are accumulated; the vectors of the triangular rest come from substitution with growth control
 * and are transformed back. What is negligible is measured by its neighbours on the diagonal. In 64f the shifts are
 * chosen in single precision.
 *
 * Notes. - A block of two with equal diagonal elements is reported as a complex pair, also where its other elements
 * have one sign: the matrix {1, 2, 2, 1}, whose eigenvalues are 3 and -1, gives 1 + 2i and 1 - 2i. For symmetric
 * matrices take EigenValuesSym; for others transform first, for instance add row 0 to row 1 and subtract column 1 from
 * column 0, which leaves the eigenvalues and makes the diagonal elements differ. The vectors of such a pair are
 * meaningless.
 * - A matrix whose eigenvalues coincide may have fewer vectors than columns. Then columns come out nearly alike, or as
 * zeros where their squares overflow ({0, 1, 0, 0}), or the second column of a block of two that has lost the element
 * joining its values ({2, 1, -1, 0}) is no eigenvector. Nothing tells: where it matters, multiply by src and compare.
 * - Lengths of columns are roots of sums of squares: elements beyond about 1e19 (32f) or 1e154 (64f) overflow, and the
 * result is NaN or zelStatusNoConvergence; below 1e-19 or 1e-154 they count as zero. Scale such matrices to elements
 * near 1 and the values back. With single shifts the bounds of 32f hold in 64f too.
 * - NaN or infinite elements are not looked for: from side 3 on such a matrix usually ends with zelStatusNoConvergence
 * after all its sweeps. With sides 1 and 2 a NaN that the values depend on shows in them; an infinite element may give
 * finite values, and vectors, that mean nothing.
 * - A vector whose sum of squares is below 2^-125 (32f) or 2^-1021 (64f) is not normalised.
 *
 * Example:
 *
 * @code
 * Zel64f a[2][2] = {{1, 1}, {0, 2}}, vectors[2][2], re[2], im[2], buffer[22]; // 2 * (3 * 2 + 5) elements
 * ZelStatus status = zelmEigenValuesVectorsRight_m_64f(&a[0][0], 16, 8, &vectors[0][0], 16, 8, re, im, 2, buffer);
 * // of value 2 a multiple of (0, 1), of value 1 one of (1, -1)
 * @endcode
 *
 * @{
 */

/** @name EigenValuesVectorsRight m: transpose(vectors) * src = D * transpose(vectors)
 * @{ */
ZelStatus zelmEigenValuesVectorsRight_m_32f(const Zel32f* src, int32_t srcStride1, int32_t srcStride2, Zel32f* vectors,
                                            int32_t vectorsStride1, int32_t vectorsStride2, Zel32f* valuesRe,
                                            Zel32f* valuesIm, int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValuesVectorsRight_m_32f_P(const Zel32f* const* src, int32_t srcShift, Zel32f* const* vectors,
                                              int32_t vectorsShift, Zel32f* valuesRe, Zel32f* valuesIm,
                                              int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValuesVectorsRight_m_64f(const Zel64f* src, int32_t srcStride1, int32_t srcStride2, Zel64f* vectors,
                                            int32_t vectorsStride1, int32_t vectorsStride2, Zel64f* valuesRe,
                                            Zel64f* valuesIm, int32_t widthHeight, void* buffer);
ZelStatus zelmEigenValuesVectorsRight_m_64f_P(const Zel64f* const* src, int32_t srcShift, Zel64f* const* vectors,
                                              int32_t vectorsShift, Zel64f* valuesRe, Zel64f* valuesIm,
                                              int32_t widthHeight, void* buffer);
/** @} */

/** @name EigenValuesVectorsRight ma: transpose(vectors[k]) * src[k] = D[k] * transpose(vectors[k])
 * @{ */
ZelStatus zelmEigenValuesVectorsRight_ma_32f(const Zel32f* src, int32_t srcStride0, int32_t srcStride1,
                                             int32_t srcStride2, Zel32f* vectors, int32_t vectorsStride0,
                                             int32_t vectorsStride1, int32_t vectorsStride2, Zel32f* valuesRe,
                                             Zel32f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectorsRight_ma_32f_L(const Zel32f* const* src, int32_t srcShift, int32_t srcStride1,
                                               int32_t srcStride2, Zel32f* const* vectors, int32_t vectorsShift,
                                               int32_t vectorsStride1, int32_t vectorsStride2, Zel32f* valuesRe,
                                               Zel32f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectorsRight_ma_32f_P(const Zel32f* const* src, int32_t srcShift, int32_t srcStride0,
                                               Zel32f* const* vectors, int32_t vectorsShift, int32_t vectorsStride0,
                                               Zel32f* valuesRe, Zel32f* valuesIm, int32_t widthHeight, int32_t count,
                                               void* buffer);
ZelStatus zelmEigenValuesVectorsRight_ma_64f(const Zel64f* src, int32_t srcStride0, int32_t srcStride1,
                                             int32_t srcStride2, Zel64f* vectors, int32_t vectorsStride0,
                                             int32_t vectorsStride1, int32_t vectorsStride2, Zel64f* valuesRe,
                                             Zel64f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectorsRight_ma_64f_L(const Zel64f* const* src, int32_t srcShift, int32_t srcStride1,
                                               int32_t srcStride2, Zel64f* const* vectors, int32_t vectorsShift,
                                               int32_t vectorsStride1, int32_t vectorsStride2, Zel64f* valuesRe,
                                               Zel64f* valuesIm, int32_t widthHeight, int32_t count, void* buffer);
ZelStatus zelmEigenValuesVectorsRight_ma_64f_P(const Zel64f* const* src, int32_t srcShift, int32_t srcStride0,
                                               Zel64f* const* vectors, int32_t vectorsShift, int32_t vectorsStride0,
                                               Zel64f* valuesRe, Zel64f* valuesIm, int32_t widthHeight, int32_t count,
                                               void* buffer);
/** @} */

/** @} */

/**
 * @defgroup zelmEigenValuesGetBufSize EigenValuesGetBufSize, the size of a work buffer
 *
 * Tells how many bytes the buffer of EigenValues has to have.
 *
 * Arguments. size receives the number of bytes, as a 32-bit integer that wraps. The buffer serves one object at a time,
 * so one is enough for any count.
 *
 * Tests. A null size gives zelStatusNullPointer, then a widthHeight below 1 zelStatusBadSize.
 *
 * Failure. After a failed test *size is as it was.
 *
 * Threads. The calling thread does it.
 *
 * Example:
 *
 * @code
 * int32_t size = 0;
 * ZelStatus status = zelmEigenValuesGetBufSize_64f(4, &size);
 * @endcode
 *
 * @{
 */

/** @name EigenValuesGetBufSize: *size = widthHeight * (widthHeight + 5) * the element size
 * @{ */
ZelStatus zelmEigenValuesGetBufSize_32f(int32_t widthHeight, int32_t* size);
ZelStatus zelmEigenValuesGetBufSize_64f(int32_t widthHeight, int32_t* size);
/** @} */

/** @} */

/**
 * @defgroup zelmEigenValuesVectorsGetBufSize EigenValuesVectorsGetBufSize, the size of a work buffer
 *
 * Tells how many bytes the buffer of EigenValuesVectors, EigenValuesVectorsLeft and EigenValuesVectorsRight has to
 * have.
 *
 * Arguments. size receives the number of bytes, as a 32-bit integer that wraps. The buffer serves one object at a time,
 * so one is enough for any count.
 *
 * Tests. A null size gives zelStatusNullPointer, then a widthHeight below 1 zelStatusBadSize.
 *
 * Failure. After a failed test *size is as it was.
 *
 * Threads. The calling thread does it.
 *
 * Example:
 *
 * @code
 * int32_t size = 0;
 * ZelStatus status = zelmEigenValuesVectorsGetBufSize_64f(4, &size);
 * @endcode
 *
 * @{
 */

/** @name EigenValuesVectorsGetBufSize: *size = widthHeight * (3 * widthHeight + 5) * the element size
 * @{ */
ZelStatus zelmEigenValuesVectorsGetBufSize_32f(int32_t widthHeight, int32_t* size);
ZelStatus zelmEigenValuesVectorsGetBufSize_64f(int32_t widthHeight, int32_t* size);
/** @} */

/** @} */

#if defined(__GNUC__)
#  pragma GCC visibility pop
#endif

#ifdef __cplusplus
}
#endif

#endif
