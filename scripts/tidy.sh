#!/usr/bin/env bash
# Compiles each header alone and holds each source alone against .clang-tidy, with mingw-w64's headers: a build
# without precompiled headers, in which no source sees what another one includes.
set -u
cd "$(dirname "$0")/.." || exit 1
{ cmake --preset debug -B build/tidy -DTELVIX_UNITY=OFF && ninja -C build/tidy telvix_idl; } >build/tidy.log 2>&1 &&
    ninja -C build/tidy check_headers >>build/tidy.log 2>&1 ||
    { tail -n 30 build/tidy.log >&2; echo "a header does not compile alone (see build/tidy.log)" >&2; exit 1; }
gcc=/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include/c++
mapfile -t sources < <(git ls-files 'src/*.cpp' 'sandbox/*.cpp' 'tools/*.cpp' 'benchmarks/*.cpp')
printf '%s\n' "${@:-${sources[@]}}" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/tidy --quiet \
    --extra-arg-before=--target=x86_64-w64-mingw32 --extra-arg-before=-nostdinc++ \
    --extra-arg-before=-isystem --extra-arg-before="$gcc" \
    --extra-arg-before=-isystem --extra-arg-before="$gcc/x86_64-w64-mingw32" \
    --extra-arg-before=-isystem --extra-arg-before="$gcc/backward"
