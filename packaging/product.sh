# shellcheck shell=bash
# The facts that all packages share: the version, the time of the commit, the identifiers of the type library.
# Sourced, with $root naming the checkout.

version=$(sed -n 's/^project(Telvix VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
library_version=${version%.*}
progid=TelvixOutlook.ClsSynOutlook
marshaler={00020424-0000-0000-C000-000000000046} # OLE Automation's: serves every interface of a type library

packaging_packages=(wixl msitools osslsigncode openssl cmark-gfm zip unzip)
checking_packages=(mono-mcs python3)

# uuid_in_library KEYWORD: the identifier that the type library's description gives to its library, interface or
# coclass.
uuid_in_library() {
    sed 's/^ *//' "$root/src/entry/Telvix.idl.in" | tr '\n' ' ' |
        grep -oiE "uuid\([0-9A-F-]{36}\)[^]]*\] *$1 " | tail -n 1 | grep -oiE '[0-9A-F-]{36}' | tr a-f A-F | sed 's/.*/{&}/'
}
libid=$(uuid_in_library library)
iid=$(uuid_in_library interface)
clsid=$(uuid_in_library coclass)

# uuid_of NAME: an identifier made from a name, the same on every machine (a version 5 UUID in form).
uuid_of() {
    local sum
    sum=$(printf 'telvix %s' "$1" | sha1sum | tr a-f A-F)
    printf '{%s-%s-5%s-8%s-%s}' "${sum:0:8}" "${sum:8:4}" "${sum:13:3}" "${sum:17:3}" "${sum:20:12}"
}

# Every time stamp in the packages is the commit's, in UTC, whatever the machine's clock and time zone.
fix_time_and_names() {
    SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct 2>/dev/null)}
    [ -n "$SOURCE_DATE_EPOCH" ] || fail "no commit gives the time of the build: set SOURCE_DATE_EPOCH"
    export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C.UTF-8
    umask 022
}

stamp() {
    find "$@" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
}

# tell_origin: what a package is built from; only a tag makes a release.
release_tag=
tell_origin() {
    release_tag=$(git -C "$root" describe --tags --exact-match --match 'v*' 2>/dev/null)
    [ -z "$release_tag" ] || [ "$release_tag" = "v$version" ] ||
        fail "the tag is $release_tag, but the version in CMakeLists.txt is $version"
    [ -n "$release_tag" ] || echo "Not a release: the commit has no tag v$version"
    [ -z "$(git -C "$root" status --porcelain 2>/dev/null)" ] || echo "Not a release: files differ from the commit"
}

# section_of_change_log NAME: the text below a version's heading.
section_of_change_log() {
    awk -v heading="## [$1]" '
        /^## / { inside = index($0, heading) == 1; next }
        inside' "$root/CHANGELOG.md" | sed -e '/./,$!d'
}

# release_notes: what the change log says about this version; before its release, what it says is to come.
release_notes() {
    local notes
    notes=$(section_of_change_log "$version")
    [ -n "$notes" ] || [ -n "$release_tag" ] || notes=$(section_of_change_log Unreleased)
    [ -n "$notes" ] || fail "CHANGELOG.md has no section [$version]"
    printf '# Telvix %s\n\n%s\n' "$version" "$notes"
}
