#!/usr/bin/env bash
# try-installed.sh PREFIX FOLDER: plays an installed Varnello on a virtual display like a person who has
# nothing but it: deals a game by number, wins it with the mouse, reads a help page and leaves. Pictures of
# the screen and a home of its own go to the folder, which is made. Fails when something doesn't come.
set -euo pipefail
tools=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
if [ "${1:-}" != --inside ]; then
    mkdir -p "$2"
    prefix=$(realpath "$1") folder=$(realpath "$2")
    cd / # where a menu starts it
    exec env SCREEN=1100x860 "$tools/on-virtual-display.sh" "$tools/try-installed.sh" --inside "$prefix" "$folder"
fi
prefix=$2 folder=$3
programs=$prefix/bin
[ -x "$prefix/games/varnello" ] && programs=$prefix/games

export XDG_CONFIG_HOME=$folder/config XDG_DATA_HOME=$folder/data QT_QPA_PLATFORM=xcb
rm -rf "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$folder/script"
mkdir -p "$XDG_CONFIG_HOME/Varnello"
printf '[Data]\nLastGName=Stripped Freecell\nAutoplay=1\n' >"$XDG_CONFIG_HOME/Varnello/Varnello.ini"
"$programs/varnello" &
running=$!
trap 'kill "$running" 2>/dev/null || true' EXIT

fail() {
    import -window root "$folder/failed.png"
    echo "$1 (see $folder/failed.png)" >&2
    exit 1
}
# until_true SECONDS COMMAND...: polls.
until_true() {
    local tries=$(($1 * 20))
    shift
    until "$@"; do
        kill -0 "$running" 2>/dev/null || fail "The program has ended before: $*"
        [ $((tries -= 1)) -gt 0 ] || fail "In vain: $*"
        sleep 0.05
    done
}
window_of() { xdotool search --onlyvisible --pid "$running" --name "$1" 2>/dev/null || true; }
windows() { [ "$(window_of "$1" | wc -l)" -eq "$2" ]; }
# active PATTERN: whether the window with the focus has such a title.
# shellcheck disable=SC2053
active() { [[ "$(xdotool getactivewindow getwindowname 2>/dev/null)" == $1 ]]; }
loaded() { grep -q " $prefix/lib/.*varnello/$1.so" "/proc/$running/maps"; }
picture() { import -window root "$folder/$1.png"; }

# What the table shows, as a number.
table() { import -window root -crop "+$left+$top" -format %# info:; }
differs() { [ "$(table)" != "$1" ]; }
still() {
    local before
    before=$(table)
    sleep 0.3
    ! differs "$before"
}

# The game to win, and what varnello-script knows about it: where its cards lie after its first lines.
game="Stripped Freecell" number=6
drops=("9 4045 200" "7 9105 2340" "8 10370 2090" "13 9105 1590" "12 5310 1590")
card_after() { # card_after CARD COUNT: its corner in twips after so many drops, as LEFT,TOP
    {
        printf 'set Autoplay 1\nstart %s %s\n' "$number" "$game"
        [ "$2" -eq 0 ] || printf 'drop %s\n' "${drops[@]:0:$2}"
        echo board
    } | "$programs/varnello-script" "$folder/script" | tr ' ' '\n' | sed -n "s|^$1/.*@||p"
}

until_true 60 windows '^Varnello$' 2 # the selector over the table
until_true 10 active Varnello
xdotool key Return # Play: any deal of the game, so that the number chooser offers the game first
until_true 10 active "Varnello \[$game\]*"
until_true 10 loaded varnello-sound

# The table begins where its brightest green does, below menus and toolbar; cards lie in its middle.
eval "$(xdotool getactivewindow getwindowgeometry --shell | grep -E '^(X|Y|WIDTH)=')"
import -window root -crop "1x300+$((X + WIDTH / 2))+$Y" +repage "$folder/edge.png"
top=$((Y + $(convert "$folder/edge.png" txt:- | awk -F '[,:]' '/#006400/ && !y { y = $2 } END { print y }')))
left=$((X + (WIDTH - 1032) / 2 - 1))
until_true 20 still
xdotool key shift+F2
until_true 10 active 'Select a Game Number'
xdotool type "$number"
xdotool key Return
until_true 10 active "Varnello \[$game\]*\[$number\]*"
until_true 20 still
for i in "${!drops[@]}"; do
    read -r card to_left to_top <<<"${drops[i]}"
    IFS=, read -r from_left from_top <<<"$(card_after "$card" "$i")"
    grip_x=$((left + 35)) grip_y=$((top + 8)) # the strip that a card above leaves free
    before=$(table)
    xdotool mousemove $((grip_x + from_left / 15)) $((grip_y + from_top / 15)) mousedown 1 \
        mousemove $((grip_x + (from_left + to_left) / 30)) $((grip_y + (from_top + to_top) / 30)) \
        mousemove $((grip_x + to_left / 15)) $((grip_y + to_top / 15)) mouseup 1
    until_true 10 differs "$before"
    until_true 10 still
done
until_true 20 active Congrats
until_true 10 loaded varnello-sound
until_true 10 still
picture won
grep -q '"Stripped Freecell","6",.*,1' "$XDG_DATA_HOME/Varnello/Player1.sre" || fail "No result was written."

xdotool key Escape
until_true 10 active 'Varnello*'
xdotool key F1
until_true 10 active '* - Varnello'
until_true 10 still
picture help
xdotool key Escape
until_true 10 active 'Varnello*'
xdotool key alt+F4
wait "$running" || fail "The program ended badly."
trap - EXIT
