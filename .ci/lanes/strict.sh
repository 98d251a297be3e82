#!/usr/bin/env bash
# Warnings are errors for Clang as well, in everything there is to build, and every source includes what it uses. (For GCC
# they are errors in the lane "tests".)
set -euo pipefail
source tools/setup.sh
install_packages build test bench lint
build strict-clang -DUTILSDLL_BUILD_BENCHMARKS=ON
