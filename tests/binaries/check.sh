#!/usr/bin/env bash
# check.sh FILE: the component exports exactly the four entry points of an automation server, undecorated, and
# imports only Windows system DLLs. The x86 one says that it has no exception handlers, so no code may install one.
set -u
file=$1
[ -f "$file" ] || { echo "missing: $file"; exit 1; }
headers=$(objdump -p "$file") || exit 1

exports=$(awk '/\[Ordinal\/Name Pointer\] Table/ {inside = 1; next} inside && /^\t\[/ {print $NF} inside && !NF {inside = 0}' <<<"$headers" | sort)
expected=$'DllCanUnloadNow\nDllGetClassObject\nDllRegisterServer\nDllUnregisterServer'
[ "$exports" = "$expected" ] || { printf 'unexpected exports:\n%s\n' "$exports"; exit 1; }

system='advapi32|comctl32|gdi32|kernel32|msvcrt|ole32|oleaut32|user32|uxtheme|shell32'
imports=$(awk '/DLL Name:/ {print tolower($3)}' <<<"$headers" | sort -u)
[ -n "$imports" ] || { echo "no imports found"; exit 1; }
foreign=$(grep -vE "^($system)\.dll$" <<<"$imports")
[ -z "$foreign" ] || { printf 'imports beyond the system:\n%s\n' "$foreign"; exit 1; }

handlers=$(objdump -d "$file" | grep -E ',%fs:0x0$')
[ -z "$handlers" ] || { printf 'exception handlers are installed:\n%s\n' "$handlers"; exit 1; }
printf 'exports and imports of %s are as they should be\n' "${file##*/}"
