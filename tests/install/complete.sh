#!/usr/bin/env bash
# complete.sh SOURCE BUILD VERSION PREFIX: installs into an empty prefix and looks at what is there.
set -euo pipefail
source=$1 build=$2 version=$3 prefix=$4
fail() {
    echo "$1" >&2
    exit 1
}

rm -rf "$prefix"
cmake --install "$build" --prefix "$prefix" >/dev/null
cd "$prefix"

# Programs may lie in bin or games, modules in the library folder of the system.
found=$(find . -type f | sed -E 's,^\./(bin|games)/,PROGRAMS/,; s,^\./lib.*/varnello/,MODULES/,; s,^\./,,' | LC_ALL=C sort)
icons=$(printf 'share/icons/hicolor/%s/apps/varnello.png\n' {16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256,512x512})
wanted=$(LC_ALL=C sort <<END
PROGRAMS/varnello
PROGRAMS/varnello-script
MODULES/varnello-sound.so
$icons
share/icons/hicolor/scalable/apps/varnello.svg
share/icons/hicolor/symbolic/apps/varnello-symbolic.svg
share/applications/varnello.desktop
share/metainfo/org.varnello.varnello.metainfo.xml
share/man/man6/varnello.6
share/man/man6/varnello-script.6
END
)
diff <(echo "$wanted") <(echo "$found") || fail "These files are missing (<) or unknown (>)."

for icon in share/icons/hicolor/*/apps/varnello.png; do
    size=$(identify -format '%wx%h' "$icon")
    [[ $icon == */$size/* ]] || fail "$icon measures $size."
done

# One version everywhere, and names that lead from the menu to the program and its icon.
program=$(find . -name varnello -type f)
[ "$(QT_QPA_PLATFORM=none "$program" --version)" = "Varnello $version" ] || fail "--version isn't $version."
for text in share/metainfo/* share/man/man6/*; do
    grep -qE "(version=\"|Varnello )$version\"" "$text" || fail "$text isn't about version $version."
done
grep -q "^varnello ($version)" "$source/debian/changelog" || fail "The package isn't version $version."
grep -qx 'Exec=varnello' share/applications/varnello.desktop || fail "The menu starts something else."
grep -qx 'Icon=varnello' share/applications/varnello.desktop || fail "The menu has no icon."

# Nothing may lead back to the folders that it was built from.
for folder in "$source" "$build"; do
    ! grep -rlF "$folder" . || fail "These name $folder."
done
