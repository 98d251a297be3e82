#!/usr/bin/env bash
# Lines and branches of the library, the logger and the showcase that the tests reach, by wing.
set -euo pipefail
exec tools/coverage.sh
