#!/usr/bin/env bash
# Builds Qt, QtSvg, QuaZip and libdeflate for 64-bit Windows from Debian's source packages and packs them as one archive.
set -euo pipefail

usage() {
    cat <<'TEXT'
Usage: build-sdk.sh [--work FOLDER] [--output ARCHIVE] [--jobs N] [--until STEP]

Cross-compiles Qt 5 (base and SVG), QuaZip and libdeflate for 64-bit Windows and packs them as win64-sdk.tar.xz.
Takes about 40 minutes and 6 GB of disk on two cores. A stopped build goes on where it stopped.

  --work FOLDER     sources and build files (default: ~/.cache/utilsdll-win64/build)
  --output ARCHIVE  the archive to write (default: ~/.cache/utilsdll-win64/win64-sdk.tar.xz)
  --jobs N          parallel compilations (default: number of processors)
  --until STEP      stop after one of: sources, configure, qtbase, qtsvg, quazip, libdeflate, pack

The source packages come from the mirrors and suites of the machine's own package configuration.
Packages needed: see the group "sdk" of tools/install-deps.sh.
TEXT
}

die() {
    echo "build-sdk: $*" >&2
    exit 1
}

say() {
    echo "build-sdk: $*"
}

cache="${XDG_CACHE_HOME:-$HOME/.cache}/utilsdll-win64"
work="$cache/build"
output="$cache/win64-sdk.tar.xz"
jobs="$(nproc)"
last_step=pack
while [ $# -gt 0 ]; do
    case "$1" in
    --work | --output | --jobs | --until)
        [ $# -ge 2 ] || die "$1 needs a value"
        case "$1" in
        --work) work="$2" ;;
        --output) output="$2" ;;
        --jobs) jobs="$2" ;;
        --until) last_step="$2" ;;
        esac
        shift 2
        ;;
    --help | -h)
        usage
        exit 0
        ;;
    *) die "unknown argument '$1' (see --help)" ;;
    esac
done

host=x86_64-w64-mingw32
mkdir -p "$work" "$(dirname "$output")"
work="$(cd "$work" && pwd)"
output="$(cd "$(dirname "$output")" && pwd)/$(basename "$output")"
sdk="$work/win64-sdk"

check_tools() {
    local tool
    for tool in apt-get dpkg-source make cmake perl tar xz g++ "$host-g++" "$host-strip"; do
        command -v "$tool" >/dev/null || die "'$tool' is missing; run tools/install-deps.sh sdk"
    done
    [[ "$("$host-g++" -v 2>&1)" == *"Thread model: posix"* ]] ||
        die "$host-g++ is not the posix variant; install g++-mingw-w64-x86-64-posix"
    [ -r "$(wine_headers)/wintab.h" ] || die "wintab.h is missing; install libwine-dev"
    [ -r "/usr/$host/include/zlib.h" ] || die "zlib for Windows is missing; install libz-mingw-w64-dev"
}

wine_headers() {
    echo /usr/include/wine/wine/windows
}

# The source entries that belong to the machine's binary entries: few machines are configured for source packages.
list_sources() {
    # shellcheck disable=SC2016 # apt-get replaces the names
    apt-get indextargets --format \
        'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' | sort -u
}

# Has a package list of its own: the system's list stays untouched, and no rights are needed.
private_apt() {
    local state="$work/apt"
    mkdir -p "$state/lists/partial" "$state/cache/archives/partial"
    list_sources >"$state/sources.list"
    [ -s "$state/sources.list" ] || die "the package configuration names no source; run apt-get update first"
    apt-get -qq -o "Dir::Etc::SourceList=$state/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o "Dir::State::Lists=$state/lists" -o "Dir::Cache=$state/cache" \
        -o APT::Sandbox::User=root -o Acquire::Retries=3 "$@"
}

fetch_sources() {
    local package
    mkdir -p "$work/sources"
    cd "$work/sources"
    private_apt update || die "the lists of source packages cannot be read"
    for package in qtbase-opensource-src qtsvg-opensource-src libquazip1-qt5 libdeflate; do
        private_apt --download-only source "$package" || die "the source package $package cannot be fetched"
    done
    unpack qtbase-opensource-src qtbase
    unpack qtsvg-opensource-src qtsvg
    unpack libquazip1-qt5 quazip
    unpack libdeflate libdeflate
    use_lower_case_import_libraries
    name_quazip_for_the_product
}

unpack() {
    local -a description=("$work/sources/$1"_*.dsc)
    [ -r "${description[0]}" ] || die "no source package description of $1 in $work/sources"
    rm -rf "${work:?}/$2"
    dpkg-source --no-check --no-copy -x "${description[0]}" "$work/$2" >/dev/null
}

# The cross compiler's import libraries are named in lower case and Linux distinguishes upper from lower case.
use_lower_case_import_libraries() {
    local project="$work/qtbase/src/network/ssl/ssl.pri"
    sed -i -e 's/-lSecur32/-lsecur32/g' -e 's/-lCrypt32/-lcrypt32/g' "$project"
    ! grep -qE -- '-l(Secur32|Crypt32)' "$project" || die "$project still names libraries in mixed case"
}

# Another QuaZip in the same host process must not be taken for this one.
name_quazip_for_the_product() {
    local project="$work/quazip/CMakeLists.txt" target="$work/quazip/quazip/CMakeLists.txt"
    sed -i 's/^set(QUAZIP_LIB_FILE_NAME .*/set(QUAZIP_LIB_FILE_NAME quazipTrelioFrame)/' "$project"
    sed -i "s/OUTPUT_NAME .{QUAZIP_LIB_FILE_NAME}/& PREFIX \"\"/" "$target"
    grep -q 'quazipTrelioFrame' "$project" || die "$project does not set QUAZIP_LIB_FILE_NAME any more"
    grep -q 'PREFIX ""' "$target" || die "$target does not set OUTPUT_NAME any more"
}

# The tablet headers of the windows platform plug-in come from Wine, whose macros a Windows compiler does not know.
write_tablet_headers() {
    local header
    mkdir -p "$work/include"
    for header in wintab.h pktdef.h; do
        {
            echo '#define API WINAPI'
            echo '#define DECL_WINELIB_TYPE_AW(type) typedef type##W type;'
            echo '#define WINELIB_NAME_AW(func) func##W'
            cat "$(wine_headers)/$header"
        } >"$work/include/$header"
    done
}

configure_qtbase() {
    write_tablet_headers
    rm -rf "$work/build-qtbase"
    mkdir -p "$work/build-qtbase"
    cd "$work/build-qtbase"
    "$work/qtbase/configure" -opensource -confirm-license -release -shared \
        -xplatform win32-g++ -device-option "CROSS_COMPILE=$host-" -prefix "$sdk" -I "$work/include" \
        -nomake examples -nomake tests -no-pch -no-opengl -no-feature-vulkan -no-dbus \
        -no-openssl -schannel -no-feature-sql -no-sql-odbc -no-sql-sqlite -no-feature-concurrent \
        -qt-zlib -qt-libpng -qt-libjpeg -qt-freetype -qt-pcre -qt-harfbuzz -no-icu -no-iconv >configure.log 2>&1 ||
        { tail -n 20 configure.log >&2; die "qtbase cannot be configured (log: $PWD/configure.log)"; }
}

logged() {
    local log="$1"
    shift
    "$@" >>"$log" 2>&1 || { tail -n 30 "$log" >&2; die "'$*' failed (log: $log)"; }
}

build_qtbase() {
    cd "$work/build-qtbase"
    logged "$work/qtbase.log" make -j "$jobs"
    rm -rf "$sdk"
    logged "$work/qtbase.log" make install
}

build_qtsvg() {
    rm -rf "$work/build-qtsvg"
    mkdir -p "$work/build-qtsvg"
    cd "$work/build-qtsvg"
    logged "$work/qtsvg.log" "$sdk/bin/qmake" "$work/qtsvg"
    logged "$work/qtsvg.log" make -j "$jobs"
    logged "$work/qtsvg.log" make install
}

build_quazip() {
    cat >"$work/toolchain.cmake" <<CMAKE
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER $host-gcc)
set(CMAKE_CXX_COMPILER $host-g++)
set(CMAKE_RC_COMPILER $host-windres)
set(CMAKE_FIND_ROOT_PATH /usr/$host $sdk)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
CMAKE
    rm -rf "$work/build-quazip"
    logged "$work/quazip.log" cmake -S "$work/quazip" -B "$work/build-quazip" \
        -DCMAKE_TOOLCHAIN_FILE="$work/toolchain.cmake" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_PREFIX_PATH="$sdk" -DCMAKE_INSTALL_PREFIX="$sdk" \
        -DQUAZIP_QT_MAJOR_VERSION=5 -DQUAZIP_BZIP2=OFF
    logged "$work/quazip.log" cmake --build "$work/build-quazip" --parallel "$jobs"
    logged "$work/quazip.log" cmake --install "$work/build-quazip"
}

build_libdeflate() {
    cd "$work/libdeflate"
    logged "$work/libdeflate.log" make -j "$jobs" CC="$host-gcc" AR="$host-ar" libdeflatestatic.lib
    cp libdeflatestatic.lib "$sdk/lib/libdeflate.a"
    cp libdeflate.h "$sdk/include/"
}

# What another machine needs beside the libraries: compiler run time, zlib, licences; nothing that knows this machine.
complete() {
    local library
    for library in libgcc_s_seh-1.dll libstdc++-6.dll; do
        cp "$("$host-g++" -print-file-name="$library")" "$sdk/bin/"
    done
    cp "/usr/$host/lib/libwinpthread-1.dll" "/usr/$host/lib/zlib1.dll" "$sdk/bin/"
    mkdir -p "$sdk/LICENSES"
    cp "$work/qtbase/LICENSE.LGPL3" "$sdk/LICENSES/Qt-LGPL3.txt"
    cp "$work/quazip/COPYING" "$sdk/LICENSES/QuaZip-COPYING.txt"
    cp "$work/libdeflate/COPYING" "$sdk/LICENSES/libdeflate-COPYING.txt"
    find "$sdk/bin" "$sdk/plugins" -name '*.dll' -exec "$host-strip" --strip-unneeded {} +
    find "$sdk/bin" -type f ! -name '*.dll' ! -name moc ! -name rcc ! -name uic ! -name qmake -delete
    strip "$sdk/bin/moc" "$sdk/bin/rcc" "$sdk/bin/uic" "$sdk/bin/qmake"
    find "$sdk/lib" "$sdk/plugins" -name '*.prl' -delete
    find "$sdk/lib" -name 'libQt5*Support.a' ! -name libQt5PrintSupport.a -delete
    find "$sdk/mkspecs" -mindepth 1 -maxdepth 1 ! -name common ! -name features ! -name modules \
        ! -name 'q*.pri' ! -name win32-g++ -exec rm -rf {} +
    rm -rf "$sdk/doc" "$sdk/lib/pkgconfig" "$sdk"/lib/libQt5Bootstrap.*
}

pack() {
    local file
    complete
    for file in bin/Qt5Core.dll bin/Qt5Widgets.dll bin/Qt5Network.dll bin/Qt5Xml.dll bin/Qt5Test.dll bin/Qt5Svg.dll \
        bin/Qt5PrintSupport.dll bin/quazipTrelioFrame.dll bin/zlib1.dll bin/moc bin/rcc bin/uic bin/qmake \
        plugins/platforms/qwindows.dll plugins/platforms/qoffscreen.dll plugins/platforms/qminimal.dll \
        plugins/imageformats/qsvg.dll plugins/iconengines/qsvgicon.dll plugins/styles/qwindowsvistastyle.dll \
        lib/cmake/Qt5Core/Qt5CoreConfig.cmake lib/libquazipTrelioFrame.dll.a \
        lib/libdeflate.a include/libdeflate.h; do
        [ -f "$sdk/$file" ] || die "the build left no $file"
    done
    tar -C "$work" --sort=name --owner=0 --group=0 --numeric-owner -cJf "$output.part" win64-sdk
    mv "$output.part" "$output"
    say "packed $output ($(du -h "$output" | cut -f1))"
}

# Runs a step unless an earlier run finished it; a finished step leaves a mark in the work folder.
step() {
    local name="$1" text="$2" command="$3"
    if [ -e "$work/done-$name" ] && [ "$name" != pack ]; then
        say "$text: done before"
    else
        say "$text ..."
        ("$command")
        touch "$work/done-$name"
    fi
    if [ "$name" = "$last_step" ]; then
        [ "$name" = pack ] || say "stopped after '$name' as asked; run again to go on"
        exit 0
    fi
}

case "$last_step" in
sources | configure | qtbase | qtsvg | quazip | libdeflate | pack) ;;
*) die "unknown step '$last_step' (see --help)" ;;
esac
check_tools
step sources "fetching and unpacking Debian's source packages" fetch_sources
step configure "configuring Qt" configure_qtbase
step qtbase "building Qt (the long part)" build_qtbase
step qtsvg "building QtSvg" build_qtsvg
step quazip "building QuaZip" build_quazip
step libdeflate "building libdeflate" build_libdeflate
step pack "packing" pack
