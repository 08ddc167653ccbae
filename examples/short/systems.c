/* A batch of 3 by 3 systems a[k] x[k] = b[k], some of which have no solution: these are found, named and left out. */
#include <math.h>
#include <stdio.h>
#include <zelm.h>

enum { count = 100 };
static Zel64f a[count][3][3], factors[count][3][3], b[count][3], x[count][3];
static int32_t pivots[count][3];
static int solvable[count];

/* Decomposes all systems; returns how many cannot be solved. The identity takes their place, so that the batch stays
 * whole. */
static int decompose(void) {
  int k, failed = 0;
  /* The quick way, nearly always the only one. */
  ZelStatus status = zelmLUDecomp_ma_64f(&a[0][0][0], 72, 24, 8, &pivots[0][0], &factors[0][0][0], 72, 24, 8, 3, count);
  for (k = 0; k < count; ++k)
    solvable[k] = 1;
  if (status == zelStatusOk)
    return 0;
  /* The status of a batch tells that an object failed, not which. */
  for (k = 0; k < count; ++k) {
    status = zelmLUDecomp_m_64f(&a[k][0][0], 24, 8, pivots[k], &factors[k][0][0], 24, 8, 3);
    if (status == zelStatusOk)
      continue;
    printf("system %d: %s\n", k, status == zelStatusSingular ? "singular" : "not decomposed");
    solvable[k] = 0;
    ++failed;
    zelmLoadIdentity_ma_64f(&a[k][0][0], 72, 24, 8, 3, 3, 1);
    zelmLUDecomp_m_64f(&a[k][0][0], 24, 8, pivots[k], &factors[k][0][0], 24, 8, 3);
  }
  return failed;
}

/* The largest element of b - a x of the systems that were solved. */
static Zel64f largestResidual(void) {
  Zel64f largest = 0;
  int k, i;
  for (k = 0; k < count; ++k)
    for (i = 0; i < 3 && solvable[k]; ++i)
      largest = fmax(largest, fabs(b[k][i] - a[k][i][0] * x[k][0] - a[k][i][1] * x[k][1] - a[k][i][2] * x[k][2]));
  return largest;
}

int main(void) {
  int k, i, j, failed;
  Zel64f residual;
  ZelStatus status;
  for (k = 0; k < count; ++k)
    for (i = 0; i < 3; ++i) {
      b[k][i] = i - k;
      for (j = 0; j < 3; ++j)
        a[k][i][j] = i == j ? 5 : (Zel64f)((k + i + 2 * j) % 3);
    }
  for (j = 0; j < 3; ++j)
    a[30][2][j] = a[30][1][j], a[77][0][j] = 0; /* two equal rows; a row of zeros */

  failed = decompose();
  status =
      zelmLUBackSubst_mava_64f(&factors[0][0][0], 72, 24, 8, &pivots[0][0], &b[0][0], 24, 8, &x[0][0], 24, 8, 3, count);
  residual = largestResidual();
  printf("%d of %d systems solved, largest residual %g\n", count - failed, count, residual);
  return status != zelStatusOk || failed != 2 || solvable[30] || solvable[77] || residual > 1e-12;
}
