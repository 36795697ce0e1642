# shellcheck shell=bash
# The contents of the packages, without Wine. Sourced by check.sh.

# The zip's files, below its one folder.
expected_files() {
    local architecture guide
    printf '%s\n' CHANGELOG.md include/Telvix.h
    for architecture in x64 x86; do printf '%s\n' $architecture/Telvix.dll $architecture/Telvix.manifest; done
    for guide in "${guides[@]}"; do printf 'docs/%s.html\n' "${guide%.md}"; done
    git -C "$root" ls-files examples
}

check_contents() {
    local zip=$1/Telvix-$version.zip unzipped=$work/zip/Telvix-$version installer
    expect "The sums are those of the packages" sums_hold "$1"
    expect "The zip can be unpacked" unzip -q "$zip" -d "$work/zip"
    expect "The zip holds the modules, manifests, guides, declarations and examples, and nothing else" \
        diff <(expected_files | sort) <(cd "$unzipped" && find . -type f | sed 's,^\./,,' | sort)
    expect "Every file of the zip has the time of the commit" times_are_the_commits "$unzipped"
    expect "Every link of the guides leads to a page, and their pictures are inside" guides_are_whole "$unzipped/docs"
    expect "The guides have their tables" grep -q '<table>' "$unzipped/docs/host-contract.html"
    expect "The notes say what the change log says of this version" grep -q '^### ' "$1/Telvix-$version-notes.md"
    for installer in "$1"/*.msi; do
        expect "${installer##*/} holds the files of the zip" installer_holds "$installer" "$unzipped"
        expect "${installer##*/} is for its architecture and has the time of the commit" summary_is_right "$installer"
    done
    expect "No two installers have the same package, product or component codes, apart from shared keys" codes_differ "$1"
}

sums_hold() {
    [ "$(wc -l <"$1/SHA256SUMS")" -eq 5 ] && (cd "$1" && sha256sum --check --quiet SHA256SUMS)
}

times_are_the_commits() {
    local even=$(((SOURCE_DATE_EPOCH + 1) / 2 * 2)) other # a zip has even seconds, and zip rounds up
    other=$(find "$1" -type f -printf '%Ts %P\n' | grep -v "^$even ")
    [ -z "$other" ] || { echo "$other"; return 1; }
}

guides_are_whole() {
    local page target status=0
    for page in "$1"/*.html; do
        ! grep -o 'src="images[^"]*"' "$page" || { echo "in ${page##*/}"; status=1; }
        for target in $(grep -o 'href="[^"#:]*["#]' "$page" | sed -e 's/^href="//' -e 's/["#]$//'); do
            [ -f "$1/$target" ] || { echo "${page##*/} refers to $target"; status=1; }
        done
    done
    return $status
}

# installer_holds INSTALLER FOLDER
installer_holds() {
    local architecture=x64 file folder=$work/extracted
    [[ $1 == *x64* ]] || architecture=x86
    rm -rf "$folder"
    msiextract -C "$folder" "$1" >/dev/null || return 1
    [ "$(find "$folder" -type f | wc -l)" -eq $((1 + ${#guides[@]})) ] || { find "$folder" -type f; return 1; }
    for file in "$architecture/Telvix.dll" "${guides[@]/#/docs/}"; do
        file=${file/%.md/.html}
        cmp "$2/$file" "$(find "$folder" -type f -path "*/$file")" || return 1
    done
}

summary_is_right() {
    local template='x64;1033' summary
    [[ $1 == *x64* ]] || template='Intel;1033'
    summary=$(msiinfo suminfo "$1")
    printf '%s\n' "$summary"
    grep -qF "Template: $template" <<<"$summary" &&
        grep -qF "Created: $(date -d "@$SOURCE_DATE_EPOCH" '+%a %b %e %H:%M:%S %Y')" <<<"$summary" &&
        grep -qF "Last saved: $(date -d "@$SOURCE_DATE_EPOCH" '+%a %b %e %H:%M:%S %Y')" <<<"$summary"
}

codes_differ() {
    local installer codes
    codes=$(for installer in "$1"/*.msi; do
        msiinfo suminfo "$installer" | grep -oE '\{[0-9A-F-]{36}\}'
        msiinfo export "$installer" Property | awk '/^(ProductCode|UpgradeCode)/ { print $2 }'
        msiinfo export "$installer" Component | awk 'NR > 3 && $1 != "Shared" { print $2 }'
    done | tr -d '\r')
    [ "$(wc -l <<<"$codes")" -gt 20 ] || return 1
    [ -z "$(sort <<<"$codes" | uniq -d)" ] || { sort <<<"$codes" | uniq -d; return 1; }
}

# The signing step works on copies with a certificate made for the occasion, unless the packages are signed.
check_signing() {
    local file certificate=$work/certificate
    if [ -n "${TELVIX_SIGN:-}" ]; then
        echo "The signatures are those of the certificate in TELVIX_SIGN; they are not verified here"
        return
    fi
    [ -z "$sign" ] || certificate=$root/build/certificate
    [ -n "$sign" ] || start_signing "$certificate"
    for file in "$work/zip/Telvix-$version"/x64/Telvix.dll "$work/zip/Telvix-$version"/x86/Telvix.dll "$1"/*.msi; do
        expect "The signature of ${file#"$work/zip/Telvix-$version/"} holds, and breaks when the file changes" \
            signature_holds "$file" "$certificate/test.pem"
    done
    [ -n "$sign" ] || signing_options=()
}

signature_holds() {
    local copy=$work/signed-${1##*/}
    cp "$1" "$copy"
    [ -n "$sign" ] || sign "$copy"
    osslsigncode verify -CAfile "$2" -in "$copy" || return 1
    printf 'x' | dd of="$copy" bs=1 seek=$(($(stat -c %s "$1") / 2)) conv=notrunc 2>/dev/null
    ! osslsigncode verify -CAfile "$2" -in "$copy"
}
