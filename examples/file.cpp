#include "file.h"
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

} // namespace

File readFile(const std::string& path) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> in(std::fopen(path.c_str(), "rb"), std::fclose);
  if (!in)
    throw std::runtime_error(path + ": cannot open: " + std::strerror(errno));
  File file{path, {}};
  // By what comes and not by the size that is told: pipes have none.
  for (std::size_t size = 0;; size = file.bytes.size()) {
    constexpr std::size_t step = 1 << 16;
    file.bytes.resize(size + std::max(step, size));
    const std::size_t got = std::fread(&file.bytes[size], 1, file.bytes.size() - size, in.get());
    file.bytes.resize(size + got);
    if (std::ferror(in.get()))
      throw std::runtime_error(path + ": cannot read: " + std::strerror(errno));
    if (got == 0)
      return file;
  }
}

void refuse(const File& file, const std::string& what) {
  throw std::runtime_error(file.path + ": " + what);
}

bool Words::next() {
  const std::string& text = file.bytes;
  words.clear();
  while (words.empty() && at < text.size()) {
    thisLine = nextLine;
    for (; at < text.size() && text[at] != '\n';) {
      if (isBlank(text[at])) {
        ++at;
      } else if (syntax.comments && text[at] == '#') {
        at = std::min(text.find('\n', at), text.size());
      } else if (const std::size_t feed = text.find_first_not_of('\r', at + 1);
                 syntax.continued && text[at] == '\\' && feed != std::string::npos && text[feed] == '\n') {
        at = feed + 1;
        ++nextLine;
      } else {
        const std::size_t begin = at;
        while (at < text.size() && text[at] != '\n' && !isBlank(text[at]) && !(syntax.comments && text[at] == '#') &&
               !(syntax.continued && text[at] == '\\' && at > begin))
          ++at;
        words.emplace_back(&text[begin], at - begin);
      }
    }
    if (at < text.size())
      ++at;
    ++nextLine;
  }
  return !words.empty();
}

double Words::number(std::size_t i) const {
  const std::string_view word = words[i];
  const char *begin = word.data(), *end = begin + word.size();
  double value = 0;
  const auto result = std::from_chars(begin + (word.size() > 1 && word[0] == '+' && word[1] != '-'), end, value);
  if (result.ptr != end)
    refuse(quoted(word) + " is not a number");
  if (result.ec == std::errc::result_out_of_range) // too large, or so small that it is 0
    value = std::strtod(std::string(word).c_str(), nullptr);
  if (!std::isfinite(value))
    refuse(quoted(word) + " is not a finite number");
  return value;
}

int64_t Words::integer(std::size_t i) const {
  const std::string_view word = words[i];
  int64_t value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (end != word.data() + word.size() || error != std::errc())
    refuse(quoted(word) + " is not an integer");
  return value;
}

std::string Words::quoted(std::string_view word) {
  std::string result(word.substr(0, 40));
  std::replace_if(
      result.begin(), result.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
  return "'" + result + "'";
}

void Words::refuse(std::size_t line, const std::string& what) const {
  throw std::runtime_error(file.path + ':' + std::to_string(line) + ": " + what);
}

void Bytes::refuse(std::size_t offset, const std::string& what) const {
  throw std::runtime_error(file.path + ": byte " + std::to_string(offset) + ": " + what);
}
