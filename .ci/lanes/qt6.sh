#!/usr/bin/env bash
# The library, the showcase and the tests with Qt 6, warnings are errors. The bundles are embedded by Qt's resource compiler
# here, as compilers without the assembler of GCC and Clang have it.
set -euo pipefail
source tools/setup.sh
install_packages build test qt6
build qt6
run_tests qt6
