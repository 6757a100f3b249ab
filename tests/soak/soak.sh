#!/usr/bin/env bash
# soak.sh [GAMES [SEED]]: 500 games at random in a real window, first as players have the program,
# which tells whether memory stays flat, then under the address and undefined behaviour sanitizers.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for kind in play sanitized; do
    build=build/soak-$kind
    sanitize=
    [ $kind = play ] || sanitize=address,undefined
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVARNELLO_BENCH=OFF \
        -DVARNELLO_SANITIZE=$sanitize >/dev/null
    cmake --build "$build" --target varnello-soak
    echo "== $kind"
    # What the toolkit and its libraries keep until the end isn't a leak of the program.
    ASAN_OPTIONS=detect_leaks=0 QT_QPA_PLATFORM=xcb \
        tools/on-virtual-display.sh "$build/bin/varnello-soak" "${1:-500}" "${2:-1}"
done
