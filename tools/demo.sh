#!/bin/sh
# Builds the library and runs the mesh program on an OBJ file: tools/demo.sh [model.obj [option...]]
# The default is the model of Debian's package glmark2-data. Works on a fresh Debian 12.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/tools/packages.sh"
need g++ cmake ninja-build python3 libpng-dev libeigen3-dev glmark2-data

if [ $# = 0 ]; then
  set -- /usr/share/glmark2/models/bunny.obj
fi
build=$root/build-demo
cmake -G Ninja -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release -DZELM_TESTS=OFF -DZELM_BENCH=OFF -DZELM_EXAMPLES=ON
cmake --build "$build" --parallel "$(nproc)" --target zelm zelm_v3 mesh
"$build/examples/mesh" "$@"
