#!/usr/bin/env bash
# clock.sh PROGRAM: the clock is set back during a game, or jumps ahead after a suspend.
source "$(dirname "$0")/common.sh" "$1"
play() {
    printf 'now 2026-11-18 12:00:00\nstart 1 Freecell\nwait 60\ntick\nnow %s\ntick\nclose\n' "$1" |
        "$program" "$data"
}
play '2020-01-01 00:00:00' # no negative time
play '2026-11-20 12:00:00' # two days asleep, two days of the wall clock
play '9999-12-31 23:59:59' # more seconds than a line can hold
printf '%s\r\n' '"1/1/2020 12:00:00 AM","Freecell",1,0,0,-20,0' \
    '"11/20/2026 12:00:00 PM","Freecell",1,172800,0,-20,0' \
    '"12/31/9999 11:59:59 PM","Freecell",1,2147483647,0,-20,0' | diff - "$scores"
