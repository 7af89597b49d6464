#!/usr/bin/env bash
# usage: build.sh ROOT
# Builds the fuzz targets.
set -euo pipefail
cd "$1"
cmake --preset fuzz
cmake --build --preset fuzz
