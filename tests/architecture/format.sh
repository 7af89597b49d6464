#!/usr/bin/env bash
# Every source and header is laid out as .clang-format says.
set -euo pipefail
cd "$1"
mapfile -t files < <(find src tools tests -name '*.cpp' -o -name '*.h' | sort)
[ "${#files[@]}" -gt 0 ]
clang-format --dry-run --Werror "${files[@]}"
echo "${#files[@]} files, all laid out alike"
