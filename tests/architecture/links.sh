#!/usr/bin/env bash
# usage: links.sh CHECKOUT
# Fails where a page of the documentation links to a file that is not there or names one in backticks (a path of the
# checkout, or the bare name of a source file), or where the manual has a chapter that its table of contents leaves out.
# shellcheck disable=SC2016 # the backticks are those of the pages
set -euo pipefail
cd "$1"
shopt -s nullglob
pages=(README.md CHANGELOG.md archive/README.md docs/*.md docs/manuale/*.md tests/*/README.md)
status=0
fault() {
    echo "$1: $2"
    status=1
}

while IFS=: read -r page link; do
    [ -e "$(dirname "$page")/${link%%#*}" ] || fault "$page" "there is no $link"
done < <(grep -oP '\]\(\K[^)]+' "${pages[@]}" -H | grep -v -E ':(https?|mailto):|:#')

# A path may end in a pattern: tests/golden/pagina-*.html.
while IFS=: read -r page path; do
    compgen -G "${path%/}" >/dev/null || fault "$page" "there is no $path"
done < <(grep -oP '`\K(src|tools|tests|docs|archive|cmake|packaging)/[^` ]*(?=`)' "${pages[@]}" -H)

while IFS=: read -r page name; do
    [ -n "$(find src tools tests -name "$name" -print -quit)" ] || fault "$page" "no source file is called $name"
done < <(grep -oP '`\K[^`/ ]+\.(h|cpp)(?=`)' "${pages[@]}" -H)

for chapter in docs/manuale/*.md; do
    name=$(basename "$chapter")
    [ "$name" = README.md ] || grep -q "($name)" docs/manuale/README.md ||
        fault docs/manuale/README.md "$name is missing"
done
exit $status
