# shellcheck shell=bash
# The registry values of the component as lines "key|name|value", from an installer's table and from the registry
# of Wine's prefix, alike in both: keys in lower case, below Software\Classes; the module as MODULE, its folder as
# FOLDER. Sourced after product.sh.

# like_each_other: for lines with the paths of an installer's table or of a registry.
like_each_other() {
    sed -E -e 's/\|(\[#Telvix\.dll\]|[^|]*\\Telvix\.dll)$/|MODULE/' \
        -e 's/(\\helpdir\|\|)(\[INSTALLDIR\]|[A-Za-z]:\\.*)$/\1FOLDER/' -e 's/\|$/|/' | sort -u
}

# values_of_installer FILE: the table of the registry, without the key that only Wine needs twice.
values_of_installer() {
    msiinfo export "$1" Registry | tr -d '\r' | awk -F '\t' '
        NR > 3 { sub(/^Software\\Classes\\/, "", $3); print tolower($3) "|" $4 "|" $5 }' | like_each_other
}

# values_in_registry KEY: what is below a key of classes, for example HKEY_LOCAL_MACHINE\Software\Classes.
values_in_registry() {
    local name
    for name in "$progid" "CLSID\\$clsid" "Interface\\$iid" "TypeLib\\$libid"; do
        exported_key "$1\\$name"
    done | values_in_export "$1\\" | like_each_other
}

# exported_key KEY: the key and those below it, as regedit writes them; nothing for a key that is absent.
exported_key() {
    local file=$WINEPREFIX/drive_c/telvix-export.reg
    rm -f "$file"
    timeout 60 wine regedit /E 'C:\telvix-export.reg' "$1" >/dev/null 2>&1 </dev/null
    [ ! -f "$file" ] || iconv -f UTF-16 -t UTF-8 "$file" | tr -d '\r'
    rm -f "$file"
}

# values_in_export PREFIX: the values of an export, keys without the prefix.
values_in_export() {
    PREFIX=$1 awk '
        /^\[/ { key = tolower(substr($0, 2 + length(ENVIRON["PREFIX"]), length($0) - 2 - length(ENVIRON["PREFIX"]))); next }
        /^@="/ { value = substr($0, 4) }
        /^"[^"]*"="/ { name = substr($0, 2, index(substr($0, 2), "\"") - 1); value = substr($0, length(name) + 5) }
        /^@=|^"/ {
            sub(/"$/, "", value); gsub(/\\\\/, "\\", value)
            print key "|" name "|" value
            name = ""
        }'
}
