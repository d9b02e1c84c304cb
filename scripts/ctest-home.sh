#!/usr/bin/env bash
# ctest-home.sh BUILD_DIR HOME: runs every test of a build once with HOME and the XDG folders
# inside HOME (made if missing) and the desktop's user folders of the caller unset, so that no
# test can reach the real home. Exits with ctest's status. The test and coverage scripts share it.
set -euo pipefail
dir="$1"
home="$2"
mkdir -p "$home"
exec env -u XDG_MUSIC_DIR -u XDG_VIDEOS_DIR -u XDG_DOCUMENTS_DIR HOME="$home" \
    XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share" \
    XDG_STATE_HOME="$home/.local/state" XDG_CACHE_HOME="$home/.cache" \
    ctest --test-dir "$dir" --output-on-failure --timeout 900 -j 2
