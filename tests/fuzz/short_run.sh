#!/usr/bin/env bash
# usage: short_run.sh ROOT TARGET SECONDS
# Runs a fuzz target for that long, from its seeds. A fault ends it, and the input that shows it stays in build/fuzz.
set -euo pipefail
cd "$1"
inputs=$(mktemp -d)
trap 'rm -rf "$inputs"' EXIT
# Giving memory back to a busy machine may stall one input for longer than an endless loop should be let run.
export ASAN_OPTIONS=allocator_release_to_os_interval_ms=-1:quarantine_size_mb=64
"build/fuzz/bin/$2" -max_total_time="$3" -max_len=4096 -timeout=100 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="build/fuzz/$2-" "$inputs" "tests/fuzz/seeds/$2"
