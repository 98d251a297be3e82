#!/usr/bin/env bash
# Prints the folder of the unpacked Windows build of Qt; unpacks the archive on first use.
set -euo pipefail

if [ "${1:-}" = --help ] || [ "${1:-}" = -h ]; then
    cat <<'TEXT'
Usage: find-sdk.sh [--check]

Prints the absolute path of the folder with the Windows build of Qt, QuaZip and zlib. It is taken from
  1. the environment variable WIN64_SDK: the folder, or the archive win64-sdk.tar.xz,
  2. ../shared/win64-sdk.tar.xz beside the source tree,
  3. ~/.cache/utilsdll-win64/win64-sdk.tar.xz, where tools/win64/build-sdk.sh leaves it.
An archive is unpacked into the cache once; it is unpacked again only when the archive changes.
With --check nothing is unpacked or printed; the exit code is the answer.
Exit codes: 0 found, 1 the archive or folder is no good, 3 nowhere to be found.
TEXT
    exit 0
fi

die() {
    echo "find-sdk: $*" >&2
    exit 1
}

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
cache="${XDG_CACHE_HOME:-$HOME/.cache}/utilsdll-win64"

find_source() {
    local candidate
    if [ -n "${WIN64_SDK:-}" ]; then
        [ -e "$WIN64_SDK" ] || die "WIN64_SDK names '$WIN64_SDK', which does not exist"
        echo "$WIN64_SDK"
        return
    fi
    for candidate in "$root/../shared/win64-sdk.tar.xz" "$cache/win64-sdk.tar.xz"; do
        if [ -r "$candidate" ]; then
            echo "$candidate"
            return
        fi
    done
    echo "find-sdk: no Windows build of Qt: set WIN64_SDK to its folder or archive, or make one with tools/win64/build-sdk.sh" >&2
    exit 3
}

check_folder() {
    local file
    for file in bin/Qt5Core.dll bin/moc lib/cmake/Qt5Core/Qt5CoreConfig.cmake; do
        [ -e "$1/$file" ] || die "'$1' is no Windows build of Qt: $file is missing"
    done
}

# Size and time of change stand for the contents: a checksum of the archive would cost a second in every configure run.
unpacked_folder() {
    local archive="$1" key target part
    key="$(stat -L -c '%s-%Y' "$archive")"
    target="$cache/unpacked/$key"
    if [ ! -d "$target" ]; then
        mkdir -p "$cache/unpacked"
        part="$(mktemp -d "$cache/unpacked/part-XXXXXX")"
        # shellcheck disable=SC2064  # the path of now is meant
        trap "rm -rf '$part'" EXIT
        echo "find-sdk: unpacking $archive" >&2
        tar -xJf "$archive" -C "$part" || die "'$archive' cannot be unpacked"
        check_folder "$part/win64-sdk"
        chmod 755 "$part"
        # Another run may have been faster; its folder is as good.
        mv -T "$part" "$target" 2>/dev/null || [ -d "$target" ] || die "'$target' cannot be written"
    fi
    echo "$target/win64-sdk"
}

source="$(find_source)"
if [ "${1:-}" = --check ]; then
    exit 0
fi
if [ -d "$source" ]; then
    folder="$(cd "$source" && pwd)"
else
    folder="$(unpacked_folder "$(realpath "$source")")"
fi
check_folder "$folder"
echo "$folder"
