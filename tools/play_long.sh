#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays millions of random events under the address and undefined behaviour sanitizers, window by window; then copies of the
# program beside the first one, a hundredth as many events; then games of 2,500 events on the real windows, half of them rude, a
# quarter as many events.
#
#   tools/play_long.sh                         ten million events a window, and as many over the whole program; 1,000 real games
#   tools/play_long.sh EVENTS [SEED]           so many, from this seed
#   tools/play_long.sh EVENTS SEED WINDOW...   on these windows only; "all" stands for the whole program, "real" for the games
#                                              on the real windows
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

events=${1:-10000000}
seed=${2:-1}
shift $(($# < 2 ? $# : 2))

install_packages build test
build asan-core velmor-player velmor-twins
player=$root/build/asan-core/bin/velmor-player
twins=$root/build/asan-core/bin/velmor-twins
logs=$root/build/asan-core/games
mkdir -p "$logs"

# What the sanitizer keeps of memory that is gone: 16 MB of it, and five frames of who took it. More costs time and hundreds of
# megabytes, and a fault comes again with its seed, to be looked at with all there is. What is freed is overwritten: the libraries
# are not built with the sanitizers, and would go on reading it unseen.
export ASAN_OPTIONS=malloc_context_size=5:quarantine_size_mb=16:max_free_fill_size=65536:free_fill_byte=205${ASAN_OPTIONS:+:$ASAN_OPTIONS}

# Real games are played some at a time, by as many programs as there are processors. An even number: every second is rude.
real_games=$((events / 10000 + 1))
real_share=20

# play_real FIRST: a share of the games on the real windows. An event that takes too long is named and ends them.
play_real() {
    local first=$1 games=$((real_games - $1 < real_share ? real_games - $1 : real_share))
    local log=$logs/real-$first.log
    if LSAN_OPTIONS=suppressions=$root/tests/leaks.supp:print_suppressions=0 VELMOR_PATIENCE=8 \
        "$root/build/asan/bin/velmor-window-player" "$games" 2500 $((seed + first)) >"$log" 2>&1; then
        say "real windows, $games games from seed $((seed + first)): $(tail -n 1 "$log")"
    else
        say "real windows: FAULT, see $log"
        return 1
    fi
}

windows=("$@")
if ((${#windows[@]} == 0)); then
    mapfile -t windows < <("$player" --list)
    windows+=(all real)
fi
[[ " ${windows[*]} " != *" real "* ]] || build asan velmor-window-player

# One word for each game, "real" taken apart.
words() {
    local window first
    for window in "${windows[@]}"; do
        if [[ $window != real ]]; then
            printf '%s\n' "$window"
            continue
        fi
        for ((first = 0; first < real_games; first += real_share)); do
            printf 'real:%s\n' "$first"
        done
    done
}

# play WINDOW: one game; its log tells what was reached. The seed repeats it.
play() {
    local window=$1
    if [[ $window == real:* ]]; then
        play_real "${window#real:}"
        return
    fi
    local -a only=(--window "$window")
    [[ $window == all ]] && only=()
    if "$player" --events "$events" --seed "$seed" "${only[@]}" --details >"$logs/$window.log" 2>&1; then
        say "$window: $(tail -n 1 "$logs/$window.log")"
    else
        say "$window: FAULT, see $logs/$window.log"
        return 1
    fi
}
# play_twins WINDOW: copies of a game around a window, each played on for some two hundred events.
play_twins() {
    [[ $1 != real:* ]] || return 0
    if "$twins" "$1" $((events / 20000 + 1)) "$seed" >"$logs/$1.twins.log" 2>&1; then
        say "$1, twins: $(head -n 1 "$logs/$1.twins.log")"
    else
        say "$1, twins: FAULT, see $logs/$1.twins.log"
        return 1
    fi
}
export -f play play_twins play_real say
export player twins logs events seed root real_games real_share

say "Playing $events events on each of ${#windows[@]} windows, seed $seed; logs in $logs"
# shellcheck disable=SC2016  # the inner shell expands it
words | xargs -P "$(nproc)" -I{} bash -c 'play "$1" && play_twins "$1"' _ {} || stop "Something is wrong."
say "No fault"
