#!/usr/bin/env bash
# by-hand.sh PROGRAM [PICTURE.png]: faults of the real window, on virtual displays of their own: the
# display goes away under a game, and a result can't be written. To be run by hand:
#   tests/faults/by-hand.sh build/check/bin/varnello /tmp/message.png
# The picture shows what the player is told; look at it.
set -euo pipefail
program=$(realpath "$1")
picture=${2:-/dev/null}
folder=$(mktemp -d)
chmod 755 "$folder"
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$folder"' EXIT

die() { echo "$*" >&2; exit 1; }
until_true() {
    for _ in $(seq 100); do
        "$@" && return
        sleep 0.1
    done
    die "waited in vain for: $*"
}
windows() { [ "$(xdotool search --onlyvisible --name "$2" 2>/dev/null | wc -l)" -ge "$1" ]; }
ended() { ! kill -0 "$1" 2>/dev/null; }

# display NAME: starts an X server of its own and a fresh home with one old result.
display() {
    home=$folder/$1
    mkdir -p "$home/Varnello"
    printf '"1/1/2026 12:00:00 PM","Penguin",1,60,20,30,1\r\n' >"$home/Varnello/Player1.sre"
    cp "$home/Varnello/Player1.sre" "$folder/before"
    printf '[Data]\nLastGName=Penguin\nAutoplay=0\nSoundStart=0\n' >"$home/Varnello/Varnello.ini"
    Xvfb -displayfd 3 -screen 0 1100x860x24 -nolisten tcp 3>"$home/display" >/dev/null 2>&1 &
    server=$!
    until_true test -s "$home/display"
    DISPLAY=:$(cat "$home/display")
    export DISPLAY XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home
    openbox --sm-disable >/dev/null 2>&1 &
}
# play COMMAND...: starts the program and a game.
play() {
    "$@" "$program" >"$home/said" 2>&1 &
    running=$!
    until_true windows 2 '^Varnello$'
    xdotool key Return
    until_true windows 1 'Varnello \[Penguin\]'
    sleep 3 # the deal
}

display gone
play env
kill -9 "$server"
until_true ended "$running"
cmp -n "$(stat -c %s "$folder/before")" "$home/Varnello/Player1.sre" "$folder/before" ||
    die "the display took results with it"
grep -qE '"Penguin",[0-9]+,[0-9]+,[0-9]+,-?[0-9]+,0' "$home/Varnello/Player1.sre" ||
    die "the running game wasn't booked"
grep -q '^LastGName=Penguin' "$home/Varnello/Varnello.ini" || die "the display took settings with it"
echo "A display that goes away: the program ended, the game is booked, results and settings stand. It said:"
sed 's/^/    /' "$home/said"

display unwritable
as_player=(env)
[ "$(id -u)" != 0 ] || as_player=(setpriv --reuid=65534 --regid=65534 --clear-groups)
chmod 444 "$home/Varnello/Player1.sre"
play "${as_player[@]}"
xdotool key ctrl+F1
sleep 1
import -window root "$picture"
xdotool key Return
sleep 0.5
ended "$running" && die "the program ended with the game"
cmp "$home/Varnello/Player1.sre" "$folder/before" || die "old results changed"
kill "$running"
echo "A result that can't be written: see the picture; the program goes on, results stand."
