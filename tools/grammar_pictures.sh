#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the pictures of docs/sheet-grammar.md from the program's own painting.
#
#   tools/grammar_pictures.sh [SHEET [CLICKED]]
#
# SHEET is the sheet whose drawing grows, CLICKED a sheet and the controls that lead to a choice in force, as the gallery takes
# it (Form3:Image33). PRESET=test chooses the build, one with tests.
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

sheet=${1:-Form2}
clicked=${2:-}
preset=${PRESET:-test}

install_packages build test
build "$preset" velmor_gallery
pictures=$(mktemp -d)
trap 'rm -rf -- "$pictures"' EXIT
gallery() {
    QT_QPA_PLATFORM=offscreen "$root/build/$preset/bin/velmor_gallery" "$pictures" "$1"
}

gallery "$sheet"
cp -- "$pictures/$sheet-en.png" "$root/docs/grammar-start.png"
for what in half whole tools; do
    cp -- "$pictures/$sheet-en-$what.png" "$root/docs/grammar-$what.png"
done
if [[ -n $clicked ]]; then
    gallery "$clicked"
    cp -- "$pictures/${clicked%%:*}-en-clicked.png" "$root/docs/grammar-chosen.png"
fi
say "Wrote docs/grammar-*.png"
