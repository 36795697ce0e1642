#!/usr/bin/env bash
# run.sh SCRIPT BUILD: runs a VBScript client of the registered component over a mailbox of its own, and closes
# the dialogs that SynLoad shows, as a user at the keyboard.
set -u
script=$1
build=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mailbox=$(winepath -w "$folder/outlook.db")
timeout 30 wine "$build/Demo.exe" --prepare --host "$(winepath -w "$folder/host.db")" --mailbox "$mailbox" </dev/null &&
    timeout 30 wine reg add 'HKCU\Software\TelvixSandbox' /v Mailbox /d "$mailbox" /f >/dev/null 2>&1 </dev/null ||
    { echo "no mailbox could be made"; exit 1; }

timeout 90 wine cscript //nologo "$(winepath -w "$script")" >"$folder/output" 2>&1 </dev/null &
client=$!
closed=0
while kill -0 "$client" 2>/dev/null; do
    window=$(xdotool search --onlyvisible --name '^(Synchronization|同步)$' 2>/dev/null | head -n 1)
    if [ -n "$window" ] && [ "$window" != "${last:-}" ] &&
        xdotool windowfocus --sync "$window" key --window "$window" Escape 2>/dev/null; then
        last=$window
        closed=$((closed + 1))
    fi
    sleep 0.1
done
wait "$client"
status=$?
tr -d '\r' <"$folder/output"
[ $status -eq 0 ] && [ "$(tr -d '\r' <"$folder/output" | tail -n 1)" = ok ] && [ $closed -ge 2 ] ||
    { echo "the client ended with $status, $closed dialogs were closed"; exit 1; }
