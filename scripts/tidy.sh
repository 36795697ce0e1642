#!/usr/bin/env bash
# Compiles each header alone, without precompiled headers, and holds the sources against .clang-tidy, with mingw-w64's
# headers. Most of the time goes to those headers, so the checks look at the groups of sources that the build compiles
# as one. The checks for unused names of other namespaces look only at the file that they are given: for those, and so
# that no source needs what another one includes, the sources of the component, fakes and tools follow each alone.
# tidy.sh [SOURCE...]: looks at these sources only, each alone, by all checks.
set -u
# shellcheck source=scripts/checks.sh
. "$(dirname "$0")/checks.sh"

# The static analyzer looks at functions of the given file and, if its path has this name, of sources that it includes.
groups=build/tidy/UnifiedSource
# configure FOLDER OPTION...: makes the build there, and the headers that it generates.
configure() {
    { [ -f "$1/build.ninja" ] || cmake --preset debug -B "$@"; } && ninja -C "$1" telvix_idl members_in_sources
}
mkdir -p build
{ configure build/tidy -DTELVIX_UNITY=OFF && configure $groups -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON; } \
    >build/tidy.log 2>&1 || { tail -n 30 build/tidy.log >&2; exit 1; }

options=(--quiet --extra-arg=-Wno-unknown-warning-option --extra-arg-before=--target=x86_64-w64-mingw32)
options+=("${library[@]/#/--extra-arg-before=}")
if [ $# -gt 0 ]; then
    printf '%s\n' "$@" | xargs -P "$(nproc)" -n 1 clang-tidy "${options[@]}" -p build/tidy
    exit
fi

# grouped: the groups, and the sources that belong to none. The longest are first, so that no core waits at the end.
grouped() {
    sed -n 's|^ *"file": "'"$PWD"'/\(.*\)",\?$|\1|p' $groups/compile_commands.json |
        grep -E '/Unity/|^(src|sandbox|tools|tests|benchmarks)/.*\.cpp$' |
        while read -r file; do
            sed -n 's|^#include "\(.*\.cpp\)"$|\1|p' "$file" | tr '\n' '\0' | { echo "$file"; xargs -0r cat; } | wc -c |
                sed "s|\$| $file|"
        done | sort -rn | cut -d ' ' -f 2
}

# write_checks: a rule, and the sources that it is for.
write_checks() {
    cat <<NINJA
builddir = build/tidy/passed
rule tidy
  command = clang-tidy ${options[*]} --extra-arg=-Wp,-MD,\$\$PWD/\$out.d -p \$build \$options \$in && touch \$out # \$flags
  depfile = \$out.d
  deps = gcc
NINJA
    local source line
    # A comment of the command has the compilation's, so that a source is checked again when that changes.
    local -A flags
    while read -r line; do
        case $line in
            '"command"'*) flags[command]=${line//\$/\$\$} ;;
            '"file": "'*) line=${line#*: \"} flags[${line%%\"*}]=${flags[command]} ;;
        esac
    done < <(grep -hE -A 1 '"command": .*(/Unity/|/(src|sandbox|tools|tests|benchmarks)/[^ ]*\.cpp",?$)' {build/tidy,$groups}/compile_commands.json)
    # check SOURCE BUILD OPTION...
    check() {
        local source=$1 build=$2
        shift 2
        printf 'build build/tidy/passed/%s: tidy %s | .clang-tidy tests/.clang-tidy\n' \
            "${build##*/}/${source//\//_}" "$source"
        printf '  build = %s\n  options = %s\n  flags = %s\n' "$build" "$*" "${flags[$PWD/$source]}"
    }
    grouped | while read -r source; do
        case $source in
            */tests/* | tests/*) check "$source" $groups --checks=-bugprone-suspicious-include --config-file=tests/.clang-tidy ;;
            *) check "$source" $groups --checks=-bugprone-suspicious-include ;;
        esac
    done
    git ls-files 'src/*.cpp' 'sandbox/*.cpp' 'tools/*.cpp' 'benchmarks/*.cpp' | while read -r source; do
        check "$source" build/tidy "'--checks=-*,misc-unused-using-decls,misc-unused-alias-decls,bugprone-suspicious-include'"
    done
}

status=0
write_checks >build/tidy/checks.ninja
run_checks headers -C build/tidy check_headers || { echo "a header does not compile alone" >&2; status=1; }
run_checks clang-tidy -f build/tidy/checks.ninja || { echo "clang-tidy has findings" >&2; status=1; }
exit $status
