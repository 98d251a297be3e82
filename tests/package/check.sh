#!/usr/bin/env bash
# check.sh BUILD_DIR [CMAKE_OPTION...]: installs the build in BUILD_DIR into a folder of its own, builds the consumer
# project against that and runs it, on a profile of its own. Builds the README's web-service client as the README has it.
set -euo pipefail
build_dir=$1
shift
source_dir=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
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
export HOME=$work/home XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config
cd "$work/build" && ctest --output-on-failure --no-tests=error
