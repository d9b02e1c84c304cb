#!/usr/bin/env bash
# The window's list with 10,000 files against sonoria-cli --dry-run on the same folder in the same
# run (the two alternate, medians of ROUNDS rounds), the longest block of the window's main
# thread during the add and while the whole list scrolls, and the resident memory per item.
#   bench/list.sh     (ROUNDS=3 by default)
set -euo pipefail
source "$(dirname "$0")/common.sh"
bench_prepare list sonoria-cli sonoria-bench-list
list="$build/bench/sonoria-bench-list"

# 10,000 files: hard links of four one-second files under distinct names.
mkdir -p "$work/sources" "$work/list"
ffm -f lavfi -i "sine=f=440:d=1" -metadata artist="Bench" "$work/sources/a.mp3"
ffm -f lavfi -i "sine=f=330:d=1" "$work/sources/b.wav"
ffm -f lavfi -i "sine=f=550:d=1" "$work/sources/c.flac"
ffm -f lavfi -i "sine=f=660:d=1" "$work/sources/d.ogg"
sources=(a.mp3 b.wav c.flac d.ogg)
for ((i = 0; i < 10000; i++)); do
    ln "$work/sources/${sources[i % 4]}" "$work/list/track$(printf %05d "$i").${sources[i % 4]#*.}"
done

echo "machine: $(nproc) cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2 | sed 's/^ //'); load: $(cut -d' ' -f1-3 /proc/loadavg)"
window_ms=() cli_ms=() blocked=() scrolled=() memory=()
for ((i = 1; i <= rounds; i++)); do
    out=$(QT_QPA_PLATFORM=offscreen SONORIA_RESOURCES_DIR="$root/src/resources" \
        "$list" "$work/list" 2>/dev/null)
    value() { printf '%s\n' "$out" | sed -n "s/^$1=//p"; }
    if [ "$(value items)" != 10000 ]; then
        echo "the window showed $(value items) rows instead of 10000" >&2
        exit 1
    fi
    window_ms+=("$(value add_ms)")
    blocked+=("$(value add_blocked_ms)")
    scrolled+=("$(value scroll_blocked_ms)")
    memory+=("$(value kb_per_item)")
    t=$(now_ms)
    "$cli" -n -o "$work/never" "$work/list" >/dev/null
    cli_ms+=($(( $(now_ms) - t )))
done
a=$(printf '%s\n' "${window_ms[@]}" | median)
b=$(printf '%s\n' "${cli_ms[@]}" | median)
echo "list of 10000 files: window ${a} ms from the drop to the last row shown," \
     "sonoria-cli --dry-run ${b} ms, ratio $(ratio "$a" "$b") (target <= 1.2)"
echo "main thread blocked at most $(printf '%s\n' "${blocked[@]}" | largest) ms during the add," \
     "$(printf '%s\n' "${scrolled[@]}" | largest) ms while scrolling the whole list (target < 50)"
echo "resident memory $(printf '%s\n' "${memory[@]}" | median) KB per item with the window (target <= 16)"
echo "rounds: window ${window_ms[*]} ms / cli ${cli_ms[*]} ms; blocked ${blocked[*]} / ${scrolled[*]} ms"
echo "load after: $(cut -d' ' -f1-3 /proc/loadavg)"
