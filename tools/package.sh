#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the Debian package and lets the checkers of Debian and of the desktop look at it.
#
#   tools/package.sh [FOLDER]     leaves velmor_VERSION_ARCHITECTURE.deb in FOLDER, build/package without it
#
# WEB=https://... tells where the project is published and its pictures (docs/*.png) stand, for the software centre. Without it
# the package names no place.
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

made=$root/build/package
folder=$(realpath -m -- "${1:-$made}")
install_packages build package
configure package
cmake -DVELMOR_WEB="${WEB:-}" "$made" >/dev/null
build package

say "Packing"
mkdir -p "$folder"
rm -f "$made"/velmor_*.deb
# Whoever builds may keep files to himself; what is installed is for all.
(umask 022 && cd "$made" && cpack -G DEB >cpack.log 2>&1) || stop "$(cat "$made/cpack.log")"
package=$(find "$made" -maxdepth 1 -name 'velmor_*.deb')
[[ -f $package ]] || stop "No package was made, see $made/cpack.log"
[[ $folder == "$made" ]] || cp "$package" "$folder/"

say "Checking"
"$root/tools/check_package.sh" "$package"
say "Wrote $folder/${package##*/}: $(dpkg-deb -f "$package" Installed-Size) KB installed"
say "Needs $(dpkg-deb -f "$package" Depends)"
