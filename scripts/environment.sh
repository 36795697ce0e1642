# shellcheck shell=bash
# Shared by ./demo, ./test, ./bench and ./package: the Debian packages, a virtual display and a Wine prefix of
# their own, all set up when missing and stopped when the script ends. Sourced, with $root naming the checkout.

root=${root:?}
prefix=${TELVIX_PREFIX:-$root/build/wine}
# No debugger: after a crash it ends the program with the exit code 0 as often as not, which counts as success.
export WINEPREFIX=$prefix WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree=;mshtml=;winedbg.exe="
export WINEARCH=${TELVIX_WINEARCH:-win64}

packages=(cmake ninja-build g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools lld
    wine wine64 fonts-wine xvfb xauth openbox x11-utils imagemagick xdotool unixodbc libsqliteodbc sqlite3
    fonts-wqy-microhei googletest)

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# missing_packages NAME...: prints those that are not installed.
missing_packages() {
    local name
    for name in "$@"; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || printf '%s\n' "$name"
    done
}

# apt_install [OPTION...] NAME...: apt-get install without questions, and without what is only recommended.
apt_install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo -n "$@"; fi
}

# install_packages NAME...: installs those that are missing; one clear line when that does not work.
install_packages() {
    local missing
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -eq 0 ] && return
    mkdir -p "$root/build"
    printf 'Installing %s\n' "${missing[*]}"
    { as_root apt-get update && apt_install "${missing[@]}"; } >"$root/build/packages.log" 2>&1 </dev/null ||
        fail "these packages could not be installed: ${missing[*]} (see build/packages.log)"
}

# A tenth of GCC's time goes to the collection of garbage, which begins at 128 MB at the latest. The largest source takes
# 700 MB without.
compiler_options=--param=ggc-min-heapsize=1000000

# build PRESET [TARGET...]: configures where needed, and builds. Shows how far it is: on a terminal in one line
# that it renews, in a log every ten seconds. As many jobs as there are cores: a compiler does not wait, and one more
# takes the others' caches.
build() {
    local preset=$1 log=$root/build/$1.log
    shift
    mkdir -p "$root/build"
    { [ -f "$root/build/$preset/build.ninja" ] || (cd "$root" && CXXFLAGS="${CXXFLAGS:-} $compiler_options" cmake --preset "$preset"); } >"$log" 2>&1 &&
        (cd "$root" && NINJA_STATUS='[%f/%t] ' ${build_niceness:+nice -n "$build_niceness"} ninja -j "${build_jobs:-$(nproc)}" -C "build/$preset" "$@" 2>&1) | tee -a "$log" | show_progress "$preset"
    [ "${PIPESTATUS[0]}" -eq 0 ] ||
        { grep -B 2 -A 20 -m 1 -E '^FAILED|[Ee]rror' "$log" >&2; fail "the build ($preset) failed (see build/$preset.log)"; }
}

# build_meanwhile PRESET [TARGET...]: builds in the background while another build goes on, a file at a time and with
# less of a claim to the processor: it fills the gaps in which that one configures, links or has a single file left.
# await_builds waits for all of them.
background_builds=()
build_meanwhile() {
    set -m # in a process group, by which stop_environment can end it
    build_jobs=1 build_niceness=10 build "$@" &
    background_builds+=($!)
    set +m
}

await_builds() {
    local pid
    for pid in "${background_builds[@]}"; do wait "$pid" || exit 1; done
    background_builds=()
}

show_progress() {
    local line shown=$SECONDS status=
    while IFS= read -r line; do
        case $line in '['[0-9]*'/'*) status=${line%%]*}] ;; *) continue ;; esac
        if [ -t 1 ]; then
            printf '\r  %s %s\033[K' "$1" "$status"
        elif [ $((SECONDS - shown)) -ge 10 ]; then
            printf '  %s %s\n' "$1" "$status"
            shown=$SECONDS
        fi
    done
    [ -z "$status" ] || if [ -t 1 ]; then printf '\r\033[K'; else printf '  %s %s\n' "$1" "$status"; fi
}

# A lane is a Wine prefix with a display: what runs in one shares neither desktop nor registry with another.
# The first lane's prefix is $prefix.
display_pids=()
lane_prefixes=()

# start_display: a virtual display; its name is in DISPLAY.
start_display() {
    local number_file=$root/build/display.$$
    mkdir -p "$root/build"
    : >"$number_file"
    Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp -noreset 3>"$number_file" >/dev/null 2>&1 &
    local pid=$! waited=0
    display_pids+=("$pid")
    until [ -s "$number_file" ]; do
        waited=$((waited + 1))
        [ $waited -gt 100 ] || ! kill -0 "$pid" 2>/dev/null && { rm -f "$number_file"; fail "the virtual display did not come up"; }
        sleep 0.1
    done
    DISPLAY=:$(cat "$number_file")
    export DISPLAY
    rm -f "$number_file"
}

stop_environment() {
    local lane pid
    for lane in "${lane_prefixes[@]}"; do
        [ -d "$lane" ] && { WINEPREFIX=$lane timeout 20 wineserver -k; WINEPREFIX=$lane timeout 20 wineserver -w; } >/dev/null 2>&1
    done
    for pid in "${background_builds[@]}"; do kill -- "-$pid" 2>/dev/null; done
    for pid in "${display_pids[@]}"; do kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null; done
    display_pids=()
    lane_prefixes=()
    rm -rf "$root/build/lanes"
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

# make_prefix: makes the prefix that WINEPREFIX names, unless it is there.
make_prefix() {
    local ready=$WINEPREFIX/telvix-ready
    [ -f "$ready" ] && return
    mkdir -p "$WINEPREFIX"
    wineserver -p
    timeout 180 wine wineboot -i >/dev/null 2>&1 </dev/null
    timeout 60 wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1 </dev/null &&
        timeout 60 wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1 </dev/null ||
        fail "Wine could not be set up"
    font_replacements >"$WINEPREFIX/fonts.reg"
    timeout 60 wine regedit "$(winepath -w "$WINEPREFIX/fonts.reg" 2>/dev/null)" >/dev/null 2>&1 </dev/null
    cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null
    wineserver -k
    wineserver -w
    touch "$ready"
}

# make_prefix_meanwhile: makes the prefix in the background, while something else goes on; await_prefix waits for it.
prefix_job=
make_prefix_meanwhile() {
    lane_prefixes+=("$WINEPREFIX")
    make_prefix &
    prefix_job=$!
}

await_prefix() {
    wait "$prefix_job" || fail "Wine could not be set up"
    lane_prefixes=()
}

# prepare_wine: makes the prefix and starts its server, so that services do not inherit a pipe of ours.
prepare_wine() {
    lane_prefixes+=("$WINEPREFIX")
    make_prefix
    wineserver -p
    timeout 120 wine wineboot >/dev/null 2>&1 </dev/null
}

# prepare_lanes COUNT BUILD: prepares that many lanes with the sandbox and component of a build registered, and
# writes each one's environment to build/lanes, where scripts/in_lane finds it.
prepare_lanes() {
    local count=$1 build=$2 lane
    rm -rf "$root/build/lanes"
    mkdir -p "$root/build/lanes"
    for ((lane = 1; lane <= count; ++lane)); do
        WINEPREFIX=$prefix
        if [ "$lane" -gt 1 ]; then
            WINEPREFIX=$prefix-$lane
            [ -f "$WINEPREFIX/telvix-ready" ] || { rm -rf "$WINEPREFIX"; cp -a "$prefix" "$WINEPREFIX"; } ||
                fail "the Wine prefix could not be copied"
        fi
        lane_prefixes+=("$WINEPREFIX")
        make_prefix
        [ "$lane" -eq 1 ] && [ ${#display_pids[@]} -gt 0 ] || start_display
        cat >"$root/build/lanes/$lane" <<LANE
export WINEPREFIX='$WINEPREFIX' DISPLAY='$DISPLAY'
export TELVIX_FIGURES='Z:${root//\//\\}\\build\\lanes\\figures.$lane'
LANE
    done
    # Each lane's desktop belongs on its own display: Wine's windows of one prefix share one.
    for ((lane = 1; lane <= count; ++lane)); do
        (
            # shellcheck source=/dev/null
            . "$root/build/lanes/$lane"
            wineserver -p
            timeout 120 wine wineboot >/dev/null 2>&1 </dev/null
            register_sandbox "$build"
        ) &
    done
    for ((; count > 0; --count)); do wait -n -f || fail "a lane could not be prepared"; done
}

# register_sandbox BUILD: registers the component and the fakes of a build in the prefix, as an
# installation would.
register_sandbox() {
    timeout 60 wine regsvr32 /s "$(winepath -w "$1/SandboxAdo.dll")" >/dev/null 2>&1 </dev/null &&
        timeout 60 wine "$1/OutlookServer.exe" /register >/dev/null 2>&1 </dev/null &&
        timeout 60 wine regsvr32 /s "$(winepath -w "$1/Telvix.dll")" >/dev/null 2>&1 </dev/null ||
        fail "the component or the sandbox could not be registered"
}
