#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the pictures of docs/sheets.md and docs/hojas.md from the program's own painting: every sheet, finished with the values that
# it proposes itself, in both languages.
#
#   tools/sheet_pictures.sh [SHEET...]
#
# PRESET=test chooses the build, one with tests.
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

sheets=(Form2 desaco ParcDesac Form8 Form18 Form4 Form17 Form9 Form3 Form13 Form12 Form15 form20 Form10 Form11)
(($# == 0)) || sheets=("$@")
preset=${PRESET:-test}
# Small enough for a page, large enough to be read.
width=1000
colours=64

install_packages build test picture
build "$preset" velmor_gallery
pictures=$(mktemp -d)
trap 'rm -rf -- "$pictures"' EXIT
mkdir -p "$root/docs/sheets"
for sheet in "${sheets[@]}"; do
    QT_QPA_PLATFORM=offscreen "$root/build/$preset/bin/velmor_gallery" "$pictures" "$sheet"
    for language in en es; do
        convert "$pictures/$sheet-$language-whole.png" -filter Lanczos -resize "$width" +dither -colors "$colours" -strip \
            "PNG8:$root/docs/sheets/$sheet-$language.png"
    done
done
say "Wrote docs/sheets/*.png"
