// Reading scans.
#ifndef READ_H
#define READ_H

#include "file.h"
#include "progress.h"
#include "scan.h"

struct Model {
  Scan scan;
  std::size_t faces = 0; // polygons in the file
};

/// The most points that are read of a file: their numbers, and those of faces' corners, stay far from 32 bits' end.
constexpr std::size_t mostPoints = 1u << 28;

/// Reads a file of any kind below, which its name's ending tells. Throws std::runtime_error if the file cannot be read,
/// is malformed, ends too early, has a number that is not finite or an index that names no point, or has no points.
Model readModel(const std::string& path, Progress& progress);

/// OBJ: v and f statements; the others that the format knows are passed over.
Model readObj(const File& file, Progress& progress);
/// PLY, ascii or binary: the elements vertex and face; others are passed over.
Model readPly(const File& file, Progress& progress);
/// A point a line, x y z; further numbers behind them, as many on each line, are passed over.
Model readXyz(const File& file, Progress& progress);
/// STL, ascii or binary.
Model readStl(const File& file, Progress& progress);
/// 3DS: the triangle meshes of all objects.
Model read3ds(const File& file, Progress& progress);

/// Cuts a polygon into triangles around its first corner. It comes corner by corner.
class Polygon {
public:
  explicit Polygon(Model& target) : model(target) {}
  void add(int32_t corner) {
    if (corners >= 2)
      model.scan.triangles.push_back({first, last, corner});
    else if (corners == 0)
      first = corner;
    last = corner;
    ++corners;
    model.faces += corners == 3;
  }

private:
  Model& model;
  int32_t first = 0, last = 0;
  std::size_t corners = 0;
};

#endif
