#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the pictures of docs/sheets.md and docs/hojas.md: every sheet as a student sees it finished, in both languages, taken while
# the journeys are played.
#
#   tools/sheet_pictures.sh [FOLDER]
#
# FOLDER holds pictures that journeys have taken already (VELMOR_PICTURES=FOLDER tests/journeys/run.sh PROGRAM); sheets of which it
# has none keep theirs. Without it the journeys are played. PRESET=test chooses the build, one with tests.
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

taken=${1:-}
preset=${PRESET:-test}
# Small enough for a page, large enough to be read.
width=1000
colours=64

install_packages build test picture
if [[ -z $taken ]]; then
    build "$preset" velmor
    taken=$(mktemp -d)
    trap 'rm -rf -- "$taken"' EXIT
    VELMOR_PICTURES=$taken "$root/tests/journeys/run.sh" "$root/build/$preset/bin/velmor"
fi

mkdir -p "$root/docs/sheets"
for sheet in form2 desaco parcdesac form8 form18 form4 form17 form9 form3 form13 form12 form15 form20 form10 form11; do
    for language in en es; do
        for picture in "$taken/$sheet-finished-$language.png" "$taken/$sheet-analysis-$language.png"; do
            [[ -f $picture ]] || continue
            convert "$picture" -filter Lanczos -resize "$width" +dither -colors "$colours" -strip \
                "PNG8:$root/docs/sheets/$sheet-$language.png"
            break
        done
    done
done
say "Wrote docs/sheets/*.png"
