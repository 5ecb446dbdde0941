#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Tries in a Debian that has nothing but its base system what a newcomer would try. Needs root and debootstrap.
#
#   tools/fresh_debian.sh [test|run]               from a fresh clone; both without an argument
#   tools/fresh_debian.sh package FILE.deb         installs it, opens circuits with it, removes it, and looks for traces
#   tools/fresh_debian.sh portable FILE.tar.xz     starts it as somebody without rights, unpacked where nobody may write, and prints
#
# The packages come from where this machine's own come from, through the same proxy. SUITE=... chooses another Debian that is to
# be had there, FOLDER=/var/tmp/velmor-fresh where all of it goes. Pictures of what was shown are left in FOLDER.
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

suite=${SUITE:-$(. /etc/os-release && echo "${VERSION_CODENAME:-}")}
folder=${FOLDER:-/var/tmp/velmor-fresh}
base=$folder/base-$suite
tree=$folder/tree
((EUID == 0)) || stop "tools/fresh_debian.sh needs root."
command -v debootstrap >/dev/null || stop "tools/fresh_debian.sh needs the package debootstrap."

# server_of SUITE: where the machine's package manager has it from, and the list that says so.
server_of() {
    # shellcheck disable=SC2016  # apt-get expands it
    apt-get indextargets --format '$(CREATED_BY)|$(RELEASE)|$(CODENAME)|$(COMPONENT)|$(REPO_URI)|$(SOURCESENTRY)' |
        awk -F'|' -v suite="$1" \
            '$1 == "Packages" && $4 == "main" && ($2 == suite || $3 == suite) && !seen++ { print $5 "|" $6 }'
}

# ask_package_manager: sets $server, $keyring and the proxies as the package manager has them, in whichever form it was told.
ask_package_manager() {
    local entry http='' https=''
    # A server has other releases of the same Debian, too.
    IFS='|' read -r server entry < <(server_of "$suite" | grep . || server_of "$(. /etc/os-release && echo "$VERSION_CODENAME")") ||
        stop "The package manager of this machine knows no server of $suite. Try: apt-get update"
    keyring=$(sed -n 's/^[^#]*signed-by *[:=] *\([^] ]*\).*/\1/ip' "${entry%:*}" | head -n 1)
    # What stands for the keys may be a fingerprint, or nothing.
    [[ -f $keyring ]] || keyring=''
    eval "$(apt-config shell http Acquire::http::Proxy https Acquire::https::Proxy)"
    proxies=()
    [[ -z ${http:=${http_proxy:-}} || $http == DIRECT ]] || proxies+=("http_proxy=$http")
    [[ -z ${https:=${https_proxy:-}} || $https == DIRECT ]] || proxies+=("https_proxy=$https")
    [[ -z ${no_proxy:-} ]] || proxies+=("no_proxy=$no_proxy")
}

make_base() {
    [[ ! -e $folder/base-$suite.done ]] || return 0
    say "Making a base system ($suite)"
    mkdir -p "$folder"
    rm -rf --one-file-system "$base"
    env "${proxies[@]}" debootstrap --variant=minbase ${keyring:+"--keyring=$keyring"} "$suite" "$base" "$server" \
        >"$folder/debootstrap.log" 2>&1 || stop "debootstrap failed, see $folder/debootstrap.log"
    # A server of one's own is trusted in there as it is out here.
    [[ -z $keyring ]] || cp -L "$keyring" "$base/etc/apt/trusted.gpg.d/"
    if [[ $server == https:* ]]; then
        mkdir -p "$base/etc/ssl/certs"
        cp -L /etc/ssl/certs/ca-certificates.crt "$base/etc/ssl/certs/"
    fi
    touch "$folder/base-$suite.done"
}

make_tree() {
    say "Making a fresh tree"
    rm -rf --one-file-system "$tree"
    cp -a "$base" "$tree"
    [[ ${1:-} != clone ]] || git clone -q "$root" "$tree/root/velmor"
    cp -L /etc/resolv.conf "$tree/etc/resolv.conf"
}

# inside COMMAND...: in the tree, with mounts and processes of its own that end with the command. For a subshell alone.
inside() {
    # shellcheck disable=SC2016
    exec unshare --mount --pid --fork --kill-child bash -c '
        mount --make-rprivate / && mount -t proc proc "$1/proc" && mount --rbind /dev "$1/dev" &&
            mount -t tmpfs tmpfs "$1/dev/shm" || exit
        tree=$1
        shift
        exec chroot "$tree" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@"' \
        bash "$tree" "${proxies[@]}" "$@"
}

timed() {
    local started=$SECONDS
    (inside "$@") </dev/null
    say "$((SECONDS - started)) seconds: ${*: -1}"
}

try_test() {
    make_tree clone
    timed /root/velmor/test
    timed /root/velmor/test
}

# The X server in the tree answers out here too, to whoever has its cookie: the network is shared.
windows_shown() {
    local number cookie
    number=$(find "$tree/tmp/.X11-unix" -name 'X*' -printf '%f\n' 2>/dev/null | tr -dc 0-9)
    cookie=$(find "$tree/tmp" -maxdepth 2 -name cookie 2>/dev/null | head -n 1)
    [[ -n $number && -n $cookie ]] || return 1
    local -a there=(env "DISPLAY=:$number" "XAUTHORITY=$cookie")
    "${there[@]}" xdotool search --onlyvisible --name 'no sabe vivir' >/dev/null 2>&1 && sleep 1 &&
        "${there[@]}" import -silent -window root "$folder/run.png"
}

try_run() {
    make_tree clone
    local started=$SECONDS id
    inside /root/velmor/run </dev/null >"$folder/run.log" 2>&1 &
    id=$!
    trap 'kill -KILL "$id" 2>/dev/null || true' EXIT
    until windows_shown; do
        kill -0 "$id" 2>/dev/null || stop "./run ended without a window, see $folder/run.log"
        sleep 1
    done
    say "$((SECONDS - started)) seconds: from nothing to the window, see $folder/run.png"
    grep 'VNC viewer' "$folder/run.log" || stop "./run did not say where the program is shown"
    kill -KILL "$id"
    wait "$id" 2>/dev/null || true
    trap - EXIT
}

packages_inside() {
    # shellcheck disable=SC2016  # dpkg-query expands it
    chroot "$tree" dpkg-query -W -f '${Package}\n' | sort
}

# every_file: what the tree holds, but for what a package manager notes for itself.
every_file() {
    find "$tree" -xdev \( -path "$tree/var/lib/apt" -o -path "$tree/var/lib/dpkg" -o -path "$tree/var/cache" -o \
        -path "$tree/var/log" -o -path "$tree/tmp" -o -path "$tree/home" \) -prune -o -printf '%P\n' | sort
}

# start_inside NAME TITLE COMMAND...: starts it in the tree as a student on a virtual display out here, waits for a window of that
# title and takes the picture NAME.png.
start_inside() {
    local name=$1 title=$2 started shown_after
    shift 2
    install -D -m 644 "$XAUTHORITY" "$tree/tmp/cookie"
    # Each start has processes of its own, numbered alike: the mark of one that was killed would pass for a running one's.
    rm -rf "$tree/tmp/runtime-student"
    started=$(date +%s%N)
    (inside runuser -u student -- env HOME=/home/student DISPLAY="$DISPLAY" XAUTHORITY=/tmp/cookie "$@") </dev/null \
        >"$folder/$name.log" 2>&1 &
    shown_id=$!
    virtual_display_ids+=("$shown_id")
    until_true 60 xdotool search --onlyvisible --name "$title" >/dev/null 2>&1 ||
        stop "No window '$title' came of: $*, see $folder/$name.log"
    shown_after=$((($(date +%s%N) - started) / 1000000))
    sleep 2
    import -silent -window root "$folder/$name.png"
    say "$shown_after ms to the window of: ${*##*/}, see $folder/$name.png"
}

end_inside() {
    kill -KILL "$shown_id" 2>/dev/null || true
    wait "$shown_id" 2>/dev/null || true
}

show_inside() {
    start_inside "$@"
    end_inside
}

# A student with a circuit in his home, and without rights.
add_student() {
    (inside useradd -m student) </dev/null
    printf '%s\r\n' 10 1 20 100 100 | install -m 644 /dev/stdin "$tree/home/student/bajo.BCC"
    chown -R --reference="$tree/home/student" "$tree/home/student"
}

virtual_display_out_here() {
    # shellcheck source=tools/virtual_display.sh
    source "$root/tools/virtual_display.sh"
    start_virtual_display 1366x768
}

install_inside() {
    (inside env DEBIAN_FRONTEND=noninteractive apt-get -q -y install "$@") </dev/null \
        >>"$folder/install.log" 2>&1 || stop "Installing failed, see $folder/install.log"
}

try_package() {
    local package=$1 before packages started
    make_tree
    add_student
    (inside apt-get -q update) </dev/null >"$folder/install.log" 2>&1
    # What every desktop has: it tells a file's type, and which program opens it; and what starts the machine, which is never removed
    # again once it is there.
    install_inside --no-install-recommends desktop-file-utils libglib2.0-bin shared-mime-info systemd-sysv
    before=$(every_file)
    packages=$(packages_inside)
    ! chroot "$tree" sh -c 'command -v cc g++ gcc' || stop "The tree has a compiler."
    install -m 644 "$package" "$tree/tmp/velmor.deb"
    started=$SECONDS
    install_inside /tmp/velmor.deb
    say "$((SECONDS - started)) seconds to install, $(packages_inside |
        comm -13 <(echo "$packages") - | wc -l) packages; $(grep -E '^(Need to get|After this)' "$folder/install.log" | tail -n 2 | xargs)"
    (inside velmor --version) </dev/null
    (inside velmor-walk /dev/stdin) <<<'new Form2' | tail -n 1
    virtual_display_out_here
    show_inside package 'no sabe vivir' velmor /home/student/bajo.BCC
    show_inside double-click 'no sabe vivir' sh -c 'gio open /home/student/bajo.BCC && sleep 60'
    say "Removing"
    (inside env DEBIAN_FRONTEND=noninteractive apt-get -q -y purge velmor) </dev/null >>"$folder/install.log" 2>&1
    # What the base system suggests is not kept for its sake.
    (inside env DEBIAN_FRONTEND=noninteractive apt-get -q -y autoremove --purge -o APT::AutoRemove::RecommendsImportant=false \
        -o APT::AutoRemove::SuggestsImportant=false) </dev/null >>"$folder/install.log" 2>&1
    diff <(echo "$packages") <(packages_inside) || stop "Packages stay behind."
    every_file >"$folder/after.list"
    diff <(echo "$before") "$folder/after.list" | grep '^>' >"$folder/traces.list" || true
    ! grep -i velmor "$folder/traces.list" || stop "The package leaves traces."
    say "Removed without a trace; other packages left $(wc -l <"$folder/traces.list") files of their own"
}

print_dialog_is_there() {
    xdotool search --onlyvisible --name '^(Imprimir|Print)' >/dev/null 2>&1
}

printed_inside() {
    find "$tree/home/student" -name '*.pdf' -size +1k | grep -q .
}

# A guide, from the sheet that stands in front to a file in the student's home.
print_inside() {
    xdotool key ctrl+g
    # The editor opens in its own time; before that the key is nobody's.
    for _ in {1..30}; do
        xdotool key ctrl+p
        ! until_true 2 print_dialog_is_there || break
    done
    print_dialog_is_there || stop "The dialog for printing does not come, see $folder/portable.log"
    import -silent -window root "$folder/print.png"
    xdotool key Return
    until_true 60 printed_inside || stop "Nothing was printed, see $folder/print.png"
    say "Printed $(find "$tree/home/student" -name '*.pdf' -printf '%f, %k KB\n')"
}

try_portable() {
    local archive=$1 started
    make_tree
    add_student
    tar -xJf "$archive" -C "$tree/opt"
    chmod -R a-w "$tree/opt"
    ! find "$tree" -xdev -name 'libQt*' -not -path "$tree/opt/*" | grep . || stop "The tree has Qt."
    virtual_display_out_here
    started=/opt/$(ls "$tree/opt")/velmor
    start_inside portable 'no sabe vivir' "$started" /home/student/bajo.BCC
    print_inside
    end_inside
    show_inside portable-again 'no sabe vivir' "$started"
    # A stick with the FAT file system knows no programs.
    find "$tree/opt" -type f -exec chmod a-x {} +
    show_inside portable-stick 'no sabe vivir' sh "$started"
}

ask_package_manager
make_base
case ${1:-both} in
test) try_test ;;
run) try_run ;;
package) try_package "$(realpath -- "$2")" ;;
portable) try_portable "$(realpath -- "$2")" ;;
both)
    try_test
    try_run
    ;;
*) stop "tools/fresh_debian.sh knows: test, run, package FILE, portable FILE, or nothing for test and run" ;;
esac
