/* Prints the file that the loader took for the library, then the bits of the results of a batch of calls. */
#include <zelm.h>

#include <inttypes.h>
#include <stdio.h>
#include <string.h>

#define COUNT 37
#define ROOM (7 * 7 * COUNT)

static uint32_t state = 1;

/* Numbers of both signs and of very different size. */
static double draw(void) {
  double value;
  state = state * 1664525u + 1013904223u;
  value = (double)(state >> 8) - 8388608.0;
  return state & 64 ? value : value / 16777216.0;
}

static void print32(const char* name, int size, const Zel32f* result, int elements, ZelStatus status) {
  int i;
  printf("%s %d %d", name, size, (int)status);
  for (i = 0; i < elements; ++i) {
    uint32_t bits;
    memcpy(&bits, &result[i], sizeof bits);
    printf(" %08" PRIx32, bits);
  }
  printf("\n");
}

static void print64(const char* name, int size, const Zel64f* result, int elements, ZelStatus status) {
  int i;
  printf("%s %d %d", name, size, (int)status);
  for (i = 0; i < elements; ++i) {
    uint64_t bits;
    memcpy(&bits, &result[i], sizeof bits);
    printf(" %016" PRIx64, bits);
  }
  printf("\n");
}

/* The calls of one type: arrays of n by n, packed, as lists, and with the objects side by side. */
#define PROBE(T, t, print)                                                                                             \
  static T first_##t[ROOM], second_##t[ROOM], result_##t[ROOM];                                                        \
  static void probe_##t(int n) {                                                                                       \
    const int e = (int)sizeof(T), all = n * n * COUNT;                                                                 \
    const T *list1[COUNT], *list2[COUNT], *elements1[49], *elements2[49];                                              \
    T *list3[COUNT], *elements3[49];                                                                                   \
    int i;                                                                                                             \
    for (i = 0; i < ROOM; ++i) {                                                                                       \
      first_##t[i] = (T)draw();                                                                                        \
      second_##t[i] = (T)draw();                                                                                       \
    }                                                                                                                  \
    for (i = 0; i < COUNT; ++i) {                                                                                      \
      list1[i] = first_##t + n * n * (COUNT - 1 - i);                                                                  \
      list2[i] = second_##t + n * n * i;                                                                               \
      list3[i] = result_##t + n * n * i;                                                                               \
    }                                                                                                                  \
    for (i = 0; i < n * n; ++i) {                                                                                      \
      elements1[i] = first_##t + COUNT * i;                                                                            \
      elements2[i] = second_##t + COUNT * i;                                                                           \
      elements3[i] = result_##t + COUNT * i;                                                                           \
    }                                                                                                                  \
    print(                                                                                                             \
        "mam", n, result_##t, all,                                                                                     \
        zelmAdd_mam_##t(first_##t, e* n* n, e* n, e, second_##t, e* n, e, result_##t, e* n* n, e* n, e, n, n, COUNT)); \
    print(                                                                                                             \
        "tam", n, result_##t, all,                                                                                     \
        zelmAdd_tam_##t(first_##t, e* n* n, e* n, e, second_##t, e* n, e, result_##t, e* n* n, e* n, e, n, n, COUNT)); \
    print("mama", n, result_##t, all,                                                                                  \
          zelmAdd_mama_##t(first_##t, e* n* n, e* n, e, second_##t, e* n* n, e* n, e, result_##t, e* n* n, e* n, e, n, \
                           n, COUNT));                                                                                 \
    print("tata_L", n, result_##t, all,                                                                                \
          zelmAdd_tata_##t##_L(list1, 0, e* n, e, list2, 0, e* n, e, list3, 0, e* n, e, n, n, COUNT));                 \
    print("mama_P", n, result_##t, all,                                                                                \
          zelmAdd_mama_##t##_P(elements1, 0, e, elements2, 0, e, elements3, 0, e, n, n, COUNT));                       \
  }

/* clang-format off */
PROBE(Zel32f, 32f, print32)
PROBE(Zel64f, 64f, print64)
/* clang-format on */

int main(void) {
  char line[4096];
  FILE* maps = fopen("/proc/self/maps", "r");
  int n;
  while (maps && fgets(line, sizeof line, maps))
    if (strstr(line, "libzelmn8.so") && strchr(line, '/')) {
      printf("%s", strchr(line, '/'));
      break;
    }
  if (maps)
    fclose(maps);
  for (n = 1; n <= 7; ++n) {
    probe_32f(n);
    probe_64f(n);
  }
  return 0;
}
