#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays millions of random events under the address and undefined behaviour sanitizers, window by window.
#
#   tools/play_long.sh                         ten million events a window, and as many over the whole program
#   tools/play_long.sh EVENTS [SEED]           so many, from this seed
#   tools/play_long.sh EVENTS SEED WINDOW...   on these windows only; "all" stands for the whole program
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

events=${1:-10000000}
seed=${2:-1}
shift $(($# < 2 ? $# : 2))

install_packages build test
build asan-core velmor-player
player=$root/build/asan-core/bin/velmor-player
logs=$root/build/asan-core/games
mkdir -p "$logs"

windows=("$@")
if ((${#windows[@]} == 0)); then
    mapfile -t windows < <("$player" --list)
    windows+=(all)
fi

# play WINDOW: one game; its log tells what was reached. The seed repeats it.
play() {
    local window=$1
    local -a only=(--window "$window")
    [[ $window == all ]] && only=()
    if "$player" --events "$events" --seed "$seed" "${only[@]}" --details >"$logs/$window.log" 2>&1; then
        say "$window: $(tail -n 1 "$logs/$window.log")"
    else
        say "$window: FAULT, see $logs/$window.log"
        return 1
    fi
}
export -f play say
export player logs events seed

say "Playing $events events on each of ${#windows[@]} windows, seed $seed; logs in $logs"
# shellcheck disable=SC2016  # the inner shell expands it
printf '%s\n' "${windows[@]}" | xargs -P "$(nproc)" -I{} bash -c 'play "$1"' _ {} || stop "Something is wrong."
say "No fault"
