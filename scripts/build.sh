#!/usr/bin/env bash
# build.sh <build dir> [cmake options...]: configures (once) and builds with Ninja.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dir="$1"; shift
if [ ! -f "$dir/build.ninja" ]; then
    cmake -S "$root" -B "$dir" -G Ninja "$@"
fi
cmake --build "$dir"
