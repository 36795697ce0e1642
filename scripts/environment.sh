# shellcheck shell=bash
# What ./demo and ./test share: the Debian packages, a virtual display and a Wine prefix of their own, all
# set up when missing and stopped when the script ends. Sourced, with $root naming the checkout.

root=${root:?}
prefix=${TELVIX_PREFIX:-$root/build/wine}
# No debugger: after a crash it ends the program with the exit code 0 as often as not, which counts as success.
export WINEPREFIX=$prefix WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree=;mshtml=;winedbg.exe=" WINEARCH=win64

packages=(cmake ninja-build g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools
    wine wine64 fonts-wine xvfb xauth imagemagick xdotool unixodbc libsqliteodbc sqlite3
    fonts-wqy-microhei googletest)

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# install_packages NAME...: installs those that are missing; one clear line when that does not work.
install_packages() {
    local missing=() name as_root=()
    for name in "$@"; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return
    [ "$(id -u)" -eq 0 ] || as_root=(sudo -n)
    mkdir -p "$root/build"
    printf 'Installing %s\n' "${missing[*]}"
    { "${as_root[@]}" apt-get update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"; } \
        >"$root/build/packages.log" 2>&1 </dev/null ||
        fail "these packages could not be installed: ${missing[*]} (see build/packages.log)"
}

# build PRESET [TARGET...]: configures where needed, and builds.
build() {
    local preset=$1 log=$root/build/$1.log
    shift
    mkdir -p "$root/build"
    { [ -f "$root/build/$preset/build.ninja" ] || (cd "$root" && cmake --preset "$preset"); } >"$log" 2>&1 &&
        (cd "$root" && cmake --build "build/$preset" ${1:+--target "$@"}) >>"$log" 2>&1 ||
        { tail -n 30 "$log" >&2; fail "the build ($preset) failed (see build/$preset.log)"; }
}

display_pid=
start_display() {
    local number_file=$root/build/display.$$
    mkdir -p "$root/build"
    : >"$number_file"
    Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp -noreset 3>"$number_file" >/dev/null 2>&1 &
    display_pid=$!
    local waited=0
    until [ -s "$number_file" ]; do
        waited=$((waited + 1))
        [ $waited -gt 100 ] || ! kill -0 "$display_pid" 2>/dev/null && { rm -f "$number_file"; fail "the virtual display did not come up"; }
        sleep 0.1
    done
    DISPLAY=:$(cat "$number_file")
    export DISPLAY
    rm -f "$number_file"
}

stop_environment() {
    [ -d "$prefix" ] && { timeout 20 wineserver -k; timeout 20 wineserver -w; } >/dev/null 2>&1
    [ -n "$display_pid" ] && kill "$display_pid" 2>/dev/null && wait "$display_pid" 2>/dev/null
    display_pid=
}

# Chinese and Latin text in one font that has both, for every face that dialogs ask for.
font_replacements() {
    local face
    printf '\xff\xfe'
    {
        printf 'Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]\r\n'
        for face in SimSun NSimSun 宋体 新宋体 Tahoma 'MS Shell Dlg' 'MS Shell Dlg 2' 'MS Sans Serif' \
            'Microsoft Sans Serif' 'Microsoft YaHei' 微软雅黑 SimHei 黑体 'Segoe UI' Arial; do
            printf '"%s"="WenQuanYi Micro Hei"\r\n' "$face"
        done
    } | iconv -f UTF-8 -t UTF-16LE
}

# Makes the prefix (once), and starts its server, so that services do not inherit a pipe of ours.
prepare_wine() {
    local ready=$prefix/telvix-ready
    mkdir -p "$prefix"
    wineserver -p
    if [ ! -f "$ready" ]; then
        timeout 180 wine wineboot -i >/dev/null 2>&1 </dev/null
        timeout 60 wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1 </dev/null &&
            timeout 60 wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1 </dev/null ||
            fail "Wine could not be set up"
        font_replacements >"$prefix/fonts.reg"
        timeout 60 wine regedit "$(winepath -w "$prefix/fonts.reg" 2>/dev/null)" >/dev/null 2>&1 </dev/null
        cp /usr/share/wine/fonts/marlett.ttf "$prefix/drive_c/windows/Fonts/" 2>/dev/null
        wineserver -k
        wineserver -w
        wineserver -p
        touch "$ready"
    fi
    timeout 120 wine wineboot >/dev/null 2>&1 </dev/null
}

# register_sandbox BUILD: registers the component and the stand-ins of a build in the prefix, as an
# installation would.
register_sandbox() {
    timeout 60 wine regsvr32 /s "$(winepath -w "$1/SandboxAdo.dll")" >/dev/null 2>&1 </dev/null &&
        timeout 60 wine "$1/OutlookServer.exe" /register >/dev/null 2>&1 </dev/null &&
        timeout 60 wine regsvr32 /s "$(winepath -w "$1/Telvix.dll")" >/dev/null 2>&1 </dev/null ||
        fail "the component or the sandbox could not be registered"
}
