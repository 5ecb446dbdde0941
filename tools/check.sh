#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Everything a change must pass: layering, leftovers, formatting, static checks, the build without Qt, and ./test.
#
#   tools/check.sh              all of it; clang-tidy on the files changed since main
#   tools/check.sh quick        what needs no build
#   tools/check.sh tidy-all     clang-tidy on every file
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"
cd "$root"
faults=0

fault() {
    printf '%s\n' "$*" >&2
    faults=$((faults + 1))
}

# The folders whose headers a folder of src may include, besides its own.
declare -A below=(
    [host]=""
    [rules]="host"
    [sheets]="host rules"
    [frame]="host rules sheets"
    [designs/common_emitter]="host rules sheets"
    [designs/base_collector]="host rules sheets"
    [designs/differential]="host rules sheets"
    [designs/power]="host rules sheets"
    [editors]="host rules sheets"
    [tools]="host rules sheets"
    [program]="host rules sheets frame designs editors tools"
    [console]="host rules sheets frame program"
    [desktop]="host rules sheets frame program"
)

check_layers() {
    say "Layers: includes point downward, Qt stays in src/desktop"
    local folder files line header allowed
    for folder in "${!below[@]}"; do
        mapfile -t files < <(git ls-files -co --exclude-standard "src/$folder" | grep -E '\.(h|cpp)$' || true)
        [[ $folder == frame ]] && mapfile -t files < <(printf '%s\n' "${files[@]}" | grep -v '^src/rules/' || true)
        [[ -n ${files[0]:-} ]] || continue
        while IFS= read -r line; do
            header=${line#*\"}
            for allowed in $folder ${below[$folder]}; do
                [[ $header == "$allowed"/* ]] && continue 2
            done
            fault "$line: may not be included from src/$folder"
        done < <(grep -HoE '^#include "[^"]+' "${files[@]}" || true)
    done
    # Outside the desktop nothing but headers of the standard library stands in angle brackets. A save that is whole or
    # not at all needs the system's own calls.
    while IFS= read -r line; do
        fault "$line: not of the standard library"
    done < <(git ls-files -co --exclude-standard src | grep -E '\.(h|cpp)$' | grep -vE '^src/(desktop/|rules/whole_file)' |
        xargs -r grep -HnE '^#include <([A-Z]|[^>]*[./])' || true)
}

check_leftovers() {
    say "Leftovers and file headers"
    local file line
    while IFS= read -r line; do
        fault "$line"
    done < <(git grep -nIwE --untracked 'TODO|FIXME|XXX|HACK' -- . ':!tools/check.sh' || true)
    while IFS= read -r file; do
        head -n 2 "$file" | grep -q 'SPDX-License-Identifier: MIT' || fault "$file: no licence line"
        case ${file##*/} in
        *util* | *helper* | *manager* | *common.*) fault "$file: a name that says nothing" ;;
        esac
    done < <(git ls-files -co --exclude-standard src tests bench tools | grep -E '\.(h|cpp|sh|py)$')
}

check_format() {
    say "Formatting"
    git ls-files -co --exclude-standard '*.h' '*.cpp' | xargs -r clang-format --dry-run --Werror ||
        fault "clang-format: some files are not formatted"
    git ls-files -co --exclude-standard run test .ci/run 'tools/*.sh' 'bench/*.sh' | xargs -r shellcheck -x ||
        fault "shellcheck: some scripts have faults"
}

check_tidy() {
    configure tidy
    local base files
    if [[ ${1:-} == all ]]; then
        mapfile -t files < <(git ls-files 'src/*.cpp')
    else
        base=$(git merge-base HEAD origin/main 2>/dev/null || git merge-base HEAD main 2>/dev/null || git rev-parse HEAD)
        mapfile -t files < <({
            git diff --name-only --diff-filter=d "$base" -- 'src/*.cpp'
            git ls-files -o --exclude-standard 'src/*.cpp'
        } | sort -u)
    fi
    say "clang-tidy on ${#files[@]} files"
    ((${#files[@]})) || return 0
    cmake --build "$root/build/tidy" --target help | sed -n 's/^\([^ ]*_autogen\):.*/\1/p' |
        xargs -r cmake --build "$root/build/tidy" --target >/dev/null
    printf '%s\n' "${files[@]}" | xargs -P "$(nproc)" -n 1 clang-tidy --quiet -p "$root/build/tidy" 2>/dev/null ||
        fault "clang-tidy: see above"
}

check_core() {
    build core
    run_tests core
    ((failed == 0)) || fault "core: $failed tests failed"
}

install_packages build test check
case ${1:-} in
tidy-all)
    check_tidy all
    ;;
quick)
    check_layers
    check_leftovers
    check_format
    ;;
"")
    check_layers
    check_leftovers
    check_format
    check_tidy
    check_core
    "$root/test" || fault "./test failed"
    ;;
*)
    stop "tools/check.sh knows: quick, tidy-all, or nothing"
    ;;
esac
((faults == 0)) || stop "$faults faults"
say "All is well"
