# shellcheck shell=bash
# The installers: wixl makes them from Telvix.wxs, then what wixl leaves to chance or out is put right. Sourced
# after product.sh.

# installer_name ARCHITECTURE SCOPE [VERSION]
installer_name() {
    local suffix=
    [ "$2" = machine ] || suffix=-user
    printf 'Telvix-%s-%s%s.msi' "${3:-$version}" "$1" "$suffix"
}

# installer_variables ARCHITECTURE SCOPE VERSION: the variables of Telvix.wxs, one a line. The identifiers
# of components and of the upgrade never change; the product's changes with the version.
installer_variables() {
    local bits=64 win64=yes folder=ProgramFiles64Folder programs=. root_key=HKLM install=perMachine title="Telvix ($1)"
    [ "$1" = x64 ] || { bits=32 win64=no folder=ProgramFilesFolder; }
    [ "$2" = machine ] || { folder=LocalAppDataFolder programs=Programs root_key=HKCU install=perUser title="Telvix ($1, current user)"; }
    local component
    printf '%s\n' Arch="$1" Version="$3" Win64=$win64 Platform=win$bits Root=$root_key \
        ProgramFolder=$folder ProgramsName=$programs InstallScope=$install ProductName="$title" \
        ProductCode="$(uuid_of "product $3 $1 $2")" UpgradeCode="$(uuid_of "upgrade $1 $2")" \
        ProgId=$progid Clsid="$clsid" Libid="$libid" Marshaler=$marshaler LibraryVersion="$library_version" \
        ClassKey="Software\\Classes\\CLSID\\$clsid" InterfaceKey="Software\\Classes\\Interface\\$iid" \
        LibraryKey="Software\\Classes\\TypeLib\\$libid\\$library_version" \
        Separate="$([ "$1 $2" = "x64 machine" ] && echo yes || echo no)" SharedId="$(uuid_of "component Shared $2")"
    for component in Module SeparateKeys UserGuide UserGuideZh HostContract; do
        printf '%sId=%s\n' $component "$(uuid_of "component $component $1 $2")"
    done
}

# make_installer ARCHITECTURE SCOPE STAGE FILE [VERSION]
make_installer() {
    local number=${5:-$version} variable options=() log=$root/build/installer.log
    while IFS= read -r variable; do options+=(-D "$variable"); done < <(installer_variables "$1" "$2" "$number")
    rm -f "$4"
    { (cd "$3" && wixl -a "$1" "${options[@]}" -o "$4" "$root/packaging/Telvix.wxs") &&
        complete_tables "$4" "$1" "$2" "$number"; } \
        >"$log" 2>&1 || { cat "$log" >&2; fail "the installer ${4##*/} could not be made"; }
    fix_summary "$4" "$(uuid_of "package $number $1 $2 $(content_sum "$3")")"
}

# content_sum STAGE: changes with everything that goes into an installer.
content_sum() {
    { (cd "$1" && find . -type f | sort | xargs sha256sum); cat "$root"/packaging/{Telvix.wxs,corrections.sql,installers.sh}; } |
        sha256sum | cut -d ' ' -f 1
}

# complete_tables FILE ARCHITECTURE SCOPE VERSION: applies corrections.sql. Code page 936 has the characters of
# both languages.
complete_tables() {
    local bits=64 scratch status queries
    [ "$2" = x64 ] || bits=32
    mapfile -t queries < <(sed -e '/^--/d' -e "s/@VERSION@/$4/g" -e "s/@BITS@/$bits/g" "$root/packaging/corrections.sql")
    [ "$3" = machine ] ||
        queries+=("INSERT INTO \`CreateFolder\` (\`Directory_\`, \`Component_\`) VALUES ('ProgramsFolder', 'UserGuide')")
    scratch=$(mktemp -d)
    printf '\r\n\r\n936\t_ForceCodepage\r\n' >"$scratch/_ForceCodepage.idt"
    msibuild "$1" -i "$scratch/_ForceCodepage.idt" && msibuild "$1" -q "${queries[@]}"
    status=$?
    rm -rf "$scratch"
    return $status
}

# fix_summary FILE PACKAGE: wixl writes a random package code and the current time into the summary. Both have a
# fixed length, so the file keeps its shape.
fix_summary() {
    PACKAGE=$2 perl -0777 -i -pe '
        my $time = pack("Q<", ($ENV{SOURCE_DATE_EPOCH} + 11644473600) * 10000000);
        my $found = s/\{[0-9A-F-]{36}\}(\0+)(\x40\0\0\0).{8}(\x40\0\0\0).{8}/$ENV{PACKAGE}$1$2$time$3$time/gs;
        $found == 1 or die "the summary of the installer has an unknown shape ($found)\n";
    ' "$1" || fail "the time of ${1##*/} could not be set"
}
