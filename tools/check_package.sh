#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# What the desktop and the package manager must find in order: desktop entry, types, metainfo, pages and, when one is named, a
# package.
#
#   tools/check_package.sh [PACKAGE.deb]
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

package=${1:-}
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT
faults=0
holds() {
    "$@" >"$folder/said" 2>&1 || {
        printf '%s:\n' "$*" >&2
        cat "$folder/said" >&2
        faults=$((faults + 1))
    }
}

# A page that the formatter warns of shows what it said.
reads_well() {
    local warnings
    warnings=$(LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$1" 2>&1 >/dev/null)
    printf '%s\n' "$warnings"
    [[ -z $warnings ]]
}

sed '/@VELMOR_PUBLISHED@/d' "$root/packaging/velmor.metainfo.xml" >"$folder/velmor.metainfo.xml"
sed -e "/@VELMOR_PUBLISHED@/{r $root/packaging/published.xml.in" -e 'd}' "$root/packaging/velmor.metainfo.xml" |
    sed 's#@VELMOR_WEB@#https://velmor.invalid#' >"$folder/published.metainfo.xml"
holds xmllint --noout "$root"/packaging/*.xml "$root"/packaging/*.svg
# With the pictures' addresses and without.
holds appstreamcli validate --no-net "$folder/velmor.metainfo.xml" "$folder/published.metainfo.xml"
holds grep -q '<image type="source"' "$folder/published.metainfo.xml"
holds desktop-file-validate "$root/packaging/velmor.desktop"
# Each type of the desktop entry is one that the program brings, and the other way round.
holds diff <(sed -n 's/^MimeType=//p' "$root/packaging/velmor.desktop" | tr ';' '\n' | sed '/^$/d' | sort) \
    <(sed -n 's/.*<mime-type type="\(.*\)">/\1/p' "$root/packaging/velmor-mime.xml" | sort)
for page in "$root"/packaging/*.1; do
    holds reads_well "$page"
done
[[ -z $package ]] || holds lintian --allow-root --fail-on error,warning "$package"
((faults == 0)) || stop "$faults faults in what is packed"
