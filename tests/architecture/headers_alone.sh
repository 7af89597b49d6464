#!/usr/bin/env bash
# usage: headers_alone.sh ROOT COMPILER [FLAG ...]
# Every header below ROOT/src and ROOT/tools must stand alone. One that its source includes first is proved by the build;
# each of the others is compiled by itself. Exit status not 0 where one does not stand alone.
set -euo pipefail
cd "$1"
shift

proved_by_the_build() {
    local source=${1%.h}.cpp
    [ -e "$source" ] && [[ $(grep -m 1 '^#include' "$source") == *[/\"]"${1##*/}"\" ]]
}

find src tools -name '*.h' | while read -r header; do
    proved_by_the_build "$header" || echo "$header"
done | xargs -r -n 1 -P "$(nproc)" "$@" -std=c++20 -fsyntax-only -x c++ /dev/null -include
