#!/usr/bin/env bash
# run.sh SCRIPT: runs a VBScript client of the registered component, and closes the dialogs that SynLoad shows.
set -u
output=$(mktemp)
trap 'rm -f "$output"' EXIT
timeout 90 wine cscript //nologo "$(winepath -w "$1")" >"$output" 2>&1 </dev/null &
client=$!
closed=0
deadline=$((SECONDS + 90))
while kill -0 "$client" 2>/dev/null && [ $SECONDS -lt $deadline ]; do
    window=$(xdotool search --onlyvisible --name '^(Synchronization|同步)$' 2>/dev/null | head -n 1)
    if [ -n "$window" ] && [ "$window" != "${last:-}" ]; then
        xdotool windowfocus "$window" key --window "$window" Escape 2>/dev/null && last=$window && closed=$((closed + 1))
    fi
    sleep 0.2
done
wait "$client"
status=$?
tr -d '\r' <"$output"
[ $status -eq 0 ] && [ "$(tr -d '\r' <"$output" | tail -n 1)" = ok ] && [ $closed -ge 2 ] ||
    { echo "the client ended with $status, $closed dialogs were closed"; exit 1; }
