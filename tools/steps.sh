# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# What ./run, ./test and the scripts in tools/ share: saying, installing, building. Sourced, never run.

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)

say() {
    printf '== %s\n' "$*"
}

stop() {
    printf '== %s\n' "$*" >&2
    exit 1
}

# missing_packages GROUP...: the packages of these groups of packaging/packages.txt that are not installed.
missing_packages() {
    local wanted present
    wanted=$(awk -v groups=" $* " '!/^#/ && NF == 2 && index(groups, " " $1 " ") { print $2 }' \
        "$root/packaging/packages.txt" | sort -u)
    # shellcheck disable=SC2086
    present=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' $wanted 2>/dev/null |
        awk '$2 == "installed" { print $1 }' | sort -u) || true
    comm -23 <(printf '%s\n' "$wanted") <(printf '%s\n' "$present") | paste -sd ' ' -
}

# install_packages GROUP...: installs what is missing, asks nothing, and is done at once when nothing is.
install_packages() {
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        say "This is not a Debian system. Please install what these Debian packages hold, then build with CMake:"
        awk -v groups=" $* " '!/^#/ && NF == 2 && index(groups, " " $1 " ") { print $2 }' \
            "$root/packaging/packages.txt" | sort -u | paste -sd ' ' -
        stop "For instance: cmake --preset release && cmake --build --preset release"
    fi
    local missing
    missing=$(missing_packages "$@")
    [[ -n $missing ]] || return 0

    local -a as_root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null || stop "Please install, as root: apt-get install $missing"
        as_root=(sudo)
        [[ -t 0 ]] || as_root=(sudo -n)
    fi
    local -a apt=(env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300)
    say "Installing Debian packages: $missing"
    "${as_root[@]}" "${apt[@]}" update || say "The package lists could not all be renewed; going on with those at hand."
    # shellcheck disable=SC2086
    "${as_root[@]}" "${apt[@]}" install --no-install-recommends $missing ||
        stop "These packages could not be installed: $missing"
}

# configure PRESET: runs CMake when there is no build folder yet, or when the presets or the checkout's place changed.
configure() {
    local folder=$root/build/$1
    local -a fresh=()
    if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        fresh=(--fresh)
    elif [[ -f $folder/build.ninja && ! $root/CMakePresets.json -nt $folder/build.ninja ]]; then
        return 0
    fi
    say "Configuring ($1)"
    mkdir -p "$folder"
    if ! cmake -S "$root" --preset "$1" "${fresh[@]}" >"$folder/configure.log" 2>&1; then
        cat "$folder/configure.log" >&2
        stop "CMake failed."
    fi
}

# build PRESET [TARGET...]: configures and compiles with all cores.
build() {
    local preset=$1
    shift
    configure "$preset"
    say "Building ($preset)"
    cmake --build "$root/build/$preset" --parallel "$(nproc)" ${1:+--target "$@"} ||
        stop "The build failed."
}

# tree_state: what in the checkout is new, changed or ignored, but for the build folder; nothing where git knows no checkout.
tree_state() {
    git -C "$root" status --porcelain --untracked-files=all --ignored=matching 2>/dev/null | grep -vxF '!! build/' || true
}

# run_tests PRESET [CTEST ARGUMENT...]: plays the tests, shows those that fail, counts in $passed and $failed.
run_tests() {
    local preset=$1 log=$root/build/$1/tests.log closing
    shift
    say "Running the tests ($preset)"
    # Programs that are only asked for their tests have no home of their own yet.
    HOME=$root/build/$preset/home XDG_RUNTIME_DIR=$root/build/$preset/home/run QT_QPA_PLATFORM=offscreen \
        ctest --test-dir "$root/build/$preset" --parallel "$(nproc)" --output-on-failure \
        --no-tests=error "$@" </dev/null 2>&1 | tee "$log" |
        grep --line-buffered -vE '^ +Start +[0-9]+: | Passed +[0-9.]+ sec$|^Internal ctest changing|^Test project' || true
    closing=$(grep -E 'tests passed, [0-9]+ tests failed out of [0-9]+' "$log" || true)
    passed=0
    failed=1
    if [[ $closing =~ ([0-9]+)\ tests\ failed\ out\ of\ ([0-9]+) ]]; then
        failed=${BASH_REMATCH[1]}
        passed=$((BASH_REMATCH[2] - failed))
        local left_out
        # A test that did not run has proved nothing.
        left_out=$(grep -cE '\*\*\*(Skipped|Not Run|Disabled)' "$log" || true)
        failed=$((failed + left_out))
        passed=$((passed - left_out))
    fi
}
