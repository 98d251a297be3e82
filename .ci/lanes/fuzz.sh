#!/usr/bin/env bash
# Each fuzz target for a minute (FUZZ_SECONDS), all at the same time, starting from its seeds. What a target finds on the way
# stays in the build folder.
set -euo pipefail
source tools/setup.sh
install_packages build test fuzz
TARGETS=fuzzers build fuzz

# fuzz NAME: runs one target; its report goes to a file.
fuzz() {
    local found="build/fuzz/corpus/$1"
    mkdir -p "$found"
    "build/fuzz/bin/$1" -max_total_time="${FUZZ_SECONDS:-60}" -max_len=65536 -timeout=10 -rss_limit_mb=1024 \
        -print_final_stats=1 -artifact_prefix="$found-crash-" "$found" "tests/fuzz/corpus/${1#fuzz_}" >"$found.log" 2>&1
}

declare -A running=()
for target in tests/fuzz/fuzz_*.cpp; do
    name=$(basename "$target" .cpp)
    mkdir -p build/fuzz/corpus
    fuzz "$name" &
    running[$name]=$!
done
status=0
for name in "${!running[@]}"; do
    wait "${running[$name]}" || status=$?
    echo "== $name"
    tail -n 12 "build/fuzz/corpus/$name.log"
done
exit "$status"
