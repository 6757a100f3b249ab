#!/usr/bin/env bash
# tidy.sh BUILD_FOLDER [PATTERN]: clang-tidy over the sources of the program and of
# its pictures and sounds whose path matches the pattern.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$1
pattern=${2:-.}

# The other compiler's precompiled headers are no use to clang.
mkdir -p "$build/tidy"
sed -E 's/ -Winvalid-pch -include [^ ]*cmake_pch\.hxx//' "$build/compile_commands.json" \
    >"$build/tidy/compile_commands.json"
cd "$root"
git ls-files -co --exclude-standard 'src/*.cpp' 'assets/*.cpp' | grep -E "$pattern" |
    xargs -P "$(nproc)" -n 1 clang-tidy -p "$build/tidy" --quiet 2> >(grep -v 'warnings\? generated' >&2)
