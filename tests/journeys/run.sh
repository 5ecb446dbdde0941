#!/bin/sh
# SPDX-License-Identifier: MIT
# Plays the journeys with the program given, each group on a session bus of its own: a bus forgets slowly who has left it.
# usage: run.sh PROGRAM [JOURNEY...]
set -eu
VELMOR=$1
export VELMOR
shift
cd "$(dirname "$0")"
export PYTHONDONTWRITEBYTECODE=1 NO_AT_BRIDGE=0
if [ $# -eq 0 ]; then
    set -- $(sed -nE 's/^class (\w+)\(Journey\):.*/journeys.\1/p' journeys.py)
fi
status=0
for journey in "$@"; do
    dbus-run-session -- /usr/bin/python3 -m unittest "$journey" 2>&1 || status=1
done
exit $status
