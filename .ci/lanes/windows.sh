#!/usr/bin/env bash
# The tests as Windows programs under Wine. Without the Windows build of Qt the lane is left out.
set -euo pipefail
source tools/setup.sh

status=0
tools/win64/find-sdk.sh --check || status=$?
[ "$status" -ne 3 ] || exit 77 # no archive; find-sdk.sh has said so
[ "$status" -eq 0 ] || exit "$status"

install_packages build test windows
build win64
run_tests win64
