#!/usr/bin/env bash
# Compiles each header alone, without precompiled headers, and holds the sources against .clang-tidy, with mingw-w64's
# headers. The sources of the component, fakes and tools are looked at each alone, so that none sees what another one
# includes. Those of the tests are looked at in the groups that their build compiles as one: most of the time of a
# test's source goes to the headers of GoogleTest and Windows.
# tidy.sh [SOURCE...]: looks at these sources only, each alone.
set -u
cd "$(dirname "$0")/.." || exit 1
groups=build/tidy/groups
{
    cmake --preset debug -B build/tidy -DTELVIX_UNITY=OFF &&
        cmake --preset debug -B $groups -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON &&
        ninja -C build/tidy telvix_idl members_in_sources && ninja -C $groups telvix_idl members_in_sources
} >build/tidy.log 2>&1 && ninja -C build/tidy check_headers >>build/tidy.log 2>&1 ||
    { tail -n 30 build/tidy.log >&2; echo "a header does not compile alone (see build/tidy.log)" >&2; exit 1; }

gcc=/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include/c++
# tidy COUNT OPTION...: holds the sources that it reads, a line each, that many by each process.
tidy() {
    local count=$1
    shift
    xargs -P "$(nproc)" -n "$count" clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option \
        --extra-arg-before=--target=x86_64-w64-mingw32 --extra-arg-before=-nostdinc++ \
        --extra-arg-before=-isystem --extra-arg-before="$gcc" \
        --extra-arg-before=-isystem --extra-arg-before="$gcc/x86_64-w64-mingw32" \
        --extra-arg-before=-isystem --extra-arg-before="$gcc/backward" "$@"
}

status=0
if [ $# -gt 0 ]; then
    printf '%s\n' "$@" | tidy 1 -p build/tidy || status=1
else
    git ls-files 'src/*.cpp' 'sandbox/*.cpp' 'tools/*.cpp' 'benchmarks/*.cpp' | tidy 4 -p build/tidy || status=1
    # The sources of a group are included by one that CMake writes.
    sed -n 's|^ *"file": "\(.*/tests/.*/Unity/.*\)"|\1|p' $groups/compile_commands.json |
        tidy 1 -p $groups --config-file=tests/.clang-tidy --checks=-bugprone-suspicious-include || status=1
fi
exit $status
