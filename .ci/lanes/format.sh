#!/usr/bin/env bash
# The sources are formatted as .clang-format says, and shell scripts are clean.
set -euo pipefail
source tools/setup.sh
install_packages lint
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run --Werror
git ls-files '*.sh' .ci/run | xargs shellcheck -x
