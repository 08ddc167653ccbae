/* Adds one matrix to each of a batch. */
#include <stdio.h>
#include <zelm.h>

int main(void) {
  Zel32f batch[5][3][3], offset[3][3];
  ZelStatus status;
  int k, i;
  for (i = 0; i < 9; ++i) {
    offset[i / 3][i % 3] = (Zel32f)i;
    for (k = 0; k < 5; ++k)
      batch[k][i / 3][i % 3] = (Zel32f)(100 * k);
  }
  status = zelmAdd_mam_32f(&batch[0][0][0], 36, 12, 4, &offset[0][0], 12, 4, &batch[0][0][0], 36, 12, 4, 3, 3, 5);
  printf("%s: status %d, %g\n", zelmGetLibVersion()->name, (int)status, (double)batch[4][2][2]);
  for (i = 0; i < 9; ++i)
    for (k = 0; k < 5; ++k)
      if (batch[k][i / 3][i % 3] != (Zel32f)(100 * k + i))
        return 1;
  return status != zelStatusOk;
}
