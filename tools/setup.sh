# shellcheck shell=bash
# Functions for run.sh, test.sh and the lanes of .ci/run. Sourced from the top folder of the tree.

# install_packages GROUP...: installs the missing packages of these groups.
install_packages() {
    if ! command -v apt-get >/dev/null; then
        echo "setup: this is not a Debian system; install the packages that tools/install-deps.sh names for: $*" >&2
        return 0
    fi
    echo "== Checking the packages: $*"
    tools/install-deps.sh "$@"
}

# build PRESET [CMAKE OPTION...]: configures and builds one preset, or only the targets in TARGETS. The output of the
# compiler is printed only after a failure.
build() {
    local preset=$1 log
    local -a targets=()
    [ -z "${TARGETS:-}" ] || read -ra targets <<<"--target $TARGETS"
    shift
    if ! mkdir -p "build/$preset" || [ ! -w "build/$preset" ]; then
        echo "setup: cannot write to $PWD/build/$preset; make it writable for $(id -un)" >&2
        return 1
    fi
    # The compiler cache lies in the user's home; a user without one has it here.
    [ -n "${CCACHE_DIR:-}" ] || [ -w "${HOME:-/nonexistent}" ] || export CCACHE_DIR=$PWD/build/ccache
    log=$(mktemp)
    echo "== Configuring ($preset)"
    if ! cmake --preset "$preset" "$@" >"$log" 2>&1; then
        tail -n 40 "$log" >&2
        echo "setup: configuring '$preset' failed; the last lines are above" >&2
        rm -f "$log"
        return 1
    fi
    echo "== Building ($preset)"
    if ! cmake --build --preset "$preset" "${targets[@]}" >"$log" 2>&1; then
        grep -E 'error|FAILED|undefined|warning' "$log" | head -n 40 >&2
        tail -n 20 "$log" >&2
        echo "setup: building '$preset' failed; the last lines are above" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}

# run_tests PRESET [CTEST OPTION...]: runs the tests of a preset, as many at a time as there are processors unless an option -j
# says otherwise. The build folder gets the results as tests-PRESET.xml (JUnit).
run_tests() {
    local preset=$1
    shift
    ctest --preset "$preset" --output-junit "tests-$preset.xml" -j "$(nproc)" "$@"
}
