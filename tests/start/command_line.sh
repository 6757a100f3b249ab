#!/usr/bin/env bash
# command_line.sh PROGRAM SCRIPT: what the program answers without opening a window, and the
# scripted table.
set -euo pipefail
program=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
export LC_ALL=C LANGUAGE=C HOME=$folder XDG_CONFIG_HOME=$folder XDG_DATA_HOME=$folder

# answers STATUS OUTPUT ERRORS WORD...: patterns of the shell for what it writes.
answers() {
    local status=0
    env LC_ALL="${locale:-C}" "$program" "${@:4}" >"$folder/out" 2>"$folder/err" || status=$?
    # shellcheck disable=SC2053
    [ "$status" = "$1" ] && [[ $(cat "$folder/out") == $2 ]] && [[ $(cat "$folder/err") == $3 ]] && return
    echo "$program ${*:4}: status $status, it said:" >&2
    cat "$folder/out" "$folder/err" >&2
    exit 1
}

answers 0 'Varnello [0-9].[0-9]' '' --version
answers 0 $'Varnello plays patience card games.\n\nusage: varnello *' '' --help
locale=de_DE.UTF-8 LANGUAGE=fi:de answers 0 '*Patiencen*' '' --help
locale=en_US.UTF-8 LANGUAGE=en:de answers 0 'Varnello plays *' '' --help
answers 1 '' $'Varnello can\'t start: there is no graphical display. The toolkit says:\n  *display*'
DISPLAY=:nonsense answers 1 '' \
    $'Varnello can\'t start: the toolkit can\'t use the display. It says:\n  *display*'
WAYLAND_DISPLAY=nonsense answers 1 '' \
    $'Varnello can\'t start: the toolkit can\'t use the display. It says:\n  *display*'
QT_QPA_PLATFORM=offscreen answers 2 '' $'Varnello doesn\'t know "--nonsense"; *' --nonsense
QT_QPA_PLATFORM=offscreen answers 2 '' $'Varnello doesn\'t know "--help"; *' --help me
[ ! -e "$folder/Varnello" ] || { echo "An answer leaves files behind." >&2; exit 1; }

program=$2
answers 2 '' 'usage: varnello-script DIRECTORY < script' </dev/null
answers 2 '' 'usage: *' "$folder/a" "$folder/b" </dev/null
touch "$folder/file"
answers 2 '' "varnello-script: the folder $folder/file/data can't be used" "$folder/file/data" </dev/null
answers 0 'state: 0|*' '' "$folder/new/data" <<<state
[ -d "$folder/new/data" ] || { echo "The data folder isn't made." >&2; exit 1; }
