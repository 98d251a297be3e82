#!/usr/bin/env bash
# The tests as a newcomer runs them, from a build in which GCC's warnings are errors.
set -euo pipefail
PRESET=strict-gcc exec ./test.sh
