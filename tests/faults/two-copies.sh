#!/usr/bin/env bash
# two-copies.sh PROGRAM: two programs book a thousand games each into the same file at once.
source "$(dirname "$0")/common.sh" "$1"
games 1 1000 >"$folder/script1"
games 1001 2000 >"$folder/script2"
"$program" "$data" <"$folder/script1" >"$folder/out1" &
first=$!
"$program" "$data" <"$folder/script2" >"$folder/out2"
wait "$first"
[ ! -s "$folder/out1" ] && [ ! -s "$folder/out2" ] || die "a result was refused"
# A program that looks at the end of the file while the other is half through a line ends that line
# once more: an empty line, which counts as nothing.
[ "$(grep -vc $'^\r$' "$scores")" = 2000 ] || die "lines are lost, or torn"
[ "$(booked "$scores" | sort -n)" = "$(seq 2000)" ] || die "a line is damaged"
