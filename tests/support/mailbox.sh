# Sourced by the tests that are scripts. new_mailbox BUILD: makes a mailbox of sample data, which the fake Outlook then serves.
# Sets folder, a directory that goes with the script; the mailbox is outlook.db in it.
new_mailbox() {
    local mailbox
    folder=$(mktemp -d)
    trap 'rm -rf "$folder"' EXIT
    mailbox=$(winepath -w "$folder/outlook.db")
    timeout 30 wine "$1/Demo.exe" --prepare --host "$(winepath -w "$folder/host.db")" --mailbox "$mailbox" </dev/null &&
        timeout 30 wine reg add 'HKCU\Software\TelvixSandbox' /v Mailbox /d "$mailbox" /f >/dev/null 2>&1 </dev/null ||
        { echo "no mailbox could be made"; exit 1; }
}
