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

#if defined(__GNUC__)
#  pragma GCC visibility pop
#endif

#ifdef __cplusplus
}
#endif

#endif
