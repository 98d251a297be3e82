#!/usr/bin/env bash
# public_headers.sh: compiles each public header alone, and the programs of the guide with all of them, with GCC and Clang as
# C++17, 20 and 23. Nothing is linked.
set -euo pipefail
cd "$(dirname "$0")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

read -ra qt < <(pkg-config --cflags Qt5Widgets Qt5Network Qt5Xml | sed 's/-I/-isystem/g')
flags=("${qt[@]}" -fPIC -Wall -Wextra -Wshadow -Wundef -Werror -IExPluginShell/modules
    -IExPluginShell/modules/utilsDll/soap "-I$work")

shopt -s nullglob
library=ExPluginShell/modules/utilsDll
number=0
for header in "$library"/*.h "$library"/controls/*.h "$library"/soap/[qQ]*; do
    [ "${header%.cpp}" = "$header" ] || continue
    number=$((number + 1))
    echo "#include <utilsDll/${header#"$library/"}>" | tee -a "$work/all.h" >"$work/header$number.cpp"
done
for example in examples/*/main.cpp; do
    name=$(basename "$(dirname "$example")")
    mkdir "$work/$name"
    /usr/lib/qt5/bin/moc --no-notes "$example" -o "$work/$name/main.moc"
done

# check COMPILER STANDARD: all headers together, precompiled, then each program with them.
check() {
    local compiler=$1 standard=$2 example precompiled=$work/$1-$2/all.h
    mkdir "${precompiled%/*}"
    cp "$work/all.h" "$precompiled"
    "$compiler" "-std=c++$standard" "${flags[@]}" -x c++-header "$precompiled" -o "$precompiled.gch"
    for example in examples/*/main.cpp; do
        "$compiler" "-std=c++$standard" "${flags[@]}" -fsyntax-only "-I$work/$(basename "$(dirname "$example")")" \
            -include "$precompiled" "$example"
    done
}

# run COMMAND...: in the background, as many at a time as there are processors.
run() {
    [ "$(jobs -pr | wc -l)" -lt "$(nproc)" ] || wait -n
    "$@" &
    all+=($!)
}

all=()
for compiler in g++ clang++; do
    for standard in 17 20 2b; do
        run check "$compiler" "$standard"
    done
done
for source in "$work"/header*.cpp; do
    run clang++ -std=c++17 "${flags[@]}" -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII -DQT_NO_KEYWORDS -fsyntax-only "$source"
done
failed=0
for job in "${all[@]}"; do
    wait "$job" || failed=1
done
[ "$failed" -eq 0 ] || exit 1
echo "$number headers, each alone; the programs of the guide with GCC and Clang as C++17, 20 and 23"
