#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Tries ./test and ./run from a fresh clone in a Debian that has nothing but its base system. Needs root and debootstrap.
#
#   tools/fresh_debian.sh [test|run]      both without an argument
#
# The packages come from where this machine's own come from, through the same proxy. SUITE=... chooses another Debian that the
# machine's package manager knows, FOLDER=/var/tmp/velmor-fresh where all of it goes. A picture of the virtual display that ./run
# made is left in FOLDER/run.png.
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

suite=${SUITE:-$(. /etc/os-release && echo "${VERSION_CODENAME:-}")}
folder=${FOLDER:-/var/tmp/velmor-fresh}
base=$folder/base-$suite
tree=$folder/tree
((EUID == 0)) || stop "tools/fresh_debian.sh needs root."
command -v debootstrap >/dev/null || stop "tools/fresh_debian.sh needs the package debootstrap."

# ask_package_manager: sets $server, $keyring and the proxies as the package manager has them, in whichever form it was told.
ask_package_manager() {
    local entry http='' https=''
    # shellcheck disable=SC2016  # apt-get expands it
    IFS='|' read -r server entry < <(
        apt-get indextargets --format '$(CREATED_BY)|$(RELEASE)|$(CODENAME)|$(COMPONENT)|$(REPO_URI)|$(SOURCESENTRY)' |
            awk -F'|' -v suite="$suite" \
                '$1 == "Packages" && $4 == "main" && ($2 == suite || $3 == suite) && !seen++ { print $5 "|" $6 }'
    ) || stop "The package manager of this machine knows no server of $suite. Try: apt-get update"
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
    say "Making a fresh tree with a fresh clone"
    rm -rf --one-file-system "$tree"
    cp -a "$base" "$tree"
    git clone -q "$root" "$tree/root/velmor"
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
    make_tree
    timed /root/velmor/test
    timed /root/velmor/test
}

# The X server in the tree answers out here too: the network is shared.
windows_shown() {
    local number
    number=$(find "$tree/tmp/.X11-unix" -name 'X*' -printf '%f\n' 2>/dev/null | tr -dc 0-9)
    [[ -n $number ]] && DISPLAY=:$number xdotool search --onlyvisible --name 'Velmor' >/dev/null 2>&1 &&
        sleep 1 && DISPLAY=:$number import -silent -window root "$folder/run.png"
}

try_run() {
    make_tree
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

ask_package_manager
make_base
case ${1:-both} in
test) try_test ;;
run) try_run ;;
both)
    try_test
    try_run
    ;;
*) stop "tools/fresh_debian.sh knows: test, run, or nothing for both" ;;
esac
