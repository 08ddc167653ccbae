// Points that have equally many neighbours, in batches: the matrices made of them have one shape.
#ifndef BATCHES_H
#define BATCHES_H

#include "neighbours.h"
#include <algorithm>
#include <exception>
#include <omp.h>

struct Batch {
  std::size_t first, count; // in the order of Batches
  int32_t height;           // a point and its neighbours
};

/// Some at a time, so that their matrices stay in the cache between the steps.
constexpr std::size_t mostInBatch = 128;

struct Batches {
  std::vector<int32_t> order; // the points, batch after batch
  std::vector<Batch> list;
};

/// Points with fewer than `least` neighbours are left out. What is near in the scan stays near.
Batches makeBatches(const Neighbours& neighbours, std::size_t least);

/// A point as (1, x, y, z), never across a border between lines of the cache.
struct alignas(32) Point4 {
  double element[4];
  double& operator[](std::size_t i) { return element[i]; }
  double operator[](std::size_t i) const { return element[i]; }
};
std::vector<Point4> homogeneous(const Scan& scan);

/// The points of a batch, each with its neighbours, seen from it, as (1, x, y, z), one behind the other.
void gatherBatch(const std::vector<Point4>& points, const Neighbours& neighbours, const Batches& batches,
                 const Batch& batch, Point4* to);

/// Shares all batches among the threads. Each thread calls start() once for something that is then called with one
/// batch after the other, and keeps what it needs in between. The library's own threads are off meanwhile.
template <class Start> void forBatches(const Batches& batches, Progress& progress, const Start& start) {
  std::exception_ptr error;
  std::size_t done = 0;
#pragma omp parallel
  {
    omp_set_num_threads(1); // of this thread alone, up to the end of the region
    auto work = start();
#pragma omp for schedule(dynamic)
    for (std::size_t i = 0; i < batches.list.size(); ++i)
      try {
        work(batches.list[i]);
        std::size_t sofar;
#pragma omp atomic capture
        sofar = ++done;
        if (omp_get_thread_num() == 0)
          progress.at(sofar, batches.list.size());
      } catch (...) {
#pragma omp critical
        error = std::current_exception();
      }
  }
  if (error)
    std::rethrow_exception(error);
}

#endif
