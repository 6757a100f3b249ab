#!/usr/bin/env bash
# signals.sh PROGRAM: a program that a signal ends books its game, once. It needs a display.
source "$(dirname "$0")/common.sh" "$1"
for signal in TERM INT HUP; do
    home=$folder/$signal
    mkdir -p "$home/Varnello"
    printf '[Data]\nLastGName=Penguin\nAutoplay=0\nSoundStart=0\n' >"$home/Varnello/Varnello.ini"
    QT_QPA_PLATFORM=xcb XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home "$program" &
    running=$!
    until_true windows 2
    xdotool key Return
    until_true titled 'Varnello \[Penguin\]'
    xdotool key F4 # finishes the deal; the game ends under an open window
    until_true titled 'Statistics'
    kill -s "$signal" "$running"
    until_true ended "$running"
    [ "$(grep -c '"Penguin",[0-9]*,[0-9]*,0,[0-9]*,0' "$home/Varnello/Player1.sre")" = 1 ] ||
        die "SIG$signal: the game isn't booked once"
done
