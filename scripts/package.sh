#!/usr/bin/env bash
# package.sh: builds Sonoria (release, in build/release) and makes its Debian package with CPack.
# Prints the path of the .deb; install it with `sudo apt install ./<that path>`.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dir="$root/build/release"
"$root/scripts/setup.sh"
"$root/scripts/build.sh" "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
out="$dir/package"
mkdir -p "$out"
(cd "$dir" && cpack -G DEB -B "$out" >/dev/null)
rm -rf "$out/_CPack_Packages"
ls "$out"/sonoria_*.deb
