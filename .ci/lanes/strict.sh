#!/usr/bin/env bash
# Warnings are errors for Clang as well, in everything there is to build; without precompiled headers, every source must
# include what it uses. (GCC's warnings are errors in the lane "tests".)
set -euo pipefail
source tools/setup.sh
install_packages build test bench lint
build strict-clang
