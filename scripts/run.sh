#!/usr/bin/env bash
# Installs what is missing, builds Sonoria and starts it. Arguments are passed on.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/setup.sh"
"$root/scripts/build.sh" "$root/build/release" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
if [ $# -eq 0 ]; then set -- --help; fi
exec "$root/build/release/cli/sonoria-cli" "$@"
