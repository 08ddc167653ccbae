/* A batch spread over the ranks of an MPI program: each calls the library on its share.
   mpirun -np 2 ranks; with as many ranks as cores, OMP_NUM_THREADS=1 keeps each on its own. */
#include <math.h>
#include <mpi.h>
#include <stdio.h>
#include <stdlib.h>
#include <zelm.h>

enum { count = 1001 };
typedef Zel64f Matrix[3][3];
typedef Zel64f Values[3];

/* The first object of a rank's share: shares are contiguous and differ by one object at most. */
static int firstOf(int rank, int ranks) {
  return (int)((long)count * rank / ranks);
}

/* How many elements each rank gets and where they begin, with so many elements an object. */
static void shares(int ranks, int elements, int* counts, int* starts) {
  int rank;
  for (rank = 0; rank < ranks; ++rank) {
    starts[rank] = elements * firstOf(rank, ranks);
    counts[rank] = elements * firstOf(rank + 1, ranks) - starts[rank];
  }
}

static void fill(Matrix* all) {
  int k, i, j;
  for (k = 0; k < count; ++k)
    for (i = 0; i < 3; ++i)
      for (j = 0; j < 3; ++j)
        all[k][i][j] = (i == j ? 10 * i : 0) + (Zel64f)((k + i + j) % 13); /* symmetric */
}

/* The sum of the eigenvalues is the trace: the largest difference. */
static Zel64f largestDifference(Matrix* all, Values* values) {
  Zel64f largest = 0;
  int k;
  for (k = 0; k < count; ++k) {
    const Zel64f trace = all[k][0][0] + all[k][1][1] + all[k][2][2];
    largest = fmax(largest, fabs(values[k][0] + values[k][1] + values[k][2] - trace));
  }
  return largest;
}

int main(int argc, char** argv) {
  int rank, ranks, *counts, *starts, mine, failures, failed, wrong = 0;
  Matrix *all = NULL, *share;
  Values *values = NULL, *shareOfValues;
  Zel64f buffer[9];
  ZelStatus status;
  MPI_Init(&argc, &argv);
  MPI_Comm_rank(MPI_COMM_WORLD, &rank);
  MPI_Comm_size(MPI_COMM_WORLD, &ranks);
  mine = firstOf(rank + 1, ranks) - firstOf(rank, ranks);
  counts = malloc(sizeof(int) * (size_t)ranks);
  starts = malloc(sizeof(int) * (size_t)ranks);
  share = malloc(sizeof(Matrix) * (size_t)(mine + 1));
  shareOfValues = malloc(sizeof(Values) * (size_t)(mine + 1));
  if (rank == 0) {
    all = malloc(sizeof(Matrix) * count);
    values = malloc(sizeof(Values) * count);
    fill(all);
  }

  shares(ranks, 9, counts, starts);
  MPI_Scatterv(all, counts, starts, MPI_DOUBLE, share, 9 * mine, MPI_DOUBLE, 0, MPI_COMM_WORLD);
  /* A count of 0 is refused: a rank without objects does not call. */
  status = zelStatusOk;
  if (mine > 0)
    status = zelmEigenValuesSym_ma_64f(&share[0][0][0], sizeof(Matrix), sizeof share[0][0], sizeof(Zel64f), buffer,
                                       &shareOfValues[0][0], 3, mine);
  shares(ranks, 3, counts, starts);
  MPI_Gatherv(shareOfValues, 3 * mine, MPI_DOUBLE, values, counts, starts, MPI_DOUBLE, 0, MPI_COMM_WORLD);

  failed = status != zelStatusOk;
  MPI_Allreduce(&failed, &failures, 1, MPI_INT, MPI_SUM, MPI_COMM_WORLD);
  if (rank == 0) {
    const Zel64f difference = largestDifference(all, values);
    wrong = !(difference < 1e-12);
    printf("%d matrices on %d ranks, %d failures; largest difference of a sum of eigenvalues from the trace: %g\n",
           count, ranks, failures, difference);
  }
  free(all), free(values), free(share), free(shareOfValues), free(counts), free(starts);
  MPI_Finalize();
  return failures > 0 || wrong;
}
