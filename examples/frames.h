// Local frames by principal components: the eigenvectors of the covariance of a point and its neighbours.
#ifndef FRAMES_H
#define FRAMES_H

#include "batches.h"

using Matrix3 = std::array<Vec3, 3>; // rows
using Matrix4 = std::array<Point4, 4>;

/// Does a plane come out of a point's neighbours? Not where they are as thick as wide, and not on a line. Variances are
/// relative to their sum, in descending order.
inline bool hasPlane(const Vec3& variances) {
  return variances[2] < 0.5 * variances[1] && variances[1] > 1e-9;
}

/// Two tangents, then a normal of length 1, in columns.
Matrix3 frameOf(const Vec3& normal);

/// The frames of a batch. One call for each batch takes as long as one for all points (41 ns a matrix, both), and what
/// comes before and behind it stays in the cache; kept for all points at once, neighbourhoods fill more than any cache.
class PrincipalFrames {
public:
  /// From each point and its neighbours, seen from it, as rows (1, x, y, z).
  void find(const Batch& batch, const std::vector<Point4>& gathered);

  /// Of point k of the batch: two tangents, then the normal, of either sign, in columns.
  const Matrix3& axes(std::size_t k) const { return vectors[k]; }
  /// Along the axes.
  Vec3 variances(std::size_t k) const { return values[k] - Vec3{1, 1, 1}; }
  /// Of an even disc with the same mean square distance.
  double radius(std::size_t k) const { return radii[k]; }
  /// The sums of the products of any two of 1, x, y and z.
  const std::vector<Matrix4>& sums() const { return moments; }

private:
  std::vector<Matrix4> moments = std::vector<Matrix4>(mostInBatch);
  std::vector<Matrix3> matrices = std::vector<Matrix3>(mostInBatch), vectors = matrices;
  std::vector<Vec3> values = std::vector<Vec3>(mostInBatch);
  std::vector<double> radii = std::vector<double>(mostInBatch);
};

#endif
