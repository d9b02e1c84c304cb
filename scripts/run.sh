#!/usr/bin/env bash
# Installs what is missing, builds Sonoria and opens its window. Arguments (files and folders to
# add) are passed on.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/setup.sh"
"$root/scripts/build.sh" "$root/build/release" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
exec "$root/build/release/app/sonoria" "$@"
