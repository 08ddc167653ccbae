"""The texts of the public header and the man pages. interface.py puts them together.

A paragraph that begins with two blanks is shown as it stands (code, formulas); lines that begin with "- " are a list.
"""

HEADER_TOP = """\
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
"""

HEADER_TYPES = """\
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

/** The version record of the library: constant, owned by the library, the same at every call. Never fails. */"""

HEADER_BOTTOM = """\
#if defined(__GNUC__)
#  pragma GCC visibility pop
#endif

#ifdef __cplusplus
}
#endif

#endif
"""

VERSION = [
    "Returns the constant version record. It belongs to the library, is the same at every call, and is neither changed\n"
    "nor freed by the caller. The function takes no arguments, cannot fail, and may be called from any thread.",
]

OVERVIEW = [
    "The library works on very many tiny matrices and vectors: sizes 3, 4, 5 and 6 above all, other sizes as well. A\n"
    "call does the same thing to one object, or to an array of count objects independently of each other. Functions\n"
    "take plain pointers and integers, return a status and print nothing; the library keeps no state and needs no\n"
    "initialisation, and every function may be called from any thread at any time.",

    "Names. A function is named zelm, the family, the operands, the element type and the layout, as in\n"
    "zelmAdd_mam_32f_L. The operands are the letters of the sources in their order:",

    "  m   matrix                        ma  array of count matrices\n"
    "  t   matrix read transposed        ta  array of these\n"
    "  v   vector                        va  array of vectors\n"
    "  c   constant                      ca  array of constants",

    "So mam is an array of matrices with one matrix, which is used again with every object of the array. The result is\n"
    "an array if any source is one. 32f is Zel32f, 64f is Zel64f. The layout is the standard layout, the list layout\n"
    "(_L) or the pointer layout (_P), and is that of all operands of the call.",

    "Units. Every stride and every shift is a number of BYTES, and a multiple of the element size (4 for 32f, 8 for\n"
    "64f). Strides are at least 1, shifts at least 0. Sizes and count are numbers of elements and objects, at least 1.\n"
    "width is the number of columns, height the number of rows.",

    "Strides. Stride0 leads from one object of an array to the next, Stride1 from one row of a matrix to the next,\n"
    "Stride2 from one element of a row or vector to the next. They may stand in any order: rows may be padded or\n"
    "interleaved, and elements lie apart. Calls with every Stride2 equal to the element size are the fast ones.",

    "Layouts. X is the operand's argument, k the object, i the row, j the column (of a vector, the element), all from\n"
    "0; XShift, XStride0, XStride1, XStride2 are the arguments behind it. All arithmetic is in bytes.",

    "  standard layout: X is the address of element (0,0) of object 0\n"
    "    m, ma   X + k*XStride0 + i*XStride1 + j*XStride2\n"
    "    t, ta   X + k*XStride0 + j*XStride1 + i*XStride2\n"
    "    v, va   X + k*XStride0 + j*XStride2\n"
    "    ca      X + k*XStride0\n"
    "\n"
    "  list layout: X is a list of count addresses, one for each object\n"
    "    ma      X[k] + XShift + i*XStride1 + j*XStride2\n"
    "    ta      X[k] + XShift + j*XStride1 + i*XStride2\n"
    "    va      X[k] + XShift + j*XStride2\n"
    "    ca      X[k] + XShift\n"
    "    m, t, v as in the standard layout: a single operand has no list and no shift\n"
    "\n"
    "  pointer layout: X is a list of addresses, one for each element of an object; the list of a matrix\n"
    "  has width*height entries, row after row as stored, that of a vector len entries\n"
    "    m, ma   X[i*width + j] + XShift + k*XStride0\n"
    "    t, ta   X[j*height + i] + XShift + k*XStride0\n"
    "    v, va   X[j] + XShift + k*XStride0\n"
    "    ca      X + k*XStride0, as in the standard layout",

    "A single operand has no Stride0, and its k is 0. Where width and height belong to the result (element-wise\n"
    "families), a t operand is stored with width rows of height elements; where an operand has its own size pair (the\n"
    "products), the pair describes the operand as it is stored.",

    "Arguments. Each operand is followed by its shift and strides in the order above: with ma in the standard layout X,\n"
    "XStride0, XStride1, XStride2; in the list layout X, XShift, XStride1, XStride2; in the pointer layout X, XShift,\n"
    "XStride0. Sources come first, then the result, then sizes, then count.",

    "Status. A call tests its arguments before it does anything; the first test that fails gives the status, and\n"
    "nothing has been read or written but the arguments themselves. What list entries point to is not tested. Only\n"
    "elements of results are written, never padding between them.",

    "Threads. Arrays whose work passes a limit are spread over OpenMP threads, one contiguous share of the objects for\n"
    "each; OMP_NUM_THREADS and omp_set_num_threads rule how many. The number of threads changes no result of a call\n"
    "that succeeds. Objects of one result must not overlap. A result that overlaps a source is undefined but where a\n"
    "family says otherwise.",

    "Numbers. Every operation is rounded once in the element type but where a family says otherwise, products and sums are\n"
    "not fused. The library leaves the rounding and denormal modes alone and is meant for those of a fresh thread. The same call gives the same bits on every\n"
    "processor. NaN results are NaN; their sign and payload are not defined.",
]

SECTIONS = [
    ("Arguments", "shapes"), ("Tests", "tests"), ("In place", "inplace"), ("Failure", "failure"),
    ("Threads", "threads"), ("Method", "method"), ("Notes", "notes"), ("Example", "example"),
]

NO_FAILURE = "Once the tests have passed nothing can fail, and the function returns zelStatusOk."

PRODUCT_FORMS = {
    "mm": "dst = src1 * src2",
    "mt": "dst = src1 * transpose(src2)",
    "tm": "dst = transpose(src1) * src2",
    "tt": "dst = transpose(src1) * transpose(src2)",
}


def product_forms():
    """The twelve array forms besides: an a behind a letter is an index [k] behind its operand."""
    forms = dict(PRODUCT_FORMS)
    for first, second in (("a", ""), ("", "a"), ("a", "a")):
        for form, formula in PRODUCT_FORMS.items():
            formula = formula.replace("dst", "dst[k]")
            formula = formula.replace("src1", "src1[k]") if first else formula
            formula = formula.replace("src2", "src2[k]") if second else formula
            forms[form[0] + first + form[1] + second] = formula
    return forms


GROUPS = {}

GROUPS["AddMatrices"] = {
    "title": "Add on matrices",
    "forms": {
        "mm": "dst(i,j) = src1(i,j) + src2(i,j)",
        "tm": "dst(i,j) = src1(j,i) + src2(i,j)",
        "tt": "dst(i,j) = src1(j,i) + src2(j,i)",
        "mam": "dst[k](i,j) = src1[k](i,j) + src2(i,j)",
        "mat": "dst[k](i,j) = src1[k](i,j) + src2(j,i)",
        "tam": "dst[k](i,j) = src1[k](j,i) + src2(i,j)",
        "tat": "dst[k](i,j) = src1[k](j,i) + src2(j,i)",
        "mama": "dst[k](i,j) = src1[k](i,j) + src2[k](i,j)",
        "tama": "dst[k](i,j) = src1[k](j,i) + src2[k](i,j)",
        "tata": "dst[k](i,j) = src1[k](j,i) + src2[k](j,i)",
    },
    "what": [
        "The sum of two matrices, either of which may be read transposed, or of arrays of these. The forms that are\n"
        "missing (mt, mma and so on) are had by exchanging the sources.",
    ],
    "shapes": [
        "width and height are those of the result: dst and an m source have height rows of width elements, a t source is\n"
        "stored as width rows of height elements. Strides and shifts are in bytes.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or height below 1\n"
        "zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or\n"
        "not a multiple of the element size zelStatusBadShift. They are tested in this order, as far as the form has\n"
        "them, with one exception: zelmAdd_mam_32f and zelmAdd_mam_64f (standard layout only) test pointers, count,\n"
        "strides, and the sizes last.",
    ],
    "inplace": [
        "dst may be the m source of a single form or the ma source of an array form, with the same strides (and the same\n"
        "list and shift). It must not overlap a t source, nor the single source of an array form.",
    ],
    "failure": [NO_FAILURE],
    "threads": [
        "The single forms run on the calling thread. An array form is spread over threads when width*height*(2*count + 1)\n"
        "(mam, mat, tam, tat) or 3*width*height*count (mama, tama, tata), as a 32-bit integer that wraps, is at least\n"
        "2000; in the standard layout of 32f with every Stride2 equal to 4, when it is at least 3000.",
    ],
    "example": [
        "  Zel32f batch[100][3][3] = {{{1}}}, offset[3][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};",
        "  // batch[k] = batch[k] + offset for 100 matrices of 3 by 3",
        "  ZelStatus status = zelmAdd_mam_32f(&batch[0][0][0], 36, 12, 4, &offset[0][0], 12, 4,",
        "                                     &batch[0][0][0], 36, 12, 4, 3, 3, 100);",
    ],
}

GROUPS["MulConstants"] = {
    "title": "Mul by a constant",
    "forms": {
        "mc": "dst(i,j) = src(i,j) * val",
        "tc": "dst(i,j) = src(j,i) * val",
        "vc": "dst(j) = src(j) * val",
        "mac": "dst[k](i,j) = src[k](i,j) * val",
        "tac": "dst[k](i,j) = src[k](j,i) * val",
        "vac": "dst[k](j) = src[k](j) * val",
        "vca": "dst[k](j) = src(j) * val[k]",
        "vaca": "dst[k](j) = src[k](j) * val[k]",
    },
    "what": ["A matrix or a vector, or an array of these, times a constant or an array of constants."],
    "shapes": [
        "width and height, or len, are those of the result: a t source is stored as width rows of height elements. val is\n"
        "the value itself, or in vca and vaca an array of constants with its stride or, in the list layout, shift; in the\n"
        "pointer layout val is a plain run with valStride0. Strides and shifts are in bytes.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a size below 1 zelStatusBadSize, a\n"
        "stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the\n"
        "element size zelStatusBadShift, tested in this order as far as the form has them.",
    ],
    "inplace": ["dst may be an m, ma, v or va source with the same strides, but not the single vector of vca, nor a t source."],
    "failure": [NO_FAILURE],
    "threads": [
        "The single forms run on the calling thread. An array form is spread over threads when its work is above a limit;\n"
        "the work, as a 32-bit integer that wraps, is 2*width*height*count for mac and tac, 2*len*count for vac,\n"
        "len*count + len + count for vca, count*(2*len + 1) for vaca. The limits, unit meaning that every Stride2 of src\n"
        "and dst is the element size:",
        "              standard, unit    any    list, unit    any    pointer\n"
        "  mac tac 32f           3500   3500          3500   1500       1700\n"
        "  mac tac 64f           3500   3500          3500   3500       1700\n"
        "  vac     32f           2500   1440          3600   1440       1440\n"
        "  vac     64f           3600   1440          3600   1440       1440\n"
        "  vca vaca              2100   2100          1200   1200        650",
    ],
    "example": [
        "  Zel32f points[100][3] = {{1, 2, 3}}, weights[100] = {0.5f};",
        "  // points[k] = points[k] * weights[k]",
        "  ZelStatus status = zelmMul_vaca_32f(&points[0][0], 12, 4, weights, 4, &points[0][0], 12, 4, 3, 100);",
    ],
}

GROUPS["MulMatrices"] = {
    "title": "Mul, matrix by matrix",
    "forms": product_forms(),
    "what": ["The product of two matrices, either of which may be read transposed, or of arrays of these."],
    "shapes": [
        "src1Width, src1Height, src2Width, src2Height describe the sources as they are stored, t sources too. dst has no\n"
        "sizes of its own. Strides and shifts are in bytes. With [k] left out:",
        "        must be equal            rows of dst   columns of dst\n"
        "  mm    src1Width, src2Height    src1Height    src2Width\n"
        "  mt    src1Width, src2Width     src1Height    src2Height\n"
        "  tm    src1Height, src2Height   src1Width     src2Width\n"
        "  tt    src1Height, src2Width    src1Width     src2Height",
        "In the pointer layout the list of a source runs through its stored rows, and that of dst through the rows of the\n"
        "result.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a size below 1 zelStatusBadSize,\n"
        "sizes that do not agree zelStatusSizeMismatch, a stride below 1 or not a multiple of the element size\n"
        "zelStatusBadStride, a shift below 0 or not a multiple of the element size zelStatusBadShift, tested in this order\n"
        "as far as the form has them.",
    ],
    "inplace": ["Not supported: dst must not overlap a source."],
    "failure": [NO_FAILURE],
    "threads": [
        "The single forms run on the calling thread. An array form is spread over threads when the number of elements that\n"
        "it touches (those of a single source counted once, all others count times; a 32-bit integer that wraps) is above\n"
        "1440; where every Stride2 is the element size, above 3600, or 2500 in the standard layout of 32f.",
    ],
    "notes": [
        "Each element of the result is one sum of rounded products in ascending order of the inner index, in the element\n"
        "type, not fused. Where a function has code of its own for a size (3 to 6, but not all of them in every function and\n"
        "layout), sums start from the first product, otherwise from +0.0, which shows only where every product is -0.0.",
        "Two combinations read and write beyond the sizes that they were given. zelmMul_mm_32f_P and zelmMul_tt_64f_P, when\n"
        "all four sizes are at most 3 and either one of them is 3 or both 1 and 2 are among them, work as if all were 3: the\n"
        "lists need nine entries each. zelmMul_mat_32f with every Stride2 equal to 4, src1 4 by 4 and src2Height 3 reads a\n"
        "fourth row of src2 and writes a fourth column of dst.",
    ],
    "example": [
        "  Zel64f turns[100][3][3] = {{{1}}}, frame[3][3] = {{1, 0, 0}, {0, 0, -1}, {0, 1, 0}}, result[100][3][3];",
        "  // result[k] = turns[k] * transpose(frame)",
        "  ZelStatus status = zelmMul_mat_64f(&turns[0][0][0], 72, 24, 8, 3, 3, &frame[0][0], 24, 8, 3, 3,",
        "                                     &result[0][0][0], 72, 24, 8, 100);",
    ],
}

GROUPS["MulVectors"] = {
    "title": "Mul, matrix by vector",
    "forms": {
        "mv": "dst = src1 * src2",
        "tv": "dst = transpose(src1) * src2",
        "mav": "dst[k] = src1[k] * src2",
        "tav": "dst[k] = transpose(src1[k]) * src2",
        "mva": "dst[k] = src1 * src2[k]",
        "tva": "dst[k] = transpose(src1) * src2[k]",
        "mava": "dst[k] = src1[k] * src2[k]",
        "tava": "dst[k] = transpose(src1[k]) * src2[k]",
    },
    "what": ["The product of a matrix, which may be read transposed, and a vector, or of arrays of these."],
    "shapes": [
        "src1Width and src1Height describe the matrix as it is stored. In the m forms src1Width and src2Len must be equal\n"
        "and dst has src1Height elements; in the t forms src1Height and src2Len must be equal and dst has src1Width\n"
        "elements. Strides and shifts are in bytes.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a size below 1 zelStatusBadSize,\n"
        "sizes that do not agree zelStatusSizeMismatch, a stride below 1 or not a multiple of the element size\n"
        "zelStatusBadStride, a shift below 0 or not a multiple of the element size zelStatusBadShift, tested in this order\n"
        "as far as the form has them.",
    ],
    "inplace": ["Not supported: dst must not overlap a source."],
    "failure": [NO_FAILURE],
    "threads": [
        "The single forms run on the calling thread. An array form is spread over threads when the number of elements that\n"
        "it touches (those of a single source counted once, all others count times; a 32-bit integer that wraps) is above\n"
        "1440; where every Stride2 is the element size, above 3600, or 2500 in the standard layout of 32f.",
    ],
    "notes": [
        "Sums are in the element type, of rounded products, not fused. For square matrices of sides 4 to 6 the order of\n"
        "the additions differs between forms, types and layouts, and between calls with and without unit strides; results\n"
        "may then differ in the last bits. Other sizes, and some functions of the list layout at all sizes, start from +0.0,\n"
        "which shows only where every product is -0.0.",
    ],
    "example": [
        "  Zel32f matrix[4][4] = {{1, 0, 0, 2}, {0, 1, 0, 3}, {0, 0, 1, 4}, {0, 0, 0, 1}}, points[100][4] = {{1, 2, 3, 1}};",
        "  Zel32f moved[100][4];",
        "  // moved[k] = matrix * points[k]",
        "  ZelStatus status = zelmMul_mva_32f(&matrix[0][0], 16, 4, 4, 4, &points[0][0], 16, 4, 4, &moved[0][0], 16, 4, 100);",
    ],
}

GROUPS["Gaxpy"] = {
    "title": "Gaxpy, matrix by vector plus vector",
    "forms": {
        "mv": "dst = src1 * src2 + src3",
        "mva": "dst[k] = src1 * src2[k] + src3[k]",
        "mvav": "dst[k] = src1 * src2[k] + src3",
    },
    "what": ["The product of a matrix and a vector, plus a vector, for one vector or arrays of vectors. The matrix is single."],
    "shapes": [
        "src1Width and src2Len must be equal, and src1Height and src3Len; dst has src1Height elements. Strides and shifts\n"
        "are in bytes.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a size below 1 zelStatusBadSize,\n"
        "sizes that do not agree zelStatusSizeMismatch, a stride below 1 or not a multiple of the element size\n"
        "zelStatusBadStride, a shift below 0 or not a multiple of the element size zelStatusBadShift, tested in this order\n"
        "as far as the form has them.",
    ],
    "inplace": ["Not supported: dst must not overlap a source."],
    "failure": [NO_FAILURE],
    "threads": [
        "mv runs on the calling thread. An array form is spread over threads when its work is above a limit; the work, as a\n"
        "32-bit integer that wraps, is (2*src3Len + src2Len)*count for mva and (src2Len + src3Len)*count + src3Len for\n"
        "mvav. The limits, unit meaning that every Stride2 is the element size:",
        "        standard, unit    any    list, unit    any    pointer\n"
        "  32f             7000   5000          7000    500       4500\n"
        "  64f             5000   5000          6000   5000       7000",
    ],
    "notes": [
        "Sums are in the element type, of rounded products, not fused; src3 is added last. For square matrices of sides 4\n"
        "to 6 the order of the additions differs between types, layouts and stride paths.",
    ],
    "method": ["The generalised saxpy of Golub and Van Loan, Matrix Computations (1983)."],
    "example": [
        "  Zel32f matrix[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}, points[100][3] = {{1, 2, 3}}, offset[3] = {1, 1, 1};",
        "  Zel32f moved[100][3];",
        "  // moved[k] = matrix * points[k] + offset",
        "  ZelStatus status = zelmGaxpy_mvav_32f(&matrix[0][0], 12, 4, 3, 3, &points[0][0], 12, 4, 3, offset, 4, 3,",
        "                                        &moved[0][0], 12, 4, 100);",
    ],
}

GROUPS["AffineTransform3DH"] = {
    "title": "AffineTransform3DH, points through a homogeneous matrix",
    "forms": {"mva": "dst[k] = (y0, y1, y2) / y3 with y = src1 * (src2[k], 1)"},
    "what": [
        "Moves an array of points through one 4 by 4 homogeneous matrix and divides by the fourth coordinate. There is one\n"
        "function, for 32f in the standard layout.",
    ],
    "shapes": [
        "src1 is a matrix of 4 by 4, src2 and dst are arrays of vectors of 3 elements; there are no size arguments.\n"
        "Strides are in bytes.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a stride below 1 or not a multiple\n"
        "of 4 zelStatusBadStride, tested in this order.",
    ],
    "inplace": ["dst must not overlap a source."],
    "failure": [
        "A point whose fourth coordinate is not greater in magnitude than the smallest normal 32f number (1.17549435e-38),\n"
        "NaN included, gets the largest finite 32f number in all three elements, and the call returns\n"
        "zelStatusDivideByZero; all other points are transformed. Which points failed is not recorded elsewhere.",
    ],
    "threads": ["The call is spread over threads when 6*count + 16, as a 32-bit integer that wraps, is above 800 (a count of 131)."],
    "notes": [
        "A row's sum is ((a0*x0 + a3) + a1*x1) + a2*x2, in 32f; the three coordinates are multiplied by the rounded\n"
        "reciprocal of the fourth.",
    ],
    "example": [
        "  Zel32f matrix[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 1, 2}}, points[100][3] = {{1, 2, 3}};",
        "  Zel32f moved[100][3];",
        "  ZelStatus status = zelmAffineTransform3DH_mva_32f(&matrix[0][0], 16, 4, &points[0][0], 12, 4,",
        "                                                    &moved[0][0], 12, 4, 100);",
    ],
}

SQUARE_TESTS = (
    "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a widthHeight below 1\n"
    "zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or\n"
    "not a multiple of the element size zelStatusBadShift, tested in this order as far as the form has them"
)
STOPS = (
    "On one thread an array call stops at the first object that fails: objects before it are complete, objects behind\n"
    "it are not written; some may have been read. On several threads a failure stops only the share of the thread that\n"
    "met it."
)
SOLVE_FORMS = {
    "mv": "solves A * dst = src2",
    "mva": "solves A * dst[k] = src2[k]",
    "mava": "solves A[k] * dst[k] = src2[k]",
}

GROUPS["LUDecomp"] = {
    "title": "LUDecomp, LU decomposition with row pivoting",
    "forms": {
        "m": "src = P * L * U, into index and dst",
        "ma": "src[k] = P[k] * L[k] * U[k], into index and dst",
    },
    "what": [
        "Factorises a square matrix, or each of an array, into a unit lower triangular and an upper triangular factor with\n"
        "partial pivoting, for LUBackSubst.",
    ],
    "shapes": [
        "src and dst are square with side widthHeight. index gets widthHeight entries an object, zero based; those of object\n"
        "k begin at entry k*widthHeight, in every layout. Rows are not moved in dst: row index[i] of dst is row i of the\n"
        "factorisation, with the multipliers of L left of its element i (the diagonal of ones is not stored) and U from\n"
        "element i on. Strides and shifts are in bytes.",
    ],
    "tests": [SQUARE_TESTS + "."],
    "inplace": ["dst may be src with the same strides (the same lists and shift), in every form and layout."],
    "failure": [
        "zelStatusSingular if the best pivot of a column is too small in magnitude. The limits are absolute: for sides 3 to\n"
        "6 a pivot below 2^-125 (32f) or 2^-1021 (64f) fails; for all other sides one of at most 2^-23 or 2^-52. Scale\n"
        "matrices of such sides if their elements are small. A NaN pivot is not a failure.",
        STOPS,
        "What the failing object leaves: for sides 3 to 6 in the standard and list layouts the rows of dst of finished steps\n"
        "are final and the others as they were; in the pointer layout dst is untouched; for other sides dst holds the partly\n"
        "eliminated matrix. index is not usable.",
    ],
    "threads": [
        "m runs on the calling thread. ma is spread over threads when widthHeight*widthHeight*count, as a 32-bit integer\n"
        "that wraps, is at least 1001.",
    ],
    "method": [
        "Gaussian elimination with partial pivoting (Wilkinson 1961; Golub and Van Loan, Matrix Computations). Among equal\n"
        "magnitudes the first row wins; a column is scaled by the reciprocal of its pivot.",
    ],
    "example": [
        "  Zel64f a[100][3][3], b[100][3];",
        "  int32_t index[100][3];",
        "  for (int k = 0; k < 100; ++k) {",
        "    for (int i = 0; i < 9; ++i)",
        "      a[k][i / 3][i % 3] = i % 4 == 0 ? 4 + k : 1;",
        "    b[k][0] = b[k][1] = b[k][2] = 1;",
        "  }",
        "  // b[k] = solution x of a[k] * x = b[k], 100 systems of 3 by 3",
        "  ZelStatus status = zelmLUDecomp_ma_64f(&a[0][0][0], 72, 24, 8, &index[0][0], &a[0][0][0], 72, 24, 8, 3, 100);",
        "  if (status == zelStatusOk)",
        "    status = zelmLUBackSubst_mava_64f(&a[0][0][0], 72, 24, 8, &index[0][0], &b[0][0], 24, 8, &b[0][0], 24, 8, 3, 100);",
    ],
}

GROUPS["LUBackSubst"] = {
    "title": "LUBackSubst, solution from an LU decomposition",
    "forms": SOLVE_FORMS,
    "what": ["Solves linear systems from what LUDecomp left in dst and index; A is the matrix that was factorised."],
    "shapes": [
        "src1 and index are dst and index of LUDecomp; in mv and mva they serve all right-hand sides, in mava those of object\n"
        "k begin at entry k*widthHeight of index, in every layout. src2 and dst are vectors of widthHeight elements. In the\n"
        "list layout of mva the one matrix is passed as in the standard layout. Strides and shifts are in bytes.",
    ],
    "tests": [SQUARE_TESTS + ".\nThe entries of index are not tested; one outside 0 to widthHeight - 1 is undefined behaviour."],
    "inplace": [
        "dst may be src2 with the same strides for sides 3 to 6; for all other sides this is right only if index is 0, 1, 2\n"
        "and so on.",
    ],
    "failure": [
        "Nothing fails once the tests have passed: a zero on the diagonal of U gives infinities or NaN and zelStatusOk. The\n"
        "result of a decomposition that failed must not be passed.",
    ],
    "threads": [
        "mv runs on the calling thread. The array forms are spread over threads when (2*count + widthHeight)*widthHeight is\n"
        "at least 701 (mva), or (widthHeight + 2)*widthHeight*count at least 1201 (mava), as 32-bit integers that wrap.",
    ],
    "method": [
        "Forward and backward substitution. Sides 3 to 6 multiply by rounded reciprocals of the diagonal of U, all other\n"
        "sides divide.",
    ],
    "example": [
        "  Zel32f a[3][3] = {{4, 1, 0}, {1, 4, 1}, {0, 1, 4}}, b[100][3] = {{1, 2, 3}};",
        "  int32_t index[3];",
        "  // b[k] = solution x of a * x = b[k], one matrix, 100 right-hand sides",
        "  ZelStatus status = zelmLUDecomp_m_32f(&a[0][0], 12, 4, index, &a[0][0], 12, 4, 3);",
        "  if (status == zelStatusOk)",
        "    status = zelmLUBackSubst_mva_32f(&a[0][0], 12, 4, index, &b[0][0], 12, 4, &b[0][0], 12, 4, 3, 100);",
    ],
}

GROUPS["CholeskyDecomp"] = {
    "title": "CholeskyDecomp, Cholesky decomposition",
    "forms": {
        "m": "src = L * transpose(L), L into dst",
        "ma": "src[k] = L[k] * transpose(L[k]), L[k] into dst[k]",
    },
    "what": [
        "Factorises a symmetric positive definite matrix, or each of an array, for CholeskyBackSubst.",
    ],
    "shapes": [
        "src and dst are square with side widthHeight. Only the lower triangle of src, with its diagonal, is read, and only\n"
        "that of dst is written; the rest of dst keeps what it held. Below the diagonal dst holds L, and ON the diagonal the\n"
        "RECIPROCALS of the diagonal of L. Symmetry is not tested. Strides and shifts are in bytes.",
    ],
    "tests": [SQUARE_TESTS + "."],
    "inplace": ["dst may be src with the same strides (the same lists and shift), in every form and layout."],
    "failure": [
        "zelStatusNotPositiveDefinite if a diagonal element, before its root is taken, is not above a limit. The limit is 0,\n"
        "except in the pointer layout for side 3, where it is 2^-23 for both types, and in zelmCholeskyDecomp_ma_64f with a\n"
        "Stride2 other than 8 for sides other than 3, 4 and 5, where it is 2^-52. A NaN is not a failure.",
        STOPS,
        "The failing object's dst is partly written, up to the failing row.",
    ],
    "threads": [
        "m runs on the calling thread. ma is spread over threads when widthHeight*widthHeight*count, as a 32-bit integer\n"
        "that wraps, is at least 2001; at least 7501 in the standard layout of 32f; at least 721 in the list layout of 64f\n"
        "with every Stride2 equal to 8.",
    ],
    "method": [
        "Cholesky's method (Benoit 1924), row by row. In 32f the reciprocal root of a diagonal element is computed in double\n"
        "precision and rounded once (not in zelmCholeskyDecomp_m_32f_P and zelmCholeskyDecomp_ma_32f_P for sides other than\n"
        "3 to 6, which round the root first).",
    ],
    "example": [
        "  Zel64f a[100][6][6] = {{{0}}}, b[100][6];",
        "  for (int k = 0; k < 100; ++k)",
        "    for (int i = 0; i < 6; ++i) {",
        "      a[k][i][i] = 1 + k;",
        "      b[k][i] = i;",
        "    }",
        "  // b[k] = solution x of a[k] * x = b[k], 100 symmetric systems of 6 by 6",
        "  ZelStatus status = zelmCholeskyDecomp_ma_64f(&a[0][0][0], 288, 48, 8, &a[0][0][0], 288, 48, 8, 6, 100);",
        "  if (status == zelStatusOk)",
        "    status = zelmCholeskyBackSubst_mava_64f(&a[0][0][0], 288, 48, 8, &b[0][0], 48, 8, &b[0][0], 48, 8, 6, 100);",
    ],
}

GROUPS["CholeskyBackSubst"] = {
    "title": "CholeskyBackSubst, solution from a Cholesky decomposition",
    "forms": SOLVE_FORMS,
    "what": ["Solves linear systems from what CholeskyDecomp left in dst; A is the matrix that was factorised."],
    "shapes": [
        "src1 is dst of CholeskyDecomp, with reciprocals on its diagonal; only its lower triangle is read. src2 and dst are\n"
        "vectors of widthHeight elements. In the list layout of mva the one matrix is passed as in the standard layout.\n"
        "Strides and shifts are in bytes.",
    ],
    "tests": [
        SQUARE_TESTS + ",\nwith one exception: zelmCholeskyBackSubst_mva_32f_L and zelmCholeskyBackSubst_mva_64f_L test pointers, strides,\n"
        "shifts, widthHeight, and count last.",
    ],
    "inplace": ["dst may be src2 with the same strides (the same list and shift), in every form and layout."],
    "failure": ["Nothing fails once the tests have passed. The result of a decomposition that failed must not be passed."],
    "threads": [
        "mv runs on the calling thread. The array forms are spread over threads when (2*count + widthHeight)*widthHeight\n"
        "(mva) or (widthHeight + 2)*widthHeight*count (mava), as 32-bit integers that wrap, reach a limit:",
        "                     mva   mava, every Stride2 the element size   mava, other\n"
        "  32f standard      1201                                   2051          1701\n"
        "  32f list           721                                   1701          1701\n"
        "  32f pointer        721                                   1701             -\n"
        "  64f standard       721                                   1701          1701\n"
        "  64f list           721                                   1701          1701\n"
        "  64f pointer        721                                   2051             -",
    ],
    "method": ["Forward and backward substitution with products by the stored reciprocals; nothing is divided."],
    "example": [
        "  Zel32f a[3][3] = {{4, 1, 0}, {1, 4, 1}, {0, 1, 4}}, b[100][3] = {{1, 2, 3}};",
        "  // b[k] = solution x of a * x = b[k], one symmetric matrix, 100 right-hand sides",
        "  ZelStatus status = zelmCholeskyDecomp_m_32f(&a[0][0], 12, 4, &a[0][0], 12, 4, 3);",
        "  if (status == zelStatusOk)",
        "    status = zelmCholeskyBackSubst_mva_32f(&a[0][0], 12, 4, &b[0][0], 12, 4, &b[0][0], 12, 4, 3, 100);",
    ],
}

QR_TESTS = (
    "A null pointer (buffer included) gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or height\n"
    "below 1 zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below\n"
    "0 or not a multiple of the element size zelStatusBadShift, and last a width greater than height\n"
    "zelStatusSizeMismatch, tested in this order as far as the form has them."
)
QR_BUFFER = (
    "buffer is scratch of height elements of the function's type, for one object, whatever the count; what it holds\n"
    "before and after has no meaning. Strides and shifts are in bytes."
)

GROUPS["QRDecomp"] = {
    "title": "QRDecomp, QR decomposition",
    "forms": {
        "m": "src = Q * R, both into dst",
        "ma": "src[k] = Q[k] * R[k], both into dst[k]",
    },
    "what": [
        "Factorises a matrix with at least as many rows as columns, or each of an array, by Householder reflections, for\n"
        "QRBackSubst.",
    ],
    "shapes": [
        "src and dst have height rows of width elements. On and above its diagonal dst holds R; below the diagonal of column\n"
        "c the tail of the reflection vector v, whose element at row c is an implied 1. The reflection is the identity plus\n"
        "b * v * transpose(v) with b = -2 / (transpose(v) * v). There is one for each column, in a square matrix none for\n"
        "the last.",
        QR_BUFFER,
    ],
    "tests": [QR_TESTS],
    "inplace": ["dst may be src with the same strides (the same lists and shift), in every form and layout."],
    "failure": [
        "zelStatusDivideByZero if the sum of the squares of a column, from its diagonal down, is below 2^-23 (32f) or 2^-52\n"
        "(64f). The test is absolute: in 32f a column shorter than about 3.45e-4 fails; scale such matrices. A NaN is not a\n"
        "failure, and the last column of a square matrix is not tested, so that a singular square matrix may pass with a\n"
        "zero at the end of R.",
        STOPS,
        "The failing object's dst holds the finished columns and the partly reduced rest.",
    ],
    "threads": [
        "m runs on the calling thread. ma is spread over threads when width*height*2*count, as a 32-bit integer that wraps,\n"
        "is at least 2801 in the standard layout, 1801 in the list and pointer layouts; the threads then have scratch of\n"
        "their own and leave buffer alone.",
    ],
    "method": [
        "Householder's reflections (Householder 1958; Golub 1965). A diagonal element of R has the sign opposite to the\n"
        "leading element that it replaces; for a zero or NaN leading element it is positive or NaN.",
    ],
    "example": [
        "  Zel64f a[100][6][3], b[100][6], x[100][3], buffer[6];",
        "  for (int k = 0; k < 100; ++k)",
        "    for (int i = 0; i < 6; ++i) {",
        "      a[k][i][0] = 1;",
        "      a[k][i][1] = i;",
        "      a[k][i][2] = i * i;",
        "      b[k][i] = k + i;",
        "    }",
        "  // x[k] minimises the length of a[k] * x - b[k]: 100 fits of a parabola to 6 points",
        "  ZelStatus status = zelmQRDecomp_ma_64f(&a[0][0][0], 144, 24, 8, buffer, &a[0][0][0], 144, 24, 8, 3, 6, 100);",
        "  if (status == zelStatusOk)",
        "    status = zelmQRBackSubst_mava_64f(&a[0][0][0], 144, 24, 8, buffer, &b[0][0], 48, 8, &x[0][0], 24, 8, 3, 6, 100);",
    ],
}

GROUPS["QRBackSubst"] = {
    "title": "QRBackSubst, solution from a QR decomposition",
    "forms": {
        "mv": "minimises the length of A * dst - src2",
        "mva": "minimises the length of A * dst[k] - src2[k]",
        "mava": "minimises the length of A[k] * dst[k] - src2[k]",
    },
    "what": [
        "Solves linear systems, for matrices with more rows than columns in the least-squares sense, from what QRDecomp left\n"
        "in dst; A is the matrix that was factorised.",
    ],
    "shapes": [
        "src1 is dst of QRDecomp, with height rows of width elements. src2 has height elements, dst has width. In the list\n"
        "layout of mva the one matrix is passed as in the standard layout.",
        QR_BUFFER,
    ],
    "tests": [QR_TESTS],
    "inplace": ["dst may be src2 with the same strides (the same list and shift), in every form and layout."],
    "failure": [
        "Nothing fails once the tests have passed: a zero on the diagonal of R gives infinities or NaN and zelStatusOk. The\n"
        "result of a decomposition that failed must not be passed.",
    ],
    "threads": [
        "mv runs on the calling thread. The array forms are spread over threads when width*height + (width + height)*count\n"
        "(mva) or (width*(height + 1) + height)*count (mava), as 32-bit integers that wrap, are at least 2801 in the standard\n"
        "layout, 1801 in the list and pointer layouts; the threads then have scratch of their own and leave buffer alone.",
    ],
    "method": [
        "The reflections are applied to the right-hand side (Golub 1965), then R is solved backwards with divisions. For\n"
        "square matrices of sides 3 to 6 buffer is not touched.",
    ],
    "example": [
        "  Zel32f a[4][2] = {{1, 0}, {1, 1}, {1, 2}, {1, 3}}, b[100][4] = {{1, 3, 5, 7}}, x[100][2], buffer[4];",
        "  // x[k]: the line through the four values b[k]",
        "  ZelStatus status = zelmQRDecomp_m_32f(&a[0][0], 8, 4, buffer, &a[0][0], 8, 4, 2, 4);",
        "  if (status == zelStatusOk)",
        "    status = zelmQRBackSubst_mva_32f(&a[0][0], 8, 4, buffer, &b[0][0], 16, 4, &x[0][0], 8, 4, 2, 4, 100);",
    ],
}
