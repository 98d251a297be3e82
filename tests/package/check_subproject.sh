#!/usr/bin/env bash
# check_subproject.sh TREE: configures a project that adds the tree as a subfolder, and builds the resource bundles there,
# whose rules name most paths of the tree.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
quietly() {
    "$@" >"$work/log" 2>&1 || { tail -n 30 "$work/log"; exit 1; }
}

export CMAKE_BUILD_PARALLEL_LEVEL=1 # other tests run at the same time
quietly cmake -S "$(dirname "$0")/subproject" -B "$work/build" -G Ninja -DTREE="$1"
quietly cmake --build "$work/build" --target UtilsDllBundles
