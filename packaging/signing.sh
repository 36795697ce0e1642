# shellcheck shell=bash
# Authenticode signatures by osslsigncode. Sourced after product.sh.
#
# TELVIX_SIGN holds osslsigncode's options for the real certificate, for example
#   -pkcs12 /media/key/quenlar.p12 -readpass /media/key/password -ts http://timestamp.example
# (options are separated by blanks). Without it a test certificate is made, which no machine trusts.

signing_options=() # empty: nothing is signed

# start_signing DIRECTORY: uses the certificate of the environment, or a test certificate kept in the directory.
start_signing() {
    if [ -n "${TELVIX_SIGN:-}" ]; then
        read -ra signing_options <<<"$TELVIX_SIGN"
        return
    fi
    mkdir -p "$1"
    [ -f "$1/test.pem" ] || make_test_certificate "$1"
    signing_options=(-certs "$1/test.pem" -key "$1/test.key")
    echo "Signing with a test certificate (TELVIX_SIGN is not set)"
}

make_test_certificate() {
    openssl req -x509 -newkey rsa:2048 -nodes -sha256 -days 3650 -subj '/CN=Telvix test certificate - do not trust' \
        -addext extendedKeyUsage=codeSigning -keyout "$1/test.key" -out "$1/test.pem" >"$1/test.log" 2>&1 ||
        fail "the test certificate could not be made (see $1/test.log)"
}

# sign FILE: in its place, with the commit's time, so that signed packages are reproducible too; a time stamp
# server's answer is the one thing that is not.
sign() {
    [ ${#signing_options[@]} -gt 0 ] || return 0
    local log=$root/build/signing.log
    osslsigncode sign "${signing_options[@]}" -h sha256 -time "$SOURCE_DATE_EPOCH" \
        -n "QUENLAR Sales System - Synchronize Outlook" -in "$1" -out "$1.signed" >"$log" 2>&1 && mv "$1.signed" "$1" ||
        { cat "$log" >&2; fail "${1##*/} could not be signed"; }
}
