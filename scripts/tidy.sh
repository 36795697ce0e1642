#!/usr/bin/env bash
# Compiles each header alone, without precompiled headers, and holds the sources against .clang-tidy, with mingw-w64's
# headers. Most of the time goes to those headers, so the checks look at the groups of sources that the build compiles
# as one. The static analyzer and the checks for unused names look only at the file that they are given: for those, and
# so that no source needs what another one includes, the sources of the component, fakes and tools follow each alone.
# tidy.sh [SOURCE...]: looks at these sources only, each alone, by all checks.
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
# tidy OPTION...: looks at the sources that it reads, a line each.
tidy() {
    xargs -P "$(nproc)" -n 1 clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option \
        --extra-arg-before=--target=x86_64-w64-mingw32 --extra-arg-before=-nostdinc++ \
        --extra-arg-before=-isystem --extra-arg-before="$gcc" \
        --extra-arg-before=-isystem --extra-arg-before="$gcc/x86_64-w64-mingw32" \
        --extra-arg-before=-isystem --extra-arg-before="$gcc/backward" "$@"
}

# grouped: the groups, and the sources that belong to none.
grouped() {
    sed -n 's|^ *"file": "\(.*\)",\?$|\1|p' $groups/compile_commands.json |
        grep -E "/Unity/|^$PWD/(src|sandbox|tools|tests|benchmarks)/.*\.cpp$"
}

status=0
if [ $# -gt 0 ]; then
    printf '%s\n' "$@" | tidy -p build/tidy || status=1
else
    of_groups=(-p "$groups" "--checks=-clang-analyzer-*,-bugprone-suspicious-include")
    grouped | grep -v /tests/ | tidy "${of_groups[@]}" || status=1
    grouped | grep /tests/ | tidy "${of_groups[@]}" --config-file=tests/.clang-tidy || status=1
    git ls-files 'src/*.cpp' 'sandbox/*.cpp' 'tools/*.cpp' 'benchmarks/*.cpp' |
        tidy -p build/tidy "--checks=-*,clang-analyzer-*,misc-unused-*" || status=1
fi
exit $status
