#!/usr/bin/env bash
# Each fuzz target for a minute (FUZZ_SECONDS), starting from its seeds. What it finds on the way stays in the build folder.
set -euo pipefail
source tools/setup.sh
install_packages build test fuzz
TARGETS=fuzzers build fuzz
for target in tests/fuzz/fuzz_*.cpp; do
    name=$(basename "$target" .cpp)
    found="build/fuzz/corpus/$name"
    mkdir -p "$found"
    echo "== $name"
    "build/fuzz/bin/$name" -max_total_time="${FUZZ_SECONDS:-60}" -max_len=65536 -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
        -artifact_prefix="$found-crash-" "$found" "tests/fuzz/corpus/${name#fuzz_}" 2>&1 | tail -n 12
done
