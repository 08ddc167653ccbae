#include "options.h"
#include "neighbours.h"
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void usage(int code) {
  std::fprintf(code ? stderr : stdout,
               "usage: mesh [option...] [model]\n"
               "Fits a quadric around every point of a scan and draws the scan coloured by its mean curvature.\n"
               "The model is an .obj, .ply, .xyz, .stl or .3ds file, with or without faces;\n"
               "%s if none is given.\n"
               "  -o FILE        the picture, mesh.png if not given\n"
               "  -ply FILE      the points with normals and curvatures\n"
               "  -turn DEGREES  of the model around its upright axis\n"
               "  -tilt DEGREES  of the model towards the eye\n"
               "  -progress      how far the work is, on a terminal, from the first moment on\n"
               "                 and not only once it takes more than a second\n"
               "  -nearest N     a point's neighbours are the N nearest points, at most %zu;\n"
               "                 20 if there are no faces\n"
               "  -radius R      a point's neighbours are the points within R, in the model's units\n"
               "Otherwise they are the points within two edges of faces.\n",
               MESH_DEFAULT_MODEL, mostNeighbours);
  std::exit(code);
}

class Arguments {
public:
  Arguments(int argc, char** argv) : at(argv + 1), end(argv + argc) {}
  bool any() const { return at < end; }
  std::string next() {
    if (!any())
      usage(2);
    return *at++;
  }
  double number() {
    const std::string text = next();
    char* last = nullptr;
    const double result = std::strtod(text.c_str(), &last);
    if (text.empty() || *last != 0 || !std::isfinite(result))
      usage(2);
    return result;
  }

private:
  char **at, **end;
};

} // namespace

Options readOptions(int argc, char** argv) {
  Options options;
  Arguments arguments(argc, argv);
  while (arguments.any()) {
    const std::string word = arguments.next();
    if (word == "-h" || word == "--help") {
      usage(0);
    } else if (word == "-o") {
      options.picture = arguments.next();
    } else if (word == "-ply") {
      options.points = arguments.next();
    } else if (word == "-turn") {
      options.view.turn = arguments.number();
    } else if (word == "-tilt") {
      options.view.tilt = arguments.number();
    } else if (word == "-nearest") {
      const double count = arguments.number();
      if (count < 1 || count > double(mostNeighbours) || count != std::floor(count))
        usage(2);
      options.nearest = std::size_t(count);
    } else if (word == "-radius") {
      options.radius = arguments.number();
      if (!(options.radius > 0))
        usage(2);
    } else if (word == "-progress") {
      options.progress = true;
    } else if ((word.size() > 1 && word[0] == '-') || !options.model.empty()) {
      usage(2);
    } else {
      options.model = word;
    }
  }
  if (options.nearest > 0 && options.radius > 0)
    usage(2);
  if (options.model.empty())
    options.model = MESH_DEFAULT_MODEL;
  return options;
}
