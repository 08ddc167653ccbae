#include "read.h"
#include <algorithm>
#include <cctype>

Model readModel(const std::string& path, Progress& progress) {
  static const struct {
    const char* ending;
    Model (*read)(const File&, Progress&);
  } kinds[] = {{"obj", readObj}, {"ply", readPly}, {"xyz", readXyz}, {"stl", readStl}, {"3ds", read3ds}};
  progress.start("reading");
  const File file = readFile(path);
  const std::size_t dot = path.find_last_of("./");
  std::string ending = dot == std::string::npos || path[dot] == '/' ? "" : path.substr(dot + 1);
  for (char& c : ending)
    c = char(std::tolower(static_cast<unsigned char>(c)));
  for (const auto& kind : kinds)
    if (ending == kind.ending) {
      Model model = kind.read(file, progress);
      if (model.scan.points.empty())
        refuse(file, "no points");
      return model;
    }
  refuse(file, "the name does not tell what it is: .obj, .ply, .xyz, .stl and .3ds are read");
}
