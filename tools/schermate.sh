#!/usr/bin/env bash
# Makes the pictures of docs/schermate anew: every screen at its smallest and large, empty and full. Look at them after
# a change to a screen. A line "schermata NAME [FORM]" of the scripts in tools/schermate takes NAME-piccola.png and
# NAME-grande.png of the form, or NAME.png of the message box in front; "scatta NAME FORM" takes the form
# as it is. The pages for the browser are taken in Chromium.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/prepara.sh

installa_pacchetti packages.txt
costruisci release cibra-archivio cibra-copione
bin=$PWD/build/release/bin
pictures=$PWD/docs/schermate
# Paths show on some screens, so the folder always bears the same name.
work=${TMPDIR:-/tmp}/cibra
mkdir "$work"
trap 'rm -rf "$work"' EXIT
mkdir -p "$pictures"

# Smaller than anything, so that the form stops at its own smallest size; large, as on an ordinary desktop.
espandi() {
    awk -v folder="$pictures" '
        function shot(name, form) { print "shot \"" folder "/" name ".png\" " form }
        $1 == "scatta" { shot($2, $3); next }
        $1 != "schermata" { print; next }
        NF == 2 { shot($2, ""); next }
        { print "resize " $3 " 1 1"; shot($2 "-piccola", $3)
          print "resize " $3 " 1600 1000"; shot($2 "-grande", $3) }' "$1"
}

# scatta SCRIPT FOLDER: plays a script on a program folder, the pictures going to docs/schermate.
scatta() {
    espandi "tools/schermate/$1.copione" >"$work/$1.copione"
    "$bin/cibra-copione" --folder "$2" --screen offscreen --today 03/03/2025 "$work/$1.copione"
}

"$bin/cibra-archivio" prepara "$work/piena"
cp -r "$work/piena" "$work/vuota"
rm "$work/vuota/Archivio/famiglia.db"
"$bin/cibra-archivio" nuovo "$work/vuota/Archivio/famiglia.db"
sed -i "s|$work/piena|$work/vuota|" "$work/vuota/INI/GestioneRete.INI"

cp -r "$work/piena" "$work/protetta"
sed -i "s|$work/piena|$work/protetta|" "$work/protetta/INI/GestioneRete.INI"
printf 'segreta\nsegreta\n' | "$bin/cibra-archivio" proteggi "$work/protetta/Archivio/famiglia.db"

scatta vuota "$work/vuota"
scatta protetta "$work/protetta"
scatta piena "$work/piena"
tools/schermate/pagine.sh "$bin" "$work/piena" "$pictures"
ls "$pictures"
