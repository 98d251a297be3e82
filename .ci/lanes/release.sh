#!/usr/bin/env bash
# The release is the same when it is built in another folder, and programs run from it alone: from the zip in a fresh Wine
# prefix, from the packages in a bare Debian. The release is that of the last commit. With --update the description of the
# interface is written anew instead of compared.
set -euo pipefail
source tools/setup.sh
install_packages build docs release

status=0
WIN64_SDK=$(tools/win64/find-sdk.sh) || status=$?
case $status in
0) export WIN64_SDK ;; # the copies of the tree do not lie where this one looks for it
3) unset WIN64_SDK ;;
*) exit "$status" ;;
esac
if [ -n "$(git status --porcelain)" ]; then
    echo "release: the changes that are not committed are not in this release" >&2
fi

# Folders of different depth and length.
mkdir -p build
work=$(mktemp -d "$PWD/build/release-lane-XXXXXX")
trap 'rm -rf "$work"' EXIT
git clone -q -c advice.detachedHead=false . "$work/first"
git clone -q -c advice.detachedHead=false . "$work/another/folder/second"
"$work/first/tools/release.sh" --output "$work/first-files"
"$work/another/folder/second/tools/release.sh" --output "$work/second-files"
if ! diff -rq "$work/first-files" "$work/second-files"; then
    echo "release: the same commit, built in two folders, gives different files" >&2
    exit 1
fi
echo "== Two builds in different folders are the same, $(find "$work/first-files" -type f | wc -l) files"

# The interface is the stored one. The headers are those of the release, so that internal types do not count.
tar -C "$work" -xJf "$work"/first-files/*-linux-amd64.tar.xz
tests/checks/interface.py "$work/first/build/package/bin/libUtilsDllTrelioFrame.so" \
    "$(echo "$work"/*-linux-amd64/include/utilsDll)" tests/interface/linux.abi "$@"

left_out=()
# try NAME COMMAND...: runs a trial; exit code 77 means that this machine lacks what it needs.
try() {
    local name=$1 status=0
    shift
    "$@" || status=$?
    case $status in
    0) ;;
    77) left_out+=("$name") ;;
    *) exit "$status" ;;
    esac
}
if [ -n "${WIN64_SDK:-}" ]; then
    install_packages windows
    for zip in "$work"/first-files/*-win64.zip; do
        unzip -q -j "$zip" '*/bin/UtilsDllTrelioFrame.dll' -d "$work"
        tests/checks/interface.py "$work/UtilsDllTrelioFrame.dll" - tests/interface/windows.txt "$@"
        tools/release/try_windows.sh "$zip"
    done
else
    left_out+=("the Windows zip (no Windows build of Qt)")
fi
try "a bare Debian (see above)" tools/release/try_debian.sh "$work/first-files"
for part in "${left_out[@]}"; do
    echo "release: left out: $part"
    echo "release: $part" >>"${CI_PARTS_LEFT_OUT:-/dev/null}"
done
