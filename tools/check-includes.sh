#!/usr/bin/env bash
# Says which includes of the sources point against the direction of dependencies; fails when any do.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../src"

# Each folder of the engine may include itself and those before it.
order=(common definitions settings board movelog rules scores reports flow)
allowed=
wrong=0
for folder in "${order[@]}"; do
    allowed+=${allowed:+|}$folder
    grep -rnE '#include ["<](engine/[a-z]+/|desktop/|script/|Q)' "engine/$folder" |
        grep -vE "#include \"engine/($allowed)/" && wrong=1
done
[ "$(ls -d engine/*/ | wc -l)" = ${#order[@]} ] || { echo "A folder of src/engine isn't in the order."; wrong=1; }
grep -rnE '#include "(desktop|script)/' engine && wrong=1
grep -rnE '#include ["<](desktop/|Q)' script && wrong=1
grep -rnE '#include "script/' desktop && wrong=1
exit $wrong
