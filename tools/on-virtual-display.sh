#!/usr/bin/env bash
# on-virtual-display.sh COMMAND...: runs a command on an X server of its own with a window manager.
# SCREEN is the size of its screen, 1280x900 unless set.
set -euo pipefail

folder=$(mktemp -d)
Xvfb -displayfd 3 -screen 0 "${SCREEN:-1280x900}x24" -nolisten tcp 3>"$folder/display" >/dev/null 2>&1 &
server=$!
manager=
cleanup() {
    [ -z "$manager" ] || kill "$manager" 2>/dev/null || true
    kill "$server" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$folder"
}
trap cleanup EXIT

for _ in $(seq 200); do
    [ -s "$folder/display" ] && break
    sleep 0.05
done
[ -s "$folder/display" ] || { echo "The virtual X server doesn't start." >&2; exit 1; }
DISPLAY=:$(cat "$folder/display")
export DISPLAY
unset WAYLAND_DISPLAY
openbox --sm-disable >/dev/null 2>&1 &
manager=$!
for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
    sleep 0.05
done
"$@"
