#!/usr/bin/env bash
# removed.sh PROGRAM: the file, then the whole folder is removed while the program runs.
source "$(dirname "$0")/common.sh" "$1"
mkfifo "$folder/in"
"$program" "$data" <"$folder/in" >"$folder/out" &
exec 3>"$folder/in"
games 1 1 >&3
until_true test -s "$scores"
rm "$scores"
games 2 2 >&3
until_true test -s "$scores"
[ "$(booked "$scores")" = 2 ] || die "the new file doesn't hold the new result"
rm -r "$data"
games 3 3 >&3
exec 3>&-
wait "$!" || die "the program failed"
[ "$(booked "$scores")" = 3 ] || die "the folder wasn't made again"
refused "$folder/out" 0 || die "a result that was written was reported as lost"
