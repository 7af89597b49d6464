#!/usr/bin/env bash
# usage: pagine.sh BIN FOLDER PICTURES
# Writes the nutrition page and its short variant on a program folder that has its household, through the menus, and
# takes pictures of them in a browser, filled in by pagine.js: wide, and as narrow as they get without scrolling.
set -euo pipefail
bin=$1
folder=$2
pictures=$3
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# scrivi NAME LINE ...: plays the lines and keeps the page that they leave.
scrivi() {
    local name=$1
    printf '%s\n' start "${@:2}" 'menu Menu.mnuesciRete' >"$work/scrivi.copione"
    "$bin/cibra-copione" --folder "$folder" --screen offscreen "$work/scrivi.copione"
    find "$folder" -ipath '*/documenti/cibra.html' -exec cat {} + >"$work/$name.html"
    { echo '<script>' && cat "$here/pagine.js" && echo '</script>'; } >>"$work/$name.html"
}

# fotografa PAGE PICTURE WIDTH HEIGHT
fotografa() {
    chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking \
        --disable-component-update --disable-sync --disable-dev-shm-usage --hide-scrollbars \
        --user-data-dir="$work/dati" --window-size="$3,$4" --screenshot="$pictures/$2.png" "file://$work/$1.html" \
        2>"$work/chromium.log" || { cat "$work/chromium.log" >&2 && return 1; }
}

scrivi intera 'menu Menu.mnuHTML'
scrivi breve 'menu Menu.MnugeneraMenu' 'menu GeneraMenu.MnukcCalcolo' 'key GeneraMenu "Esc"'
fotografa intera pagina-grande 1280 2180
fotografa intera pagina-piccola 820 2180
fotografa breve pagina-breve-grande 1280 760
fotografa breve pagina-breve-piccola 820 760
