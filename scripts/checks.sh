# shellcheck shell=bash
# Shared by tidy.sh and compilers.sh, which write their checks down as a build of ninja: it keeps every core busy, shows
# how far it is, and next time repeats only the checks that had findings or whose files have changed. Sourced.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/environment.sh
. "$root/scripts/environment.sh"
cd "$root" || exit 1

# GCC's standard library, for clang.
gcc=/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include/c++
library=(-nostdinc++ -isystem "$gcc" -isystem "$gcc/x86_64-w64-mingw32" -isystem "$gcc/backward")

# run_checks NAME NINJA_ARGUMENT...: runs them all, also after a failure. Prints the findings, and fails if there are
# any. The log is build/NAME.log.
run_checks() {
    local name=$1
    shift
    NINJA_STATUS='[%f/%t] ' ninja -k 0 "$@" 2>&1 | tee "build/$name.log" | show_progress "$name"
    [ "${PIPESTATUS[0]}" -eq 0 ] && return
    # Without the commands themselves, which are long, and the count of warnings in others' headers.
    grep -vE '^(\[[0-9]+/|clang|cppcheck|/usr/bin/|ninja: |[0-9]+ warnings? )' "build/$name.log" >&2
    return 1
}
