#!/usr/bin/env bash
# Sets up what is missing, builds in release mode and passes the tests.
set -euo pipefail
cd "$(dirname "$0")"

if [ "${1:-}" = -h ] || [ "${1:-}" = --help ]; then
    cat <<'TEXT'
Usage: ./test.sh [CTEST OPTION...]
Installs the Debian packages that are missing, builds the library in release mode and runs the tests, e.g.
  ./test.sh                 all tests
  ./test.sh -R settings     those whose names match
  ./test.sh -j 1            one after the other; without -j as many at a time as there are processors
The environment variable PRESET names another preset of CMakePresets.json than "release".
TEXT
    exit 0
fi

source tools/setup.sh
install_packages build test
preset=${PRESET:-release}
build "$preset"
echo "== Running the tests"
run_tests "$preset" "$@"
