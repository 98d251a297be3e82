#!/usr/bin/env bash
# Installs the Debian packages that a group of work needs. Silent and fast when nothing is missing.
set -euo pipefail

usage() {
    cat <<'TEXT'
Usage: tools/install-deps.sh GROUP...
  build    compile the library and the showcase, and run it
  test     run the tests
  qt6      the same with Qt 6
  windows  cross-build for 64-bit Windows and run the result under Wine
  sdk      make the Windows build of Qt (tools/win64/build-sdk.sh)
  bench    build and run the benchmark programs with their peers
  lint     check the format and the code, build with Clang
  fuzz     build and run the fuzz targets
  coverage measure what the tests reach
  docs     make the API reference
  release  make the packages and archives (tools/release.sh) and try them
TEXT
}

packages_of() {
    case $1 in
    build)
        echo g++ cmake ninja-build ccache python3
        echo qtbase5-dev qtbase5-private-dev libqt5svg5-dev libspdlog-dev
        echo libquazip1-qt5-dev libdeflate-dev libbz2-dev
        # the resource bundles: catalogues, fonts, rendered icons; a font with Chinese and Japanese characters to show them
        echo qttools5-dev-tools qttranslations5-l10n librsvg2-bin
        echo fonts-roboto-unhinted fonts-open-sans fonts-quicksand fonts-cantarell fonts-noto-cjk
        ;;
    test)
        echo libqt5svg5 libxml2-utils xvfb openbox libxtst-dev
        # another make of SOAP
        echo php-cli php-soap
        # what reads and writes archives and the trash beside us
        echo zip unzip p7zip-full libarchive-tools libglib2.0-bin gvfs gvfs-daemons trash-cli dbus
        ;;
    qt6)
        echo qt6-base-dev qt6-base-private-dev qt6-svg-dev libqt6svg6 libquazip1-qt6-dev qt6-5compat-dev
        echo qt6-l10n-tools qt6-translations-l10n
        ;;
    windows)
        echo g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine64 xvfb openbox xz-utils
        ;;
    sdk)
        echo g++ make cmake perl dpkg-dev xz-utils
        echo g++-mingw-w64-x86-64-posix libz-mingw-w64-dev libwine-dev
        ;;
    bench)
        echo libbenchmark-dev libkdsoap-dev
        ;;
    lint | fuzz)
        echo clang clang-format clang-tidy libclang-rt-14-dev shellcheck pkg-config
        ;;
    coverage)
        echo gcovr
        ;;
    release)
        echo git dpkg-dev binutils file zip unzip xz-utils
        echo abigail-tools mmdebstrap # what tries a release
        ;;
    docs)
        echo doxygen qtbase5-doc-dev
        ;;
    *)
        usage >&2
        echo "install-deps: there is no group '$1'" >&2
        exit 2
        ;;
    esac
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

case ${1:-} in
-h | --help | '')
    usage
    exit 0
    ;;
esac

missing=()
for group in "$@"; do
    for package in $(packages_of "$group"); do
        is_installed "$package" || missing+=("$package")
    done
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "install-deps: these Debian packages are missing, and neither root nor sudo is here: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
log=$(mktemp)
trap 'rm -f "$log"' EXIT
apt_get() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600 -q "$@" >>"$log" 2>&1
}
if ! apt_get update || ! apt_get install -y --no-install-recommends "${missing[@]}"; then
    tail -n 15 "$log" >&2
    echo "install-deps: could not install these Debian packages (no network, or no rights?): ${missing[*]}" >&2
    exit 1
fi
