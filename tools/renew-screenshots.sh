#!/usr/bin/env bash
# Draws the pictures of the showcase in docs/screenshots anew. Each is named after its language and its name there.
#
# usage: renew-screenshots.sh [BUILD-FOLDER]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}
drawn=$(mktemp -d)
trap 'rm -rf "$drawn"' EXIT
QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=1 "$build/bin/trelio-showcase" --temporary --screenshots "$drawn"
for picture in docs/screenshots/*.png; do
    name=$(basename "$picture")
    cp "$drawn/${name%%-*}/${name#*-}" "$picture"
done
