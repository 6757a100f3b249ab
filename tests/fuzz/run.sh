#!/usr/bin/env bash
# run.sh TARGET [SECONDS]: fuzzes files, numbers, scripts or settings, ten minutes unless told
# otherwise. What it finds lies in build/fuzz/found/TARGET-*; minimise it and keep it in corpus/TARGET.
#   tests/fuzz/run.sh scripts 3600
set -euo pipefail
folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
target=$1
cd "$folder/../.."
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target "varnello-fuzz-$target"
mkdir -p "build/fuzz/corpus/$target" build/fuzz/found
options=(-max_total_time="${2:-600}" -timeout=5 -rss_limit_mb=2048 -print_final_stats=1
         -artifact_prefix="build/fuzz/found/$target-")
[ ! -f "$folder/$target.dict" ] || options+=(-dict="$folder/$target.dict")
"build/fuzz/tests/fuzz/varnello-fuzz-$target" "${options[@]}" "build/fuzz/corpus/$target" \
    "$folder/corpus/$target"
