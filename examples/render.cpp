// Triangles into pixels. Each pixel has a grid of samples; of all samples of a pixel on which the same triangle is
// seen, the light is computed once.
#include "picture.h"
#include <algorithm>
#include <limits>

namespace {

constexpr int samples = 3;  // of each pixel, in x and in y
constexpr int bandRows = 8; // pixels of a part of the picture that is drawn at a time: its samples stay in the cache

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

// From linear light to bytes, by a table: a power for each of millions of numbers takes longer than all else.
class Encoding {
public:
  Encoding() {
    for (size_t i = 0; i < table.size(); ++i)
      table[i] = std::uint8_t(std::lround(255 * encoded(double(i) / last)));
  }
  std::uint8_t operator()(double light) const { return table[size_t(std::clamp(light, 0.0, 1.0) * last + 0.5)]; }

private:
  static constexpr int last = 8191;
  std::array<std::uint8_t, last + 1> table;
};

// The value's colour, in linear light.
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
    const double shine = std::max(0.0, dot(n, half)), shine2 = shine * shine, shine4 = shine2 * shine2,
                 shine16 = shine4 * shine4 * shine4 * shine4;
    const double gloss = 0.07 * shine16 * shine16 * shine4;
    return diffuse * colour(value) + Vec3{gloss, gloss, gloss};
  }

  std::array<Vec3, 3> axes;
  Vec3 key, fill, half;
};

// A triangle in samples. The weights of its second and third corner at a sample are linear in x and y.
struct Outline {
  Outline(const Shape& shape, const Triangle& triangle) {
    const auto corner = [&](size_t c) -> const Point3f& { return shape.points[size_t(triangle[c])]; };
    x = corner(0)[0] * samples;
    y = corner(0)[1] * samples;
    const double x1 = corner(1)[0] * samples - x, y1 = corner(1)[1] * samples - y;
    const double x2 = corner(2)[0] * samples - x, y2 = corner(2)[1] * samples - y;
    const double area = x1 * y2 - x2 * y1;
    seen = std::abs(area) > 0;
    right1 = y2 / area;
    down1 = -x2 / area;
    right2 = -y1 / area;
    down2 = x1 / area;
    left = x + std::min({0.0, x1, x2});
    right = x + std::max({0.0, x1, x2});
    top = y + std::min({0.0, y1, y2});
    bottom = y + std::max({0.0, y1, y2});
  }
  double weight1(double sx, double sy) const { return right1 * (sx - x) + down1 * (sy - y); }
  double weight2(double sx, double sy) const { return right2 * (sx - x) + down2 * (sy - y); }

  double x, y, right1, down1, right2, down2;
  double left, right, top, bottom;
  bool seen;
};

// Some rows of the picture.
class Band {
public:
  Band(const View& view, const Shape& source, const Light& from)
      : width(view.width * samples), shape(source), light(from), depth(size_t(width) * bandRows * samples),
        nearest(depth.size()) {}

  void clear(int firstRow) {
    first = firstRow * samples;
    std::fill(depth.begin(), depth.end(), -std::numeric_limits<float>::infinity());
    std::fill(nearest.begin(), nearest.end(), -1);
  }

  void draw(int32_t number) {
    const Triangle& triangle = shape.triangles[size_t(number)];
    const Outline outline(shape, triangle);
    if (!outline.seen)
      return;
    const double z0 = shape.points[size_t(triangle[0])][2], z1 = shape.points[size_t(triangle[1])][2] - z0,
                 z2 = shape.points[size_t(triangle[2])][2] - z0;
    const int fromX = int(std::max(outline.left, 0.0)), toX = int(std::min(outline.right, width - 1.0));
    const int fromY = int(std::max(outline.top, double(first))),
              toY = int(std::min(outline.bottom, first + bandRows * samples - 1.0));
    for (int y = fromY; y <= toY; ++y)
      for (int x = fromX; x <= toX; ++x) {
        const double w1 = outline.weight1(x + 0.5, y + 0.5), w2 = outline.weight2(x + 0.5, y + 0.5);
        if (w1 < 0 || w2 < 0 || w1 + w2 > 1)
          continue;
        const auto z = float(z0 + w1 * z1 + w2 * z2);
        const size_t at = size_t(y - first) * size_t(width) + size_t(x);
        if (z <= depth[at])
          continue;
        depth[at] = z;
        nearest[at] = number;
      }
  }

  // The mean of a pixel's samples.
  Vec3 pixel(int px, int py, const Vec3& background) const {
    struct Part {
      int32_t triangle;
      int count;
      double x, y; // sums
    } parts[samples * samples];
    int size = 0;
    for (int sy = py * samples; sy < (py + 1) * samples; ++sy)
      for (int sx = px * samples; sx < (px + 1) * samples; ++sx) {
        const int32_t triangle = nearest[size_t(sy - first) * size_t(width) + size_t(sx)];
        int i = 0;
        while (i < size && parts[i].triangle != triangle)
          ++i;
        if (i == size)
          parts[size++] = {triangle, 0, 0, 0};
        ++parts[i].count;
        parts[i].x += sx + 0.5;
        parts[i].y += sy + 0.5;
      }
    Vec3 sum{};
    for (int i = 0; i < size; ++i) {
      const Part& part = parts[i];
      const double share = double(part.count) / (samples * samples);
      sum = sum + share * (part.triangle < 0
                               ? background
                               : lit(shape.triangles[size_t(part.triangle)], part.x / part.count, part.y / part.count));
    }
    return sum;
  }

private:
  // Weights are corrected for the perspective: 1 / w is 1 + depth / distance.
  Vec3 lit(const Triangle& triangle, double x, double y) const {
    const Outline outline(shape, triangle);
    double weight[3] = {0, outline.weight1(x, y), outline.weight2(x, y)}, all = 0, value = 0;
    weight[0] = 1 - weight[1] - weight[2];
    Vec3 normal{};
    for (size_t c = 0; c < 3; ++c) {
      const auto corner = size_t(triangle[c]);
      weight[c] *= 1 + double(shape.points[corner][2]) / eyeDistance;
      all += weight[c];
      normal = normal + weight[c] * shape.normals[corner];
      value += weight[c] * shape.values[corner];
    }
    return light.shade(unit(normal), value / all);
  }

  int width, first = 0; // in samples
  const Shape& shape;
  const Light& light;
  std::vector<float> depth;
  std::vector<int32_t> nearest; // triangle, or -1
};

// The triangles that reach into each band.
std::vector<std::vector<int32_t>> sortIntoBands(const View& view, const Shape& shape) {
  std::vector<std::vector<int32_t>> bands(size_t((view.height + bandRows - 1) / bandRows));
  for (size_t t = 0; t < shape.triangles.size(); ++t) {
    const auto y = [&](size_t c) { return double(shape.points[size_t(shape.triangles[t][c])][1]); };
    const auto [top, bottom] = std::minmax({y(0), y(1), y(2)});
    const double last = double(bands.size()) - 1;
    for (auto b = int(std::max(top / bandRows, 0.0)); b <= int(std::min(bottom / bandRows, last)); ++b)
      bands[size_t(b)].push_back(int32_t(t));
  }
  return bands;
}

} // namespace

std::vector<std::uint8_t> render(const View& view, const Shape& shape) {
  static const Encoding encoding;
  const Light light(view);
  const Vec3 above = rgb(0xf4f4f2), below = rgb(0xd9dadc); // the background grows a little darker downwards
  const std::vector<std::vector<int32_t>> bands = sortIntoBands(view, shape);
  std::vector<std::uint8_t> bytes(size_t(view.width) * size_t(view.height) * 3);
#pragma omp parallel
  {
    Band band(view, shape, light);
#pragma omp for schedule(dynamic)
    for (size_t b = 0; b < bands.size(); ++b) {
      const int begin = int(b) * bandRows, end = std::min(begin + bandRows, view.height);
      band.clear(begin);
      for (int32_t triangle : bands[b])
        band.draw(triangle);
      std::uint8_t* to = &bytes[size_t(begin) * size_t(view.width) * 3];
      for (int y = begin; y < end; ++y) {
        const Vec3 background = mix(above, below, double(y) / view.height);
        for (int x = 0; x < view.width; ++x)
          for (double channel : band.pixel(x, y, background))
            *to++ = encoding(channel);
      }
    }
  }
  return bytes;
}
