#!/usr/bin/env bash
# usage: play.sh SCENARIO CIBRA-COPIONE CIBRA-ARCHIVIO LOCKER
# Plays SCENARIO.copione on a program folder of its own; README.md tells the rest. Status 77: this machine allows no
# file system of our own, which a few scenarios need.
set -euo pipefail
scenario=$1
copione=$2
archivio=$3
locker=$4

# What a line "# WORD: value" at the head of the script says, else the second argument.
setting() {
    local told
    told=$(sed -n "/^#/!q; s/^# $1: *//p" "$scenario.copione")
    echo "${told:-$2}"
}

state=$(setting archive ordinary)
case $state in
read-only | full)
    # Rights would not bind the superuser, so the folder of the archive becomes a file system that only this run sees.
    if [ -z "${CIBRA_OWN_MOUNTS:-}" ]; then
        unshare --mount --map-root-user true 2>/dev/null || exit 77
        CIBRA_OWN_MOUNTS=1 exec unshare --mount --map-root-user "$0" "$@"
    fi
    ;;
esac

work=$(mktemp -d)
forget() {
    if mountpoint -q "$work/programma/Archivio"; then
        umount -l "$work/programma/Archivio"
    fi
    rm -rf "$work"
}
trap forget EXIT
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
for old in $(setting copies ""); do
    cp "$(dirname "$scenario")/../archive/mdb/$old" "$folder/"
done
password=$(setting password "")
[ -z "$password" ] || printf '%s\n%s\n' "$password" "$password" | "$archivio" proteggi "$folder/Archivio/famiglia.db"

case $state in
ordinary) ;;
read-only)
    mount --bind "$folder/Archivio" "$folder/Archivio"
    mount -o remount,bind,ro "$folder/Archivio"
    ;;
full)
    room=$(($(stat -c %s "$folder/Archivio/famiglia.db") / 1024 + 1000))
    cp -r "$folder/Archivio" "$work/kept"
    mount -t tmpfs -o "size=${room}k" archivio "$folder/Archivio"
    cp -r "$work/kept/." "$folder/Archivio"
    ;;
locked)
    # Another program writes for as long as its input stays open.
    exec {hold}> >("$locker" "$folder/Archivio/famiglia.db" >"$work/locked")
    holder=$!
    until [ -s "$work/locked" ]; do sleep 0.05; done
    ;;
*)
    echo "$scenario.copione: archive is read-only, full or locked" >&2
    exit 2
    ;;
esac

# Pictures go there, and are for whoever plays the script by hand.
mkdir "$folder/Immagini"
cd "$folder"
"$copione" --folder "$folder" --screen offscreen --today "$(setting today 03/03/2025)" "$scenario.copione" \
    >"$work/output" || {
    cat "$work/output"
    exit 1
}
left=$(setting leaves "")
[ -z "$left" ] || grep -qaF -- "${left#*: }" "$folder/${left%%: *}" || {
    echo "$scenario.copione: there is no \"${left#*: }\" in ${left%%: *}" >&2
    exit 1
}
if [ "$state" = locked ]; then
    exec {hold}>&-
    wait "$holder"
fi
[ "$state" = ordinary ] || "$archivio" verifica "$folder/Archivio/famiglia.db" >/dev/null
[ ! -e "$scenario.expected" ] || diff -u "$scenario.expected" <(sed "s|$folder|FOLDER|g" "$work/output")
