#!/usr/bin/env bash
# Draws every dialog in every language, state and scale, checks the pictures by rules, and keeps them in
# build/strict-gcc/looks.
set -euo pipefail
source tools/setup.sh
install_packages build test
TARGETS=dialog_looks build strict-gcc
for scale in 1 1.5 2; do
    pictures=build/strict-gcc/looks/$scale
    rm -rf "$pictures"
    mkdir -p "$pictures"
    echo "looks: scale $scale"
    QT_SCALE_FACTOR=$scale build/strict-gcc/bin/dialog_looks "$pictures"
done
