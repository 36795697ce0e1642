# shellcheck shell=bash
# Puts together what the packages contain: both modules with their manifests, the guides as HTML, the examples,
# the C++ declarations. Sourced after product.sh.

guides=(user-guide.md user-guide.zh.md host-contract.md)

# guide_page MARKDOWN: the guide as one HTML page, its pictures inside.
guide_page() {
    local language=en
    [ -f "$1" ] || return 1
    [[ $1 != *.zh.md ]] || language=zh
    printf '<!DOCTYPE html>\n<html lang="%s">\n<head>\n<meta charset="utf-8">\n' "$language"
    printf '<meta name="viewport" content="width=device-width">\n'
    printf '<title>Telvix %s: %s</title>\n<style>\n' "$version" "$(sed -n 's/^# //p;T;q' "$1")"
    cat "$root/packaging/guide.css"
    printf '</style>\n</head>\n<body>\n'
    cmark-gfm --extension table "$1" | sed -E 's/(href="[^":]*)\.md(["#])/\1.html\2/g' |
        with_pictures_inside "${1%/*}" || return 1
    printf '</body>\n</html>\n'
}

# with_pictures_inside DIRECTORY: the page on standard input, with the text of each picture for its name.
with_pictures_inside() {
    local line picture
    while IFS= read -r line; do
        while [[ $line =~ src=\"(images/[^\"]+)\" ]]; do
            picture=${BASH_REMATCH[1]}
            [ -f "$1/$picture" ] || return 1
            line=${line/"src=\"$picture\""/"src=\"data:image/png;base64,$(base64 -w0 "$1/$picture")\""}
        done
        printf '%s\n' "$line"
    done
}

# manifest ARCHITECTURE: the registration-free manifest of that architecture's module.
manifest() {
    local processor=$1
    [ "$1" != x64 ] || processor=amd64
    sed -e "s/@VERSION@/$version/" -e "s/@LIBRARY_VERSION@/$library_version/" -e "s/@PROCESSOR@/$processor/" \
        -e "s/@PROGID@/$progid/" -e "s/@CLSID@/$clsid/" -e "s/@IID@/$iid/" -e "s/@LIBID@/$libid/" \
        -e "s/@MARSHALER@/$marshaler/" "$root/packaging/Telvix.manifest.in"
}

# stage DIRECTORY: everything, as the zip has it.
stage() {
    local architecture guide
    rm -rf "$1"
    mkdir -p "$1/docs" "$1/include"
    for architecture in x64 x86; do
        mkdir -p "$1/$architecture"
        cp "$root/build/$architecture/Telvix.dll" "$1/$architecture/" || fail "the module ($architecture) is not built"
        sign "$1/$architecture/Telvix.dll"
        manifest "$architecture" >"$1/$architecture/Telvix.manifest"
    done
    for guide in "${guides[@]}"; do
        guide_page "$root/docs/$guide" >"$1/docs/${guide%.md}.html" || fail "the guide $guide could not be converted"
    done
    # The header that widl writes, with the platform's declaration of a font for widl's own.
    sed 's/<automation_base.h>/<olectl.h>/' "$root/build/x64/src/entry/idl/TelvixIdl.h" >"$1/include/Telvix.h"
    cp -r "$root/examples" "$root/CHANGELOG.md" "$1/"
    find "$1" -type d -exec chmod 755 {} + -o -exec chmod 644 {} +
    stamp "$1"
}

# pack DIRECTORY FILE: the zip, its files in the order of their names.
pack() {
    rm -f "$2"
    (cd "${1%/*}" && find "${1##*/}" -type f | sort | zip -q -X -9 -@ "$2") || fail "the zip could not be made"
}
