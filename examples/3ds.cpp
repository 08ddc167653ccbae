#include "read.h"

namespace {

// A file is a tree of chunks: an identifier, the length with these six bytes, then data, then chunks inside this one.
class Reader {
public:
  explicit Reader(const File& source) : file(source), bytes(source) {}

  Model read(Progress& progress) {
    const Chunk whole = chunk(file.bytes.size());
    if (whole.kind != Kind::Main)
      bytes.refuse(0, "not a 3DS file");
    inside(whole, [&](const Chunk& part) {
      if (part.kind == Kind::Editor)
        inside(part, [&](const Chunk& item) {
          progress.at(bytes.position(), file.bytes.size());
          if (item.kind == Kind::Object)
            object(item);
        });
    });
    return std::move(model);
  }

private:
  enum class Kind : uint16_t {
    Main = 0x4d4d,
    Editor = 0x3d3d,
    Object = 0x4000,
    Mesh = 0x4100,
    Points = 0x4110,
    Faces = 0x4120
  };
  struct Chunk {
    Kind kind;
    std::size_t end;
  };

  Chunk chunk(std::size_t parentEnd) {
    const std::size_t begin = bytes.position();
    if (parentEnd - begin < headerBytes)
      bytes.refuse(begin, "a chunk that has no room for its length");
    const auto kind = Kind(bytes.take<uint16_t>());
    const auto length = bytes.take<uint32_t>();
    if (length < headerBytes || length > parentEnd - begin)
      bytes.refuse(begin, "a chunk of " + std::to_string(length) + " bytes where there are " +
                              std::to_string(parentEnd - begin));
    return {kind, begin + length};
  }

  // From here to the end of a chunk, the chunks inside it.
  template <class Visit> void inside(const Chunk& parent, Visit visit) {
    while (bytes.position() < parent.end) {
      const Chunk part = chunk(parent.end);
      visit(part);
      bytes.skip(part.end - bytes.position());
    }
  }

  // Data of a chunk must lie in it.
  void need(const Chunk& part, std::size_t size) const {
    if (size > part.end - bytes.position())
      bytes.refuse(bytes.position(), std::to_string(size) + " bytes of data in a chunk with " +
                                         std::to_string(part.end - bytes.position()));
  }

  void object(const Chunk& item) {
    do // the name
      need(item, 1);
    while (bytes.take<char>() != 0);
    inside(item, [&](const Chunk& part) {
      if (part.kind == Kind::Mesh)
        mesh(part);
    });
  }

  // Faces may come before the points, so that corners are held against the number of points at the end.
  void mesh(const Chunk& whole) {
    const std::size_t first = model.scan.points.size();
    std::size_t largest = 0, largestAt = 0, count = 0;
    inside(whole, [&](const Chunk& part) {
      if (part.kind == Kind::Points) {
        count += points(part);
      } else if (part.kind == Kind::Faces) {
        need(part, 2);
        const std::size_t faces = bytes.take<uint16_t>();
        need(part, faces * 8);
        for (std::size_t i = 0; i < faces; ++i) {
          Polygon polygon(model);
          for (int c = 0; c < 3; ++c) {
            const std::size_t corner = bytes.take<uint16_t>();
            if (corner >= largest) {
              largest = corner + 1;
              largestAt = bytes.position() - 2;
            }
            polygon.add(int32_t(first + corner));
          }
          bytes.skip(2); // which edges are drawn
        }
      }
    });
    if (largest > count)
      bytes.refuse(largestAt, "vertex index " + std::to_string(largest - 1) + " out of range: there are " +
                                  std::to_string(count) + " vertices");
  }

  std::size_t points(const Chunk& part) {
    need(part, 2);
    const std::size_t count = bytes.take<uint16_t>();
    need(part, count * 12);
    for (std::size_t i = 0; i < count; ++i) {
      Vec3 point;
      for (double& x : point) {
        x = double(bytes.take<float>());
        if (!std::isfinite(x))
          bytes.refuse(bytes.position() - 4, "a coordinate that is not a finite number");
      }
      model.scan.points.push_back(point);
    }
    return count;
  }

  static constexpr std::size_t headerBytes = 6;
  const File& file;
  Bytes bytes;
  Model model;
};

} // namespace

Model read3ds(const File& file, Progress& progress) {
  return Reader(file).read(progress);
}
