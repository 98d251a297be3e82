#!/usr/bin/env bash
# Warnings are errors for Clang as well, in everything there is to build; without precompiled headers, every source must
# include what it uses. (GCC's warnings are errors in the lane "tests".) Modules may use another standard than the library:
# the public headers are compiled with both compilers as C++17, 20 and 23.
set -euo pipefail
source tools/setup.sh
install_packages build test bench lint
build strict-clang
tests/checks/public_headers.sh
