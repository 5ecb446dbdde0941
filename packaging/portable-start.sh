#!/bin/sh
# SPDX-License-Identifier: MIT
# Starts the program of this name from the portable folder, with the libraries that lie in it: those of the machine are not asked
# for. Works from a folder that may not be written, and from a stick whose file system knows no programs (then as "sh velmor").
set -eu
here=$(CDPATH='' cd -- "$(dirname -- "$(readlink -f -- "$0")")" && pwd -P)
program=${0##*/}
lib=$here/lib
loader=$lib/@LOADER@

own=
forget() {
    [ -z "$own" ] || rm -rf -- "$own"
}
trap forget EXIT
trap 'exit 130' HUP INT TERM

# Where nothing may be run from, the loader is run from a folder of one's own; where nothing may be mapped to run either, all is.
if [ ! -x "$loader" ] || ! "$loader" --verify "$lib/$program" 2>/dev/null; then
    for place in "${XDG_RUNTIME_DIR:-}" "${TMPDIR:-/tmp}" "$HOME"; do
        [ -n "$place" ] || continue
        own=$(mktemp -d "$place/velmor.XXXXXX" 2>/dev/null) || continue
        cp -- "$loader" "$own/"
        chmod 700 "$own/${loader##*/}"
        ! "$own/${loader##*/}" --verify "$lib/$program" 2>/dev/null || break
        # What nobody may write would keep the copy from being taken away again.
        cp -R -- "$lib" "$own/lib" && lib=$own/lib
        chmod -R u+rwX "$own/lib"
        ! "$own/${loader##*/}" --verify "$lib/$program" 2>/dev/null || break
        forget
        own=
        lib=$here/lib
    done
    [ -n "$own" ] || {
        echo "velmor: nothing can be run from $here, nor from a folder of your own." >&2
        exit 1
    }
    loader=$own/${loader##*/}
    printf '[Paths]\nPrefix=%s\nPlugins=plugins\nTranslations=translations\n' "$lib" >"$own/qt.conf"
fi

VELMOR_PORTABLE=$here
FONTCONFIG_FILE=$lib/fonts/fonts.conf
# Most desktops of Wayland have an X server too, where windows stand beside what they speak of.
if [ -z "${QT_QPA_PLATFORM:-}" ]; then
    QT_QPA_PLATFORM=xcb
    if [ -z "${DISPLAY:-}" ] && [ -n "${WAYLAND_DISPLAY:-}" ]; then
        QT_QPA_PLATFORM=wayland
        # The toolkit's own frames want the machine's graphics drivers, which may not suit the libraries here.
        export QT_WAYLAND_DISABLE_WINDOWDECORATION=1
    fi
fi
export VELMOR_PORTABLE FONTCONFIG_FILE QT_QPA_PLATFORM
if [ -z "$own" ]; then
    exec "$loader" --argv0 "$program" --library-path "$lib" "$lib/$program" "$@"
fi
status=0
"$loader" --argv0 "$program" --library-path "$lib" "$lib/$program" "$@" || status=$?
exit "$status"
