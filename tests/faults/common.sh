# Sourced by the tests of faults and of the start: common.sh PROGRAM, mostly varnello-script.
set -euo pipefail
program=$1
folder=$(mktemp -d)
chmod 755 "$folder"
trap 'rm -rf "$folder"' EXIT
data=$folder/data
scores=$data/Player1.sre
mkdir "$data"

die() { echo "$*" >&2; exit 1; }

# games FIRST LAST: a script that books these deals as not won.
games() { for ((i = $1; i <= $2; ++i)); do printf 'start %d Stripped Freecell\nclose\n' "$i"; done; }

# booked FILE: the numbers of the deals in its whole lines, in file order.
booked() { LC_ALL=C sed -nE 's/^"[^"]+","Stripped Freecell",([0-9]+),0,0,0,0\r$/\1/p' "$1"; }

# starts_with FILE OLDER: whether every byte of OLDER still stands at the front of FILE.
starts_with() { cmp -s -n "$(stat -c %s "$2")" "$1" "$2"; }

# until_true COMMAND...: waits for it, at most half a minute.
until_true() {
    for _ in $(seq 1500); do
        "$@" && return
        sleep 0.02
    done
    die "waited in vain for: $*"
}

# refused OUTPUT COUNT: whether so many results were reported as not written.
refused() { [ "$(grep -c '^message: The result of this game could not be written to the file /' "$1")" = "$2" ]; }

# Of a program with windows: is there one with a title that matches, are there so many called
# Varnello (the main one, what is open over it), has a process ended?
titled() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
untitled() { ! titled "$1"; }
windows() { [ "$(xdotool search --onlyvisible --name '^Varnello$' 2>/dev/null | wc -l)" = "$1" ]; }
ended() { ! kill -0 "$1" 2>/dev/null; }
