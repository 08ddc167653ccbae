#!/bin/sh
# Lists the kernels and fronts of the archive for entries.cpp and for the linker: entries.sh NM ARCHIVE INC OPTIONS
# The query of the cache size and the choice of a team are replaced besides.
set -eu
names=$("$1" --defined-only "$2" | sed -n 's/.* T \(own\(OMP_\)\{0,1\}\(zelm\|m_\|iT\)[A-Za-z0-9_]*\)$/\1/p')
[ -n "$names" ]
printf 'ENTRY %s\n' $names > "$3"
printf -- '--wrap=%s\n' $names zelGetMaxCacheSizeB ownGetTeamSize > "$4"
