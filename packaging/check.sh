# shellcheck shell=bash
# The checks of ./package --check. Each one is a sentence; the last line counts them. Sourced by package.

# shellcheck source=packaging/check-contents.sh
. "$root/packaging/check-contents.sh"
# shellcheck source=packaging/check-installers.sh
. "$root/packaging/check-installers.sh"
# shellcheck source=packaging/check-examples.sh
. "$root/packaging/check-examples.sh"

passed=0 failed=0
work=$root/build/package-check # what the checks unpack and write

# expect SENTENCE COMMAND...: the command's output is shown when it fails.
expect() {
    local sentence=$1
    shift
    if "$@" >"$work/output" 2>&1 </dev/null; then
        passed=$((passed + 1))
        printf 'ok      %s\n' "$sentence"
    else
        failed=$((failed + 1))
        printf 'FAILED  %s\n' "$sentence"
        head -n 40 "$work/output" | sed 's/^/        /'
    fi
}

# check_packages DIRECTORY: of what ./package has just made there.
check_packages() {
    rm -rf "$work" "$prefix"
    mkdir -p "$work"
    check_contents "$1"
    check_signing "$1"
    expect "A second build of the commit, in another folder, gives the same packages byte for byte" is_reproducible "$1"

    trap stop_environment EXIT
    trap 'exit 130' INT TERM
    WINEDLLOVERRIDES="$WINEDLLOVERRIDES;winemenubuilder.exe=" # which would write into this machine's menus
    start_display
    prepare_wine
    check_examples "$work/zip/Telvix-$version"
    check_installers "$1" "$work/zip/Telvix-$version"
    printf '%d passed, %d failed\n' $passed $failed
    [ $failed -eq 0 ]
}

# is_reproducible DIRECTORY: clones the commit and builds it again, later and elsewhere.
is_reproducible() {
    [ -z "$(git -C "$root" status --porcelain)" ] || { echo "files differ from the commit"; return 1; }
    rm -rf "$work/clone"
    git clone -q "$root" "$work/clone" || return 1
    [ -z "$sign" ] || { mkdir -p "$work/clone/build" && cp -r "$root/build/certificate" "$work/clone/build/"; }
    env -u SOURCE_DATE_EPOCH TZ=Asia/Shanghai "$work/clone/package" ${sign:+--sign} || return 1
    diff "$1/SHA256SUMS" "$work/clone/build/package/SHA256SUMS" && rm -rf "$work/clone"
}
