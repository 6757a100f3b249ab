#!/usr/bin/env bash
# full-file.sh PROGRAM: a file that mustn't grow, as with a quota; a line may end anywhere.
source "$(dirname "$0")/common.sh" "$1"
trap '' XFSZ # the write shall fail instead of ending the program

(ulimit -f 4; games 1 200 | "$program" "$data") | cat >"$folder/out"
kept=$(booked "$scores" | tail -n 1)
[ "$(booked "$scores")" = "$(seq "$kept")" ] || die "a result is missing between others"
[ "$kept" -gt 50 ] && [ "$kept" -lt 200 ] || die "the limit wasn't met: $kept"
refused "$folder/out" $((200 - kept)) || die "not every lost result was reported"
cp "$scores" "$folder/before"
games 201 203 | "$program" "$data" >"$folder/out"
starts_with "$scores" "$folder/before" || die "old results changed"
[ "$(booked "$scores")" = "$(seq "$kept"; seq 201 203)" ] || die "a half line spoils the next one"
