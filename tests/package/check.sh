#!/usr/bin/env bash
# check.sh BUILD_DIR [CMAKE_OPTION...]: installs the build in BUILD_DIR into a folder of its own, builds programs against
# that and runs them, on a profile of its own: the consumer project beside this script, the programs of the guide, and the
# web-service client as README has it.
set -euo pipefail
build_dir=$1
shift
source_dir=$(cd "$(dirname "$0")" && pwd)
work=$build_dir/package-check # the same each time, so that the compiler cache knows what is in it
rm -rf "$work"
mkdir "$work"
trap 'rm -rf "$work"' EXIT
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$work CCACHE_NOHASHDIR=1
fi
export CMAKE_BUILD_PARALLEL_LEVEL=1 # other tests run at the same time
quietly() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
}

quietly cmake --install "$build_dir" --prefix "$work/install"
package=$(dirname "$(find "$work/install" -name UtilsDllTrelioFrameConfig.cmake)")
quietly cmake -S "$source_dir" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DUtilsDllTrelioFrame_DIR="$package" "$@"
quietly cmake --build "$work/build"

readme=$source_dir/../../README.md
mkdir "$work/client"
section() { # LANGUAGE: the first block of code in that language in the README's section on the client
    sed -n '/^### A web-service client/,$p' "$readme" | sed -n "/^\`\`\`$1$/,/^\`\`\`$/p" | sed '1d;/^```$/,$d'
}
section cmake >"$work/client/CMakeLists.txt"
section cpp >"$work/client/main.cpp"
quietly cmake -S "$work/client" -B "$work/client/build" -G Ninja -DUtilsDllTrelioFrame_DIR="$package" "$@"
quietly cmake --build "$work/client/build"
quietly cmake -S "$source_dir/../../examples" -B "$work/examples" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DUtilsDllTrelioFrame_DIR="$package" "$@"
quietly cmake --build "$work/examples"
export HOME=$work/home XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config
export TOLVAN_TEST_PLATFORM=windows # under Wine: only the plug-ins of a host are deployed
for folder in build examples; do
    (cd "$work/$folder" && ctest --output-on-failure --no-tests=error)
done
