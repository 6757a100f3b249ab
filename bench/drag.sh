#!/usr/bin/env bash
# drag.sh PROGRAM...: what a drag costs, as milliseconds of CPU for each mouse event with a card in the
# hand, one event each 4 ms as from a fast mouse; by the screen's pixel ratio and the table's zoom, the
# programs side by side. To be run as
#     SCREEN=3840x2160 tools/on-virtual-display.sh bench/drag.sh build/check/bin/varnello
set -euo pipefail
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home
mkdir -p "$home/Varnello"
read -r width _ < <(xdotool getdisplaygeometry)
events=1000
ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }

# drag PROGRAM RATIO ZOOM
drag() {
    printf '[Data]\nLastGName=Zodiac\nSoundStart=0\nAutoplay=0\n[Window]\nZoom=%s\n' "$3" \
        >"$home/Varnello/Varnello.ini"
    QT_SCALE_FACTOR=$2 "$1" &
    local program=$!
    until [ "$(xdotool search --onlyvisible --pid "$program" --name '^Varnello$' 2>/dev/null | wc -l)" -ge 2 ]; do sleep 0.1; done
    xdotool key Return
    until xdotool search --onlyvisible --name 'Varnello \[Zodiac\]' >/dev/null 2>&1; do sleep 0.1; done
    sleep 6
    # The last card of a pile of the tableau, and a way below the piles.
    local x y below before words i
    read -r x y below < <(awk -v w="$width" -v r="$2" -v z="$3" 'BEGIN {
        z = z / 100 * r; print int((w - 1032 * z) / 2 + 242 * z), int(20 + 47 * r + 340 * z), int(20 + 47 * r + 440 * z)}')
    xdotool mousemove "$x" "$y" mousedown 1
    before=$(ticks $program)
    for _ in $(seq $((events / 200))); do
        words=()
        for i in $(seq 100); do
            words+=(mousemove $((x + i)) "$below" sleep 0.004 mousemove $((x + i)) $((below + 2)) sleep 0.004)
        done
        xdotool "${words[@]}"
    done
    sleep 0.5
    awk -v t=$(($(ticks $program) - before)) -v e="$events" -v r="$2" -v z="$3" -v p="$1" \
        'BEGIN {printf "ratio %s, zoom %s: %.3f ms  %s\n", r, z, t * 10 / e, p}'
    [ -z "${PICTURE:-}" ] || import -window root "$PICTURE-$2-$3.png"
    xdotool mouseup 1
    kill "$program"
    wait "$program" 2>/dev/null || true
}

for at in "1 100" "1 200" "2 100"; do
    for program in "$@"; do
        # shellcheck disable=SC2086
        drag "$program" $at
    done
done
