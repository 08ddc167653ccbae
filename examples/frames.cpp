#include "frames.h"
#include "check.h"

std::vector<Matrix3> triangleCorners(const Mesh& mesh) {
  std::vector<Matrix3> corners;
  corners.reserve(mesh.triangles.size());
  for (const Triangle& t : mesh.triangles)
    corners.push_back({mesh.points[size_t(t[0])], mesh.points[size_t(t[1])], mesh.points[size_t(t[2])]});
  return corners;
}

void edgesByLibrary(const std::vector<Matrix3>& corners, std::vector<Matrix3>& edges) {
  static const double differences[3][3] = {{-1, 1, 0}, {0, -1, 1}, {1, 0, -1}};
  edges.resize(corners.size());
  if (!corners.empty())
    check(zelmMul_mma_64f(&differences[0][0], 24, 8, 3, 3, &corners[0][0][0], 72, 24, 8, 3, 3, &edges[0][0][0], 72, 24,
                          8, int32_t(corners.size())),
          "zelmMul_mma_64f");
}

void edgesByLoop(const std::vector<Matrix3>& corners, std::vector<Matrix3>& edges) {
  edges.resize(corners.size());
  for (size_t k = 0; k < corners.size(); ++k) {
    const Matrix3& c = corners[k];
    edges[k] = {c[1] - c[0], c[2] - c[1], c[0] - c[2]};
  }
}

std::vector<Matrix3> vertexFrames(const Mesh& mesh, const std::vector<Matrix3>& edges) {
  std::vector<Vec3> sums(mesh.points.size(), Vec3{}), any = sums;
  for (size_t k = 0; k < edges.size(); ++k) {
    const Matrix3& e = edges[k];
    const Vec3 area = cross(e[0], e[1]), normal = unit(area);
    if (!(length(normal) > 0))
      continue;
    for (size_t c = 0; c < 3; ++c) {
      const auto vertex = size_t(mesh.triangles[k][c]);
      sums[vertex] = sums[vertex] + std::atan2(length(area), -dot(e[c], e[(c + 2) % 3])) * normal;
      any[vertex] = normal;
    }
  }
  std::vector<Matrix3> frames(mesh.points.size(), Matrix3{});
  for (size_t v = 0; v < frames.size(); ++v) {
    // Faces back to back cancel; one of them will do.
    const Vec3 normal = unit(length(sums[v]) > 1e-6 ? sums[v] : any[v]);
    if (!(length(normal) > 0))
      continue;
    const size_t least = std::abs(normal[0]) < std::abs(normal[1])
                             ? (std::abs(normal[0]) < std::abs(normal[2]) ? 0 : 2)
                             : (std::abs(normal[1]) < std::abs(normal[2]) ? 1 : 2);
    Vec3 axis{};
    axis[least] = 1;
    const Vec3 tangent = unit(cross(axis, normal));
    frames[v] = {tangent, cross(normal, tangent), normal};
  }
  return frames;
}
