#!/usr/bin/env bash
# Makes the API reference in build/reference/html.
set -euo pipefail
cd "$(dirname "$0")/.."
mkdir -p build
UTILSDLL_VERSION=$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt) doxygen docs/Doxyfile
