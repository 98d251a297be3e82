#!/usr/bin/env bash
# The tests that take minutes or gigabytes.
set -euo pipefail
source tools/setup.sh
install_packages build test
build strict-gcc
run_tests slow
