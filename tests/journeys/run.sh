#!/bin/sh
# SPDX-License-Identifier: MIT
# Plays the journeys with the program given, each on a session bus of its own, so that none inherits what another left.
# usage: run.sh PROGRAM [JOURNEY...]
set -eu
VELMOR=$1
shift
cd "$(dirname "$0")"
# The way to a socket must be short, and the build folder may lie deep.
XDG_RUNTIME_DIR=$(mktemp -d)
trap 'rm -rf -- "$XDG_RUNTIME_DIR"' EXIT
export XDG_RUNTIME_DIR VELMOR PYTHONDONTWRITEBYTECODE=1 PYTHONWARNINGS=ignore
python=/usr/bin/python3 # the one that knows the accessibility bus

all_journeys() {
    $python - <<'END'
import glob
import unittest
def names(suite):
    for test in suite:
        if isinstance(test, unittest.TestSuite):
            yield from names(test)
        else:
            yield test.id()
for module in sorted(glob.glob("*journeys.py")):
    print("\n".join(names(unittest.defaultTestLoader.loadTestsFromName(module[:-len(".py")]))))
END
}

# shellcheck disable=SC2046 # names without blanks, one for each journey
[ $# -gt 0 ] || set -- $(all_journeys)
failed=0
for journey in "$@"; do
    log=$(dbus-run-session -- $python -m unittest "$journey" 2>&1) || {
        failed=1
        echo "$log"
    }
    echo "$journey: $(echo "$log" | tail -n 1)"
done
exit $failed
