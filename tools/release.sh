#!/usr/bin/env bash
# Builds everything that is handed out, from a clean tree.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<'TEXT'
Usage: tools/release.sh [--output FOLDER]

Builds the release of the commit that is checked out and writes it to FOLDER (default: build/release-files):
  utilsdlltrelioframe-VERSION-win64.zip           DLLs with all they need at run time, import libraries, headers
  utilsdlltrelioframe-VERSION-win64-symbols.zip   their debug symbols
  utilsdlltrelioframe-VERSION-linux-amd64.tar.xz  the same for Linux, without Qt
  utilsdlltrelioframe-VERSION-linux-amd64-symbols.tar.xz
  libutilsdlltrelioframe*.deb                     Debian packages: run time, development, debug symbols
  utilsdlltrelioframe-VERSION-reference.tar.xz    the API reference
  utilsdlltrelioframe-VERSION.spdx                what is inside, with checksums and licences
  SHA256SUMS
Built twice from one commit, in any two folders, the files are the same. Without the Windows build of Qt (see
tools/win64/find-sdk.sh) the zip files are left out, and the script says so.
TEXT
}

die() {
    echo "release: $*" >&2
    exit 1
}

output=build/release-files
while [ $# -gt 0 ]; do
    case $1 in
    --output)
        [ $# -ge 2 ] || die "--output needs a value"
        output=$2
        shift 2
        ;;
    -h | --help)
        usage
        exit 0
        ;;
    *) die "unknown argument '$1' (see --help)" ;;
    esac
done

[ -z "$(git status --porcelain)" ] || die "the tree has changes that are not committed"
source tools/setup.sh
install_packages build docs release
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C.UTF-8
export CCACHE_DISABLE=1 # it changes options and paths of the compiler, which debug symbols record
umask 022
rm -rf "$output"
mkdir -p "$output"
output=$(cd "$output" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
version=$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt)
[ -n "$version" ] || die "CMakeLists.txt names no version"
name=utilsdlltrelioframe-$version

# stage PRESET FOLDER: installs a preset into FOLDER and moves the debug symbols of its libraries to FOLDER-symbols.
stage() {
    local preset=$1 folder=$2 prefix=$3 library symbols
    DESTDIR="$work/$preset" cmake --install "build/$preset" >/dev/null
    mv "$work/$preset/usr" "$folder"
    find "$folder" -type f \( -name '*.dll' -o -name '*.so.*' \) | while read -r library; do
        symbols="$folder-symbols/${library#"$folder"/}.debug"
        mkdir -p "$(dirname "$symbols")"
        "${prefix}objcopy" --only-keep-debug "$library" "$symbols"
        "${prefix}strip" --strip-unneeded "$library"
        (cd "$(dirname "$symbols")" && "${prefix}objcopy" --add-gnu-debuglink="$(basename "$symbols")" "$library")
    done
}

# All files get the time of the commit, so that the archives do not depend on when they are made.
settle() {
    find "$1" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
}

pack_tar() {
    settle "$work/$1"
    tar -C "$work" --sort=name --owner=0 --group=0 --numeric-owner --format=gnu -c "$1" |
        xz -3 -T2 >"$output/$1.tar.xz" # a third of the time for 9 percent more; one thread alone gives another file
}

pack_zip() {
    settle "$work/$1"
    (cd "$work" && find "$1" | sort | zip -q -X -@ "$output/$1.zip")
}

release_linux() {
    local symbols
    build package
    stage package "$work/$name-linux-amd64" ""
    pack_tar "$name-linux-amd64"
    pack_tar "$name-linux-amd64-symbols"
    echo "== Packing for Debian"
    rm -f build/package/*.deb build/package/*.ddeb
    (cd build/package && cpack -G DEB) >"$work/cpack.log" 2>&1 || { cat "$work/cpack.log" >&2; die "cpack failed"; }
    mv build/package/*.deb "$output/"
    for symbols in build/package/*.ddeb; do
        add_debian_symbols "$symbols"
    done
}

# CPack has an ending of its own for packages with debug symbols, and lists their files with the folder of the build.
add_debian_symbols() {
    dpkg-deb --raw-extract "$1" "$work/symbols"
    sed -i 's|  .*-dbgsym/|  |' "$work/symbols/DEBIAN/md5sums"
    settle "$work/symbols"
    dpkg-deb --root-owner-group -Zgzip --build "$work/symbols" "$output/$(basename "$1" .ddeb).deb" >/dev/null
    rm -r "$work/symbols"
}

# What a host needs at run time is found by following the import tables, from the libraries and the plug-ins on.
add_run_time() {
    local folder=$1 sdk=$2 plugins plugin library
    plugins=$(sed -n 's/^ *foreach(plugin \(.*\))$/\1/p' cmake/TolvanDeploy.cmake) # what tolvan_deploy() copies
    [ -n "$plugins" ] || die "cmake/TolvanDeploy.cmake names no plug-in"
    for plugin in $plugins; do
        install -D -m 644 "$sdk/plugins/$plugin.dll" "$folder/plugins/$plugin.dll"
    done
    local changed=yes
    while [ -n "$changed" ]; do
        changed=
        while read -r library; do
            if [ -f "$sdk/bin/$library" ] && [ ! -f "$folder/bin/$library" ]; then
                install -m 644 "$sdk/bin/$library" "$folder/bin/"
                changed=yes
            fi
        done < <(find "$folder" -name '*.dll' -exec x86_64-w64-mingw32-objdump -p {} + | sed -n 's/^.*DLL Name: //p' | sort -u)
    done
    printf '[Paths]\nPrefix=..\nPlugins=plugins\n' >"$folder/bin/qt.conf"
}

release_windows() {
    local sdk
    sdk=$(tools/win64/find-sdk.sh)
    install_packages windows
    build package-win64
    stage package-win64 "$work/$name-win64" x86_64-w64-mingw32-
    add_run_time "$work/$name-win64" "$sdk"
    pack_zip "$name-win64"
    pack_zip "$name-win64-symbols"
}

release_linux
status=0
tools/win64/find-sdk.sh --check || status=$?
case $status in
0) release_windows ;;
3) echo "release: without the Windows build of Qt there are no zip files" >&2 ;;
*) exit "$status" ;;
esac

echo "== Making the reference"
rm -rf build/reference
tools/reference.sh >/dev/null
cp -r build/reference/html "$work/$name-reference"
pack_tar "$name-reference"

tools/release/make_spdx.py "$name" "$version" "$output" "$work" THIRD-PARTY.md >"$work/$name.spdx"
mv "$work/$name.spdx" "$output/"
tools/release/check_spdx.py "$output/$name.spdx" "$output"
(cd "$output" && find . -type f -printf '%P\n' | LC_ALL=C sort | xargs sha256sum >"$work/SHA256SUMS")
mv "$work/SHA256SUMS" "$output/"
echo "== Release $version of $(git rev-parse --short HEAD) in $output"
