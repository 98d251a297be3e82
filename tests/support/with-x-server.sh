#!/usr/bin/env bash
# with-x-server.sh [--two-screens] COMMAND [ARGUMENT...]: runs a command on an X server of its own with a window
# manager (Xvfb on a free display, openbox), with Qt's platform "xcb". Ends both servers, and no others, when the
# command ends. The exit code is the command's.
set -euo pipefail

start_limit=30 # seconds that a server may take to come up

screens=(-screen 0 1280x1024x24)
if [ "${1:-}" = --two-screens ]; then
    screens+=(-screen 1 1024x768x24) # each is a desktop of its own, with a window manager of its own
    shift
fi
if [ $# -eq 0 ]; then
    sed -n '2,4s/^# //p' "$0" >&2
    exit 2
fi
for program in Xvfb openbox; do
    if ! command -v "$program" >/dev/null; then
        echo "with-x-server: $program is missing (tools/install-deps.sh test)" >&2
        exit 1
    fi
done

work=$(mktemp -d)
servers=()
# shellcheck disable=SC2317 # called by the trap
end_servers() {
    for ((i = ${#servers[@]} - 1; i >= 0; --i)); do
        if kill "${servers[i]}" 2>/dev/null; then
            wait "${servers[i]}" 2>/dev/null || continue # ended by the signal
        fi
    done
    rm -rf "$work"
}
trap end_servers EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# Sends the server's output to the log; it also ends when this script is killed (--pdeathsig).
start_server() {
    setpriv --pdeathsig TERM "$@" >>"$work/log" 2>&1 &
    servers+=($!)
}

failed_to_start() {
    echo "with-x-server: $1 did not come up within $start_limit s" >&2
    cat "$work/log" >&2
    exit 1
}

mkfifo "$work/display" "$work/manager"
exec 8<>"$work/display" 9<>"$work/manager"

start_server Xvfb -displayfd 8 "${screens[@]}" -nolisten tcp -noreset
read -r -t "$start_limit" number <&8 || failed_to_start Xvfb
export DISPLAY=":$number"

# A plain configuration: nothing of the user's is read. The start-up command runs once windows are managed.
for ((screen = 0; screen < ${#screens[@]} / 3; ++screen)); do
    HOME=$work XDG_CONFIG_HOME=$work DISPLAY=$DISPLAY.$screen start_server openbox --sm-disable \
        --startup "sh -c 'echo ready >\"$work/manager\"'"
    read -r -t "$start_limit" <&9 || failed_to_start openbox
done
exec 8>&- 9>&-

code=0
QT_QPA_PLATFORM=xcb "$@" || code=$?
exit "$code"
