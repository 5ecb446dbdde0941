#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the portable folder: the program with every library that it needs, down to the C library and its loader, so that it runs
# on systems older and newer than this one, without Qt and without rights.
#
#   tools/portable.sh [FOLDER]     leaves velmor-VERSION-ARCHITECTURE.tar.xz in FOLDER, build/package without it
set -euo pipefail
# shellcheck source=tools/steps.sh
source "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/steps.sh"

made=$root/build/package
folder=$(realpath -m -- "${1:-$made}")
install_packages build run wayland package
build package
version=$(sed -n 's/^project(Velmor VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
name=velmor-$version
tree=$made/portable/$name
lib=$tree/lib
plugins=$(qtpaths6 --query QT_INSTALL_PLUGINS)
translations=$(qtpaths6 --query QT_INSTALL_TRANSLATIONS)
# What Qt loads by name: the screen, dead keys, input methods, printers, pictures.
wanted_plugins=(platforms/libqxcb.so platforms/libqwayland-generic.so wayland-shell-integration/libxdg-shell.so
    platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so printsupport/libcupsprintersupport.so imageformats/libqsvg.so
    imageformats/libqjpeg.so iconengines/libqsvgicon.so)
wanted_fonts=(DejaVuSans.ttf DejaVuSans-Bold.ttf DejaVuSansMono.ttf DejaVuSansMono-Bold.ttf texgyretermes-regular.otf
    texgyretermes-italic.otf texgyretermes-bold.otf texgyretermes-bolditalic.otf)

say "Gathering"
rm -rf -- "$made/portable"
mkdir -p "$lib/plugins" "$lib/translations" "$lib/fonts" "$lib/copyright"
for program in velmor velmor-walk; do
    install -m 755 -s "$made/bin/$program" "$lib/$program"
done
for plugin in "${wanted_plugins[@]}"; do
    install -m 644 -D "$plugins/$plugin" "$lib/plugins/$plugin"
done
mapfile -t libraries < <(ldd "$lib"/velmor "$lib"/velmor-walk "$lib"/plugins/*/*.so |
    sed -n 's/.* => \(\/[^ ]*\) (.*/\1/p; s/^\t\(\/[^ ]*\) (.*/\1/p' | sort -u)
((${#libraries[@]} > 0)) || stop "The libraries of the program could not be found."
for library in "${libraries[@]}"; do
    install -m 755 "$(readlink -f -- "$library")" "$lib/${library##*/}"
done
loader=$(basename -- "$(find "$lib" -maxdepth 1 -name 'ld-linux*')")
[[ -n $loader ]] || stop "The loader of the C library could not be found."
for font in "${wanted_fonts[@]}"; do
    install -m 644 "$(fc-list -f '%{file}\n' | grep -m 1 "/$font\$")" "$lib/fonts/"
done
install -m 644 "$translations/qtbase_es.qm" "$lib/translations/"
printf '[Paths]\nPrefix=.\nPlugins=plugins\nTranslations=translations\n' >"$lib/qt.conf"
# The machine's own choice of typefaces comes first; where it makes none, texts of even letters keep them.
cat >"$lib/fonts/fonts.conf" <<'END'
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <include ignore_missing="yes">/etc/fonts/fonts.conf</include>
  <dir prefix="relative">.</dir>
  <alias><family>Courier New</family><default><family>monospace</family></default></alias>
  <alias><family>monospace</family><prefer><family>DejaVu Sans Mono</family></prefer></alias>
  <alias><family>sans-serif</family><prefer><family>DejaVu Sans</family></prefer></alias>
  <alias><family>serif</family><prefer><family>TeX Gyre Termes</family></prefer></alias>
  <cachedir prefix="xdg">fontconfig</cachedir>
</fontconfig>
END

# Whose work the libraries and fonts are, as Debian tells it.
mapfile -t owners < <(for file in "${libraries[@]}" "${wanted_plugins[@]/#/$plugins/}"; do
    dpkg-query -S "$(readlink -f -- "$file")" "$file" 2>/dev/null | head -n 1
done | sed 's/[:,].*//' | sort -u)
for owner in "${owners[@]}" fonts-dejavu-core fonts-texgyre qt6-translations-l10n; do
    install -m 644 "/usr/share/doc/$owner/copyright" "$lib/copyright/$owner"
done
install -m 644 "$root/LICENSE" "$lib/copyright/velmor"

say "Laying out"
for program in velmor velmor-walk; do
    sed "s/@LOADER@/$loader/" "$root/packaging/portable-start.sh" >"$tree/$program"
    chmod 755 "$tree/$program"
done
# The guides lie beside the program, and once more where the report editor looks for them.
mkdir "$tree/Archivos"
install -m 644 "$root"/guides/*.Lab "$tree/"
install -m 644 "$root"/guides/*.Lab "$tree/Archivos/"
for page in installing.md instalar.md keyboard.md teaching-with-velmor.md ensenar-con-velmor.md walks.md; do
    install -m 644 -D "$root/docs/$page" "$tree/docs/$page"
done

say "Packing"
mkdir -p "$folder"
archive=$folder/$name-$(dpkg --print-architecture).tar.xz
XZ_OPT=-6 tar -C "$made/portable" --sort=name --owner=0 --group=0 --numeric-owner -cJf "$archive" "$name"
say "Wrote $archive: $(du -k -- "$archive" | cut -f1) KB, $(du -sk -- "$tree" | cut -f1) KB unpacked"
