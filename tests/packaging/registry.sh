#!/usr/bin/env bash
# registry.sh CHECKOUT: the installers' registry tables are what DllRegisterServer has written in this prefix. The
# x86 installer differs from the x64 one in the platform of the type library only.
set -u
root=$1
export TELVIX_PREFIX=$WINEPREFIX
# shellcheck source=/dev/null
. "$root/scripts/environment.sh"
for part in product signing stage installers registry; do
    # shellcheck source=/dev/null
    . "$root/packaging/$part.sh"
done
fix_time_and_names
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

stage "$folder/Telvix"
make_installer x64 machine "$folder/Telvix" "$folder/x64.msi"
make_installer x64 user "$folder/Telvix" "$folder/x64-user.msi"
make_installer x86 machine "$folder/Telvix" "$folder/x86.msi"
make_installer x86 user "$folder/Telvix" "$folder/x86-user.msi"

values_in_registry 'HKEY_LOCAL_MACHINE\Software\Classes' >"$folder/registered"
[ "$(wc -l <"$folder/registered")" -ge 17 ] || { echo "the component is not registered"; exit 1; }
sed 's/\\win64|/\\win32|/' "$folder/registered" | sort -u >"$folder/registered32"

status=0
for installer in x64 x64-user x86 x86-user; do
    expected=$folder/registered
    [[ $installer != x86* ]] || expected=$folder/registered32
    diff "$expected" <(values_of_installer "$folder/$installer.msi") ||
        { echo "the table of the $installer installer differs from what DllRegisterServer writes"; status=1; }
done
exit $status
