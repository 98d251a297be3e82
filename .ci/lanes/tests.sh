#!/usr/bin/env bash
# The tests as a newcomer runs them.
set -euo pipefail
exec ./test.sh
