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

# What each family is, in a line.
FAMILIES = {
    "Add": "sums of matrices, vectors and constants, element by element",
    "Sub": "differences of these",
    "Mul": "products: matrix by matrix, matrix by vector, scaling by a constant",
    "Gaxpy": "matrix by vector plus vector",
    "AffineTransform3DH": "points through a homogeneous 4 by 4 matrix",
    "Saxpy": "a scaled vector plus a vector",
    "LComb": "linear combination of two vectors",
    "CrossProduct": "vector product of vectors of three",
    "DotProduct": "inner product of two vectors",
    "L2Norm": "Euclidean length of a vector",
    "Trace": "sum of the diagonal",
    "FrobNorm": "Frobenius norm",
    "Det": "determinant",
    "Extract": "objects of any layout packed into one run",
    "Copy": "objects from any layout to any layout",
    "LoadIdentity": "identity matrices",
    "Transpose": "transposition into another place",
    "LUDecomp": "LU decomposition with row pivoting",
    "LUBackSubst": "solution of linear systems from it",
    "CholeskyDecomp": "Cholesky decomposition of positive definite matrices",
    "CholeskyBackSubst": "solution of linear systems from it",
    "QRDecomp": "QR decomposition by reflections",
    "QRBackSubst": "solution of linear systems and least squares from it",
    "Invert": "inverse matrix",
    "EigenValuesSym": "eigenvalues of symmetric matrices",
    "EigenValuesVectorsSym": "eigenvalues and eigenvectors of symmetric matrices",
    "EigenValues": "eigenvalues of general matrices",
    "EigenValuesVectors": "eigenvalues, right and left eigenvectors of general matrices",
    "EigenValuesVectorsLeft": "eigenvalues and left eigenvectors",
    "EigenValuesVectorsRight": "eigenvalues and right eigenvectors",
    "EigenValuesGetBufSize": "bytes of work buffer that EigenValues needs",
    "EigenValuesVectorsGetBufSize": "bytes of work buffer that the families with vectors need",
}

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
    "interleaved, and elements lie apart. Calls with every Stride2 equal to the element size are the fast ones;\n"
    "column-major matrices, whose Stride1 is the element size, are as fast in most families.",

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
    "XStride0. Sources come first, then the result, then sizes, then count; in products the\n"
    "sizes of an operand stand behind it, and where a family has one pair of sizes for its source, they stand before the\n"
    "result, as a buffer does.",

    "Status. A call tests its arguments before it does anything; the first test that fails gives the status, and\n"
    "nothing has been read or written but the arguments themselves. What list entries point to is not tested. Only\n"
    "elements of results are written, never padding between them.",

    "Threads. Arrays whose work passes a limit are spread over OpenMP threads, one contiguous share of the objects for\n"
    "each; OMP_NUM_THREADS and omp_set_num_threads rule how many. The number of threads changes no result of a call\n"
    "that succeeds. Objects of one result must not overlap. A result that overlaps a source is undefined but where a\n"
    "family says otherwise.",

    "Numbers. Every operation is rounded once in the element type but where a family says otherwise, products and sums are\n"
    "not fused. The library leaves the rounding and denormal modes alone and is meant for those of a fresh thread. The same\n"
    "call gives the same bits on every processor but where a family says otherwise. NaN results are NaN; their sign and\n"
    "payload are not defined.",
]

SECTIONS = [
    ("Arguments", "shapes"), ("Tests", "tests"), ("In place", "inplace"), ("Failure", "failure"),
    ("Threads", "threads"), ("Method", "method"), ("Notes", "notes"), ("Example", "example"),
]

VECTOR_SHAPES = "Vectors have len elements. Strides and shifts are in bytes."
CONSTANT_SHAPES = (
    "val is the value itself, or an array of constants with its stride\n"
    "or, in the list layout, shift; in the pointer layout an array of constants is a plain run with valStride0.")
ORDERLY_TESTS = (
    "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize, a\n"
    "stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the\n"
    "element size zelStatusBadShift, tested in this order as far as the form has them.")
VAV_TESTS = (
    " vav tests the count later: last, in the\n"
    "pointer layout before the shifts.")
VECTOR_LIMITS = (
    "The limit is 4800\n"
    "for 32f and 1400 for 64f in the standard layout, 2500 in the list layout, 1500 in the pointer layout.")
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


def difference_forms(single):
    """Array forms of single ones: an a behind a letter is an index [k] behind its operand."""
    forms = dict(single)
    for form, formula in single.items():
        first, second = formula.split(" = ")[1].split(" - ")
        for a, b in ("a", ""), ("", "a"), ("a", "a"):
            forms[form[0] + a + form[1] + b] = "dst[k]%s = %s - %s" % (
                formula.split(" = ")[0][3:], first.replace("(", "[k](") if a else first,
                second.replace("(", "[k](") if b else second)
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

GROUPS["AddVectors"] = {
    "title": "Add on vectors",
    "forms": {
        "vv": "dst(j) = src1(j) + src2(j)",
        "vav": "dst[k](j) = src1[k](j) + src2(j)",
        "vava": "dst[k](j) = src1[k](j) + src2[k](j)",
    },
    "what": ["The sum of two vectors, or of arrays of these. A vector with an array is vav with the sources exchanged."],
    "shapes": [VECTOR_SHAPES],
    "tests": [ORDERLY_TESTS + VAV_TESTS],
    "inplace": [
        "dst may be a source of vv, the va source of vav and either source of vava, with the same strides (and the same\n"
        "list and shift). It must not overlap the single source of vav.",
    ],
    "failure": [NO_FAILURE],
    "threads": [
        "vv runs on the calling thread. An array form is spread over threads when len*(2*count + 1) (vav) or 3*len*count\n"
        "(vava), as a 32-bit integer that wraps, is above a limit. " + VECTOR_LIMITS,
    ],
    "example": [
        "  Zel32f points[100][3] = {{1, 2, 3}}, offset[3] = {10, 20, 30};",
        "  // points[k] = points[k] + offset",
        "  ZelStatus status = zelmAdd_vav_32f(&points[0][0], 12, 4, offset, 4, &points[0][0], 12, 4, 3, 100);",
    ],
}

GROUPS["AddConstants"] = {
    "title": "Add of vectors and constants",
    "forms": {
        "vc": "dst(j) = src(j) + val",
        "vac": "dst[k](j) = src[k](j) + val",
        "vca": "dst[k](j) = src(j) + val[k]",
        "vaca": "dst[k](j) = src[k](j) + val[k]",
    },
    "what": ["A vector, or an array of vectors, with a constant added to each of its elements, or an array of constants."],
    "shapes": [VECTOR_SHAPES + " " + CONSTANT_SHAPES],
    "tests": [
        ORDERLY_TESTS + " Two members leave tests out: zelmAdd_vca_64f_P those\n"
        "of srcShift and dstShift, zelmAdd_vaca_32f_P that of srcStride0; with such a value the call runs on what it got.",
    ],
    "inplace": ["dst may be the v source of vc and the va source of vac and vaca, with the same strides (and the same list and\n"
                "shift), but not the single vector of vca."],
    "failure": [NO_FAILURE],
    "threads": [
        "vc runs on the calling thread. An array form is spread over threads when its work, as a 32-bit integer that wraps,\n"
        "is above a limit; the work is len*(2*count + 1) for vac, len*count + len + count for vca, count*(2*len + 1) for\n"
        "vaca. " + VECTOR_LIMITS,
    ],
    "example": [
        "  Zel64f points[100][3] = {{1, 2, 3}}, levels[100] = {0.5};",
        "  // points[k] = points[k] + levels[k]",
        "  ZelStatus status = zelmAdd_vaca_64f(&points[0][0], 24, 8, levels, 8, &points[0][0], 24, 8, 3, 100);",
    ],
}

GROUPS["SubMatrices"] = {
    "title": "Sub on matrices",
    "forms": difference_forms({
        "mm": "dst(i,j) = src1(i,j) - src2(i,j)",
        "mt": "dst(i,j) = src1(i,j) - src2(j,i)",
        "tm": "dst(i,j) = src1(j,i) - src2(i,j)",
        "tt": "dst(i,j) = src1(j,i) - src2(j,i)",
    }),
    "what": ["The difference of two matrices, either of which may be read transposed, or of arrays of these."],
    "shapes": [
        "width and height are those of the result: dst and an m source have height rows of width elements, a t source is\n"
        "stored as width rows of height elements. Strides and shifts are in bytes.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or height below 1\n"
        "zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or\n"
        "not a multiple of the element size zelStatusBadShift. They are tested in this order, as far as the form has\n"
        "them, with one exception: mam and mma in the standard layout test pointers, count, strides, and the sizes last.",
    ],
    "inplace": [
        "dst may be an m source of a single form or an ma source of an array form, with the same strides (and the same\n"
        "list and shift). It must not overlap a t source, nor the single source of an array form.",
    ],
    "failure": [NO_FAILURE],
    "threads": [
        "The single forms run on the calling thread. An array form is spread over threads when width*height*(2*count + 1)\n"
        "(one array) or 3*width*height*count (two), as a 32-bit integer that wraps, is at least 2000; in the standard\n"
        "layout of 32f with every Stride2 equal to 4, when it is at least 3000.",
    ],
    "example": [
        "  Zel64f mean[2][2] = {{1, 2}, {3, 4}}, batch[100][2][2] = {{{5, 6}, {7, 8}}};",
        "  // batch[k] = mean - batch[k] for 100 matrices of 2 by 2",
        "  ZelStatus status = zelmSub_mma_64f(&mean[0][0], 16, 8, &batch[0][0][0], 32, 16, 8,",
        "                                     &batch[0][0][0], 32, 16, 8, 2, 2, 100);",
    ],
}

GROUPS["SubVectors"] = {
    "title": "Sub on vectors",
    "forms": difference_forms({"vv": "dst(j) = src1(j) - src2(j)"}),
    "what": ["The difference of two vectors, or of arrays of these."],
    "shapes": [VECTOR_SHAPES],
    "tests": [ORDERLY_TESTS + VAV_TESTS],
    "inplace": [
        "dst may be a source of vv and a va source of an array form, with the same strides (and the same list and shift).\n"
        "It must not overlap the single source of an array form.",
    ],
    "failure": [NO_FAILURE],
    "threads": [
        "vv runs on the calling thread, and so does zelmSub_vva_64f_P. Another array form is spread over threads when\n"
        "len*(2*count + 1) (vav, vva) or 3*len*count (vava), as a 32-bit integer that wraps, is above a limit. "
        + VECTOR_LIMITS,
    ],
    "example": [
        "  Zel32f points[100][3] = {{1, 2, 3}}, origin[3] = {10, 20, 30};",
        "  // points[k] = points[k] - origin",
        "  ZelStatus status = zelmSub_vav_32f(&points[0][0], 12, 4, origin, 4, &points[0][0], 12, 4, 3, 100);",
    ],
}

GROUPS["SubConstants"] = {
    "title": "Sub of vectors and constants",
    "forms": {
        "vc": "dst(j) = src(j) - val",
        "cv": "dst(j) = val - src(j)",
        "vac": "dst[k](j) = src[k](j) - val",
        "vca": "dst[k](j) = src(j) - val[k]",
        "vaca": "dst[k](j) = src[k](j) - val[k]",
        "cva": "dst[k](j) = val - src[k](j)",
        "cav": "dst[k](j) = val[k] - src(j)",
        "cava": "dst[k](j) = val[k] - src[k](j)",
    },
    "what": [
        "A constant taken from each element of a vector, or each element from a constant, single or in arrays. The forms\n"
        "whose name begins with c take the same arguments as those that begin with v, the vector first: zelmSub_vca_32f\n"
        "and zelmSub_cav_32f differ in the order of the subtraction alone.",
    ],
    "shapes": [VECTOR_SHAPES + " " + CONSTANT_SHAPES],
    "tests": [
        ORDERLY_TESTS + " One member leaves tests out: zelmSub_cav_32f_P those\n"
        "of srcShift and dstShift; with such a value the call runs on what it got.",
    ],
    "inplace": ["dst may be the v source of vc and cv and the va source of an array form, with the same strides (and the same\n"
                "list and shift), but not the single vector of vca and cav."],
    "failure": [NO_FAILURE],
    "threads": [
        "vc and cv run on the calling thread. An array form is spread over threads when its work, as a 32-bit integer that\n"
        "wraps, is above a limit; the work is len*(2*count + 1) for vac, len*count + len + count for vca and cav,\n"
        "count*(2*len + 1) for vaca and cava, 2*count + 1 for cva, whatever its len. " + VECTOR_LIMITS,
    ],
    "example": [
        "  Zel32f src[4] = {1, 2, 3, 4}, dst[4];",
        "  // dst = 10 - src",
        "  ZelStatus status = zelmSub_cv_32f(src, 4, 10, dst, 4, 4);",
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
        "may then differ in the last bits. Squares of side 3 start from the first product as well; other sizes, and some\n"
        "functions of the list layout at all sizes, start from +0.0, which shows only where every product is -0.0.",
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
        "Points that are packed in src2 and dst, 12 bytes apart, go several at a time, whatever the strides of src1; others\n"
        "go one by one.",
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
    "it are not written; some may have been read. Where n threads are configured and the call is spread\n"
    "over threads, a failure stops only the share, one of n, that met it."
)
SOLVE_FORMS = {
    "mv": "solves A * dst = src2",
    "mva": "solves A * dst[k] = src2[k]",
    "mava": "solves A[k] * dst[k] = src2[k]",
}

VECTOR_TESTS = (
    "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a len below 1 zelStatusBadSize, a\n"
    "stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the\n"
    "element size zelStatusBadShift, tested in this order as far as the form has them."
)

GROUPS["Saxpy"] = {
    "title": "Saxpy, a scaled vector plus a vector",
    "forms": {
        "vv": "dst(j) = src1(j) * val + src2(j)",
        "vav": "dst[k](j) = src1[k](j) * val + src2(j)",
        "vva": "dst[k](j) = src1(j) * val + src2[k](j)",
        "vava": "dst[k](j) = src1[k](j) * val + src2[k](j)",
    },
    "what": ["A vector times a constant plus another vector, or arrays of these. It is always src1 that is scaled."],
    "shapes": ["All vectors have len elements; val is the value itself. Strides and shifts are in bytes."],
    "tests": [VECTOR_TESTS],
    "inplace": ["dst may be a v source of vv or a va source of an array form, with the same strides (the same list and shift)."],
    "failure": [NO_FAILURE],
    "threads": [
        "vv runs on the calling thread. An array form is spread over threads when its work is above a limit; the work, as a\n"
        "32-bit integer that wraps, is len*(2*count + 1) for vav and vva, 3*len*count for vava. The limits, unit meaning\n"
        "that every Stride2 is the element size:",
        "                standard, unit    any    list, unit    any    pointer\n"
        "  vav vava 32f            3000   2000          1500   1000       1200\n"
        "  vva      32f            3000   2000          1500   1500       1200\n"
        "  64f                     3000   1200          1000   1000       1200",
    ],
    "method": ["The name is that of the Basic Linear Algebra Subprograms (Lawson, Hanson, Kincaid and Krogh 1979)."],
    "notes": ["A product is rounded before it is added: the two are not fused. A val of 0 is no special case."],
    "example": [
        "  Zel32f position[100][3] = {{1, 2, 3}}, velocity[100][3] = {{1, 0, 0}};",
        "  // position[k] = velocity[k] * 0.1 + position[k]",
        "  ZelStatus status = zelmSaxpy_vava_32f(&velocity[0][0], 12, 4, 0.1f, &position[0][0], 12, 4,",
        "                                        &position[0][0], 12, 4, 3, 100);",
    ],
}

GROUPS["LComb"] = {
    "title": "LComb, linear combination of two vectors",
    "forms": {
        "vv": "dst(j) = src1(j) * val1 + src2(j) * val2",
        "vav": "dst[k](j) = src1[k](j) * val1 + src2(j) * val2",
        "vava": "dst[k](j) = src1[k](j) * val1 + src2[k](j) * val2",
    },
    "what": ["The sum of two vectors, each times a constant of its own, or of arrays of these."],
    "shapes": ["All vectors have len elements; val1 and val2 are the values themselves. Strides and shifts are in bytes."],
    "tests": [VECTOR_TESTS],
    "inplace": ["dst may be a v source of vv or a va source of an array form, with the same strides (the same list and shift)."],
    "failure": [NO_FAILURE],
    "threads": [
        "vv runs on the calling thread. An array form is spread over threads when len*(2*count + 1) (vav) or 3*len*count\n"
        "(vava), as a 32-bit integer that wraps, is above 4500; in the list layout of 32f, unless every Stride2 is 4, when\n"
        "it is above 3750.",
    ],
    "notes": ["Products are rounded before they are added: nothing is fused. A factor of 0 is no special case."],
    "example": [
        "  Zel32f a[100][3] = {{1, 2, 3}}, b[100][3] = {{3, 2, 1}}, middle[100][3];",
        "  // middle[k] = a[k] * 0.5 + b[k] * 0.5",
        "  ZelStatus status = zelmLComb_vava_32f(&a[0][0], 12, 4, 0.5f, &b[0][0], 12, 4, 0.5f, &middle[0][0], 12, 4, 3, 100);",
    ],
}

GROUPS["CrossProduct"] = {
    "title": "CrossProduct, vector product",
    "forms": {
        "vv": "dst = src1 x src2",
        "vav": "dst[k] = src1[k] x src2",
        "vva": "dst[k] = src1 x src2[k]",
        "vava": "dst[k] = src1[k] x src2[k]",
    },
    "what": [
        "The vector product of vectors of three elements, or of arrays of these:",
        "  dst(0) = src1(1) * src2(2) - src1(2) * src2(1)\n"
        "  dst(1) = src1(2) * src2(0) - src1(0) * src2(2)\n"
        "  dst(2) = src1(0) * src2(1) - src1(1) * src2(0)",
    ],
    "shapes": [
        "All vectors have three elements, and in the pointer layout lists of three addresses; there is no len. Strides and\n"
        "shifts are in bytes.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a stride below 1 or not a multiple of\n"
        "the element size zelStatusBadStride, a shift below 0 or not a multiple of the element size zelStatusBadShift. They\n"
        "are tested in this order, as far as the form has them, with one exception: vav tests count behind the strides, and\n"
        "in the list layout behind the shifts too.",
    ],
    "inplace": ["Not supported: dst must not overlap a source."],
    "failure": [NO_FAILURE],
    "threads": [
        "vv runs on the calling thread, and so does zelmCrossProduct_vva_64f_P. Any other array form is spread over threads\n"
        "when 2*count + 1 (vav, vva) or 3*count (vava), as a 32-bit integer that wraps, is above 3000.",
    ],
    "notes": ["Two rounded products and one difference for each element, not fused. A vector by itself gives +0."],
    "example": [
        "  Zel32f arm[100][3] = {{1, 0, 0}}, force[100][3] = {{0, 1, 0}}, torque[100][3];",
        "  // torque[k] = arm[k] x force[k]",
        "  ZelStatus status = zelmCrossProduct_vava_32f(&arm[0][0], 12, 4, &force[0][0], 12, 4, &torque[0][0], 12, 4, 100);",
    ],
}

ALIGNED_SUMS = (
    "Sums are in the element type, of rounded products, not fused. Their order depends on form, type, layout, length and\n"
    "whether the strides are unit, so that results of two functions, or of a call with and one without unit strides, may\n"
    "differ in the last bits. In %s with unit strides the order for vectors of 8 and more elements depends on where\n"
    "%s lies within 16 bytes as well; everywhere else vectors of other lengths than 3 to 6 are added from +0 on in\n"
    "ascending order."
)

GROUPS["DotProduct"] = {
    "title": "DotProduct, inner product",
    "forms": {
        "vv": "dst[0] = src1(0) * src2(0) + src1(1) * src2(1) + ...",
        "vav": "dst[k] = src1[k](0) * src2(0) + src1[k](1) * src2(1) + ...",
        "vava": "dst[k] = src1[k](0) * src2[k](0) + src1[k](1) * src2[k](1) + ...",
    },
    "what": ["The inner product of two vectors, or of arrays of these."],
    "shapes": [
        "The sources have len elements. dst is a plain run of results, one for each object, in every layout. Strides and\n"
        "shifts are in bytes.",
    ],
    "tests": [VECTOR_TESTS],
    "inplace": ["Not supported: dst must not overlap a source."],
    "failure": [NO_FAILURE],
    "threads": [
        "vv runs on the calling thread. An array form is spread over threads when its work is above a limit; the work, as a\n"
        "32-bit integer that wraps, is len*(count + 1) for vav and 2*len*count for vava. The limits, unit meaning that\n"
        "every Stride2 is the element size:",
        "        standard, unit    any    list, unit    any    pointer\n"
        "  32f             5000   2620          2400   2400       2400\n"
        "  64f             3500   2000          4200   3300       2000",
    ],
    "notes": [ALIGNED_SUMS % ("vv", "src2")],
    "example": [
        "  Zel32f points[100][3] = {{1, 2, 3}}, normal[3] = {0, 0, 1}, distance[100];",
        "  // distance[k] = points[k] . normal",
        "  ZelStatus status = zelmDotProduct_vav_32f(&points[0][0], 12, 4, normal, 4, distance, 3, 100);",
    ],
}

GROUPS["L2Norm"] = {
    "title": "L2Norm, Euclidean length",
    "forms": {
        "v": "dst[0] = sqrt(src(0) * src(0) + src(1) * src(1) + ...)",
        "va": "dst[k] = sqrt(src[k](0) * src[k](0) + src[k](1) * src[k](1) + ...)",
    },
    "what": ["The Euclidean length of a vector, or of each of an array."],
    "shapes": [
        "src has len elements. dst is a plain run of results, one for each object, in every layout. Strides and shifts are\n"
        "in bytes.",
    ],
    "tests": [VECTOR_TESTS],
    "inplace": ["Not supported: dst must not overlap src."],
    "failure": [NO_FAILURE],
    "threads": [
        "v runs on the calling thread. va is spread over threads when len*count, as a 32-bit integer that wraps, is above\n"
        "1500.",
    ],
    "notes": [
        ALIGNED_SUMS % ("v", "src"),
        "Nothing is scaled: squares that overflow give infinity, squares that underflow are lost.",
    ],
    "example": [
        "  Zel32f points[100][3] = {{3, 0, 4}}, length[100];",
        "  ZelStatus status = zelmL2Norm_va_32f(&points[0][0], 12, 4, length, 3, 100);",
    ],
}

GROUPS["Trace"] = {
    "title": "Trace, sum of the diagonal",
    "forms": {
        "m": "dst[0] = src(0,0) + src(1,1) + ...",
        "ma": "dst[k] = src[k](0,0) + src[k](1,1) + ...",
    },
    "what": ["Sums the main diagonal of a square matrix, or of each of an array."],
    "shapes": [
        "src is square with side widthHeight. dst is a plain pointer in every layout: one element, in ma count elements one\n"
        "after the other. Strides and shifts are in bytes.",
    ],
    "tests": [SQUARE_TESTS + "."],
    "inplace": ["dst must not overlap src."],
    "failure": [NO_FAILURE],
    "threads": [
        "m runs on the calling thread. ma is spread over threads when widthHeight*count, as a 32-bit integer that wraps, is\n"
        "at least 3601.",
    ],
    "notes": [
        "The sum is taken in the element type, down the diagonal. Sides 3 to 6 start with the first two elements, all others\n"
        "with +0.",
    ],
    "example": [
        "  Zel64f a[100][3][3] = {{{1, 0, 0}, {0, 2, 0}, {0, 0, 3}}}, trace[100];",
        "  // trace[k] = sum of the diagonal of a[k], 100 matrices of 3 by 3",
        "  ZelStatus status = zelmTrace_ma_64f(&a[0][0][0], 72, 24, 8, 3, trace, 100);",
    ],
}

GROUPS["FrobNorm"] = {
    "title": "FrobNorm, Frobenius norm",
    "forms": {
        "m": "dst[0] = square root of the sum of src(i,j)^2",
        "ma": "dst[k] = square root of the sum of src[k](i,j)^2",
    },
    "what": ["Computes the Frobenius norm of a matrix, or of each of an array."],
    "shapes": [
        "src has height rows of width elements. dst is a plain pointer in every layout: one element, in ma count elements\n"
        "one after the other. Strides and shifts are in bytes.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or height below 1\n"
        "zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or\n"
        "not a multiple of the element size zelStatusBadShift, tested in this order as far as the form has them.",
    ],
    "inplace": ["dst must not overlap src."],
    "failure": [NO_FAILURE],
    "threads": [
        "m runs on the calling thread. ma is spread over threads when width*height*count, as a 32-bit integer that wraps,\n"
        "reaches a limit: in the standard layout 2501 (32f) and 1801 (64f) if srcStride2 is the element size, else 1801 and\n"
        "1501; in the list layout 1601; in the pointer layout 1501 (32f) and 2501 (64f).",
    ],
    "notes": [
        "Squares and sums are in the element type and not scaled: a sum that overflows gives infinity. In which order the\n"
        "squares are added depends on the function, the shape and the strides, for one 32f matrix without gaps also on\n"
        "where it lies within 16 bytes, so that results of two functions may differ in the last bits.",
    ],
    "example": [
        "  Zel32f a[100][3][4] = {{{3, 0, 0, 4}}}, norm[100];",
        "  // norm[k] = Frobenius norm of a[k], 100 matrices of 3 rows and 4 columns",
        "  ZelStatus status = zelmFrobNorm_ma_32f(&a[0][0][0], 48, 16, 4, 4, 3, norm, 100);",
    ],
}

GROUPS["Det"] = {
    "title": "Det, determinant",
    "forms": {
        "m": "dst[0] = det(src)",
        "ma": "dst[k] = det(src[k])",
    },
    "what": ["Computes the determinant of a square matrix, or of each of an array."],
    "shapes": [
        "src is square with side widthHeight. dst is a plain pointer in every layout: one element, in ma count elements one\n"
        "after the other. Strides and shifts are in bytes. buffer is scratch for widthHeight*widthHeight + widthHeight\n"
        "elements, in ma for one matrix in all; it must not be null, though sides 3 to 6 and calls that are spread over\n"
        "threads do not use it. Its contents afterwards mean nothing.",
    ],
    "tests": [SQUARE_TESTS + "."],
    "inplace": ["dst must not overlap src or buffer."],
    "failure": [
        "Nothing fails once the tests have passed: a singular matrix has the determinant 0 and zelStatusOk. So has, of the\n"
        "sides other than 3 to 6, one whose last pivot is a NaN; a NaN elsewhere mostly gives NaN.",
    ],
    "threads": [
        "m runs on the calling thread. ma is spread over threads when widthHeight*count, as a 32-bit integer that wraps, is\n"
        "at least 14401.",
    ],
    "method": [
        "Sides 3 to 6: expansion by minors from the top row down, without pivots; exact for integer elements as long as the\n"
        "minors are integers that the type holds. Every other side: Gaussian elimination with partial pivoting, the first\n"
        "of equal magnitudes winning. There a pivot below 2*n*n*n times the smallest normal number of the type (n the side)\n"
        "counts as zero, and so does a last pivot at or below it. These limits are absolute; a single element of 1e-38 has\n"
        "the determinant 0 in 32f.",
    ],
    "example": [
        "  Zel32f a[100][4][4], det[100], buffer[4 * 4 + 4];",
        "  for (int k = 0; k < 100; ++k)",
        "    for (int i = 0; i < 16; ++i)",
        "      a[k][i / 4][i % 4] = i % 5 == 0 ? 2 : k;",
        "  // det[k] = determinant of a[k], 100 matrices of 4 by 4",
        "  ZelStatus status = zelmDet_ma_32f(&a[0][0][0], 64, 16, 4, 4, buffer, det, 100);",
    ],
}

GROUPS["Invert"] = {
    "title": "Invert, inverse",
    "forms": {
        "m": "dst = inverse of src",
        "ma": "dst[k] = inverse of src[k]",
    },
    "what": ["Inverts a square matrix, or each of an array, directly (not by way of LUDecomp)."],
    "shapes": [
        "src and dst are square with side widthHeight. Strides and shifts are in bytes. buffer is scratch for\n"
        "widthHeight*widthHeight + widthHeight elements, in ma for one matrix in all; it must not be null, though sides 1\n"
        "and 3 to 6 and calls that are spread over threads do not use it. Its contents afterwards mean nothing.",
    ],
    "tests": [SQUARE_TESTS + "."],
    "inplace": [
        "dst may be src with the same strides (the same lists and shift) for sides 1, 3, 4 and 5, and for side 6 in 64f,\n"
        "with any Stride2 other than the element size, and in the pointer layout. Otherwise dst must not overlap src.",
    ],
    "failure": [
        "zelStatusSingular if the determinant is too small in magnitude. The limit is absolute: 2*n*n*n times the smallest\n"
        "normal number of the type, n being the side; in 64f with unit strides in the standard and list layouts twice that\n"
        "for sides 3 and 4. Scale matrices with small elements: a determinant that underflows makes a regular matrix\n"
        "singular. A determinant of exactly the limit passes for sides 3 to 6 and fails for all others. In 32f with unit\n"
        "strides, sides 5 and 6 test the best pivot of the first row, for side 6 that of the second, and the determinant\n"
        "of the remaining 4 by 4 matrix instead; all other sides but 1, 3 and 4 test each pivot as well. A NaN is singular\n"
        "for side 1 and nowhere else.",
        STOPS,
        "A failing object leaves its dst untouched, but for sides 5 and 6 in 32f with unit strides, where its first row or\n"
        "two hold anything. For side 4 in 32f, zelmInvert_ma with unit strides, rows of 16 bytes without gaps and everything\n"
        "aligned to 16 bytes works on pairs of objects: if the second of a pair fails, the first is not written either.",
    ],
    "threads": [
        "m runs on the calling thread, and so does side 1. ma is spread over threads when 2*count*widthHeight, as a 32-bit\n"
        "integer that wraps, is at least 2501; for zelmInvert_ma_32f with unit strides at least 3601.",
    ],
    "method": [
        "Sides 3 to 6: cofactors and one reciprocal of the determinant, without pivots. Where 32f strides are unit in the\n"
        "standard and list layouts, the reciprocal is the processor's estimate and one step of Newton's method, whose last\n"
        "bits depend on the processor (but zelmInvert_ma_32f divides for side 3), and sides 5 and 6 border the inverse of a\n"
        "4 by 4 block, with pivots from the first row or two. All other sides: one determinant by elimination for each\n"
        "element, which costs the fifth power of the side; elements whose minor is zero come out as tiny numbers, not as\n"
        "zeros. To solve large systems use LUDecomp.",
    ],
    "example": [
        "  Zel64f a[100][3][3], buffer[3 * 3 + 3];",
        "  for (int k = 0; k < 100; ++k)",
        "    for (int i = 0; i < 9; ++i)",
        "      a[k][i / 3][i % 3] = i % 4 == 0 ? 4 + k : 1;",
        "  // a[k] = inverse of a[k], in place, 100 matrices of 3 by 3",
        "  ZelStatus status =",
        "      zelmInvert_ma_64f(&a[0][0][0], 72, 24, 8, buffer, &a[0][0][0], 72, 24, 8, 3, 100);",
    ],
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

GROUPS["Transpose"] = {
    "title": "Transpose",
    "forms": {
        "m": "dst(j,i) = src(i,j)",
        "ma": "dst[k](j,i) = src[k](i,j)",
    },
    "what": [
        "Writes the transposition of a matrix, or of each matrix of an array, to another place. Elements are moved as they\n"
        "stand: the bits of a NaN are kept.",
    ],
    "shapes": [
        "width and height are those of the source: src has height rows of width elements, dst has width rows of height\n"
        "elements. In the pointer layout the list of dst runs through its own rows. Strides and shifts are in bytes.",
    ],
    "tests": [
        "A null pointer gives zelStatusNullPointer, a count below 1 zelStatusBadCount, a width or height below 1\n"
        "zelStatusBadSize, a stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or\n"
        "not a multiple of the element size zelStatusBadShift, tested in this order as far as the form has them.",
    ],
    "inplace": ["Not supported: dst must not overlap src. A call in place is not detected; its result is wrong."],
    "failure": [NO_FAILURE],
    "threads": ["All forms run on the calling thread."],
    "method": [
        "32f with every Stride2 equal to 4, other than squares of sides 3 to 6: results that are large beside the largest\n"
        "cache of the machine are written past the caches. That is so for an array (standard and list layout) whose traffic\n"
        "width*height*count*8, as a 32-bit integer that wraps, is above 131072 and above three quarters of the cache, and\n"
        "for a matrix whose sides are both above 128 and whose width*height*8 is above the cache. It changes no result.",
    ],
    "example": [
        "  Zel32f picture[48][64] = {{1}}, turned[64][48];",
        "  ZelStatus status = zelmTranspose_m_32f(&picture[0][0], 64 * 4, 4, 64, 48, &turned[0][0], 48 * 4, 4);",
    ],
}

EIGEN_TESTS = (
    "A null pointer (buffer included) gives zelStatusNullPointer, a widthHeight below 1 zelStatusBadSize, a count below 1\n"
    "zelStatusBadCount, tested in this order as far as the form has them. Then, in the standard layout, a stride below 1\n"
    "or not a multiple of the element size gives zelStatusBadStride; in the list and pointer layouts a shift below 0 or\n"
    "not a multiple of the element size gives zelStatusBadShift, and such a stride zelStatusBadStride, the shift first"
)
EIGEN_VECTORS_TESTS = EIGEN_TESTS + ":\nthose of src, then those of the vectors."
EIGEN_ARRAYS = (
    "valuesRe and valuesIm are plain runs of widthHeight elements for each object, one object behind the other. They may\n"
    "not overlap src or buffer."
)
EIGEN_VALUES_ORDER = (
    "The eigenvalues stand where the iteration leaves them; they are not sorted. A real one has the imaginary part +0. A\n"
    "complex pair stands side by side, the positive imaginary part first."
)
EIGEN_NO_CONVERGENCE = (
    "zelStatusNoConvergence if 30 * widthHeight sweeps do not separate all eigenvalues. Those found by then stand at the\n"
    "end of the object's valuesRe and valuesIm, the others are as they were. A singular matrix is not a failure."
)
EIGEN_METHOD = (
    "Reduction to Hessenberg form by reflections (Householder 1958; Wilkinson 1965), double-shift QR iteration (Francis\n"
    "1961) with exceptional shifts in the 11th and the 21st sweep, standard form of the remaining blocks of two. There is no\n"
    "balancing. All of it works on the transpose of src, which has the same eigenvalues."
)
EIGEN_EQUAL_DIAGONAL = (
    "- A block of two with equal diagonal elements is reported as a complex pair, also where its other elements have one\n"
    "sign: the matrix {1, 2, 2, 1}, whose eigenvalues are 3 and -1, gives 1 + 2i and 1 - 2i. For symmetric matrices take\n"
    "EigenValuesSym; for others transform first, for instance add row 0 to row 1 and subtract column 1 from column 0,\n"
    "which leaves the eigenvalues and makes the diagonal elements differ."
)
EIGEN_SCALE = (
    "- Lengths of columns are roots of sums of squares: elements beyond about 1e19 (32f) or 1e154 (64f) overflow, and the\n"
    "result is NaN or zelStatusNoConvergence; below 1e-19 or 1e-154 they count as zero. Scale such matrices to elements\n"
    "near 1 and the values back."
)
EIGEN_NAN = (
    "- NaN or infinite elements are not looked for: from side 3 on such a matrix usually ends with zelStatusNoConvergence\n"
    "after all its sweeps. With sides 1 and 2 a NaN that the values depend on shows in them; an infinite element may give\n"
    "finite values, and vectors, that mean nothing."
)


def eigen_vectors(family, title, forms, vectors, which, example):
    both = family == "EigenValuesVectors"
    GROUPS[family] = {
        "title": title,
        "forms": forms,
        "what": [
            "Computes the eigenvalues and " + which + " of a real general square matrix, or of each of an array. Mind what\n"
            "right and left mean here: the functions work on the transpose of src. For column-major data whose columns are passed\n"
            "as rows the names have their usual meaning.",
        ],
        "shapes": [
            "src has widthHeight rows and columns, and so " + vectors,
            "Column j belongs to value j and has the length 1. A complex pair (j, j + 1) has the real part of the vector of\n"
            "value j in column j and its imaginary part in column j + 1, the length of both together being 1 and the\n"
            "largest component real up to rounding; the vector of the other value is the conjugate.",
            EIGEN_VALUES_ORDER,
            EIGEN_ARRAYS,
            "buffer is scratch for one object, whatever the count, at any byte address; EigenValuesVectorsGetBufSize tells\n"
            "how many bytes. What it holds before and after has no meaning. Strides and shifts are in bytes.",
        ],
        "tests": [EIGEN_VECTORS_TESTS],
        "inplace": ["src may not overlap the results: an array call reads later objects after it has written earlier ones."],
        "failure": [
            EIGEN_NO_CONVERGENCE,
            "zelStatusFailed if, on the way to a pair's vector, all coefficients of a block of two are negligible beside the\n"
            "eigenvalue; known for values whose parts overflow when added. If that happened on the way to a real vector,\n"
            "the call would end with zelStatusOk; no finite input is known to do it. The values are complete then.",
            "In all these cases the vectors of the object are as they were: they are written at the very end.",
            STOPS,
        ],
        "threads": [
            "m runs on the calling thread. ma is spread over threads when widthHeight*(3*widthHeight+1)*count, as a 32-bit\n"
            "integer that wraps, is at least 501; the threads then have scratch of their own and leave buffer alone.",
        ],
        "method": [
            EIGEN_METHOD,
            "The transformations are accumulated; the vectors of the triangular rest come from substitution with growth\n"
            "control and are transformed back. What is negligible is measured by its neighbours on the diagonal" + (
                ". In\n64f the array forms choose their shifts in single precision, the single ones in double: their values may differ\n"
                "in the last places." if both else ". In\n64f the shifts are chosen in single precision."),
        ],
        "notes": [
            EIGEN_EQUAL_DIAGONAL + "\nThe vectors of such a pair are meaningless.\n"
            "- A matrix whose eigenvalues coincide may have fewer vectors than columns. Then columns come out nearly alike, or as\n"
            "zeros where their squares overflow ({0, 1, 0, 0}), or the second column of a block of two that has lost the\n"
            "element joining its values ({2, 1, -1, 0}) is no eigenvector. Nothing tells: where it matters, multiply by src\n"
            "and compare.\n"
            + EIGEN_SCALE + (" With single shifts the bounds of 32f hold in 64f too.\n" if not both else
                             " Where shifts are single the bounds of 32f hold in 64f too.\n") + EIGEN_NAN + "\n"
            "- A vector whose sum of squares is below 2^-125 (32f) or 2^-1021 (64f) is not normalised.",
        ],
        "example": example,
    }


GROUPS["EigenValues"] = {
    "title": "EigenValues, eigenvalues of general matrices",
    "forms": {
        "m": "valuesRe + i * valuesIm = eigenvalues of src",
        "ma": "valuesRe[k] + i * valuesIm[k] = eigenvalues of src[k]",
    },
    "what": ["Computes the eigenvalues of a real general square matrix, or of each of an array."],
    "shapes": [
        "src has widthHeight rows and columns. " + EIGEN_VALUES_ORDER,
        EIGEN_ARRAYS,
        "buffer is scratch for one object, whatever the count, at any byte address; EigenValuesGetBufSize tells how many\n"
        "bytes. What it holds before and after has no meaning. Strides and shifts are in bytes.",
    ],
    "tests": [EIGEN_TESTS + "."],
    "inplace": ["src may not overlap the results: an array call reads later objects after it has written earlier ones."],
    "failure": [EIGEN_NO_CONVERGENCE, STOPS],
    "threads": [
        "m runs on the calling thread. ma is spread over threads when widthHeight*(widthHeight+1)*count, as a 32-bit\n"
        "integer that wraps, is at least 251; the threads then have scratch of their own and leave buffer alone.",
    ],
    "method": [EIGEN_METHOD],
    "notes": [
        EIGEN_EQUAL_DIAGONAL + "\n"
        "- What is negligible is measured by 2^-23 (32f) or 2^-52 (64f) alone. A matrix that is small as a whole (elements\n"
        "of 1e-9 in 32f) has its values taken from the diagonal of the reduced form, which are wrong. Scale it to elements\n"
        "near 1 and the values back, or take EigenValuesVectors, which measures by the diagonal.\n"
        + EIGEN_SCALE + "\n" + EIGEN_NAN,
    ],
    "example": [
        "  Zel64f a[100][3][3] = {{{0}}}, re[100][3], im[100][3], buffer[24]; // 3 * (3 + 5) elements",
        "  for (int k = 0; k < 100; ++k) {",
        "    a[k][0][1] = a[k][1][2] = a[k][2][0] = 1; // a rotation, which exchanges the axes",
        "    a[k][2][2] = k;",
        "  }",
        "  ZelStatus status = zelmEigenValues_ma_64f(&a[0][0][0], 72, 24, 8, &re[0][0], &im[0][0], 3, 100, buffer);",
    ],
}

eigen_vectors(
    "EigenValuesVectors", "EigenValuesVectors, eigenvalues and both kinds of eigenvectors",
    {"m": "right and left eigenvectors and eigenvalues of src",
     "ma": "right and left eigenvectors and eigenvalues of src[k]"},
    "have vectorsRight and vectorsLeft. With the complex columns\n"
    "written out, vectorsRight holds x with transpose(x) * src = value *\n"
    "transpose(x), vectorsLeft holds y with src * y = conj(value) * y: what is usually called a right vector of src is the\n"
    "conjugate of that.",
    "right and left eigenvectors",
    [
        "  Zel64f a[2][2] = {{1, 1}, {0, 2}}, right[2][2], left[2][2], re[2], im[2], buffer[22]; // 2 * (3 * 2 + 5)",
        "  ZelStatus status = zelmEigenValuesVectors_m_64f(&a[0][0], 16, 8, &right[0][0], 16, 8, &left[0][0], 16, 8, re, im,",
        "                                                  2, buffer);",
    ])
eigen_vectors(
    "EigenValuesVectorsLeft", "EigenValuesVectorsLeft, eigenvalues and left eigenvectors",
    {"m": "src * vectors = vectors * conj(D)", "ma": "src[k] * vectors[k] = vectors[k] * conj(D[k])"},
    "has vectors. With the complex columns written out and D the\n"
    "diagonal matrix of the eigenvalues, vectors holds y with src * y = conj(value) * y, which is the left vector of\n"
    "transpose(src): what is usually called a right vector of src is the conjugate of that.",
    "left eigenvectors",
    [
        "  Zel64f a[2][2] = {{1, 1}, {0, 2}}, vectors[2][2], re[2], im[2], buffer[22]; // 2 * (3 * 2 + 5) elements",
        "  ZelStatus status = zelmEigenValuesVectorsLeft_m_64f(&a[0][0], 16, 8, &vectors[0][0], 16, 8, re, im, 2, buffer);",
        "  // a * vectors = vectors * diag(re)",
    ])
eigen_vectors(
    "EigenValuesVectorsRight", "EigenValuesVectorsRight, eigenvalues and right eigenvectors",
    {"m": "transpose(vectors) * src = D * transpose(vectors)",
     "ma": "transpose(vectors[k]) * src[k] = D[k] * transpose(vectors[k])"},
    "has vectors. With the complex columns written out and D the\n"
    "diagonal matrix of the eigenvalues, vectors holds x with transpose(x) * src = value * transpose(x), which is the\n"
    "right vector of transpose(src). For src * y = value * y take EigenValuesVectorsLeft.",
    "right eigenvectors",
    [
        "  Zel64f a[2][2] = {{1, 1}, {0, 2}}, vectors[2][2], re[2], im[2], buffer[22]; // 2 * (3 * 2 + 5) elements",
        "  ZelStatus status = zelmEigenValuesVectorsRight_m_64f(&a[0][0], 16, 8, &vectors[0][0], 16, 8, re, im, 2, buffer);",
        "  // of value 2 a multiple of (0, 1), of value 1 one of (1, -1)",
    ])

BUF_SIZE_TESTS = "A null size gives zelStatusNullPointer, then a widthHeight below 1 zelStatusBadSize."
for family, formula, users in (
    ("EigenValuesGetBufSize", "widthHeight * (widthHeight + 5)", "EigenValues"),
    ("EigenValuesVectorsGetBufSize", "widthHeight * (3 * widthHeight + 5)",
     "EigenValuesVectors, EigenValuesVectorsLeft\nand EigenValuesVectorsRight"),
):
    GROUPS[family] = {
        "title": family + ", the size of a work buffer",
        "forms": {"-": "*size = " + formula + " * the element size"},
        "what": ["Tells how many bytes the buffer of " + users + " has to have."],
        "shapes": ["size receives the number of bytes, as a 32-bit integer that wraps. The buffer serves one object at a\n"
                   "time, so one is enough for any count."],
        "tests": [BUF_SIZE_TESTS],
        "failure": ["After a failed test *size is as it was."],
        "threads": ["The calling thread does it."],
        "example": [
            "  int32_t size = 0;",
            "  ZelStatus status = zelm" + family + "_64f(4, &size);",
        ],
    }

MOVED = "Elements are moved as they stand: the bits of a NaN are kept."
MOVE_TESTS = (
    "A null pointer gives zelStatusNullPointer, a size below 1 zelStatusBadSize, a count below 1 zelStatusBadCount, a\n"
    "stride below 1 or not a multiple of the element size zelStatusBadStride, a shift below 0 or not a multiple of the\n"
    "element size zelStatusBadShift.")

GROUPS["Extract"] = {
    "title": "Extract",
    "forms": {
        "m": "dst[i*width + j] = src(i,j)",
        "t": "dst[i*width + j] = src(j,i)",
        "v": "dst[j] = src(j)",
        "ma": "dst[(k*height + i)*width + j] = src[k](i,j)",
        "ta": "dst[(k*height + i)*width + j] = src[k](j,i)",
        "va": "dst[k*len + j] = src[k](j)",
    },
    "what": [
        "Packs a matrix, which may be read transposed, or a vector, or an array of these, from any layout into one run: one\n"
        "object behind the other, row after row, without gaps.",
        MOVED,
    ],
    "shapes": [
        "width and height, or len, are those of the result: a t source is stored as width rows of height elements. dst is a\n"
        "plain pointer in every layout, to width*height or len elements for each object. Strides and shifts are in bytes.",
    ],
    "tests": [
        MOVE_TESTS + " The single forms test pointers, the size, the stride or the shift;\n"
        "in the pointer layout the size comes before the pointers, but for zelmExtract_v_32f_P. The array forms test pointers,\n"
        "sizes, count, shifts, strides. The Stride0 of an array is tested with a count of 1 too.",
    ],
    "inplace": ["Not supported: dst must not overlap src."],
    "failure": [NO_FAILURE],
    "threads": ["All forms run on the calling thread."],
    "example": [
        "  Zel64f padded[100][3][4] = {{{1}}}, packed[100][3][3];",
        "  // packed[k]: the first three columns of padded[k]",
        "  ZelStatus status = zelmExtract_ma_64f(&padded[0][0][0], 96, 32, 8, &packed[0][0][0], 3, 3, 100);",
    ],
}

GROUPS["Copy"] = {
    "title": "Copy",
    "forms": {
        "ma": "dst[k](i,j) = src[k](i,j)",
        "va": "dst[k](j) = src[k](j)",
    },
    "what": [
        "Copies an array of matrices or vectors from any layout to any layout, which is how to go from one to another. The\n"
        "letters behind the type are the layouts of src and dst: S standard, L list, P pointer. " + MOVED.replace(" are kept", "\nare kept"),
    ],
    "shapes": ["width and height, or len, are those of both. Strides and shifts are in bytes."],
    "tests": [
        MOVE_TESTS + " They are tested in this order, with these exceptions:\n"
        "zelmCopy_va_32f_LP and zelmCopy_va_32f_SP test shifts before strides, and the Stride0 arguments are tested after all\n"
        "others, and only if count is above 1.",
    ],
    "inplace": ["Not supported: dst must not overlap src."],
    "failure": [NO_FAILURE],
    "threads": ["All forms run on the calling thread."],
    "example": [
        "  Zel32f points[100][3] = {{1, 2, 3}}, x[100], y[100], z[100];",
        "  Zel32f* const planes[3] = {x, y, z};",
        "  // x[k], y[k], z[k] = points[k]",
        "  ZelStatus status = zelmCopy_va_32f_SP(&points[0][0], 12, 4, planes, 0, 4, 3, 100);",
    ],
}

GROUPS["LoadIdentity"] = {
    "title": "LoadIdentity",
    "forms": {"ma": "dst[k](i,j) = i == j ? 1 : 0"},
    "what": ["Makes each matrix of an array the identity. Matrices that are not square get zeros below or beside it."],
    "shapes": ["dst has height rows of width elements. Strides and the shift are in bytes."],
    "tests": [
        MOVE_TESTS + " They are tested in this order, with these exceptions:\n"
        "zelmLoadIdentity_ma_32f_P (not its 64f sibling) tests the shift before count, and dstStride0 is tested after all\n"
        "others, and only if count is above 1.",
    ],
    "inplace": ["There is no source."],
    "failure": [NO_FAILURE],
    "threads": ["All forms run on the calling thread."],
    "example": [
        "  Zel32f frames[100][4][4];",
        "  ZelStatus status = zelmLoadIdentity_ma_32f(&frames[0][0][0], 64, 16, 4, 4, 4, 100);",
    ],
}

SYMMETRIC_SHAPES = (
    "src is square with side widthHeight. values gets widthHeight elements an object, without gaps: those of object k begin\n"
    "at element k*widthHeight, in every layout. buffer is scratch for widthHeight*widthHeight elements, in ma for one matrix\n"
    "in all; what it holds before and after has no meaning. Strides and shifts are in bytes.")
SYMMETRIC_NOT_SYMMETRIC = (
    "Symmetry is not tested. Side 2 does not look at the element at row 1, column 0; from side 3 on both triangles take\n"
    "part, and what comes out of a matrix that is not symmetric has no meaning.")
SYMMETRIC_TESTS = (
    "A null pointer (buffer included) gives zelStatusNullPointer, a widthHeight below 1 zelStatusBadSize, a count below 1\n"
    "zelStatusBadCount; then a shift below 0 or not a multiple of the element size zelStatusBadShift, a stride below 1 or\n"
    "not a multiple of the element size zelStatusBadStride, tested in this order as far as the form has them")
SYMMETRIC_NO_CONVERGENCE = (
    "zelStatusNoConvergence if a value takes more than 30 sweeps. A NaN that couples with other elements always ends so. It\n"
    "also happens to ordinary matrices: to about one random matrix in twenty thousand, and to one in a few hundred of those\n"
    "with equal diagonal elements. What is left has no meaning. Such a matrix nearly always converges with its rows and\n"
    "columns in reverse order; in the pointer layout that is the list of src in reverse order.")
SYMMETRIC_STOPS = STOPS + (
    "\nThe status does not say which object failed: do the array again object by object, with m, to find it and to go on\n"
    "behind it.")
SYMMETRIC_SCALE = (
    "Inputs whose results are poor, and what to do about them:\n"
    "- All limits are absolute: 2^-23 in 32f, 2^-52 in 64f. Off-diagonal elements and columns of that size are taken as zero,\n"
    "from side 3 on also what lies below the subdiagonal of a column that is no longer than 2.4e-4 (32f) or 1.1e-8 (64f).\n"
    "Multiply src by a power of two that brings its largest element between 2^10 and 2^20, and divide the values by it:\n"
    "then none of this matters.")
SYMMETRIC_WRONG = (
    "- Wrong values with zelStatusOk, from side 3 on: where a rotation leaves a difference within the limit, a step of the\n"
    "iteration is left out. This is rare for measured data (none in 400000 random matrices of side 3, a few for larger\n"
    "sides in 32f), but about 1 in 100 matrices of -1, 0 and 1 meets it, whatever their scale.")
SYMMETRIC_CHECK = (
    "Where this matters, compare the sum of the squares of the values with the sum of the squares of all elements of src;\n"
    "the sum of the values is right even then. Where the two differ, use the matrix with its rows and columns in reverse\n"
    "order, which is right in nine of ten cases.")

GROUPS["EigenValuesSym"] = {
    "title": "EigenValuesSym, eigenvalues of symmetric matrices",
    "forms": {
        "m": "values = eigenvalues of src",
        "ma": "values[k] = eigenvalues of src[k]",
    },
    "what": [
        "Computes the eigenvalues of a symmetric matrix, or of each of an array, in descending order (but see the notes on\n"
        "side 2). It is meant for regular matrices with elements about 1 or more: a singular matrix is a failure.",
    ],
    "shapes": [SYMMETRIC_SHAPES, SYMMETRIC_NOT_SYMMETRIC],
    "tests": [SYMMETRIC_TESTS + "."],
    "inplace": ["src must not overlap values or buffer."],
    "failure": [
        "zelStatusSingular for side 2 if the determinant is at most 2^-23 (32f) or 2^-52 (64f) in magnitude (2^-52 also in\n"
        "zelmEigenValuesSym_ma_32f with a Stride2 of 4); values are untouched then. From side 3 on, if the product that stands\n"
        "for the determinant is; values then hold the eigenvalues, not sorted. Side 1 never fails. See the notes.",
        SYMMETRIC_NO_CONVERGENCE,
        SYMMETRIC_STOPS,
    ],
    "threads": [
        "m runs on the calling thread. ma is spread over threads when widthHeight*(widthHeight + 1)*count, as a 32-bit integer\n"
        "that wraps, is at least 1001; the threads then have scratch of their own and leave buffer alone.",
    ],
    "method": [
        "Side 2 in closed form; from side 3 on Householder reduction to tridiagonal form and implicitly shifted QL or QR\n"
        "iteration (Householder 1958; Bowdler, Martin, Reinsch and Wilkinson 1968), from the end with the smaller diagonal\n"
        "element.",
    ],
    "notes": [
        SYMMETRIC_SCALE + "\n"
        "- The determinant's limit is absolute too: 1e-3 times the unit matrix of side 3 is singular in 32f. Scaling helps\n"
        "here as well; for a matrix that is or may be singular, such as the covariance of points in a plane, add s times the\n"
        "unit matrix with an s that keeps all values away from 0, and subtract s from the values.\n"
        "- If the last diagonal element is at most the first in magnitude, the product that is tested is not that of the\n"
        "values but takes diagonal elements of the iteration more than once: {{1,0,0},{0,0,1},{0,1,0}}, with values 1, 1 and\n"
        "-1, is singular. The values are complete: sort them yourself. And a singular matrix may pass: after\n"
        "{{1,1,1},{1,1,1},{1,1,0}} in 64f the middle value is about 1e-16.\n" + SYMMETRIC_WRONG + "\n"
        "For the tridiagonal matrix of side 4 with 2 on and -1 beside the diagonal 3.751, 2.498, 1.370 and 0.381 come out\n"
        "instead of 3.618, 2.618, 1.382 and 0.382. " + SYMMETRIC_CHECK + "\n"
        "- Side 2 with a trace below -2^-23 (32f) or -2^-52 (64f) gives the smaller value first: {{-1,0},{0,-3}} gives -3, -1.",
    ],
    "example": [
        "  Zel64f a[100][3][3], buffer[3 * 3], values[100][3];",
        "  for (int k = 0; k < 100; ++k)",
        "    for (int i = 0; i < 9; ++i)",
        "      a[k][i / 3][i % 3] = i % 4 == 0 ? 1024 + 64 * i + k : 256;",
        "  // values[k] = eigenvalues of a[k], 100 symmetric matrices of 3 by 3",
        "  ZelStatus status = zelmEigenValuesSym_ma_64f(&a[0][0][0], 72, 24, 8, buffer, &values[0][0], 3, 100);",
    ],
}

GROUPS["EigenValuesVectorsSym"] = {
    "title": "EigenValuesVectorsSym, eigenvalues and eigenvectors of symmetric matrices",
    "forms": {
        "m": "src * vectors = vectors * diagonal matrix of values",
        "ma": "src[k] * vectors[k] = vectors[k] * diagonal matrix of values[k]",
    },
    "what": [
        "Computes the eigenvalues of a symmetric matrix, or of each of an array, in descending order (but see the notes on\n"
        "side 2), and orthonormal eigenvectors: column j of vectors belongs to value j.",
    ],
    "shapes": [
        SYMMETRIC_SHAPES + " vectors is square like src, in the layout of the form.", SYMMETRIC_NOT_SYMMETRIC,
    ],
    "tests": [
        SYMMETRIC_TESTS + ".\nIn the list and pointer layouts of ma the shift and the strides of src are tested before those of vectors.",
    ],
    "inplace": ["None of src, vectors, values and buffer may overlap another."],
    "failure": [
        "zelStatusSingular for side 2 if the determinant is at most 2^-23 (32f) or 2^-52 (64f) in magnitude; vectors and values\n"
        "are untouched then. From side 3 on, if the product of the values is at most that in magnitude, in ma at most 2^-23\n"
        "for 64f too: there three values of 1e-3 are singular that are not in m. Values and vectors are complete all the same,\n"
        "in m sorted, in ma not sorted. Side 1 never fails.",
        SYMMETRIC_NO_CONVERGENCE + " Those of\nvectors come out in reverse order then, too.",
        SYMMETRIC_STOPS,
    ],
    "threads": [
        "m runs on the calling thread. ma is spread over threads when widthHeight*(2*widthHeight + 1)*count, as a 32-bit\n"
        "integer that wraps, is above 700; the threads then have scratch of their own and leave buffer alone.",
    ],
    "method": [
        "That of EigenValuesSym, with all reflections and rotations applied to the unit matrix. In ma for 32f the product of\n"
        "the values is formed in double precision.",
    ],
    "notes": [
        SYMMETRIC_SCALE + "\n"
        "- From side 3 on a column is taken as tridiagonal if its elements below the subdiagonal are small beside a positive\n"
        "subdiagonal element x: if their length is at most the root of 2^-22*x (32f) or 2^-51*x (64f). In 32f the vectors of\n"
        "{{5,1,3e-4},{1,3,0.5},{3e-4,0.5,2}} are wrong in the fourth digit, the values in the fifth. Scaling up helps down to\n"
        "a length of 3.5e-4*x (32f) or 1.5e-8*x (64f), where rounding says the same; beyond that use 64f, or for values alone\n"
        "EigenValuesSym, which has no such test. zelmEigenValuesVectorsSym_ma_32f_L with every Stride2 equal to 4 has the\n"
        "limit of 64f in this stage.\n"
        "- A matrix that is or may be singular, such as the covariance of points in a plane: in m take what zelStatusSingular\n"
        "leaves; in ma, which stops there, add s times the unit matrix with an s that keeps all values away from 0, and\n"
        "subtract s from the values; the vectors stay the same.\n" + SYMMETRIC_WRONG + "\n"
        "In 64f the second value of the tridiagonal matrix of side 4 with 2 on and -1 beside the diagonal comes out as 2.630\n"
        "instead of 2.618, and its vector does not fit. Vectors are orthonormal even then. " + SYMMETRIC_CHECK + "\n"
        "- Side 2 with a trace below -2^-23 (32f) or -2^-52 (64f) gives the smaller value first, and its vector:\n"
        "{{-1,0},{0,-3}} gives -3, -1. A diagonal matrix of side 2 in descending order gives minus the unit matrix.",
    ],
    "example": [
        "  Zel32f a[100][3][3], buffer[3 * 3], axes[100][3][3], values[100][3];",
        "  for (int k = 0; k < 100; ++k)",
        "    for (int i = 0; i < 9; ++i)",
        "      a[k][i / 3][i % 3] = i % 4 == 0 ? 1024 + 64 * i + k : 256;",
        "  // column j of axes[k] = eigenvector of a[k] for values[k][j], 100 symmetric matrices of 3 by 3",
        "  ZelStatus status = zelmEigenValuesVectorsSym_ma_32f(&a[0][0][0], 36, 12, 4, buffer, &axes[0][0][0], 36, 12, 4,",
        "                                                      &values[0][0], 3, 100);",
    ],
}
