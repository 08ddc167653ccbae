#include "obj.h"
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <numeric>
#include <stdexcept>
#include <string_view>

namespace {

constexpr std::size_t maxVertices = 1u << 28;
constexpr const char* blanks = " \t\r\v\f";

// What may stand in an OBJ file besides v, vt, vn and f. Anything else means that the file is none.
constexpr std::string_view otherStatements[] = {
    "vp",     "p",      "l",          "curv",      "curv2",    "surf",     "parm", "trim",   "hole",
    "scrv",   "sp",     "end",        "con",       "g",        "s",        "mg",   "o",      "deg",
    "bmat",   "step",   "cstype",     "bevel",     "c_interp", "d_interp", "lod",  "maplib", "usemap",
    "usemtl", "mtllib", "shadow_obj", "trace_obj", "ctech",    "stech",    "call", "csh"};

class Reader {
public:
  explicit Reader(const std::string& file) : path(file) {}

  ObjModel read() {
    std::ifstream in(path);
    if (!in)
      throw std::runtime_error(path + ": cannot open: " + std::strerror(errno));
    std::string text, more;
    for (int next = 1; std::getline(in, text); ++next) {
      line = next;
      while (endsInBackslash(text) && std::getline(in, more)) {
        text.erase(text.find_last_of('\\'));
        text += ' ' + more;
        ++next;
      }
      statement(text);
    }
    if (in.bad() || !in.eof())
      throw std::runtime_error(path + ": cannot read");
    if (model.mesh.points.empty())
      throw std::runtime_error(path + ": no vertices");
    for (const Kind& kind : kinds)
      if (kind.largest > kind.count)
        fail(kind.largestLine, outOfRange(kind, kind.largest));
    if (model.faces == 0)
      throw std::runtime_error(path + ": no faces");
    return std::move(model);
  }

private:
  // Vertices, texture vertices and normals: how many there are so far, and the largest index in faces. A face may come
  // before its vertices, so that indices are held against the counts at the end.
  struct Kind {
    const char* name;
    const char* plural;
    int64_t count = 0, largest = 0;
    int largestLine = 0;
  };

  static bool endsInBackslash(const std::string& text) {
    const std::size_t last = text.find_last_not_of('\r');
    return last != std::string::npos && text[last] == '\\';
  }

  static std::string outOfRange(const Kind& kind, int64_t index) {
    return std::string(kind.name) + " index " + std::to_string(index) + " out of range: there are " +
           std::to_string(kind.count) + ' ' + kind.plural;
  }

  [[noreturn]] void fail(int at, const std::string& what) const {
    throw std::runtime_error(path + ':' + std::to_string(at) + ": " + what);
  }

  void statement(const std::string& text) {
    words.clear();
    const std::string_view view = std::string_view(text).substr(0, text.find('#'));
    for (std::size_t end = 0;;) {
      const std::size_t begin = view.find_first_not_of(blanks, end);
      if (begin == std::string_view::npos)
        break;
      end = std::min(view.find_first_of(blanks, begin), view.size());
      words.emplace_back(view.substr(begin, end - begin));
    }
    if (words.empty())
      return;
    const std::string& word = words[0];
    if (word == "v")
      vertex();
    else if (word == "vt")
      ++kinds[1].count;
    else if (word == "vn")
      ++kinds[2].count;
    else if (word == "f" || word == "fo")
      face();
    else if (std::find(std::begin(otherStatements), std::end(otherStatements), word) == std::end(otherStatements))
      fail(line, "unknown statement '" + printable(word) + "'");
  }

  static std::string printable(std::string_view word) {
    std::string result(word.substr(0, 40));
    std::replace_if(
        result.begin(), result.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return result;
  }

  // v x y z, perhaps a weight, perhaps a colour behind it.
  void vertex() {
    if (words.size() != 4 && words.size() != 5 && words.size() != 7 && words.size() != 8)
      fail(line, "a vertex has 3 coordinates, here are " + std::to_string(words.size() - 1) + " numbers");
    double value[7] = {};
    for (std::size_t i = 1; i < words.size(); ++i) {
      char* end = nullptr;
      value[i - 1] = std::strtod(words[i].c_str(), &end);
      if (end != words[i].c_str() + words[i].size())
        fail(line, "'" + printable(words[i]) + "' is not a number");
      if (!std::isfinite(value[i - 1]))
        fail(line, "'" + printable(words[i]) + "' is not a finite number");
    }
    if (model.mesh.points.size() == maxVertices)
      fail(line, "more than " + std::to_string(maxVertices) + " vertices");
    model.mesh.points.push_back({value[0], value[1], value[2]});
    ++kinds[0].count;
  }

  void face() {
    if (words.size() < 4)
      fail(line, "a face has at least 3 corners, here are " + std::to_string(words.size() - 1));
    Triangle triangle = {corner(words[1]), corner(words[2]), 0};
    for (std::size_t i = 3; i < words.size(); ++i) {
      triangle[2] = corner(words[i]);
      model.mesh.triangles.push_back(triangle);
      triangle[1] = triangle[2];
    }
    ++model.faces;
  }

  // v, v/vt, v//vn or v/vt/vn; each from 1, or negative and counted back from the last one so far.
  int32_t corner(const std::string& word) {
    int64_t result = 0;
    const char* at = word.data();
    const char* const end = at + word.size();
    for (int k = 0; k < 3; ++k) {
      if (k == 1 && at + 1 < end && at[0] == '/' && at[1] == '/') {
        ++at;
        continue;
      }
      if (k > 0 && at == end)
        break;
      if (k > 0 && *at++ != '/')
        fail(line, "'" + printable(word) + "' is not a corner");
      int64_t index = 0;
      const auto [next, error] = std::from_chars(at, end, index);
      if (error != std::errc() && error != std::errc::result_out_of_range)
        fail(line, "'" + printable(word) + "' is not a corner");
      Kind& kind = kinds[k];
      if (error == std::errc::result_out_of_range)
        fail(line, std::string(kind.name) + " index " + std::string(at, next) + " out of range");
      if (index == 0 || index < -kind.count)
        fail(line, outOfRange(kind, index));
      if (index < 0)
        index += kind.count + 1;
      if (index > kind.largest) {
        kind.largest = index;
        kind.largestLine = line;
      }
      result = k == 0 ? index - 1 : result;
      at = next;
    }
    if (at != end)
      fail(line, "'" + printable(word) + "' is not a corner");
    return static_cast<int32_t>(result);
  }

  const std::string& path;
  ObjModel model;
  int line = 0;
  std::vector<std::string> words;
  Kind kinds[3] = {{"vertex", "vertices"}, {"texture", "texture vertices"}, {"normal", "normals"}};
};

} // namespace

ObjModel readObj(const std::string& path) {
  return Reader(path).read();
}

std::size_t mergeDuplicates(Mesh& mesh) {
  const std::size_t count = mesh.points.size();
  std::vector<int32_t> order(count), renamed(count);
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](int32_t a, int32_t b) { return mesh.points[size_t(a)] < mesh.points[size_t(b)]; });
  // The first vertex of a place, which comes first in the order too, stands for all.
  for (std::size_t i = 0; i < count; ++i) {
    const bool same = i > 0 && mesh.points[size_t(order[i])] == mesh.points[size_t(order[i - 1])];
    renamed[size_t(order[i])] = same ? renamed[size_t(order[i - 1])] : order[i];
  }
  std::vector<Vec3> points;
  for (std::size_t i = 0; i < count; ++i) {
    if (renamed[i] == static_cast<int32_t>(i)) {
      renamed[i] = static_cast<int32_t>(points.size());
      points.push_back(mesh.points[i]);
    } else
      renamed[i] = renamed[size_t(renamed[i])];
  }
  std::vector<Triangle> triangles;
  for (const Triangle& t : mesh.triangles) {
    const Triangle r = {renamed[size_t(t[0])], renamed[size_t(t[1])], renamed[size_t(t[2])]};
    if (r[0] != r[1] && r[1] != r[2] && r[2] != r[0])
      triangles.push_back(r);
  }
  mesh.points = std::move(points);
  mesh.triangles = std::move(triangles);
  return count - mesh.points.size();
}

double normalise(Mesh& mesh) {
  Vec3 low = mesh.points[0], high = low;
  for (const Vec3& p : mesh.points)
    for (size_t i = 0; i < 3; ++i) {
      low[i] = std::min(low[i], p[i]);
      high[i] = std::max(high[i], p[i]);
    }
  // Halved first: the difference of two finite numbers may be infinite.
  const Vec3 centre = 0.5 * low + 0.5 * high, half = 0.5 * high - 0.5 * low;
  double unit = std::max({half[0], half[1], half[2]});
  if (!(unit > 0))
    unit = 1;
  for (Vec3& p : mesh.points)
    for (size_t i = 0; i < 3; ++i)
      p[i] = (p[i] - centre[i]) / unit;
  return unit;
}
