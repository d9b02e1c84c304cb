#!/usr/bin/env bash
# Installs whatever Debian package from packages.txt is missing. Safe to run again and again:
# with everything present it touches nothing and needs no network.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"

mapfile -t wanted < <(grep -v '^\s*#' "$here/packages.txt" | sed '/^\s*$/d')
missing=()
for pkg in "${wanted[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$pkg")
    fi
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
echo "Installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
