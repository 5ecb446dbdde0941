#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Kills programs that play by chance at random moments, and looks whether their work was kept.
#
#   tools/kill_games.sh [GAMES [SEED]]         three hundred games without a word
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

build core velmor-kill-games
exec "$root/build/core/bin/velmor-kill-games" "${1:-300}" "${2:-1}"
