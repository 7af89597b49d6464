#!/usr/bin/env bash
# usage: play.sh SCENARIO CIBRA-COPIONE CIBRA-ARCHIVIO
# Plays SCENARIO.copione on a program folder of its own; README.md tells the rest.
set -euo pipefail
scenario=$1
copione=$2
archivio=$3

# What a line "# WORD: value" at the head of the script says, else the second argument.
setting() {
    local told
    told=$(sed -n "/^#/!q; s/^# $1: *//p" "$scenario.copione")
    echo "${told:-$2}"
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
folder=$work/programma
mkdir "$folder"
case $(setting folder example) in
example) "$archivio" prepara "$folder" ;;
empty) ;;
*)
    echo "$scenario.copione: folder is example or empty" >&2
    exit 2
    ;;
esac
[ ! -d "$scenario.folder" ] || cp -r "$scenario.folder/." "$folder/"
password=$(setting password "")
[ -z "$password" ] || printf '%s\n%s\n' "$password" "$password" | "$archivio" proteggi "$folder/Archivio/famiglia.db"

# Pictures go there, and are for whoever plays the script by hand.
mkdir "$folder/Immagini"
cd "$folder"
"$copione" --folder "$folder" --screen offscreen --today "$(setting today 03/03/2025)" "$scenario.copione" \
    >"$work/output"
left=$(setting leaves "")
[ -z "$left" ] || grep -qaF -- "${left#*: }" "$folder/${left%%: *}" || {
    echo "$scenario.copione: there is no \"${left#*: }\" in ${left%%: *}" >&2
    exit 1
}
[ ! -e "$scenario.expected" ] || diff -u "$scenario.expected" <(sed "s|$folder|FOLDER|g" "$work/output")
