#!/usr/bin/env bash
# usage: short_run.sh ROOT TARGET SECONDS
# Runs a fuzz target for that long, from its seeds. A fault ends it, and the input that shows it stays in build/fuzz.
set -euo pipefail
cd "$1"
inputs=$(mktemp -d)
trap 'rm -rf "$inputs"' EXIT
"build/fuzz/bin/$2" -max_total_time="$3" -max_len=4096 -timeout=20 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="build/fuzz/$2-" "$inputs" "tests/fuzz/seeds/$2"
