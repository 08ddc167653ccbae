#include "read.h"

namespace {

// Corners as they come; which of them are one point shows when points of the same place are made one.
class Corners {
public:
  explicit Corners(Model& target) : model(target) {}
  void add(const Vec3& point) {
    std::vector<Vec3>& points = model.scan.points;
    points.push_back(point);
    if (points.size() % 3 == 0) {
      const auto last = int32_t(points.size()) - 1;
      model.scan.triangles.push_back({last - 2, last - 1, last});
      ++model.faces;
    }
  }

private:
  Model& model;
};

// solid name, then facets of seven lines, then endsolid; perhaps several of these.
Model readAscii(const File& file, Progress& progress) {
  static constexpr struct {
    std::string_view words[2];
    std::size_t numbers;
  } facet[] = {{{"facet", "normal"}, 3}, {{"outer", "loop"}, 0}, {{"vertex", ""}, 3},  {{"vertex", ""}, 3},
               {{"vertex", ""}, 3},      {{"endloop", ""}, 0},   {{"endfacet", ""}, 0}};
  Model model;
  Corners corners(model);
  Words words(file, {});
  bool inside = false;
  while (words.next()) {
    if (!inside || words[0] == "endsolid") {
      if (words[0] != (inside ? "endsolid" : "solid"))
        words.refuse("'solid' should stand here, not " + Words::quoted(words[0]));
      inside = !inside;
      continue;
    }
    for (const auto& line : facet) {
      if (&line != facet && !words.next())
        words.refuse("the file ends in the middle of a facet");
      const std::size_t named = line.words[1].empty() ? 1 : 2;
      if (words[0] != line.words[0] || words.count() < named || (named == 2 && words[1] != line.words[1]))
        words.refuse("'" + std::string(line.words[0]) + "' should stand here, not " + Words::quoted(words[0]));
      if (words.count() != named + line.numbers)
        words.refuse("here are " + std::to_string(words.count() - named) + " numbers, there should be " +
                     std::to_string(line.numbers));
      if (line.words[0] == "vertex")
        corners.add({words.number(1), words.number(2), words.number(3)});
    }
    if (model.scan.points.size() > mostPoints)
      words.refuse("more than " + std::to_string(mostPoints) + " corners");
    if (model.faces % 4096 == 0)
      progress.at(words.position(), file.bytes.size());
  }
  if (inside)
    words.refuse("the file ends before endsolid");
  return model;
}

constexpr std::size_t headerBytes = 80, facetBytes = 50;

Model readBinary(const File& file, Progress& progress) {
  Bytes bytes(file);
  bytes.skip(headerBytes);
  const auto count = bytes.take<uint32_t>();
  if (bytes.left() / facetBytes < count || bytes.left() != count * facetBytes)
    bytes.refuse(headerBytes, std::to_string(count) + " facets take " + std::to_string(count * facetBytes) +
                                  " bytes, here are " + std::to_string(bytes.left()));
  if (count > mostPoints / 3)
    bytes.refuse(headerBytes, "too many facets");
  Model model;
  Corners corners(model);
  for (uint32_t i = 0; i < count; ++i) {
    bytes.skip(12); // the normal
    for (int c = 0; c < 3; ++c) {
      Vec3 point;
      for (double& x : point) {
        x = double(bytes.take<float>());
        if (!std::isfinite(x))
          bytes.refuse(bytes.position() - 4, "a coordinate that is not a finite number");
      }
      corners.add(point);
    }
    bytes.skip(2);
    if (i % 4096 == 0)
      progress.at(bytes.position(), file.bytes.size());
  }
  return model;
}

} // namespace

Model readStl(const File& file, Progress& progress) {
  // Binary files may begin with the word solid too, but have zeros in their numbers.
  const bool text = file.bytes.compare(0, 5, "solid") == 0 && file.bytes.find('\0') == std::string::npos;
  return text ? readAscii(file, progress) : readBinary(file, progress);
}
