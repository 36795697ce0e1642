#!/usr/bin/env bash
# run.sh BUILD ANSWERS: asks the fakes the conformance program's questions, over a mailbox of its own, and shows how
# their answers differ from those that are checked in. With TELVIX_RECORD set it checks them in anew.
set -u
build=$1
answers=$2
. "$(dirname "$0")/../support/mailbox.sh"
new_mailbox "$build"
folders() { sqlite3 "$folder/outlook.db" 'SELECT Path FROM Folder ORDER BY 1'; }
before=$(folders)

timeout 90 wine "$build/Conformance.exe" --connection "Driver=SQLite3;Database=$folder/ado.db" \
    >"$folder/output" 2>"$folder/errors" </dev/null
status=$?
tr -d '\r' <"$folder/output" >"$folder/answers"
[ $status -eq 0 ] || { cat "$folder/answers" "$folder/errors"; echo "the program ended with $status"; exit 1; }
[ "$(folders)" = "$before" ] || { echo "folders are left in the mailbox"; exit 1; }
[ -z "${TELVIX_RECORD:-}" ] || cp "$folder/answers" "$answers"
diff -u "$answers" "$folder/answers"
