#!/bin/sh
# SPDX-License-Identifier: MIT
# Plays the journeys with the program given, on a session bus of their own.
# usage: run.sh PROGRAM [JOURNEY...]
set -eu
VELMOR=$1
export VELMOR
shift
cd "$(dirname "$0")"
export PYTHONDONTWRITEBYTECODE=1 NO_AT_BRIDGE=0
exec dbus-run-session -- /usr/bin/python3 -m unittest ${*:-journeys} 2>&1
