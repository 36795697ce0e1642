# shellcheck shell=bash
# What ./test --x86 needs besides environment.sh: the packages of the 32-bit architecture, prefixes for 32-bit
# programs, and an Outlook and a host of different architectures.

x86_packages=(wine32:i386 libodbc2:i386 libodbcinst2:i386 libsqliteodbc:i386)

# install_x86_packages: installs what is missing. An index that cannot be read is tolerated; where that leaves the
# two architectures with different newest versions, which cannot be installed together, both get the version of
# the main archive.
install_x86_packages() {
    local missing preferences=$root/build/preferences
    mapfile -t missing < <(missing_packages "${x86_packages[@]}")
    [ ${#missing[@]} -eq 0 ] && return
    mkdir -p "$root/build"
    printf 'Installing %s\n' "${missing[*]}"
    # shellcheck source=/dev/null
    printf 'Package: *\nPin: release n=%s\nPin-Priority: 1001\n' "$(. /etc/os-release; echo "$VERSION_CODENAME")" >"$preferences"
    {
        as_root dpkg --add-architecture i386 && { as_root apt-get update || true; } &&
            { apt_install "${missing[@]}" ||
                apt_install -o Dir::Etc::preferences="$preferences" --allow-downgrades "${missing[@]}"; }
    } >"$root/build/packages.log" 2>&1 </dev/null ||
        fail "32-bit programs cannot be run here: these packages could not be installed: ${missing[*]} (see build/packages.log)"
}

# use_prefix NAME ARCHITECTURE: what is done from here on is done in build/NAME, a prefix of win32 or win64.
use_prefix() {
    prefix=$root/build/$1
    export WINEPREFIX=$prefix WINEARCH=$2 TELVIX_WINEARCH=$2
}

# exchange_between CLIENT SERVER: a host and the component from one build, Outlook from the other, both registered
# in the prefix as it is.
exchange_between() {
    local client=$root/build/$1 server=$root/build/$2
    register_sandbox "$client"
    timeout 60 wine "$server/OutlookServer.exe" /register >/dev/null 2>&1 </dev/null || return 1
    LC_ALL=C.UTF-8 timeout 600 wine "$client/end_to_end_tests.exe" --gtest_brief=1 </dev/null
}

# test_across_architectures: a 32-bit host with a 64-bit Outlook, and the reverse. In a shell of its own, which
# leaves the prefix of this one as it is.
test_across_architectures() (
    trap 'timeout 20 wineserver -k; timeout 20 wineserver -w' EXIT
    use_prefix wine-both win64
    prepare_wine
    local pair status=0
    for pair in "x86-debug debug" "debug x86-debug"; do
        # shellcheck disable=SC2086
        set -- $pair
        printf 'Host and component of %s, Outlook of %s\n' "$1" "$2"
        exchange_between "$1" "$2" || { printf 'FAILED\n'; status=1; }
        # The next pair's classes are those of the other architecture alone.
        for file in "$root/build/$1/Telvix.dll" "$root/build/$1/SandboxAdo.dll"; do
            timeout 60 wine regsvr32 /s /u "$(winepath -w "$file")" >/dev/null 2>&1 </dev/null
        done
        timeout 60 wine "$root/build/$2/OutlookServer.exe" /unregister >/dev/null 2>&1 </dev/null
        timeout 60 wine "$root/build/$1/OutlookServer.exe" /unregister >/dev/null 2>&1 </dev/null
    done
    exit $status
)
