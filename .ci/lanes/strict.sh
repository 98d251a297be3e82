#!/usr/bin/env bash
# Warnings are errors for Clang as well, in everything there is to build; without precompiled headers, every source but
# those of the tests must include what it uses. (GCC's warnings are errors in the lane "tests".) clang-tidy looks for faults
# in the library, the logger and the showcase. Modules may use another standard than the library: the public headers are
# compiled with both compilers as C++17, 20 and 23.
set -euo pipefail
source tools/setup.sh
install_packages build test bench lint
build strict-clang
echo "== Looking for faults (clang-tidy)"
tools/tidy.py build/strict-clang
tests/checks/public_headers.sh
