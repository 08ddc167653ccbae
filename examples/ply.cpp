#include "read.h"
#include <algorithm>
#include <cstdio>
#include <optional>
#include <stdexcept>

namespace {

enum class Type : char { Int8, UInt8, Int16, UInt16, Int32, UInt32, Float, Double };

std::optional<Type> typeNamed(std::string_view name) {
  static constexpr struct {
    std::string_view names[2];
    Type type;
  } types[] = {{{"char", "int8"}, Type::Int8},      {{"uchar", "uint8"}, Type::UInt8},
               {{"short", "int16"}, Type::Int16},   {{"ushort", "uint16"}, Type::UInt16},
               {{"int", "int32"}, Type::Int32},     {{"uint", "uint32"}, Type::UInt32},
               {{"float", "float32"}, Type::Float}, {{"double", "float64"}, Type::Double}};
  for (const auto& known : types)
    if (name == known.names[0] || name == known.names[1])
      return known.type;
  return {};
}

bool isInteger(Type type) {
  return type < Type::Float;
}

std::size_t bytesOf(Type type) {
  static constexpr std::size_t bytes[] = {1, 1, 2, 2, 4, 4, 4, 8};
  return bytes[std::size_t(type)];
}

struct Property {
  std::string name;
  Type type;
  std::optional<Type> length; // of a list
};
struct Element {
  std::string name;
  std::size_t count;
  std::vector<Property> properties;
  std::size_t line; // in the header
};
struct Header {
  enum class Format : char { Ascii, LowestFirst, HighestFirst } format;
  std::vector<Element> elements;
  std::size_t lines, bytes;
};

Header readHeader(const File& file) {
  Words words(file, {});
  if (!words.next() || words.line() != 1 || words.count() != 1 || words[0] != "ply")
    words.refuse(1, "a PLY file begins with a line ply");
  Header header{};
  bool format = false;
  while (words.next() && words[0] != "end_header") {
    const std::string_view word = words[0];
    if (word == "comment" || word == "obj_info")
      continue;
    if (word == "format" && words.count() == 3 && !format) {
      const std::string_view kind = words[1];
      format = true;
      if (kind == "ascii")
        header.format = Header::Format::Ascii;
      else if (kind == "binary_little_endian")
        header.format = Header::Format::LowestFirst;
      else if (kind == "binary_big_endian")
        header.format = Header::Format::HighestFirst;
      else
        words.refuse("unknown format " + Words::quoted(kind));
      if (words[2] != "1.0")
        words.refuse("unknown version " + Words::quoted(words[2]));
    } else if (word == "element" && words.count() == 3) {
      const int64_t count = words.integer(2);
      if (count < 0 || std::size_t(count) > 16 * mostPoints)
        words.refuse(std::to_string(count) + " elements");
      header.elements.push_back({std::string(words[1]), std::size_t(count), {}, words.line()});
    } else if (word == "property" && (words.count() == 3 || (words.count() == 5 && words[1] == "list"))) {
      if (header.elements.empty())
        words.refuse("a property without an element");
      const auto type = [&](std::size_t i) {
        const std::optional<Type> found = typeNamed(words[i]);
        if (!found)
          words.refuse("unknown type " + Words::quoted(words[i]));
        return *found;
      };
      Property property{std::string(words[words.count() - 1]), type(words.count() - 2), {}};
      if (words.count() == 5) {
        property.length = type(2);
        if (!isInteger(*property.length))
          words.refuse("the length of a list is no integer");
      }
      header.elements.back().properties.push_back(property);
    } else
      words.refuse("not a line of a header: " + Words::quoted(word));
  }
  if (words.count() == 0)
    words.refuse("the file ends in the middle of its header");
  if (!format)
    words.refuse("the header tells no format");
  header.lines = words.line();
  header.bytes = words.position();
  return header;
}

// The values of elements, one after the other: words of lines, an element a line, or bytes.
class AsciiValues {
public:
  AsciiValues(const File& source, const Header& header) : words(source, {}, header.bytes, header.lines + 1) {}
  void begin(const Element& element, std::size_t number) {
    if (!words.next())
      words.refuse("the file ends after " + std::to_string(number) + " of " + std::to_string(element.count) +
                   " elements " + Words::quoted(element.name));
    at = 0;
  }
  double take(Type type) {
    if (at == words.count())
      words.refuse("here are " + std::to_string(at) + " numbers, there should be more");
    const std::size_t i = at++;
    return isInteger(type) ? double(words.integer(i)) : words.number(i);
  }
  // Numbers that are not looked at may be anything that takes a word.
  void skip(Type) {
    if (at++ == words.count())
      words.refuse("here are " + std::to_string(at - 1) + " numbers, there should be more");
  }
  void end() {
    if (at < words.count())
      words.refuse("here are " + std::to_string(words.count()) + " numbers, there should be " + std::to_string(at));
  }
  void endOfFile() {
    if (words.next())
      words.refuse("behind the last element");
  }
  std::size_t position() const { return words.position(); }
  [[noreturn]] void refuse(const std::string& what) const { words.refuse(what); }

private:
  Words words;
  std::size_t at = 0;
};

class BinaryValues {
public:
  BinaryValues(const File& file, const Header& header)
      : bytes(file, header.bytes, header.format == Header::Format::HighestFirst) {}
  void begin(const Element&, std::size_t) {}
  double take(Type type) {
    last = bytes.position();
    switch (type) {
    case Type::Int8:
      return bytes.take<int8_t>();
    case Type::UInt8:
      return bytes.take<uint8_t>();
    case Type::Int16:
      return bytes.take<int16_t>();
    case Type::UInt16:
      return bytes.take<uint16_t>();
    case Type::Int32:
      return bytes.take<int32_t>();
    case Type::UInt32:
      return bytes.take<uint32_t>();
    case Type::Float:
      return double(bytes.take<float>());
    default:
      return bytes.take<double>();
    }
  }
  void skip(Type type) { bytes.skip(bytesOf(type)); }
  void end() {}
  void endOfFile() {
    if (bytes.left() > 0)
      bytes.refuse(bytes.position(), std::to_string(bytes.left()) + " bytes behind the last element");
  }
  std::size_t position() const { return bytes.position(); }
  [[noreturn]] void refuse(const std::string& what) const { bytes.refuse(last, what); }

private:
  Bytes bytes;
  std::size_t last = 0;
};

template <class Values> class Reader {
public:
  Reader(const File& source, const Header& about) : file(source), header(about), values(source, about) {}

  Model read(Progress& progress) {
    for (const Element& element : header.elements)
      if (element.name == "vertex")
        points = element.count;
    for (const Element& element : header.elements) {
      checkProperties(element);
      for (std::size_t i = 0; i < element.count; ++i) {
        values.begin(element, i);
        if (element.name == "vertex")
          vertex(element);
        else if (element.name == "face")
          face(element);
        else
          for (const Property& property : element.properties)
            skip(property);
        values.end();
        if (i % 4096 == 0)
          progress.at(values.position(), file.bytes.size());
      }
    }
    values.endOfFile();
    return std::move(model);
  }

private:
  static bool isCorners(const Property& property) {
    return property.name == "vertex_indices" || property.name == "vertex_index";
  }
  static int axis(const Property& property) {
    return property.name == "x" ? 0 : property.name == "y" ? 1 : property.name == "z" ? 2 : -1;
  }

  void checkProperties(const Element& element) const {
    int coordinates = 0, corners = 0;
    for (const Property& property : element.properties) {
      coordinates += !property.length && axis(property) >= 0;
      corners += property.length && isCorners(property);
    }
    const auto fail = [&](const char* what) {
      throw std::runtime_error(file.path + ':' + std::to_string(element.line) + ": " + what);
    };
    if (element.name == "vertex" && coordinates != 3)
      fail("the element vertex has not the properties x, y and z");
    if (element.name == "face" && corners != 1)
      fail("the element face has not a list vertex_indices");
    // Elements without bytes could be as many as the header likes.
    if (element.properties.empty() && element.count > 0)
      fail("an element without properties");
    if (element.name == "vertex" && element.count > mostPoints)
      fail("too many points");
  }

  std::size_t length(const Property& list) {
    const double count = values.take(*list.length);
    if (count < 0)
      values.refuse("a list of " + std::to_string(int64_t(count)) + " numbers");
    return std::size_t(count);
  }

  void skip(const Property& property) {
    for (std::size_t i = property.length ? length(property) : 1; i > 0; --i)
      values.skip(property.type);
  }

  void vertex(const Element& element) {
    Vec3 point{};
    for (const Property& property : element.properties) {
      const int i = axis(property);
      if (i < 0 || property.length) {
        skip(property);
        continue;
      }
      const double value = values.take(property.type);
      if (!std::isfinite(value))
        values.refuse("a coordinate that is not a finite number");
      point[std::size_t(i)] = value;
    }
    model.scan.points.push_back(point);
  }

  void face(const Element& element) {
    for (const Property& property : element.properties) {
      if (!isCorners(property)) {
        skip(property);
        continue;
      }
      const std::size_t corners = length(property);
      if (corners < 3)
        values.refuse("a face has at least 3 corners, here are " + std::to_string(corners));
      Polygon polygon(model);
      for (std::size_t i = 0; i < corners; ++i) {
        const double index = values.take(property.type);
        if (!(index >= 0 && index < double(points)) || index != std::floor(index))
          values.refuse("vertex index " + printed(index) + " out of range: there are " + std::to_string(points) +
                        " vertices");
        polygon.add(int32_t(index));
      }
    }
  }

  static std::string printed(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
  }

  const File& file;
  const Header& header;
  Values values;
  std::size_t points = 0;
  Model model;
};

} // namespace

Model readPly(const File& file, Progress& progress) {
  const Header header = readHeader(file);
  return header.format == Header::Format::Ascii ? Reader<AsciiValues>(file, header).read(progress)
                                                : Reader<BinaryValues>(file, header).read(progress);
}
