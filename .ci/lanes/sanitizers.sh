#!/usr/bin/env bash
# The same tests under AddressSanitizer (with leak detection) and UndefinedBehaviorSanitizer.
set -euo pipefail
source tools/setup.sh
install_packages build test
build dev-asan
run_tests dev-asan
