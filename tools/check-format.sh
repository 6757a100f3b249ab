#!/usr/bin/env bash
# Says which sources clang-format would change; fails when there are any.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
git ls-files -co --exclude-standard '*.cpp' '*.h' | xargs clang-format --dry-run -Werror
