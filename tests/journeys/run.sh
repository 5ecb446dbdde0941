#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays the journeys of journeys.py and of each *_journeys.py with the program given, each on a session bus of its own, so that
# none inherits what another left. Two are played at once, or as many as VELMOR_JOURNEYS_AT_ONCE says; what a journey says is
# printed whole when it has ended.
# usage: run.sh PROGRAM [JOURNEY...]
set -euo pipefail
VELMOR=$1
shift
cd "$(dirname "$0")"
python=/usr/bin/python3 # the one that knows the accessibility bus
# The way to a socket must be short, and the build folder may lie deep.
room=$(mktemp -d)
trap 'rm -rf -- "$room"' EXIT
export VELMOR python room PYTHONDONTWRITEBYTECODE=1 PYTHONWARNINGS=ignore

all_journeys() {
    $python - <<'END'
import unittest
def names(suite):
    for test in suite:
        if isinstance(test, unittest.TestSuite):
            yield from names(test)
        else:
            yield test.id()
print("\n".join(names(unittest.defaultTestLoader.discover(".", pattern="*journeys.py"))))
END
}

# play JOURNEY [again]: one that fails is played once more, and that is said: window managers pass the keyboard on in their own
# time, and a person would look and press again. The bus of assistive technology has one place in a runtime folder, so each
# journey has a folder too.
play() {
    local log failed=0
    XDG_RUNTIME_DIR=$(mktemp -d "$room/XXXX")
    export XDG_RUNTIME_DIR
    log=$(dbus-run-session -- "$python" -m unittest "$1" 2>&1) || failed=1
    {
        flock 9
        ((failed == 0)) || echo "$log"
        echo "$1: $(tail -n 1 <<<"$log")"
    } 9>"$room/turn"
    ((failed == 0)) || [[ -n ${2:-} ]] || { play "$1" again && echo "$1: failed once, held when played again" && failed=0; }
    return $failed
}
export -f play

(($# > 0)) || mapfile -t journeys < <(all_journeys)
(($# == 0)) || journeys=("$@")
((${#journeys[@]} > 0)) || { echo "no journeys"; exit 1; }
# shellcheck disable=SC2016  # the inner shell expands it
printf '%s\n' "${journeys[@]}" | xargs -P "${VELMOR_JOURNEYS_AT_ONCE:-2}" -I{} bash -c 'play "$1"' _ {} || exit 1
