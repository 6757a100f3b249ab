#!/usr/bin/env bash
# read-only.sh PROGRAM: a data folder and a file that mustn't be written. Root may write everywhere,
# so that it plays as nobody.
source "$(dirname "$0")/common.sh" "$1"
as_player=()
if [ "$(id -u)" = 0 ]; then
    as_player=(setpriv --reuid=65534 --regid=65534 --clear-groups)
    "${as_player[@]}" test -x "$program" || exit 77
fi
games 1 3 | "$program" "$data" >"$folder/out"
cp "$scores" "$folder/before"
chmod 444 "$scores"
chmod 555 "$data"
(games 4 6; echo state; echo 'start 7 Penguin'; echo favorite; echo close) |
    "${as_player[@]}" "$program" "$data" >"$folder/out"
cmp "$scores" "$folder/before"
refused "$folder/out" 4 || die "not every lost result was reported"
grep -q '^state: 0|' "$folder/out" || die "the game didn't end"
grep -q '^message: The favorite could not be written' "$folder/out" || die "no word of the favorite"
chmod 755 "$data"
