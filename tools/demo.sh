#!/bin/sh
# Builds the library and runs the mesh program on a scan: tools/demo.sh [model [option...]]
# The default is the model of Debian's package glmark2-data. Works on a fresh Debian 12.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/tools/packages.sh"
need g++ cmake ninja-build python3 libpng-dev libeigen3-dev libnanoflann-dev glmark2-data

# Of the library's builds the one that the loader of this machine would pick, and of its families those that the program
# calls: a tenth of the time that all take.
families='mul_(mm|mama|mv|mva|mava)|affinetransform3dh_mva|choleskydecomp_ma?|choleskybacksubst_(mv|mava)|qrdecomp_m'
families="$families|qrbacksubst_mv|eigenvaluesvectorssym|eigenvaluessym_com"
width=base
for level in v3 v4; do
  if /lib64/ld-linux-x86-64.so.2 --help | grep -q "x86-64-$level (supported"; then
    width=$level
  fi
done
build=$root/build-demo
cmake -G Ninja -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release -DZELM_TESTS=OFF -DZELM_BENCH=OFF -DZELM_EXAMPLES=ON \
  -DZELM_WIDTHS="$(echo "$width" | sed s/base//)" -DMESH_WIDTH=$width "-DZELM_ONLY=^zelm($families)(_|\$)"
cmake --build "$build" --parallel "$(nproc)" --target mesh
"$build/examples/mesh" "$@"
