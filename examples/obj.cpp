#include "read.h"
#include <algorithm>
#include <charconv>

namespace {

// What may stand in an OBJ file besides v, vt, vn and f. Anything else means that the file is none.
constexpr std::string_view otherStatements[] = {
    "vp",     "p",      "l",          "curv",      "curv2",    "surf",     "parm", "trim",   "hole",
    "scrv",   "sp",     "end",        "con",       "g",        "s",        "mg",   "o",      "deg",
    "bmat",   "step",   "cstype",     "bevel",     "c_interp", "d_interp", "lod",  "maplib", "usemap",
    "usemtl", "mtllib", "shadow_obj", "trace_obj", "ctech",    "stech",    "call", "csh"};

class Reader {
public:
  explicit Reader(const File& file) : words(file, {true, true}), size(file.bytes.size()) {}

  Model read(Progress& progress) {
    for (std::size_t statements = 0; words.next(); ++statements) {
      statement();
      if (statements % 4096 == 0)
        progress.at(words.position(), size);
    }
    for (const Kind& kind : kinds)
      if (kind.largest > kind.count)
        words.refuse(kind.largestLine, outOfRange(kind, kind.largest));
    return std::move(model);
  }

private:
  // Vertices, texture vertices and normals: how many there are so far, and the largest index in faces. A face may come
  // before its vertices, so that indices are held against the counts at the end.
  struct Kind {
    const char* name;
    const char* plural;
    int64_t count = 0, largest = 0;
    std::size_t largestLine = 0;
  };

  static std::string outOfRange(const Kind& kind, int64_t index) {
    return std::string(kind.name) + " index " + std::to_string(index) + " out of range: there are " +
           std::to_string(kind.count) + ' ' + kind.plural;
  }

  void statement() {
    const std::string_view word = words[0];
    if (word == "v")
      vertex();
    else if (word == "vt")
      ++kinds[1].count;
    else if (word == "vn")
      ++kinds[2].count;
    else if (word == "f" || word == "fo")
      face();
    else if (std::find(std::begin(otherStatements), std::end(otherStatements), word) == std::end(otherStatements))
      words.refuse("unknown statement " + Words::quoted(word));
  }

  // v x y z, perhaps a weight, perhaps a colour behind it.
  void vertex() {
    const std::size_t count = words.count() - 1;
    if (count != 3 && count != 4 && count != 6 && count != 7)
      words.refuse("a vertex has 3 coordinates, here are " + std::to_string(count) + " numbers");
    double value[7];
    for (std::size_t i = 0; i < count; ++i)
      value[i] = words.number(i + 1);
    if (model.scan.points.size() == mostPoints)
      words.refuse("more than " + std::to_string(mostPoints) + " vertices");
    model.scan.points.push_back({value[0], value[1], value[2]});
    ++kinds[0].count;
  }

  void face() {
    if (words.count() < 4)
      words.refuse("a face has at least 3 corners, here are " + std::to_string(words.count() - 1));
    Polygon polygon(model);
    for (std::size_t i = 1; i < words.count(); ++i)
      polygon.add(corner(words[i]));
  }

  // v, v/vt, v//vn or v/vt/vn; each from 1, or negative and counted back from the last one so far.
  int32_t corner(std::string_view word) {
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
        words.refuse(Words::quoted(word) + " is not a corner");
      int64_t index = 0;
      const auto [next, error] = std::from_chars(at, end, index);
      if (error != std::errc() && error != std::errc::result_out_of_range)
        words.refuse(Words::quoted(word) + " is not a corner");
      Kind& kind = kinds[k];
      if (error == std::errc::result_out_of_range)
        words.refuse(std::string(kind.name) + " index " + std::string(at, next) + " out of range");
      if (index == 0 || index < -kind.count)
        words.refuse(outOfRange(kind, index));
      if (index < 0)
        index += kind.count + 1;
      if (index > kind.largest) {
        kind.largest = index;
        kind.largestLine = words.line();
      }
      result = k == 0 ? index - 1 : result;
      at = next;
    }
    if (at != end)
      words.refuse(Words::quoted(word) + " is not a corner");
    return static_cast<int32_t>(result);
  }

  Words words;
  std::size_t size;
  Model model;
  Kind kinds[3] = {{"vertex", "vertices"}, {"texture", "texture vertices"}, {"normal", "normals"}};
};

} // namespace

Model readObj(const File& file, Progress& progress) {
  return Reader(file).read(progress);
}
