#!/usr/bin/env bash
# Draws every dialog in every language and state, at several scales and with large text, checks the pictures by rules,
# and keeps them in build/strict-gcc/looks.
set -euo pipefail
source tools/setup.sh
install_packages build test
TARGETS=dialog_looks build strict-gcc
draw() {
    local pictures=build/strict-gcc/looks/$1
    rm -rf "$pictures"
    mkdir -p "$pictures"
    echo "looks: $1"
    env "$2" build/strict-gcc/bin/dialog_looks "$pictures"
}
for scale in 1 1.5 2; do
    draw "$scale" "QT_SCALE_FACTOR=$scale"
done
draw large-text QT_FONT_DPI=192
