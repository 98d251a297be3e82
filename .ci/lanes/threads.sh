#!/usr/bin/env bash
# The tests that use threads, under ThreadSanitizer.
set -euo pipefail
source tools/setup.sh
install_packages build test
TARGETS=thread_tests build dev-tsan
run_tests dev-tsan
