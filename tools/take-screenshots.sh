#!/usr/bin/env bash
# take-screenshots.sh PROGRAM: takes the README's pictures from the running program, on a virtual
# display of its own, into data/screenshots/.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
if [ "${1:-}" != --inside ]; then
    SCREEN=1100x860 exec "$root/tools/on-virtual-display.sh" "$0" --inside "$(realpath "$1")"
fi
program=$2
home=$(mktemp -d)
export XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home
mkdir -p "$home/Varnello" "$root/data/screenshots"
printf '[Data]\nLastGName=Penguin\nAutoplay=0\nSoundStart=0\n' >"$home/Varnello/Varnello.ini"
"$program" &
running=$!
trap 'kill "$running" 2>/dev/null || true; rm -rf "$home"' EXIT

# until_windows COUNT NAME: waits until so many windows with a name are on the screen.
until_windows() {
    until [ "$(xdotool search --onlyvisible --pid "$running" --name "$2" 2>/dev/null | wc -l)" -ge "$1" ]; do
        sleep 0.1
    done
    sleep 0.5
}
picture() { import -window root "$root/data/screenshots/$1.png"; }

until_windows 2 '^Varnello$'
picture selector
xdotool key Return
until_windows 1 'Varnello \[Penguin\]'
sleep 2.5
picture table
xdotool key F1
until_windows 1 '^Penguin - Varnello$'
picture help
xdotool key Escape
xdotool search --sync --onlyvisible --name 'Varnello \[Penguin\]' windowfocus --sync key ctrl+u
until_windows 1 '^Customize$'
xdotool key ctrl+Tab
picture customize
