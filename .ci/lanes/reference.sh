#!/usr/bin/env bash
# The API reference can be made, and no public name is without documentation.
set -euo pipefail
source tools/setup.sh
install_packages docs
mkdir -p build
doxygen docs/Doxyfile
