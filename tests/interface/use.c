/* The header from C: every type, status and layout by its documented name and value. */
#include <zelm.h>

#include <stddef.h>
#include <stdio.h>
#include <string.h>

static int failures = 0;

static void check(int good, const char* what) {
  if (!good) {
    ++failures;
    printf("failed: %s\n", what);
  }
}

#define CHECK(condition) check((condition) != 0, #condition)

static void checkTypes(void) {
  const Zel32f third32 = 1.0f / 3;
  const Zel64f third64 = 1.0 / 3;
  CHECK(sizeof(Zel32f) == 4 && third32 == 1.0f / 3);
  CHECK(sizeof(Zel64f) == 8 && third64 == 1.0 / 3);
  CHECK(sizeof(ZelStatus) == 4 && (ZelStatus)-1 < 0);
  CHECK(zelStatusOk == 0);
  CHECK(zelStatusFailed == -2);
  CHECK(zelStatusBadSize == -6);
  CHECK(zelStatusNullPointer == -8);
  CHECK(zelStatusDivideByZero == -10);
  CHECK(zelStatusNotPositiveDefinite == -179);
  CHECK(zelStatusBadStride == -182);
  CHECK(zelStatusSingular == -195);
  CHECK(zelStatusBadShift == -202);
  CHECK(zelStatusBadCount == -203);
  CHECK(zelStatusSizeMismatch == -204);
  CHECK(zelStatusNoConvergence == -205);
}

static void checkVersion(void) {
  const ZelLibVersion* version = zelmGetLibVersion();
  CHECK(offsetof(ZelLibVersion, major) == 0);
  CHECK(offsetof(ZelLibVersion, minor) == 4);
  CHECK(offsetof(ZelLibVersion, majorBuild) == 8);
  CHECK(offsetof(ZelLibVersion, build) == 12);
  CHECK(offsetof(ZelLibVersion, targetCode) == 16);
  CHECK(offsetof(ZelLibVersion, name) == 24);
  CHECK(offsetof(ZelLibVersion, version) == 32);
  CHECK(offsetof(ZelLibVersion, buildDate) == 40);
  CHECK(version == zelmGetLibVersion());
  CHECK(version->major == 6 && version->minor == 1 && version->majorBuild == 137 && version->build == 778);
  CHECK(memcmp(version->targetCode, "n8\0\0", 4) == 0);
  CHECK(strcmp(version->name, "libzelmn8.so.6.1") == 0);
  CHECK(strcmp(version->version, "6.1 build 137.56") == 0);
  CHECK(strcmp(version->buildDate, "Mar 17 2010") == 0);
}

/* One 2 by 3 sum (width 3, height 2) in each layout, both types. */
static void checkCalls(void) {
  const Zel32f a[2][3] = {{1, 2, 3}, {4, 5, 6}}, t[3][2] = {{10, 40}, {20, 50}, {30, 60}};
  const Zel64f b[2][2][3] = {{{1, 2, 3}, {4, 5, 6}}, {{7, 8, 9}, {10, 11, 12}}};
  const Zel32f *aList[6], *tList[6];
  const Zel64f* bList[2];
  Zel32f sum[2][3], sumP[2][3], *sumList[6];
  Zel64f sums[2][2][3], *sumsList[2];
  int i, j, k;
  for (i = 0; i < 6; ++i) {
    aList[i] = &a[i / 3][i % 3];
    sumList[i] = &sumP[i / 3][i % 3];
    tList[i] = &t[i / 2][i % 2];
  }
  for (k = 0; k < 2; ++k) {
    bList[k] = &b[k][0][0];
    sumsList[k] = &sums[k][0][0];
  }
  CHECK(zelmAdd_tm_32f(&t[0][0], 8, 4, &a[0][0], 12, 4, &sum[0][0], 12, 4, 3, 2) == zelStatusOk);
  CHECK(zelmAdd_tm_32f_P(tList, 0, aList, 0, sumList, 0, 3, 2) == zelStatusOk);
  CHECK(zelmAdd_mama_64f_L(bList, 0, 24, 8, bList, 0, 24, 8, sumsList, 0, 24, 8, 3, 2, 2) == zelStatusOk);
  for (i = 0; i < 2; ++i)
    for (j = 0; j < 3; ++j) {
      CHECK(sum[i][j] == a[i][j] + t[j][i]);
      CHECK(sumP[i][j] == a[i][j] + t[j][i]);
      for (k = 0; k < 2; ++k)
        CHECK(sums[k][i][j] == 2 * b[k][i][j]);
    }
  CHECK(zelmAdd_tm_32f(NULL, 8, 4, &a[0][0], 12, 4, &sum[0][0], 12, 4, 3, 2) == zelStatusNullPointer);
  CHECK(zelmAdd_mama_64f_L(bList, 0, 24, 8, bList, 4, 24, 8, sumsList, 0, 24, 8, 3, 2, 2) == zelStatusBadShift);
}

int main(void) {
  checkTypes();
  checkVersion();
  checkCalls();
  return failures != 0;
}
