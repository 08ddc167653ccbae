// Files as they lie on the disk: text in words, bytes in numbers. What cannot be used is refused with the place in the
// file, as a std::runtime_error "file:line: what" or "file: byte offset: what".
#ifndef FILE_H
#define FILE_H

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

struct File {
  std::string path, bytes;
};

/// Throws if the file cannot be opened or read.
File readFile(const std::string& path);

/// Refuses a file as a whole.
[[noreturn]] void refuse(const File& file, const std::string& what);

/// The lines of a text that have words, one after the other.
class Words {
public:
  struct Syntax {
    bool comments = false;  // from # to the end of the line
    bool continued = false; // a line that ends in a backslash goes on in the next
  };
  Words(const File& source, Syntax how, std::size_t firstByte = 0, std::size_t firstLine = 1)
      : file(source), syntax(how), at(firstByte), nextLine(firstLine), thisLine(firstLine - 1) {}

  /// Goes on to the next line with words; false at the end of the file.
  bool next();
  /// At the end of the file the last line.
  std::size_t line() const { return thisLine; }
  /// Bytes up to the end of the line.
  std::size_t position() const { return at; }

  std::size_t count() const { return words.size(); }
  std::string_view operator[](std::size_t i) const { return words[i]; }
  /// Word i as a finite number, as an integer; refused if it is none.
  double number(std::size_t i) const;
  int64_t integer(std::size_t i) const;
  /// The word for messages: short, nothing but ASCII.
  static std::string quoted(std::string_view word);

  [[noreturn]] void refuse(const std::string& what) const { refuse(thisLine, what); }
  [[noreturn]] void refuse(std::size_t line, const std::string& what) const;

private:
  const File& file;
  Syntax syntax;
  std::size_t at, nextLine, thisLine;
  std::vector<std::string_view> words;
};

/// Numbers in the order of their bytes, the lowest first unless told otherwise.
class Bytes {
public:
  explicit Bytes(const File& source, std::size_t first = 0, bool highestFirst = false)
      : file(source), at(first), end(source.bytes.size()), swapped(highestFirst) {}

  template <class T> T take() {
    need(sizeof(T));
    char bytes[sizeof(T)];
    for (std::size_t i = 0; i < sizeof(T); ++i)
      bytes[i] = file.bytes[at + (swapped ? sizeof(T) - 1 - i : i)];
    at += sizeof(T);
    T value;
    std::memcpy(&value, bytes, sizeof(T));
    return value;
  }
  /// Refuses the file unless so many bytes are left.
  void need(std::size_t bytes) const {
    if (bytes > end - at)
      refuse(end, "the file ends here, in the middle of its data");
  }
  std::size_t position() const { return at; }
  std::size_t left() const { return end - at; }
  void skip(std::size_t bytes) {
    need(bytes);
    at += bytes;
  }
  [[noreturn]] void refuse(std::size_t offset, const std::string& what) const;

private:
  const File& file;
  std::size_t at, end;
  bool swapped;
};

#endif
