# shellcheck shell=bash
# The installers under Wine: installation, use, upgrade, repair, removal, both architectures side by side. Sourced
# by check.sh.

machine_classes='HKEY_LOCAL_MACHINE\Software\Classes'
machine_classes_32='HKEY_LOCAL_MACHINE\Software\Classes\Wow6432Node'
user_classes='HKEY_CURRENT_USER\Software\Classes'

# check_installers DIRECTORY FOLDER: the packages, and what the zip holds.
check_installers() {
    local architecture scope installer
    traces >"$work/traces-before"
    for architecture in x64 x86; do
        for scope in machine user; do
            installer=$1/$(installer_name $architecture $scope)
            check_one_installer "$installer" $architecture $scope "$2"
        done
    done
    check_registration "$1/$(installer_name x64 machine)" "$2"
    check_upgrade "$1" "$2"
    check_side_by_side "$1/$(installer_name x64 machine)" "$1/$(installer_name x86 machine)" "$2"
}

# check_one_installer INSTALLER ARCHITECTURE SCOPE FOLDER
check_one_installer() {
    local name=${1##*/}
    expect "$name installs quietly" install "$1"
    expect "$name puts the files where they belong" files_are_installed "$2" "$3" "$4"
    expect "$name puts the user guide into the Start menu in both languages" menu_has_guides "$2"
    # A 64-bit host cannot load the 32-bit module, and Wine does not look at the classes of the current user.
    [ "$2 $3" != "x64 machine" ] || expect "After $name, scripts and programs create the class and call it" run_examples "$4"
    expect "$name writes the values of its table into the registry" table_is_written "$1" "$2" "$3"
    expect "$name can be removed quietly" remove "$1"
    expect "After the removal of $name there is no key and no file left" nothing_is_left
}

msi() {
    local status
    timeout 120 wine msiexec "$@" /qn
    status=$?
    [ $status -eq 0 ] || { echo "msiexec $* ended with $status"; return 1; }
}

install() { msi /i "$(winepath -w "$1" 2>/dev/null)"; }
remove() { msi /x "$(winepath -w "$1" 2>/dev/null)"; }

# installed_folder ARCHITECTURE SCOPE
installed_folder() {
    case "$1 $2" in
        "x64 machine") printf '%s/drive_c/Program Files/Telvix/x64' "$prefix" ;;
        "x86 machine") printf '%s/drive_c/Program Files (x86)/Telvix/x86' "$prefix" ;;
        *) printf '%s/drive_c/users/%s/AppData/Local/Programs/Telvix/%s' "$prefix" "$(id -un)" "$1" ;;
    esac
}

# files_are_installed ARCHITECTURE SCOPE FOLDER
files_are_installed() {
    local installed
    installed=$(installed_folder "$1" "$2")
    cmp "$3/$1/Telvix.dll" "$installed/Telvix.dll" && diff -r "$3/docs" "$installed/docs"
}

menu_has_guides() {
    local bits=64 name
    [ "$1" = x64 ] || bits=32
    for name in "User guide ($bits-bit).lnk" "使用说明（$bits 位）.lnk"; do
        find "$prefix/drive_c" -path "*/Start Menu/Programs/Telvix/$name" | grep . || { echo "no $name"; return 1; }
    done
}

# table_is_written INSTALLER ARCHITECTURE SCOPE
table_is_written() {
    local classes=$machine_classes
    [ "$2 $3" != "x86 machine" ] || classes=$machine_classes_32
    [ "$3" != user ] || classes=$user_classes
    diff <(values_of_installer "$1") <(values_in_registry "$classes")
}

# traces: every file of the prefix, and everything in the registry that names the product or is kept by Windows
# Installer for a product (32 hexadecimal digits). The folder of Windows Installer itself stays.
traces() {
    (cd "$prefix/drive_c" && find . ! -path './users/*/Temp/*' ! -path ./windows/Installer ! -name telvix-export.reg)
    exported_key HKEY_LOCAL_MACHINE | registry_lines
    exported_key HKEY_CURRENT_USER | registry_lines
}

registry_lines() {
    awk '/^\[/ { key = $0; print key; next } /./ { print key " " $0 }' |
        grep -iE "telvix|${clsid:1:36}|${iid:1:36}|${libid:1:36}|\\\\Installer\\\\.*\\\\[0-9A-F]{32}"
}

nothing_is_left() {
    local left
    left=$(comm -13 <(sort "$work/traces-before") <(traces | sort))
    [ -z "$left" ] || { echo "$left"; return 1; }
}

# check_registration INSTALLER FOLDER: what regsvr32 writes is what the installer writes.
check_registration() {
    local module
    module=$(winepath -w "$2/x64/Telvix.dll" 2>/dev/null)
    expect "regsvr32 registers the module of the zip" timeout 60 wine regsvr32 /s "$module"
    expect "The installer's table is what DllRegisterServer writes" \
        diff <(values_of_installer "$1") <(values_in_registry "$machine_classes")
    expect "regsvr32 /u removes it" timeout 60 wine regsvr32 /u /s "$module"
    expect "After regsvr32 /u there is no key left" nothing_is_left
}

# check_upgrade DIRECTORY FOLDER: over an older version, which differs in its module and has its number.
check_upgrade() {
    local new old=$work/older
    new=$1/$(installer_name x64 machine)
    cp -r "$2" "$old"
    make_older "$old/x64/Telvix.dll"
    make_installer x64 machine "$old" "$work/older.msi" 0.9.0
    expect "An older version installs" install "$work/older.msi"
    expect "The older version's module is there" files_are_installed x64 machine "$old"
    expect "The new version installs over it" install "$new"
    expect "The new version's files have replaced the old ones" files_are_installed x64 machine "$2"
    expect "Only the new version is registered as installed" only_version_is "$version"
    expect "Scripts and programs create the upgraded class" run_examples "$2"
    expect "An older version does not install over a newer one" fails install "$work/older.msi"
    expect "The newer version is untouched" only_version_is "$version"
    check_repair "$new" "$2"
    expect "The upgraded product can be removed" remove "$new"
    expect "After the upgrade and the removal there is no key and no file left" nothing_is_left
}

# make_older FILE: sets the version in the module's resource (after the signature of its fixed part) to 0.9.0.0.
make_older() {
    perl -0777 -i -pe 's/(\xBD\x04\xEF\xFE.{4}).{8}/$1 . pack("V2", 9, 0)/se == 1 or die "no version\n"' "$1"
}

only_version_is() {
    local versions
    versions=$(exported_key 'HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall' |
        grep -A 8 -F '"DisplayName"="Telvix' | grep -F '"DisplayVersion"')
    printf '%s\n' "$versions"
    [ "$versions" = "\"DisplayVersion\"=\"$1\"" ]
}

# check_repair INSTALLER FOLDER
check_repair() {
    rm "$(installed_folder x64 machine)/Telvix.dll"
    timeout 60 wine reg delete "HKLM\\Software\\Classes\\CLSID\\$clsid" /f >/dev/null 2>&1 </dev/null
    expect "Without its module and key the class cannot be created" fails run_examples "$2"
    # msiexec /f does the same on Windows; Wine's own /f does nothing and fails.
    expect "The product can be repaired" msi /i "$(winepath -w "$1" 2>/dev/null)" REINSTALL=ALL REINSTALLMODE=omus
    expect "The repair has put the files back" files_are_installed x64 machine "$2"
    expect "The repair has put the registry back" table_is_written "$1" x64 machine
    expect "Scripts and programs create the repaired class" run_examples "$2"
}

# check_side_by_side X64 X86 FOLDER: a removal leaves the other architecture as it is alone.
check_side_by_side() {
    expect "The x86 installer installs alone" install "$2"
    values_in_registry "$machine_classes_32" >"$work/alone32"
    expect "The x64 installer installs beside it" install "$1"
    expect "With both installed, scripts and programs create the 64-bit class" run_examples "$3"
    expect "The x86 one can be removed" remove "$2"
    expect "Without the x86 one, scripts and programs still create the 64-bit class" run_examples "$3"
    expect "Without the x86 one, the 64-bit class has all its values" table_is_written "$1" x64 machine
    expect "The x86 installer installs beside the x64 one" install "$2"
    expect "The x64 one can be removed" remove "$1"
    expect "Without the x64 one, the 32-bit class has the values that it has alone" \
        diff "$work/alone32" <(values_in_registry "$machine_classes_32")
    expect "Without the x64 one, the files of the x86 one are there" files_are_installed x86 machine "$3"
    expect "The x86 one can be removed as the last" remove "$2"
    expect "After the removal of both there is no key and no file left" nothing_is_left
}
