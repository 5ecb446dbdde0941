# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# An X server without a screen, a window manager on it, and a way to look at it. Only whoever started it gets in: the X server
# asks for a cookie and the VNC server for a password, both made anew. Sourced, never run.

virtual_display_ids=()
virtual_display_folder=$(mktemp -d)

has_ended() {
    local line
    # What has ended and was not waited for yet is a zombie.
    { read -r line <"/proc/$1/stat"; } 2>/dev/null || return 0
    [[ $line == *") Z "* ]]
}

# An X server without clients may sleep over the signal that ends it for ten minutes: it is sent until it is heard.
end_process() {
    local left
    for ((left = 100; left > 0; left--)); do
        ! has_ended "$1" || break
        kill -TERM "$1" 2>/dev/null || break
        sleep 0.02
    done
    ((left > 0)) || kill -KILL "$1" 2>/dev/null || true
    wait "$1" 2>/dev/null || true
}

end_virtual_display() {
    local id
    # The last started goes first: the X server ends after those that draw on it.
    for ((id = ${#virtual_display_ids[@]} - 1; id >= 0; id--)); do
        end_process "${virtual_display_ids[id]}"
    done
    rm -rf -- "$virtual_display_folder"
}
trap end_virtual_display EXIT

# until_true SECONDS COMMAND...: asks every 20 ms.
until_true() {
    local left=$(($1 * 50))
    shift
    until "$@"; do
        ((left-- > 0)) || return 1
        sleep 0.02
    done
}

# give_cookie FILE DISPLAY COOKIE: writes an authority file that nobody else reads. The cookie is on no command line.
give_cookie() {
    (umask 077 && : >"$1" && printf 'add %s . %s\n' "$2" "$3" | xauth -q -f "$1" source -)
}

# start_virtual_display WIDTHxHEIGHT: sets DISPLAY and XAUTHORITY.
start_virtual_display() {
    local number=$virtual_display_folder/number cookie
    : >"$number"
    cookie=$(od -An -N16 -tx1 /dev/urandom | tr -d ' \n')
    # The server does not look at the display that the cookie is for, and does not know its own yet.
    give_cookie "$virtual_display_folder/server_cookie" :0 "$cookie"
    Xvfb -displayfd 3 -screen 0 "${1}x24" -nolisten tcp -noreset -auth "$virtual_display_folder/server_cookie" \
        3>"$number" >"$virtual_display_folder/xvfb.log" 2>&1 &
    virtual_display_ids+=($!)
    until_true 20 test -s "$number" || stop "The virtual display did not start: $(cat "$virtual_display_folder/xvfb.log")"
    DISPLAY=:$(<"$number")
    XAUTHORITY=$virtual_display_folder/cookie
    give_cookie "$XAUTHORITY" "$DISPLAY" "$cookie"
    export DISPLAY XAUTHORITY
    unset WAYLAND_DISPLAY
    if [[ -z ${XDG_RUNTIME_DIR:-} ]]; then
        # The folder is open to its owner alone, as it must be.
        export XDG_RUNTIME_DIR=$virtual_display_folder
    fi
    openbox --sm-disable --startup "touch $virtual_display_folder/managed" >"$virtual_display_folder/openbox.log" 2>&1 &
    virtual_display_ids+=($!)
    until_true 20 test -e "$virtual_display_folder/managed" || stop "The window manager did not start."
}

# new_password: eight letters, which is all that VNC looks at, without those that are easily taken for others.
new_password() {
    od -An -N8 -tu1 -v -w1 /dev/urandom | awk -v letters=abcdefghijkmnpqrstuvwxyz23456789 \
        'length(word) < 8 { word = word substr(letters, $1 % length(letters) + 1, 1) } END { print word }'
}

# start_vnc: shows the virtual display on the loopback address alone, to whoever knows the password; sets vnc_port and
# vnc_password.
start_vnc() {
    local log=$virtual_display_folder/x11vnc.log
    : >"$log"
    vnc_password=$(new_password)
    (umask 077 && printf '%s\n' "$vnc_password" >"$virtual_display_folder/password")
    x11vnc -norc -display "$DISPLAY" -auth "$XAUTHORITY" -localhost -listen 127.0.0.1 -noipv6 -no6 -autoport 5900 -forever \
        -shared -passwdfile "$virtual_display_folder/password" -quiet >"$log" 2>&1 </dev/null &
    virtual_display_ids+=($!)
    until_true 20 grep -q '^PORT=' "$log" || stop "The virtual display cannot be looked at: $(cat "$log")"
    # shellcheck disable=SC2034
    vnc_port=$(sed -n 's/^PORT=//p' "$log" | head -n 1)
}
