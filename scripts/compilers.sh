#!/usr/bin/env bash
# Holds the component's sources against other compilers: clang for mingw-w64, with more warnings than GCC has here and
# none allowed, each source alone; clang in the dialect of MSVC, over mingw-w64's headers, which it reads once for all
# sources; cppcheck with what it knows of Windows.
# compilers.sh [SOURCE...]; uses the build in build/tidy for the generated headers.
set -u
# shellcheck source=scripts/checks.sh
. "$(dirname "$0")/checks.sh"

includes=("${library[@]}" -isystem build/tidy/src/entry/idl -isystem build/tidy/generated -Isrc -I.)
definitions=(-DUNICODE -D_UNICODE -DNOMINMAX -DWIN32_LEAN_AND_MEAN -D_WIN32_WINNT=0x0601 -DWINVER=0x0601)
options=(-std=c++20 "${includes[@]}" "${definitions[@]}" -Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Werror)
# MSVC's target without its headers: clang takes mingw-w64's as GCC would, and the sources as MSVC would.
msvc=(--target=x86_64-pc-windows-msvc -fms-compatibility-version=0 -fms-extensions -fgnuc-version=12.2.0
    -fno-delayed-template-parsing -fexceptions -fcxx-exceptions -isystem /usr/x86_64-w64-mingw32/include
    -D__MINGW32__ -D__MINGW64__ -D__STRICT_ANSI__ -D__CRT__NO_INLINE -D__declspec=__declspec
    "'-DDECLSPEC_UUID(id)=__declspec(uuid(id))'" -include scripts/msvc_dialect.h -Wno-language-extension-token)
cppcheck=(--quiet --error-exitcode=1 --library=windows --platform=win64 --std=c++20 --language=c++
    "--enable=warning,performance,portability" --inline-suppr --suppress=missingInclude --suppress=unknownMacro
    "${definitions[@]}" -Isrc)
sources=("$@")
[ $# -gt 0 ] || mapfile -t sources < <(git ls-files 'src/*.cpp')

# write_checks: the rules, and the sources that they are for. cppcheck looks at all sources together, each time: it
# neither tells which headers it reads nor takes long.
write_checks() {
    local source pch=build/compilers/msvc/Windows.h.pch
    cat <<NINJA
builddir = build/compilers
rule clang
  command = clang++ ${options[*]} --target=x86_64-w64-mingw32 -Wsign-conversion -MD -MF \$out.d -c -o \$out \$in
  depfile = \$out.d
  deps = gcc
rule precompiled
  command = clang++ ${options[*]} ${msvc[*]} -MD -MF \$out.d -x c++-header -o \$out \$in
  depfile = \$out.d
  deps = gcc
rule msvc
  command = clang++ ${options[*]} ${msvc[*]} -MD -MF \$out.d -fsyntax-only -include-pch $pch \$in && touch \$out
  depfile = \$out.d
  deps = gcc
rule cppcheck
  command = cppcheck ${cppcheck[*]} \$in
build build/compilers/cppcheck: cppcheck ${sources[*]}
build $pch: precompiled cmake/precompiled/Windows.h
NINJA
    for source in "${sources[@]}"; do
        echo "build build/compilers/clang/${source//\//_}.o: clang $source"
        echo "build build/compilers/msvc/${source//\//_}: msvc $source | $pch"
    done
}

mkdir -p build/compilers
write_checks >build/compilers/checks.ninja
run_checks compilers -f build/compilers/checks.ninja
