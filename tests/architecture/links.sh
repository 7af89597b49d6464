#!/usr/bin/env bash
# usage: links.sh CHECKOUT
# Fails where a page of the documentation links to a file that is not there, or where the manual has a chapter that its
# table of contents leaves out.
set -euo pipefail
cd "$1"
status=0

while IFS=: read -r page link; do
    target=$(dirname "$page")/${link%%#*}
    [ -e "$target" ] || {
        echo "$page: there is no $link"
        status=1
    }
done < <(grep -oP '\]\(\K[^)]+' README.md CHANGELOG.md archive/README.md docs/*.md docs/manuale/*.md -H |
    grep -v -E ':(https?|mailto):|:#')

for chapter in docs/manuale/*.md; do
    name=$(basename "$chapter")
    [ "$name" = README.md ] || grep -q "($name)" docs/manuale/README.md || {
        echo "docs/manuale/README.md: $name is missing"
        status=1
    }
done
exit $status
