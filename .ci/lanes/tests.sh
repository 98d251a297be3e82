#!/usr/bin/env bash
# The tests as a newcomer runs them, from a build in which GCC's warnings are errors.
set -euo pipefail
source tools/setup.sh
install_packages build
cmake --preset release -DUTILSDLL_WERROR=ON >/dev/null
exec ./test.sh
