#!/usr/bin/env bash
# usage: includes_finds_faults.sh INCLUDES.SH QTCORE
# The check itself, on a small tree with one fault of each kind and one line of each kind that is allowed.
set -euo pipefail
export LC_ALL=C
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

put() { mkdir -p "$tree/$(dirname "$1")" && printf '#include %s\n' "${@:2}" >"$tree/$1"; }
put src/platform/store/Statement.cpp '<sqlcipher/sqlite3.h>' '"platform/Failure.h"'
put src/platform/text/Numbers.cpp '"core/Helpers.h"'
put src/core/Helpers.cpp '<QWidget>' '<QString>'
put src/sheet/Totali.cpp '"sheet/forms/FrmCibra.h"' '"core/Helpers.h"'
put src/sheet/forms/FrmCibra.cpp '<QWidget>' '"ui_FrmCibra.h"'
put src/planner/Preferiti.h '"shell/Main.h"'
put src/shell/Main.cpp '<mdbtools.h>'
put tools/cibra-archivio/main.cpp '<sqlite3.h>' '<mdbtools.h>'

expected="src/core/Helpers.cpp:1: logic may use Qt's core alone, not QWidget
src/planner/Preferiti.h:1: planner may not include shell/Main.h
src/platform/text/Numbers.cpp:1: platform may not include core/Helpers.h
src/sheet/Totali.cpp:1: logic may not include sheet/forms/FrmCibra.h
src/shell/Main.cpp:1: only tools/cibra-archivio may include mdbtools.h
tools/cibra-archivio/main.cpp:1: only src/platform/store may include sqlite3.h"
status=0
found=$("$1" "$tree" "$2" | sort) || status=$?
diff <(echo "$expected") <(echo "$found")
[ "$status" -eq 1 ]
