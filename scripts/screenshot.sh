#!/usr/bin/env bash
# screenshot.sh [PNG]: builds Sonoria, starts its window on a virtual display (Xvfb, the xcb
# platform) with a few generated files added, and saves a picture of the window to PNG
# (default docs/screenshot.png). It runs in a scratch home and on a session bus of its own, so it
# neither touches the user's settings nor hands the files to a Sonoria that is already running.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
out="$(realpath -m "${1:-$root/docs/screenshot.png}")"
"$root/scripts/setup.sh"
"$root/scripts/build.sh" "$root/build/release" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null

scratch="$(mktemp -d "${TMPDIR:-/tmp}/sonoria-screenshot.XXXXXX")"
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/home/.config/Sonoria" "$scratch/media"
# No start-up requests to the web service from a picture-taking run.
printf '[General]\nServiceBaseURLKey=\n' > "$scratch/home/.config/Sonoria/Sonoria.conf"

tone() { ffmpeg -nostdin -v error -f lavfi -i "$1" "${@:3}" "$scratch/media/$2"; }
tone "sine=frequency=440:duration=212" "01 Morning Walk.flac" -metadata title="Morning Walk"
tone "sine=frequency=523:duration=187" "02 Harbour Lights.wav"
tone "anoisesrc=duration=254:amplitude=0.05" "03 Rain on the Roof.ogg"
tone "sine=frequency=330:duration=96" "Interview.m4a"

cd "$scratch/media"
env -u SONORIA_RESOURCES_DIR HOME="$scratch/home" \
    XDG_CONFIG_HOME="$scratch/home/.config" XDG_DATA_HOME="$scratch/home/.local/share" \
    XDG_CACHE_HOME="$scratch/home/.cache" XDG_RUNTIME_DIR="$scratch" \
    QT_QPA_PLATFORM=xcb SONORIA_SCREENSHOT="$out" \
    xvfb-run -a -s "-screen 0 1280x800x24" \
    dbus-run-session -- "$root/build/release/app/sonoria" ./*
echo "$out"
