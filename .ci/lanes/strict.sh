#!/usr/bin/env bash
# Warnings are errors, for GCC and for Clang.
set -euo pipefail
source tools/setup.sh
install_packages build test bench lint
build strict-gcc -DUTILSDLL_BUILD_BENCHMARKS=ON
build strict-clang -DUTILSDLL_BUILD_BENCHMARKS=ON
