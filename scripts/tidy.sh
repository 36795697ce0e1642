#!/usr/bin/env bash
# Holds the component, the sandbox and the benchmark against .clang-tidy, with mingw-w64's headers.
set -u
cd "$(dirname "$0")/.." || exit 1
gcc=/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include/c++
mapfile -t sources < <(git ls-files 'src/*.cpp' 'sandbox/*.cpp' 'benchmarks/*.cpp')
printf '%s\n' "${@:-${sources[@]}}" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/debug --quiet \
    --extra-arg-before=--target=x86_64-w64-mingw32 --extra-arg-before=-nostdinc++ \
    --extra-arg-before=-isystem --extra-arg-before="$gcc" \
    --extra-arg-before=-isystem --extra-arg-before="$gcc/x86_64-w64-mingw32" \
    --extra-arg-before=-isystem --extra-arg-before="$gcc/backward"
