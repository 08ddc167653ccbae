#!/bin/sh
# build.sh compiler libdir work runtime: a program built by pkg-config's word, against the shared library and the archive.
set -eu
compiler=$1 libdir=$2 work=$3 runtime=$4
here=$(cd "$(dirname "$0")" && pwd)
export PKG_CONFIG_PATH="$libdir/pkgconfig"
rm -rf "$work"
mkdir -p "$work"
pkg-config --exact-version=6.1 zelm
test "$(pkg-config --variable=libdir zelm)" = "$libdir"

# shellcheck disable=SC2046 # the options are words
"$compiler" "$here/../main.c" -o "$work/shared" $(pkg-config --cflags --libs zelm)
LD_LIBRARY_PATH="$libdir:$runtime" ldd "$work/shared" | grep -q "$libdir/.*libzelmn8.so.6.1"
LD_LIBRARY_PATH="$libdir:$runtime" "$work/shared"

# Linked with the archive: the same words, the library's own one replaced.
"$compiler" "$here/../main.c" -o "$work/static" \
  $(pkg-config --static --cflags --libs zelm | sed "s|-lzelmn8|$libdir/libzelmn8.a|") -L"$runtime"
if ldd "$work/static" | grep -q libzelmn8; then
  echo "the archive was not used" >&2
  exit 1
fi
LD_LIBRARY_PATH="$runtime" "$work/static"
