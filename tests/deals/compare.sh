#!/usr/bin/env bash
# compare.sh PROGRAM [sample]: deals all games in all ways, or every 16th, and compares the digests
# with deals.golden. A line there: digest of the sample, digest of all, different deals, game.
set -euo pipefail
golden=$(dirname "${BASH_SOURCE[0]}")/deals.golden
known=$(cat "$golden")
if [ "${2:-}" = sample ]; then
    known=$(cut -d' ' -f1,4- "$golden")
fi
dealt=$("$@")
diff <(echo "$known") <(echo "$dealt") && exit

names() { sed -E 's/^([0-9a-f]{16} )+([0-9]+ )?//' | sort; }
missing=$(comm -13 <(echo "$known" | names) <(echo "$dealt" | names))
if [ -n "$missing" ]; then
    echo "The deals of $missing aren't known yet. When they are as you want them:" >&2
    echo "    build/check/tests/deals/varnello-all-deals > tests/deals/deals.golden" >&2
else
    echo "A deal that players know by its number has changed." >&2
fi
exit 1
