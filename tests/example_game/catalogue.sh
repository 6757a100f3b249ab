#!/usr/bin/env bash
# catalogue.sh COMPILER: puts the document's game into a copy of the catalogue, where the document says,
# and has it compiled: as it stands, and with faults that must be told by name.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
copy=$(mktemp --suffix .cpp)
trap 'rm -f "$copy"' EXIT

# compile SED_SCRIPT: the row is changed on its way into the copy.
compile() {
    row=$(sed -n '/^```cpp$/,/^```$/{/^```/!p}' "$root/docs/adding-a-game.md" | sed "$1")
    awk -v row="$row" '/Name = "Klondike Freecell"/ { print row "\n" } { print }' \
        "$root/src/engine/definitions/catalogue.cpp" >"$copy"
    "$compiler" -std=c++20 -I "$root/src" -fsyntax-only "$copy" 2>&1
}

compiler=$1
compile '' || { echo "The document's game doesn't compile."; exit 1; }
while IFS='|' read -r change fault; do
    if said=$(compile "$change"); then
        echo "$change should be refused: $fault"
        exit 1
    elif [[ $said != *"$fault"* ]]; then
        echo "$change should be refused with \"$fault\", not with: $said"
        exit 1
    fi
done <<'END'
s/Piles = 5/Piles = 11/|Res.Piles: the table has slots for 0 to 10
s/Cards = 48/Cards = 40/|there is no Waste
s/Cards = 48,/Cards = 48, .Div = 0,/|Home.Div, the piles of a row, must be 1 or more
s/Harbour/Shore/|alphabetical order
s/Harbour Lights/Galaxy/|a name stands twice
END
