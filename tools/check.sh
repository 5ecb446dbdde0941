#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Everything a change must pass. ./test checks the layers too: an include must be one that the link line allows.
#
#   tools/check.sh          all of it, and ./test
#   tools/check.sh quick    leftovers, long lines, formatting: what needs no build
#   tools/check.sh core     the build without Qt, with its tests
#   tools/check.sh package  the Debian package, made and looked at
#   tools/check.sh tidy     clang-tidy on every file; what it found clean once is not read again
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"
cd "$root"
faults=0

fault() {
    printf '%s\n' "$*" >&2
    faults=$((faults + 1))
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

check_lines() {
    say "Lines beyond 140 columns"
    local line
    while IFS= read -r line; do
        fault "$line lines beyond 140 columns"
    done < <(LC_ALL=C.UTF-8 git grep -IcE --untracked '^.{141,}' -- '*.h' '*.cpp' '*.py' '*.sh' '*.cmake' \
        '*CMakeLists.txt' run test .ci/run || true)
}

check_format() {
    say "Formatting"
    git ls-files -co --exclude-standard '*.h' '*.cpp' | xargs -r clang-format --dry-run --Werror ||
        fault "clang-format: some files are not formatted"
    git ls-files -co --exclude-standard run test .ci/run 'tools/*.sh' 'bench/*.sh' 'packaging/*.sh' 'tests/*.sh' | xargs -r shellcheck -x ||
        fault "shellcheck: some scripts have faults"
}

check_tidy() {
    configure tidy
    # Nothing is built there; the compile commands must be those of today's lists all the same.
    cmake --build "$root/build/tidy" --target build.ninja >/dev/null || stop "CMake failed."
    local files
    mapfile -t files < <(git ls-files -co --exclude-standard 'src/*.cpp' 'tests/*.cpp' ':!tests/sheets/no_such_row.cpp')
    say "clang-tidy on ${#files[@]} files"
    "$root/tools/tidy.py" "$root/build/tidy" "${files[@]}" || fault "clang-tidy: see above"
}

check_core() {
    build core
    run_tests core
    ((failed == 0)) || fault "core: $failed tests failed"
}

check_packaging() {
    say "What is packed"
    "$root/tools/check_package.sh" || fault "packaging: see above"
}

check_package() {
    "$root/tools/package.sh" || fault "tools/package.sh failed"
}

install_packages build test check
case ${1:-} in
quick)
    check_leftovers
    check_lines
    check_format
    check_packaging
    ;;
core)
    check_core
    ;;
package)
    check_package
    ;;
tidy)
    check_tidy
    ;;
"")
    check_leftovers
    check_lines
    check_format
    check_core
    "$root/test" || fault "./test failed"
    check_package
    check_tidy
    ;;
*)
    stop "tools/check.sh knows: quick, core, package, tidy, or nothing"
    ;;
esac
((faults == 0)) || stop "$faults faults"
say "All is well"
