#!/usr/bin/env bash
# run.sh SCRIPT BUILD: runs a VBScript client of the registered component over a mailbox of its own, and closes
# the dialogs that SynLoad shows, as a user at the keyboard.
set -u
script=$1
build=$2
. "$(dirname "$0")/../support/mailbox.sh"
new_mailbox "$build"

timeout 25 wine cscript //nologo "$(winepath -w "$script")" >"$folder/output" 2>&1 </dev/null &
client=$!
shown=0
while kill -0 "$client" 2>/dev/null; do
    window=$(xdotool search --onlyvisible --name '^(Synchronization|同步)$' 2>/dev/null | head -n 1)
    if [ -n "$window" ]; then
        shown=1
        timeout 2 xdotool windowfocus "$window" 2>/dev/null
        timeout 2 xdotool key Escape 2>/dev/null
    fi
    sleep 0.2
done
wait "$client"
status=$?
tr -d '\r' <"$folder/output"
[ $status -eq 0 ] && [ "$(tr -d '\r' <"$folder/output" | tail -n 1)" = ok ] && [ $shown -eq 1 ] ||
    { echo "the client ended with $status, dialog shown: $shown"; exit 1; }
