#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Takes a picture of the program on a virtual display.
#
#   tools/screenshots.sh [WIDTHxHEIGHT [OUT.png [STEPS.sh]]]
#
# STEPS.sh is read once the main window is there; in it `xdotool`, `shot NAME.png` and `until_true SECONDS COMMAND` drive the
# program and take further pictures. PRESET=release PROGRAM=... SETTINGS=folder choose what is started and with which settings
# (a fresh, empty folder without it).
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"
# shellcheck source=tools/virtual_display.sh
source "$root/tools/virtual_display.sh"

size=${1:-1366x768}
out=${2:-screenshot.png}
steps=${3:-}
preset=${PRESET:-release}

install_packages build run picture
if [[ -z ${PROGRAM:-} ]]; then
    build "$preset" velmor
    PROGRAM=$root/build/$preset/bin/velmor
fi

start_virtual_display "$size"
home=${SETTINGS:-$virtual_display_folder/home}
mkdir -p "$home" "$virtual_display_folder/runtime"
chmod 700 "$virtual_display_folder/runtime"
HOME=$home XDG_CONFIG_HOME=$home/.config XDG_RUNTIME_DIR=$virtual_display_folder/runtime QT_QPA_PLATFORM=xcb \
    "$PROGRAM" </dev/null &
program_id=$!
virtual_display_ids+=("$program_id")

shot() {
    import -silent -window root "$1"
    say "Wrote $1"
}

window_is_there() {
    xdotool search --onlyvisible --pid "$program_id" --name . >/dev/null 2>&1
}
until_true 20 window_is_there || stop "No window appeared."
# The first picture shows the window drawn, not only mapped.
sleep 0.5
if [[ -n $steps ]]; then
    # shellcheck source=/dev/null
    source "$steps"
fi
shot "$out"
