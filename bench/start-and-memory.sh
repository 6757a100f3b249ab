#!/usr/bin/env bash
# start-and-memory.sh BIN_FOLDER: time from exec to the first window on the screen, memory and idle
# load of Varnello, side by side with a bare window of the toolkit on the same X server. To be run as
#     tools/on-virtual-display.sh bench/start-and-memory.sh build/check/bin
set -euo pipefail
bin=$1
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home
mkdir -p "$home/Varnello"
printf '[Data]\nLastGName=Zodiac\nSoundStart=0\n' >"$home/Varnello/Varnello.ini"

quotient() { awk -v a="$1" -v b="$2" 'BEGIN {printf "%.3f", a / b}'; }
now() { date +%s%N; }

# first_window PROGRAM TITLE: milliseconds until a window with the title is on the screen.
first_window() {
    local began
    began=$(now)
    "$1" &
    local program=$!
    until xdotool search --onlyvisible --name "$2" >/dev/null 2>&1; do :; done
    echo $((($(now) - began) / 1000000))
    kill "$program"
    wait "$program" 2>/dev/null || true
}

median() { sort -n | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }

for _ in $(seq 11); do
    first_window "$bin/varnello-bare-window" 'Bare window' >>"$home/bare"
    first_window "$bin/varnello" '^Varnello$' >>"$home/splash"
done
bare=$(median <"$home/bare")
splash=$(median <"$home/splash")
echo "start: bare window $bare ms, splash $splash ms, ratio $(quotient $splash $bare)"

memory() { awk '/^VmRSS/ {print $2}' "/proc/$1/status"; }
"$bin/varnello-bare-window" &
bare=$!
"$bin/varnello" &
program=$!
until [ "$(xdotool search --onlyvisible --pid "$program" --name '^Varnello$' 2>/dev/null | wc -l)" -ge 2 ]; do sleep 0.1; done
xdotool key Return
until xdotool search --onlyvisible --name 'Varnello \[Zodiac\]' >/dev/null 2>&1; do sleep 0.1; done
sleep 5
echo "memory: bare window $(memory $bare) kB, Varnello with 104 cards $(memory $program) kB, more by $(($(memory $program) - $(memory $bare))) kB"
ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }
before=$(ticks $program)
sleep 20
echo "idle: $(($(ticks $program) - before)) ticks of 10 ms in 20 s"

kill $program $bare
