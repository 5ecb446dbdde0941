#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures the program against the bars of bench/bars.txt, all on this machine in one run, and prints a table.
#
#   bench/run.sh            all of it
#   bench/run.sh quick      without the two builds
#
# Fails when a bar is missed or could not be measured. Nothing else should be running meanwhile.
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/../tools/steps.sh"
# shellcheck source=tools/virtual_display.sh
source "$root/tools/virtual_display.sh"

# Numbers with a point, whatever the desktop speaks.
export LC_ALL=C

case ${1:-all} in
all | quick) ;;
*) stop "bench/run.sh knows: quick, or nothing" ;;
esac

install_packages build run bench
build bench
programs=$root/build/bench/bin
results=$root/build/bench/results.tsv
: >"$results"

# A home of its own, used before, so that the first start of a new user is not what is measured.
home=$virtual_display_folder/home
mkdir -p "$home" "$virtual_display_folder/runtime"
chmod 700 "$virtual_display_folder/runtime"
as_user=(env HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_RUNTIME_DIR="$virtual_display_folder/runtime"
    QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8)

measure() {
    "$@" >>"$results" </dev/null || say "Failed: ${*##*/}"
}

measure_start() {
    say "Start and memory, against a bare window and SpeedCrunch"
    local speedcrunch
    speedcrunch=$(command -v speedcrunch) || stop "SpeedCrunch is missing; the start is measured against it."
    measure "${as_user[@]}" "$programs/bench_start" 15 "velmor=$programs/velmor" "bare=$programs/bench_bare_window" \
        "speedcrunch=$speedcrunch"
    awk -F '\t' '{ value[$1] = $2 }
        END {
            if (value["start.velmor.ms"] == "" || value["start.bare.ms"] == "" || value["start.speedcrunch.ms"] == "") exit
            printf "start.vs_bare\t%.3f\n", value["start.velmor.ms"] / value["start.bare.ms"]
            printf "start.vs_speedcrunch\t%.3f\n", value["start.velmor.ms"] / value["start.speedcrunch.ms"]
            printf "memory.vs_speedcrunch\t%.3f\n", value["start.velmor.kb"] / value["start.speedcrunch.kb"]
        }' "$results" >"$results.ratios"
    cat "$results.ratios" >>"$results"
    rm "$results.ratios"
}

measure_keys() {
    say "Key press to repaint"
    measure "${as_user[@]}" "$programs/bench_key" "$programs/velmor"
}

measure_headless() {
    say "Whole designs and further sheets without a screen"
    local designs
    designs=("$root"/tests/walks/form2/{base,emitter}_{english,spanish}.walk "$root"/tests/walks/form3/design_{english,spanish}.walk)
    ((${#designs[@]})) || stop "There is no walk of a whole design."
    measure "$programs/bench_headless" "${designs[@]}"
}

measure_state() {
    say "The state of sheets and editors copied"
    measure "$programs/bench_state"
}

measure_desktop() {
    say "Further sheets in the desktop"
    measure "${as_user[@]}" "$programs/bench_sheets"
}

measure_report() {
    say "A long report: opened, searched, printed"
    measure "${as_user[@]}" "$programs/bench_report"
}

seconds_of() {
    local name=$1 started=$EPOCHREALTIME
    shift
    if "$@" >"$virtual_display_folder/build.log" 2>&1; then
        awk -v name="$name" -v from="$started" -v to="$EPOCHREALTIME" \
            'BEGIN { printf "%s\t%.1f\n", name, to - from }' >>"$results"
    else
        say "The build failed: $(tail -n 5 "$virtual_display_folder/build.log")"
    fi
}

measure_build() {
    say "A clean build with tests on 2 cores, and one after a change in one sheet"
    local copy=$virtual_display_folder/copy cores=0
    (($(nproc) > 1)) && cores=0,1
    mkdir "$copy"
    (cd "$root" && git ls-files -z | xargs -0 cp --parents -t "$copy")
    export CCACHE_DISABLE=1
    seconds_of build.clean.s taskset -c "$cores" bash -c \
        "cmake -S '$copy' --preset test && cmake --build '$copy/build/test' --parallel 2"
    echo "// changed" >>"$copy/src/designs/common_emitter/form2.cpp"
    seconds_of build.sheet.s taskset -c "$cores" cmake --build "$copy/build/test" --parallel 2
    unset CCACHE_DISABLE
}

print_table() {
    awk -F '\t' -v bars="$root/bench/bars.txt" '
        { value[$1] = $2 }
        END {
            printf "\n%-72s %10s %8s %-6s\n", "what", "measured", "bar", ""
            while ((getline line < bars) > 0) {
                if (line ~ /^#/ || line == "") continue
                split(line, part, /[ ]+/)
                text = line
                sub(/^[^ ]+ +[^ ]+ +[^ ]+ +/, "", text)
                if (!(part[1] in value)) {
                    printf "%-72s %10s %8s %-6s MISSING\n", text, "-", part[2], part[3]
                    faults++
                } else if (value[part[1]] + 0 > part[2] + 0) {
                    printf "%-72s %10.3f %8s %-6s MISSED\n", text, value[part[1]], part[2], part[3]
                    faults++
                } else
                    printf "%-72s %10.3f %8s %-6s\n", text, value[part[1]], part[2], part[3]
            }
            exit faults > 0
        }' "$results"
}

start_virtual_display 1366x768
measure_start
measure_keys
measure_headless
measure_state
measure_desktop
measure_report
[[ ${1:-all} == quick ]] || measure_build
if print_table; then
    say "Every bar is met."
else
    stop "Bars are missed or were not measured; all values stand in ${results#"$root"/}."
fi
