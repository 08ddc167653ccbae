#!/bin/sh
# Builds library, tests and examples with warnings as errors and runs all tests: tools/test.sh [--sanitize]
# ZELM_WIDTHS="v3;v4" builds all widths. CXX=clang++ takes clang and its OpenMP runtime; --sanitize builds with the address and undefined sanitizers.
# Works on a fresh Debian 12.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/tools/packages.sh"
: "${CXX:=g++}"
sanitize=""
name=$(basename "$CXX")
for argument in "$@"; do
  case $argument in
  --sanitize)
    sanitize=address,undefined
    name=$name-sanitize
    ;;
  *)
    echo "usage: tools/test.sh [--sanitize]" >&2
    exit 2
    ;;
  esac
done

need g++ cmake ninja-build libgtest-dev python3 pkg-config doxygen libpng-dev libeigen3-dev libglm-dev libnanoflann-dev glmark2-data
case $CXX in
*clang++*)
  CC=$(echo "$CXX" | sed 's/clang++/clang/')
  case $CXX in
  clang++) need clang clang-14 libomp-14-dev ;;
  clang++-14) need clang-14 libomp-14-dev ;;
  esac
  ;;
*) CC=$(echo "$CXX" | sed 's/g++/gcc/') ;;
esac
export CC CXX

# Beside the build for all processors the widest that this machine runs; ZELM_WIDTHS="v3;v4" for all.
if [ -z "${ZELM_WIDTHS:-}" ]; then
  ZELM_WIDTHS=v3
  /lib64/ld-linux-x86-64.so.2 --help | grep -q 'x86-64-v4 (supported' && ZELM_WIDTHS=v4
fi
build=$root/build-test-$name
set -- "-DZELM_WIDTHS=$ZELM_WIDTHS" -DCMAKE_BUILD_TYPE=Release -DZELM_TESTS=ON -DZELM_BENCH=OFF -DZELM_EXAMPLES=ON -DZELM_WERROR=ON
if [ -n "$sanitize" ]; then
  # Optimising the checks takes minutes a file, and finds no more.
  set -- "$@" -DZELM_EXAMPLES=OFF -DZELM_SANITIZE="$sanitize" "-DCMAKE_CXX_FLAGS_RELEASE=-O0 -DNDEBUG"
fi
cmake -G Ninja -S "$root" -B "$build" "$@"
cmake --build "$build" --parallel "$(nproc)"
# Without optimisation all cases take many minutes. The number shares no factor with those of layouts and offsets, so that
# all of these are among the cases that run.
set --
if [ -n "$sanitize" ]; then
  export ZELM_EVERY=29
  set -- --exclude-regex '^test_mul_mm\.Results$' # minutes even so; its other suites run
fi
ctest --test-dir "$build" --output-on-failure --parallel "$(nproc)" "$@"
