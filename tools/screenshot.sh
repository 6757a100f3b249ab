#!/usr/bin/env bash
# screenshot.sh PROGRAM FILE.png: starts the program on the present display, waits for its selector,
# writes a picture of the whole screen and ends the program. Settings and results of the user's are
# left alone.
set -euo pipefail

home=$(mktemp -d)
XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home "$1" &
program=$!
# What the program writes as it ends lies in there as well.
trap 'kill "$program" 2>/dev/null || true; wait "$program" 2>/dev/null || true; rm -rf "$home"' EXIT

# The main window and the selector over it.
for _ in $(seq 200); do
    windows=$(xdotool search --onlyvisible --pid "$program" --name '^Varnello$' 2>/dev/null | wc -l || true)
    [ "$windows" -ge 2 ] && break
    sleep 0.05
done
sleep 0.5
import -window root "$2"
