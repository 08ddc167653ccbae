#include "save.h"
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace {

class Output {
public:
  explicit Output(const std::string& name) : path(name), file(std::fopen(name.c_str(), "wb")) {
    if (!file)
      fail();
  }
  ~Output() {
    if (file)
      std::fclose(file);
  }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  // Processors that the library is for store the lowest byte first.
  template <class T> void put(T value) { write(&value, sizeof value); }
  void put(const std::string& text) { write(text.data(), text.size()); }
  void close() {
    std::FILE* const closing = file;
    file = nullptr;
    if (std::fclose(closing) != 0)
      fail();
  }

private:
  void write(const void* data, size_t bytes) {
    if (std::fwrite(data, 1, bytes, file) != bytes)
      fail();
  }
  [[noreturn]] void fail() const {
    throw std::runtime_error(path + ": cannot write the points: " + std::strerror(errno));
  }

  std::string path;
  std::FILE* file;
};

} // namespace

void savePly(const std::string& path, const Scan& scan, const Surface& surface, const std::vector<int32_t>& place,
             double unit) {
  Output out(path);
  out.put("ply\nformat binary_little_endian 1.0\n"
          "comment quality is the mean curvature, nan where there is none\n"
          "comment thickness is the variance of neighbours across their plane, relative to that in all directions\n"
          "element vertex " +
          std::to_string(scan.points.size()) +
          "\nproperty double x\nproperty double y\nproperty double z\n"
          "property float nx\nproperty float ny\nproperty float nz\n"
          "property float quality\nproperty float gaussian_curvature\nproperty float thickness\n" +
          (scan.triangles.empty() ? ""
                                  : "element face " + std::to_string(scan.triangles.size()) +
                                        "\nproperty list uchar int vertex_indices\n") +
          "end_header\n");
  for (size_t v = 0; v < scan.points.size(); ++v) {
    const SurfacePoint& at = surface[size_t(place[v])];
    for (double x : scan.points[v])
      out.put(x);
    for (double x : at.normal)
      out.put(float(x));
    out.put(float(at.mean / unit));
    out.put(float(at.gaussian / unit / unit));
    out.put(float(at.thickness));
  }
  for (const Triangle& triangle : scan.triangles) {
    out.put(std::uint8_t(3));
    for (int32_t corner : triangle)
      out.put(corner);
  }
  out.close();
}
