#include "picture.h"
#include "check.h"
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <limits>
#include <png.h>

namespace {

constexpr int samples = 3;       // of each pixel, in x and in y
constexpr double distance = 5.5; // of the eye from the mesh's centre
constexpr double margin = 0.06;  // of the picture, around the mesh

// Rows: to the right, up, and to the eye.
std::array<Vec3, 3> viewAxes(const View& view) {
  const double degree = std::acos(-1.0) / 180;
  const double ct = std::cos(view.turn * degree), st = std::sin(view.turn * degree);
  const double cu = std::cos(view.tilt * degree), su = std::sin(view.tilt * degree);
  return {Vec3{ct, 0, st}, Vec3{su * st, cu, -su * ct}, Vec3{-cu * st, su, cu * ct}};
}

Vec3 mix(const Vec3& a, const Vec3& b, double t) {
  return (1 - t) * a + t * b;
}
double linear(double s) {
  return s <= 0.04045 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
}
double encoded(double l) {
  return l <= 0.0031308 ? 12.92 * l : 1.055 * std::pow(l, 1 / 2.4) - 0.055;
}
Vec3 rgb(int code) {
  return {linear((code >> 16) / 255.0), linear((code >> 8 & 255) / 255.0), linear((code & 255) / 255.0)};
}

// The value's colour, -1 to 1, in linear light.
Vec3 colour(double value) {
  static const Vec3 stops[] = {rgb(0x1d4e89), rgb(0x5b9bc8), rgb(0xf2ede3), rgb(0xe8955b), rgb(0xa82c26)};
  static const Vec3 none = rgb(0x8a8a8a);
  if (std::isnan(value))
    return none;
  const double place = 2 * (std::clamp(value, -1.0, 1.0) + 1);
  const int stop = std::min(int(place), 3);
  return mix(stops[stop], stops[stop + 1], place - stop);
}

struct Light {
  explicit Light(const View& view) : axes(viewAxes(view)) {
    key = inWorld({-0.45, 0.65, 0.62});
    fill = inWorld({0.85, 0.1, 0.5});
    half = unit(key + axes[2]);
  }
  Vec3 inWorld(const Vec3& v) const { return unit(v[0] * axes[0] + v[1] * axes[1] + v[2] * axes[2]); }

  Vec3 shade(const Vec3& normal, double value) const {
    const Vec3 n = dot(normal, axes[2]) < 0 ? -1.0 * normal : normal; // seen from behind
    const double sky = 0.5 + 0.5 * dot(n, axes[1]), facing = std::max(0.0, dot(n, axes[2]));
    const double diffuse = (0.16 + 0.16 * sky) * (0.55 + 0.45 * facing) + 0.78 * std::max(0.0, dot(n, key)) +
                           0.14 * std::max(0.0, dot(n, fill));
    const double gloss = 0.07 * std::pow(std::max(0.0, dot(n, half)), 36);
    return diffuse * colour(value) + Vec3{gloss, gloss, gloss};
  }

  std::array<Vec3, 3> axes;
  Vec3 key, fill, half;
};

class Canvas {
public:
  Canvas(const View& view, const Light& source)
      : width(view.width * samples), height(view.height * samples), light(source),
        depth(size_t(width) * size_t(height), -std::numeric_limits<float>::infinity()),
        pixels(depth.size(), std::array<float, 3>{}) {}

  // Corners in pixels; the weights of a sample are corrected for the perspective: 1 / w is 1 + depth / distance.
  void triangle(const Point3f* corner, const Vec3* normal, const double* value) {
    const double x0 = corner[0][0] * samples, y0 = corner[0][1] * samples;
    const double x1 = corner[1][0] * samples - x0, y1 = corner[1][1] * samples - y0;
    const double x2 = corner[2][0] * samples - x0, y2 = corner[2][1] * samples - y0;
    const double area = x1 * y2 - x2 * y1;
    if (!(std::abs(area) > 0))
      return;
    const auto [left, right] = std::minmax({0.0, x1, x2});
    const auto [top, bottom] = std::minmax({0.0, y1, y2});
    const int lastX = int(std::min(x0 + right, width - 1.0)), lastY = int(std::min(y0 + bottom, height - 1.0));
    for (int y = int(std::max(y0 + top, 0.0)); y <= lastY; ++y)
      for (int x = int(std::max(x0 + left, 0.0)); x <= lastX; ++x) {
        const double px = x + 0.5 - x0, py = y + 0.5 - y0;
        double w[3] = {0, (px * y2 - x2 * py) / area, (x1 * py - px * y1) / area};
        w[0] = 1 - w[1] - w[2];
        if (w[0] < 0 || w[1] < 0 || w[2] < 0)
          continue;
        const auto z = float(w[0] * corner[0][2] + w[1] * corner[1][2] + w[2] * corner[2][2]);
        const size_t at = size_t(y) * size_t(width) + size_t(x);
        if (z <= depth[at])
          continue;
        depth[at] = z;
        double sum = 0;
        for (int c = 0; c < 3; ++c)
          sum += w[c] *= 1 + corner[c][2] / distance;
        const Vec3 n = unit(w[0] * normal[0] + w[1] * normal[1] + w[2] * normal[2]);
        const Vec3 lit = light.shade(n, (w[0] * value[0] + w[1] * value[1] + w[2] * value[2]) / sum);
        pixels[at] = {float(lit[0]), float(lit[1]), float(lit[2])};
      }
  }

  // The mean of each pixel's samples, over a background that grows a little darker downwards.
  std::vector<png_byte> bytes() const {
    const Vec3 above = rgb(0xf4f4f2), below = rgb(0xd9dadc);
    std::vector<png_byte> result;
    result.reserve(depth.size() / (samples * samples) * 3);
    for (int y = 0; y < height; y += samples)
      for (int x = 0; x < width; x += samples) {
        const Vec3 background = mix(above, below, double(y) / height);
        Vec3 sum{};
        for (int sy = y; sy < y + samples; ++sy)
          for (int sx = x; sx < x + samples; ++sx) {
            const size_t at = size_t(sy) * size_t(width) + size_t(sx);
            const Vec3 drawn = {pixels[at][0], pixels[at][1], pixels[at][2]};
            sum = sum + (std::isinf(depth[at]) ? background : drawn);
          }
        for (double channel : sum)
          result.push_back(png_byte(std::lround(255 * encoded(std::min(1.0, channel / (samples * samples))))));
      }
    return result;
  }

private:
  int width, height;
  const Light& light;
  std::vector<float> depth;
  std::vector<std::array<float, 3>> pixels;
};

} // namespace

void transformByLibrary(const Matrix4f& matrix, const std::vector<Point3f>& points, std::vector<Point3f>& moved) {
  moved.resize(points.size());
  check(zelmAffineTransform3DH_mva_32f(&matrix[0][0], 16, 4, &points[0][0], 12, 4, &moved[0][0], 12, 4,
                                       int32_t(points.size())),
        "zelmAffineTransform3DH_mva_32f");
}

void transformByLoop(const Matrix4f& matrix, const std::vector<Point3f>& points, std::vector<Point3f>& moved) {
  moved.resize(points.size());
  for (size_t k = 0; k < points.size(); ++k) {
    const Point3f& p = points[k];
    float y[4];
    for (size_t r = 0; r < 4; ++r)
      y[r] = ((matrix[r][0] * p[0] + matrix[r][3]) + matrix[r][1] * p[1]) + matrix[r][2] * p[2];
    const float reciprocal = 1 / y[3];
    moved[k] = {y[0] * reciprocal, y[1] * reciprocal, y[2] * reciprocal};
  }
}

Matrix4f pictureMatrix(const View& view, const std::vector<Point3f>& points) {
  const std::array<Vec3, 3> axes = viewAxes(view);
  Matrix4f matrix{};
  for (size_t i = 0; i < 3; ++i) {
    for (size_t r = 0; r < 3; ++r)
      matrix[r][i] = float(axes[r][i]);
    matrix[3][i] = float(-axes[2][i] / distance);
  }
  matrix[3][3] = 1;
  std::vector<Point3f> moved;
  transformByLibrary(matrix, points, moved);
  Point3f low = moved[0], high = low;
  for (const Point3f& p : moved)
    for (size_t i = 0; i < 2; ++i) {
      low[i] = std::min(low[i], p[i]);
      high[i] = std::max(high[i], p[i]);
    }
  // Into the middle of the picture. Multiples of the last row move what has been divided by the fourth coordinate.
  const double extentX = std::max(1e-6, double(high[0] - low[0])), extentY = std::max(1e-6, double(high[1] - low[1]));
  const double scale = (1 - 2 * margin) * std::min(view.width / extentX, view.height / extentY);
  const double moveX = 0.5 * view.width - scale * 0.5 * (double(low[0]) + high[0]);
  const double moveY = 0.5 * view.height + scale * 0.5 * (double(low[1]) + high[1]);
  for (size_t i = 0; i < 4; ++i) {
    matrix[0][i] = float(scale * matrix[0][i] + moveX * matrix[3][i]);
    matrix[1][i] = float(-scale * matrix[1][i] + moveY * matrix[3][i]);
  }
  return matrix;
}

void drawPicture(const std::string& path, const View& view, const Mesh& mesh, const std::vector<Point3f>& moved,
                 const std::vector<Vec3>& normals, const std::vector<double>& values, double limit) {
  const Light light(view);
  Canvas canvas(view, light);
  for (const Triangle& t : mesh.triangles) {
    Point3f corner[3];
    Vec3 normal[3];
    double value[3];
    for (size_t c = 0; c < 3; ++c) {
      const auto v = size_t(t[c]);
      corner[c] = moved[v];
      normal[c] = normals[v];
      value[c] = values[v] / limit;
    }
    canvas.triangle(corner, normal, value);
  }
  const std::vector<png_byte> bytes = canvas.bytes();
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = png_uint_32(view.width);
  image.height = png_uint_32(view.height);
  image.format = PNG_FORMAT_RGB;
  if (!png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr))
    throw std::runtime_error(path + ": cannot write the picture: " + image.message);
}
