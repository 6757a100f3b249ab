#!/usr/bin/env bash
# full-disk.sh PROGRAM: a disk that is full in the middle of a line. Skipped without the right to mount.
if [ "${2:-}" != mounted ]; then
    unshare --map-root-user --mount true 2>/dev/null || exit 77
    exec unshare --map-root-user --mount "$0" "$1" mounted
fi
source "$(dirname "$0")/common.sh" "$1"
mount -t tmpfs -o size=32k tmpfs "$data" || exit 77
trap 'umount "$data"; rm -rf "$folder"' EXIT

games 1 40 | "$program" "$data" >"$folder/out"
cp "$scores" "$folder/before"
# All pages but what is left of the file's own: one line fits there, the next one half.
dd if=/dev/zero of="$data/filler" bs=4096 status=none 2>/dev/null || true
games 41 200 | "$program" "$data" >"$folder/out"
starts_with "$scores" "$folder/before" || die "a full disk cost old results"
kept=$(booked "$scores" | tail -n 1)
[ "$(booked "$scores")" = "$(seq "$kept")" ] || die "a result is missing between others"
[ "$kept" -lt 200 ] || die "the disk wasn't full"
refused "$folder/out" $((200 - kept)) || die "not every lost result was reported"

cp "$scores" "$folder/before"
rm "$data/filler"
games 201 203 | "$program" "$data" >"$folder/out"
starts_with "$scores" "$folder/before" || die "old results changed when there was room again"
[ "$(booked "$scores")" = "$(seq "$kept"; seq 201 203)" ] || die "a half line spoils the next one"
