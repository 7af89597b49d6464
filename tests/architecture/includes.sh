#!/usr/bin/env bash
# usage: includes.sh ROOT QTCORE
# Reads every #include below ROOT/src and ROOT/tools and names those that go against the house's rules:
#   - a subsystem includes itself and those before it in the list, never one behind it;
#   - logic includes neither a form nor anything of Qt but its core (whose headers lie in QTCORE);
#   - the engine's header is seen by src/platform/store alone, that of libmdb by the archive tool.
# Exit status 1 where there is one.
set -euo pipefail
cd "$1"
qtcore=$2
declare -A rank=([platform]=0 [core]=1 [pages]=2 [catalogue]=3 [sheet]=4 [planner]=5 [shell]=6)

# Forms and the parts that forms are made of; all else is logic.
is_logic() {
    case $1 in
    src/*/forms/* | src/platform/ui/* | src/*/main.cpp | tools/*) return 1 ;;
    esac
}

faults=0
fault() {
    echo "$1:$2: $3"
    faults=$((faults + 1))
}

include='include *[<"]([^>"]+)[>"]'
while IFS=: read -r file line text; do
    [[ $text =~ $include ]] || continue
    header=${BASH_REMATCH[1]}
    if [ "${header##*/}" = sqlite3.h ] && [[ $file != src/platform/store/* ]]; then
        fault "$file" "$line" "only src/platform/store may include $header"
    fi
    if [ "${header##*/}" = mdbtools.h ] && [[ $file != tools/cibra-archivio/* ]]; then
        fault "$file" "$line" "only tools/cibra-archivio may include $header"
    fi
    owner=${file#src/}
    owner=${owner%%/*}
    used=${rank[${header%%/*}]:-}
    if [[ $file == src/* && $header == */* && -n $used ]] && [ "$used" -gt "${rank[$owner]}" ]; then
        fault "$file" "$line" "$owner may not include $header"
    fi
    is_logic "$file" || continue
    case $header in
    */forms/* | platform/ui/* | ui_*) fault "$file" "$line" "logic may not include $header" ;;
    Q*) [ -e "$qtcore/$header" ] || fault "$file" "$line" "logic may use Qt's core alone, not $header" ;;
    esac
done < <(find src tools -type f \( -name '*.h' -o -name '*.cpp' \) -exec grep -nHE '^ *# *include *[<"]' {} + || true)
[ "$faults" -eq 0 ]
