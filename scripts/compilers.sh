#!/usr/bin/env bash
# Holds the component's sources against other compilers: clang for mingw-w64, with more warnings than GCC has here and
# none allowed; clang in the dialect of MSVC, over mingw-w64's headers; cppcheck with what it knows of Windows.
# compilers.sh [SOURCE...]; uses the build in build/tidy for the generated headers.
set -u
cd "$(dirname "$0")/.." || exit 1
gcc=/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include/c++
includes=(-nostdinc++ -isystem "$gcc" -isystem "$gcc/x86_64-w64-mingw32" -isystem "$gcc/backward"
    -isystem build/tidy/src/entry/idl -isystem build/tidy/generated -Isrc -I.)
definitions=(-DUNICODE -D_UNICODE -DNOMINMAX -DWIN32_LEAN_AND_MEAN -D_WIN32_WINNT=0x0601 -DWINVER=0x0601)
options=(-std=c++20 "${includes[@]}" "${definitions[@]}" -Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Werror)
# MSVC's target without its headers: clang takes mingw-w64's as GCC would, and the sources as MSVC would.
msvc=(--target=x86_64-pc-windows-msvc -fms-compatibility-version=0 -fms-extensions -fgnuc-version=12.2.0
    -fno-delayed-template-parsing -fexceptions -fcxx-exceptions -isystem /usr/x86_64-w64-mingw32/include
    -D__MINGW32__ -D__MINGW64__ -D__STRICT_ANSI__ -D__CRT__NO_INLINE -D__declspec=__declspec
    '-DDECLSPEC_UUID(id)=__declspec(uuid(id))' -include scripts/msvc_dialect.h -Wno-language-extension-token)
sources=("$@")
[ $# -gt 0 ] || mapfile -t sources < <(git ls-files 'src/*.cpp')

# each NAME OPTION...: compiles every source with clang and these options besides the common ones.
each() {
    local name=$1 failed=0 source
    shift
    mkdir -p "build/compilers/$name"
    for source in "${sources[@]}"; do
        while [ "$(jobs -rp | wc -l)" -ge "$(nproc)" ]; do wait -n || failed=1; done
        clang++ "${options[@]}" "$@" -c -o "build/compilers/$name/${source//\//_}.o" "$source" &
    done
    while [ -n "$(jobs -p)" ]; do wait -n || { [ $? -eq 127 ] && break; failed=1; }; done
    return $failed
}

status=0
echo "clang"
each clang --target=x86_64-w64-mingw32 -Wsign-conversion || { echo "clang has warnings" >&2; status=1; }
echo "clang, in the dialect of MSVC"
each msvc "${msvc[@]}" -fsyntax-only || { echo "the sources are not in the dialect of MSVC" >&2; status=1; }
echo "cppcheck"
cppcheck --quiet --error-exitcode=1 --library=windows --platform=win64 --std=c++20 --language=c++ \
    --enable=warning,performance,portability --inline-suppr --suppress=missingInclude --suppress=unknownMacro \
    -j "$(nproc)" "${definitions[@]}" -Isrc "${sources[@]}" || { echo "cppcheck has findings" >&2; status=1; }
exit $status
