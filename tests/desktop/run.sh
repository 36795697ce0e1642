#!/usr/bin/env bash
# run.sh PROGRAM: runs a test program on a desktop with a window manager and a window of another program. Wine leaves
# the program's windows to the window manager, as it does for users.
# run.sh choose TITLE: activates the window with that title, as a task bar does.
# run.sh front: tells the title of the window in front.
# Both write their answer to the file that DESKTOP_ANSWER names.
set -u
other='Window of another program'

choose() {
    xdotool windowactivate "$(xdotool search --name "^$1\$" 2>/dev/null | tail -n 1)" && echo chosen
    sleep 0.3 # until the window manager and the program have moved their windows
}

front() {
    local stack
    stack=$(xprop -root _NET_CLIENT_LIST_STACKING)
    xdotool getwindowname "${stack##*[ ,]}"
}

case $1 in
choose | front)
    "$@" >"$DESKTOP_ANSWER.new" 2>/dev/null
    mv "$DESKTOP_ANSWER.new" "$DESKTOP_ANSWER"
    exit
    ;;
esac

program=$1
folder=$(mktemp -d)
openbox --sm-disable >/dev/null 2>&1 &
pids=($!)
trap 'kill "${pids[@]}" 2>/dev/null; rm -rf "$folder"' EXIT
timeout 30 wine reg add "HKCU\\Software\\Wine\\AppDefaults\\$(basename "$program")\\X11 Driver" \
    /v Managed /d Y /f >/dev/null 2>&1 </dev/null || { echo "Wine could not be set up"; exit 1; }
for ((waited = 0; waited < 100; ++waited)); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q '#' && break
    sleep 0.1
done
xmessage -title "$other" 'A window to turn to' >/dev/null 2>&1 &
pids+=($!)
export DESKTOP_ANSWER=$folder/answer
TELVIX_DESKTOP_SCRIPT=$(winepath -w "$(realpath "$0")") TELVIX_DESKTOP_ANSWER=$(winepath -w "$folder/answer") \
    timeout 90 wine "$program"
