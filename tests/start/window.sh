#!/usr/bin/env bash
# window.sh PROGRAM: how the program starts and ends, by its windows, its files and what it writes
# to the terminal. It needs a display.
source "$(dirname "$0")/../faults/common.sh" "$1"
trap 'kill "${running:-}" 2>/dev/null || true; rm -rf "$folder"' EXIT
statistics='^Game Statistics$'
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 LANGUAGE=en

die() { echo "$case: $*" >&2; cat "$home/errors" >&2; exit 1; }

# prepare CASE [SETTING...]: a home of its own for the program.
prepare() {
    case=$1 home=$folder/${1// /-} settings=$folder/${1// /-}/Varnello/Varnello.ini
    export HOME=$home XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home
    scores=$home/Varnello/Player1.sre
    mkdir -p "$home/Varnello"
    printf '%s\n' '[Data]' LastGName=Penguin Autoplay=0 SoundStart=0 "${@:2}" >"$settings"
}
run() { "$program" >"$home/out" 2>"$home/errors" & running=$!; }
play() {
    until_true windows 2
    xdotool key Return
    until_true titled "Varnello .Penguin."
    xdotool key F4 # finishes the deal
    until_true titled "$statistics"
    xdotool key Escape
    until_true untitled "$statistics"
}
# begin CASE [SETTING...]: starts the program in such a home.
begin() { prepare "$@"; run; }
# ends STATUS ERRORS: a pattern of the shell for what it wrote.
ends() {
    local status=0
    until_true ended "$running"
    wait "$running" || status=$?
    running=
    [ "$status" = "$1" ] || die "its status is $status"
    # shellcheck disable=SC2053
    [[ $(cat "$home/errors") == $2 ]] || die "it says something else"
    [ ! -s "$home/out" ] || die "it writes to the output"
}
has_booked() {
    [ "$(cat "$scores" 2>/dev/null | grep -c '"Penguin"')" = "$1" ] || die "not $1 games are booked"
}

begin 'closed'
play
xdotool key alt+F4
ends 0 ''
has_booked 1

begin 'left by its menu'
play
xdotool key alt+f x
ends 0 ''
has_booked 0

begin 'asked to end before there is a window'
until_true windows 1
kill "$running"
ends 0 ''
has_booked 0

begin 'the display goes away'
play
xdotool windowkill "$(xdotool search --onlyvisible --name 'Varnello .Penguin.')"
ends 1 '*'
has_booked 1

begin 'closed, and the result cannot be written'
play
rm -f "$scores"
mkdir "$scores"
xdotool key alt+F4
until_true windows 1
ended "$running" && die "it doesn't wait for its message to be read"
xdotool key Return
ends 0 ''

begin 'ended, and the result cannot be written'
play
rm -f "$scores"
mkdir "$scores"
kill "$running"
ends 0 'The result of this game could not be written to the file'*Player1.sre

prepare 'settings that are no file'
rm "$settings"
mkfifo "$settings"
run
until_true windows 2
xdotool key Return
until_true titled 'Varnello .[A-Z].*. .Player1. '
xdotool key F7 alt+F4
ends 0 '*/Varnello.ini is no plain file; the settings of this run aren*t kept.'

begin 'larger than the screen' '[Window]' Zoom=300
play
xdotool key ctrl+minus
until_true grep -q 'Zoom=175' "$settings"
xdotool key ctrl+plus ctrl+plus ctrl+plus ctrl+plus
until_true grep -q 'Zoom=200' "$settings"
xdotool key alt+F4
ends 0 ''

export LANGUAGE=de statistics=Spielstatistik
begin 'in another language'
play
xdotool key alt+F4
ends 0 ''
has_booked 1
