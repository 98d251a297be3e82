#!/usr/bin/env bash
# Runs one Windows test program under Wine, in a Wine prefix of its own and for a limited time.
set -euo pipefail

tree="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"

usage() {
    cat <<'TEXT'
Usage: run-test.sh --sdk FOLDER --build FOLDER [--dlls FOLDER]... [--timeout SECONDS] PROGRAM [ARGUMENT]...
       run-test.sh --alone --build FOLDER [--timeout SECONDS] PROGRAM [ARGUMENT]...

Runs PROGRAM as CTest does in the win64 build, prints what it wrote and ends with its exit code.
  --sdk FOLDER       the unpacked Windows build of Qt (see find-sdk.sh)
  --build FOLDER     the build folder; the Wine prefixes are kept in its folder "wine"
  --dlls FOLDER      one more folder in which the program finds libraries (its own folder always counts)
  --alone            the program has only what lies in its own folder, which is copied to drive C; there is no other drive
  --timeout SECONDS  time limit (default TOLVAN_TEST_TIMEOUT, else 120); exit code 124 when it is reached

Every run starts with a fresh registry and fresh user folders; the system part of the prefix is shared.
Qt Test programs write their results through a file, because the console may not reach a pipe. Programs with a
QApplication get "-platform offscreen"; TOLVAN_TEST_PLATFORM=windows gives them real windows on a virtual screen with a
window manager.
Exit code 125: the run could not be prepared. KEEP_WINE_PREFIX=1 leaves the prefix of the run for inspection.
TEXT
}

die() {
    echo "run-test: $*" >&2
    exit 125
}

sdk=
build=
limit="${TOLVAN_TEST_TIMEOUT:-120}"
dlls=()
alone=
while [ $# -gt 0 ]; do
    case "$1" in
    --sdk | --build | --dlls | --timeout)
        [ $# -ge 2 ] || die "$1 needs a value"
        case "$1" in
        --sdk) sdk="$2" ;;
        --build) build="$2" ;;
        --dlls) dlls+=("$2") ;;
        --timeout) limit="$2" ;;
        esac
        shift 2
        ;;
    --alone)
        alone=yes
        shift
        ;;
    --help | -h)
        usage
        exit 0
        ;;
    -*) die "unknown option '$1' (see --help)" ;;
    *) break ;;
    esac
done
if [ -z "$sdk$alone" ] || [ -z "$build" ]; then
    die "--build and either --sdk or --alone are needed (see --help)"
fi
[ $# -ge 1 ] || die "no program given"
program="$(realpath "$1")" || die "'$1' does not exist"
shift

find_program() {
    local candidate
    for candidate in "$@"; do
        if command -v "$candidate" >/dev/null; then
            command -v "$candidate"
            return
        fi
    done
    die "Wine is missing ($1); run tools/install-deps.sh windows"
}

wine="$(find_program wine64 /usr/lib/wine/wine64)"
wineserver="$(find_program wineserver /usr/lib/wine/wineserver64)"
mkdir -p "$build/wine"
prefixes="$(cd "$build/wine" && pwd)"
template="$prefixes/template"

# No menus, no Mono and no Gecko; nothing of the user's home is linked into the prefix.
export WINEDEBUG=-all WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml=d"
unset DISPLAY WAYLAND_DISPLAY XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME

# Ends everything that runs in a prefix. The server is asked first; Wine's own services outlive a server that is killed:
# without the second step each run would leave one set of them in memory.
stop_wine() {
    local process
    WINEPREFIX="$1" timeout 10 "$wineserver" -k9 >/dev/null 2>&1 || [ $? -le 2 ]
    for process in /proc/[0-9]*; do
        if grep -qzxF "WINEPREFIX=$1" "$process/environ" 2>/dev/null; then
            kill -9 "${process#/proc/}" 2>/dev/null || continue
        fi
    done
}

# The prefix that all runs are copied from. It is renamed into place, so one that exists is complete.
make_template() {
    local part="$prefixes/template.part"
    [ ! -d "$template" ] || return 0
    rm -rf "$part"
    mkdir -p "$part/home"
    HOME="$part/home" WINEPREFIX="$part" timeout --kill-after=5 120 "$wine" wineboot -i >"$prefixes/wineboot.log" 2>&1 ||
        { stop_wine "$part"; die "no Wine prefix could be made (log: $prefixes/wineboot.log)"; }
    WINEPREFIX="$part" timeout 60 "$wineserver" -w || die "Wine did not finish its new prefix in time"
    [ -f "$part/user.reg" ] || die "Wine left no registry in its new prefix"
    unlink_home "$part/drive_c/users"
    mv "$part" "$template"
}

# Wine links the user's folders into the current home; the runs get real folders instead.
unlink_home() {
    local link
    while IFS= read -r -d '' link; do
        rm "$link"
        mkdir "$link"
    done < <(find "$1" -type l -print0)
}

make_run_prefix() {
    local entry
    run="$(mktemp -d "$prefixes/run-XXXXXX")"
    # Without the data folder Wine has no recycle bin and deletes permanently.
    mkdir -p "$run/home/.local/share" "$run/drive_c"
    cp -a "$template"/*.reg "$template/.update-timestamp" "$template/dosdevices" "$run/"
    for entry in "$template/drive_c"/*; do
        case "$(basename "$entry")" in
        users | ProgramData) cp -a "$entry" "$run/drive_c/" ;;
        *) ln -s "$entry" "$run/drive_c/" ;;
        esac
    done
}

# shellcheck disable=SC2317  # called by the trap
clean_up() {
    stop_wine "$run"
    if [ -n "${KEEP_WINE_PREFIX:-}" ]; then
        echo "run-test: the prefix is kept in $run" >&2
    else
        rm -rf "$run"
    fi
}

windows_path() {
    local path
    path="$(realpath -m "$1")"
    echo "Z:${path//\//\\}"
}

library_path() {
    local folder path=
    for folder in "${dlls[@]}" "$sdk/bin"; do
        path+="${path:+;}$(windows_path "$folder")"
    done
    echo "$path"
}

exec 9>"$prefixes/lock"
flock -w 300 9 || die "another run has been making the Wine prefix for five minutes"
(exec 9>&-; make_template)
flock -u 9
exec 9>&-

make_run_prefix
trap clean_up EXIT

# The import table of the program decides which arguments it gets.
imports="$(x86_64-w64-mingw32-objdump -p "$program")" || die "'$program' is no Windows program"
given=("$@")
target=$program
screen=()
results=
prepare_arguments() {
    arguments=("${given[@]}")
    if [[ "$imports" =~ _ZN(12QApplication|15QGuiApplication)C1 ]]; then
        local platform="${TOLVAN_TEST_PLATFORM:-offscreen}"
        [ -z "$alone" ] || platform=windows # a host has no other plug-in
        arguments+=(-platform "$platform")
        [ "$platform" != windows ] || screen=("$tree/tests/support/with-x-server.sh")
    fi
    if [[ "$imports" == *"DLL Name: Qt5Test.dll"* ]]; then
        results="$run/results.txt"
        arguments+=(-o "$(windows_path "$results"),txt")
    fi
}
prepare_arguments

# Wine has no fonts for the offscreen platform; the fonts of the library's bundle are installed on this system.
fonts=/usr/share/fonts/truetype/roboto/unhinted/RobotoTTF
[ ! -d "$fonts" ] || export TOLVAN_TEST_FONTS="Z:${fonts}"
[ -n "$alone" ] || WINEPATH="$(library_path)"
export WINEPATH

copy_to_drive_c() {
    cp -r "$(dirname "$program")" "$run/drive_c/host"
    find "$run/dosdevices" -mindepth 1 ! -name c: -delete
    target="C:\\host\\$(basename "$program")"
    unset TOLVAN_TEST_FONTS WINEPATH
}

run_program() {
    export HOME="$run/home" WINEPREFIX="$run"
    [ -z "$alone" ] || copy_to_drive_c
    code=0
    timeout --kill-after=5 "$limit" "${screen[@]}" "$wine" "$target" "${arguments[@]}" \
        >"$run/stdout.txt" 2>"$run/stderr.txt" </dev/null || code=$?
    stop_wine "$run"
}

run_program
# A Qt Test program makes its results file before anything else: without one, Wine has not started the program.
if [ "$code" -eq 1 ] && [ -n "$results" ] && [ ! -e "$results" ]; then
    echo "run-test: the program ended with exit code 1 before it made its results file; it is run once more" >&2
    cat "$run/stderr.txt" >&2
    clean_up
    make_run_prefix
    prepare_arguments
    run_program
fi

cat "$run/stdout.txt"
[ -z "$results" ] || [ ! -f "$results" ] || cat "$results"
cat "$run/stderr.txt" >&2
if [ "$code" -eq 124 ] || [ "$code" -eq 137 ]; then
    echo "run-test: stopped after $limit seconds" >&2
    code=124
elif [ -n "$results" ] && ! grep -q '^Totals: ' "$results"; then
    echo "run-test: the test ended before it had its results (exit code $code)" >&2
    [ "$code" -ne 0 ] || code=1
fi
exit "$code"
