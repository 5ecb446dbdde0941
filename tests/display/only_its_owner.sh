#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The virtual display lets in whoever has its cookie or its password, and nobody else: asked by an X client and a VNC client.
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/../../tools/steps.sh"
# shellcheck source=tools/virtual_display.sh
source "$root/tools/virtual_display.sh"

start_virtual_display 640x480
start_vnc
cd "$virtual_display_folder"

gets_in() {
    "$@" >client.log 2>&1 </dev/null
}
must() {
    local what=$1
    shift
    gets_in "$@" || stop "$what: refused, $(tail -n 3 client.log)"
    say "$what: gets in"
}
must_not() {
    local what=$1
    shift
    ! gets_in "$@" || stop "$what: gets in"
    say "$what: refused"
}

# A client that asks for nothing is seen to fail by what it says, not by an accident.
refusal_says() {
    grep -qiE "$1" client.log || stop "refused for another reason: $(cat client.log)"
}

must "X with the cookie" xprop -root _NET_SUPPORTING_WM_CHECK
must_not "X without a cookie" env XAUTHORITY=/dev/null xprop -root _NET_SUPPORTING_WM_CHECK
refusal_says 'authorization|unable to open display'
give_cookie wrong_cookie "$DISPLAY" 00112233445566778899aabbccddeeff
must_not "X with another cookie" env XAUTHORITY="$PWD/wrong_cookie" xprop -root _NET_SUPPORTING_WM_CHECK

snapshot() {
    local password=$1
    rm -f picture.jpg
    x11vnc -storepasswd "$password" stored >/dev/null 2>&1
    printf 'vncsnapshot -quiet -passwd stored 127.0.0.1:%s picture.jpg' "$((vnc_port - 5900))"
}
# shellcheck disable=SC2046 # words without blanks
must "VNC with the password" $(snapshot "$vnc_password")
[[ -s picture.jpg ]] || stop "VNC showed nothing."
# shellcheck disable=SC2046
must_not "VNC with another password" $(snapshot "$(new_password)")
refusal_says 'authentication failed|password'
must_not "VNC without a password" vncsnapshot -quiet "127.0.0.1:$((vnc_port - 5900))" picture.jpg
refusal_says "authentication|password"
[[ $(new_password) != "$(new_password)" && ${#vnc_password} == 8 ]] || stop "The password is no new one."
for secret in cookie server_cookie password; do
    [[ $(stat -c %a "$secret") == 600 ]] || stop "$secret can be read by others."
done
say "Nobody but its owner gets in"
