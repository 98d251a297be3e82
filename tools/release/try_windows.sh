#!/usr/bin/env bash
# Builds the programs of the guide against the Windows zip and runs them under Wine.
set -euo pipefail
tree=$(cd "$(dirname "$0")/../.." && pwd)

if [ $# -ne 1 ] || [ "$1" = --help ] || [ "$1" = -h ]; then
    cat <<'TEXT'
Usage: tools/release/try_windows.sh ZIP

Unpacks ZIP, cross-builds the programs of examples/ against it and runs each in a fresh Wine prefix, on the real windows
platform. There the program finds what tolvan_deploy() laid beside it, and no other drive, folder or path.
TEXT
    exit 2
fi
zip=$(realpath "$1")
sdk=$("$tree/tools/win64/find-sdk.sh")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
quietly() {
    "$@" >"$work/log" 2>&1 || { tail -n 40 "$work/log" >&2; exit 1; }
}

quietly unzip -q "$zip" -d "$work"
release=$(echo "$work"/*-win64)
quietly cmake -S "$tree/examples" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$tree/cmake/toolchains/mingw-w64.cmake" -DWIN64_SDK_DIR="$sdk" \
    -DUtilsDllTrelioFrame_DIR="$release/lib/cmake/UtilsDllTrelioFrame"
quietly cmake --build "$work/build"
mkdir "$work/host"
find "$work/build" -maxdepth 1 \( -name '*.exe' -o -name '*.dll' \) -exec cp {} "$work/host" \;
for folder in platforms styles imageformats iconengines; do
    cp -r "$work/build/$folder" "$work/host"
done
# tolvan_deploy() would take what the zip lacks from the Windows build of Qt.
while read -r library; do
    [ -f "$release/bin/$library" ] || [ -f "$release/plugins/$library" ] ||
        { echo "try_windows: $library is not in the zip" >&2; exit 1; }
done < <(cd "$work/host" && find . -name '*.dll' -printf '%P\n')
count=0
for program in "$work"/host/*.exe; do
    "$tree/tools/win64/run-test.sh" --alone --build "$work" "$program" >"$work/output" 2>&1 ||
        { cat "$work/output" >&2; echo "try_windows: $(basename "$program") failed" >&2; exit 1; }
    count=$((count + 1))
done
[ "$count" -gt 0 ] || { echo "try_windows: no program was built" >&2; exit 1; }
echo "== $count programs of the guide ran from the unpacked zip under Wine"
