// The command line.
#ifndef OPTIONS_H
#define OPTIONS_H

#include "picture.h"

struct Options {
  std::string model, picture = "mesh.png", points;
  std::size_t nearest = 0; // neighbours; 0 if they are not chosen in this way
  double radius = 0;       // of neighbours; 0 if they are not chosen in this way
  View view{-20, 12};
  bool progress = false; // shown from the first moment on
};

/// Ends the program where there is nothing to do: 0 after -h, 2 if something is wrong.
Options readOptions(int argc, char** argv);

#endif
