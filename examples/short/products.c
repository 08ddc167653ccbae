/* A thousand products of 4 by 4 matrices: one call in place of a loop. */
#include <math.h>
#include <stdio.h>
#include <zelm.h>

enum { count = 1000 };
static Zel32f camera[4][4], local[count][4][4], view[count][4][4];

/* What the call replaces: view[k] = camera * local[k]. */
static Zel32f elementOfProduct(int k, int i, int j) {
  Zel32f sum = 0;
  int l;
  for (l = 0; l < 4; ++l)
    sum += camera[i][l] * local[k][l][j];
  return sum;
}

int main(void) {
  int k, i, j;
  Zel32f difference = 0;
  ZelStatus status;
  for (i = 0; i < 4; ++i)
    for (j = 0; j < 4; ++j) {
      camera[i][j] = (Zel32f)(1 + i) / (Zel32f)(2 + j);
      for (k = 0; k < count; ++k)
        local[k][i][j] = (Zel32f)((k + 3 * i + 5 * j) % 7);
    }

  /* One matrix by an array of matrices: mma. Strides are in bytes, to the next matrix, row and element. */
  status = zelmMul_mma_32f(&camera[0][0], sizeof camera[0], sizeof(Zel32f), 4, 4,                      /* src1 */
                           &local[0][0][0], sizeof local[0], sizeof local[0][0], sizeof(Zel32f), 4, 4, /* src2 */
                           &view[0][0][0], sizeof view[0], sizeof view[0][0], sizeof(Zel32f), count);  /* dst */

  for (k = 0; k < count; ++k)
    for (i = 0; i < 4; ++i)
      for (j = 0; j < 4; ++j)
        difference = fmaxf(difference, fabsf(view[k][i][j] - elementOfProduct(k, i, j)));
  printf("status %d, largest difference from the loop: %g\n", (int)status, (double)difference);
  return status != zelStatusOk || difference > 1e-5f;
}
