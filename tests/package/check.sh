#!/usr/bin/env bash
# Installs the build in BUILD_DIR into a folder of its own, builds the consumer project against that and runs it.
set -euo pipefail
build_dir=$1
source_dir=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build_dir" --prefix "$work/install" >"$work/log" || { cat "$work/log"; exit 1; }
cmake -S "$source_dir" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_PREFIX_PATH="$work/install" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
cmake --build "$work/build" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
"$work/build/consumer"
