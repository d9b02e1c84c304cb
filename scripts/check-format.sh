#!/usr/bin/env bash
# Fails when a C++ file of ours differs from what clang-format makes of it.
set -uo pipefail
tool="${1:-clang-format}"
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
mapfile -t files < <(git ls-files -co --exclude-standard -- '*.cpp' '*.h' | grep -v '^build')
bad=0
for f in "${files[@]}"; do
    [ -f "$f" ] || continue
    if ! "$tool" --dry-run -Werror "$f" >/dev/null 2>&1; then
        echo "not formatted: $f"
        bad=1
    fi
done
exit $bad
