#!/usr/bin/env bash
# killed.sh PROGRAM: kill -9 while thousands of games are booked in a row, five times.
source "$(dirname "$0")/common.sh" "$1"
grown() { [ "$(stat -c %s "$scores" 2>/dev/null || echo 0)" -gt "$1" ]; }
games 1 20000 >"$folder/script"
for round in 1 2 3 4 5; do
    rm -f "$scores"
    "$program" "$data" <"$folder/script" >"$folder/out" &
    killed=$!
    until_true grown $((round * 2000))
    kill -9 "$killed"
    wait "$killed" 2>/dev/null || true
    last=$(booked "$scores" | tail -n 1)
    [ "$last" -lt 20000 ] || die "killed too late"
    [ "$(booked "$scores")" = "$(seq "$last")" ] || die "a result is missing or half written"
    cp "$scores" "$folder/before"
    games 20001 20001 | "$program" "$data" >"$folder/out"
    starts_with "$scores" "$folder/before" || die "old results changed"
    [ "$(booked "$scores")" = "$(seq "$last"; echo 20001)" ] || die "the next result isn't whole"
done
