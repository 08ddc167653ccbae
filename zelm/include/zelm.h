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
 * elements lie apart. Calls with every Stride2 equal to the element size are the fast ones.
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
 * XStride0. Sources come first, then the result, then sizes, then count.
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
 * same call gives the same bits on every processor. NaN results are NaN; their sign and payload are not defined.
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
 * then differ in the last bits. Other sizes, and some functions of the list layout at all sizes, start from +0.0, which
 * shows only where every product is -0.0.
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
 * are not written; some may have been read. On several threads a failure stops only the share of the thread that met
 * it.
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
 * are not written; some may have been read. On several threads a failure stops only the share of the thread that met
 * it.
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
 * are not written; some may have been read. On several threads a failure stops only the share of the thread that met
 * it.
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

#if defined(__GNUC__)
#  pragma GCC visibility pop
#endif

#ifdef __cplusplus
}
#endif

#endif
