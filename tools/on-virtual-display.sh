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
managed() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
# On a loaded machine it may end at once; without it no window ever gets the keyboard.
for _ in $(seq 200); do
    managed && break
    if [ -z "$manager" ] || ! kill -0 "$manager" 2>/dev/null; then
        openbox --sm-disable >"$folder/manager" 2>&1 &
        manager=$!
    fi
    sleep 0.05
done
managed || { echo "The window manager doesn't start:" >&2; cat "$folder/manager" >&2; exit 1; }
"$@"
