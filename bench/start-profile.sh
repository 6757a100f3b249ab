#!/usr/bin/env bash
# start-profile.sh PROGRAM: where the time of a start goes, by library and by function, and what of the
# modules a start loads, which should be nothing. Needs perf and strace. To be run as
#     tools/on-virtual-display.sh bench/start-profile.sh build/check/bin/varnello
set -euo pipefail
program=$1
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home

echo "== the dynamic loader"
LD_DEBUG=statistics timeout 1 "$program" 2>&1 | grep -E 'total startup|for relocation' | tail -n 2 || true
echo "== by library and by function, until the selector has been open for a while"
perf record -q -F 5000 -o "$home/perf.data" timeout 4 "$program" >/dev/null 2>&1 || true
for kind in dso symbol; do
    perf report -i "$home/perf.data" --stdio --sort "$kind" 2>/dev/null | grep -E '^ +[0-9.]+%' | head -n 12 || true
done
echo "== modules loaded"
strace -f -e trace=openat -o "$home/files" timeout 4 "$program" >/dev/null 2>&1 || true
grep -E 'varnello-sound|Qt6Multimedia' "$home/files" | grep -v ENOENT || echo none
