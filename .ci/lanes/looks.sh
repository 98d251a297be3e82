#!/usr/bin/env bash
# Draws every dialog in every language, state and scale, checks the pictures by rules, and keeps them in
# build/release/looks.
set -euo pipefail
source tools/setup.sh
install_packages build test
TARGETS=dialog_looks build release
for scale in 1 1.5 2; do
    pictures=build/release/looks/$scale
    rm -rf "$pictures"
    mkdir -p "$pictures"
    echo "looks: scale $scale"
    QT_SCALE_FACTOR=$scale build/release/bin/dialog_looks "$pictures"
done
