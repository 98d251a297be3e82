#!/usr/bin/env bash
# The tests that take minutes or gigabytes.
set -euo pipefail
source tools/setup.sh
install_packages build test
build release -DUTILSDLL_BUILD_TESTS=ON
ctest --preset release -L slow
