#!/usr/bin/env bash
# Sets up what is missing, builds in release mode and starts the showcase.
set -euo pipefail
cd "$(dirname "$0")"

if [ "${1:-}" = -h ] || [ "${1:-}" = --help ]; then
    cat <<'TEXT'
Usage: ./run.sh [SHOWCASE OPTION...]
Installs the Debian packages that are missing, builds the library in release mode and starts the showcase host.
Without an option the showcase opens its window, or, where there is no display, writes its pages as pictures.
  --console          walk the subsystems and print a report; exit code 0 only if every step did what it should
  --temporary        keep settings in a temporary file for this run
  --screenshots DIR  write every page and message box in every language as pictures
TEXT
    exit 0
fi

source tools/setup.sh
install_packages build
build showcase
echo "== Starting the showcase"
exec ./build/showcase/bin/trelio-showcase "$@"
