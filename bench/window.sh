#!/usr/bin/env bash
# The window converting offscreen against sonoria-cli on the same files in the same run (the two
# alternate, medians of ROUNDS rounds), and the longest block of the window's main thread.
#   bench/window.sh [all|ratio|block]     (ROUNDS=3 by default)
set -euo pipefail
source "$(dirname "$0")/common.sh"
which="${1:-all}"
bench_prepare window sonoria-cli sonoria-worker sonoria-bench-window
window="$build/bench/sonoria-bench-window"
# The window program of the build tree has no converter worker beside it, as an installed one
# has; it is told where the tool's is, so that both convert the same way.
export SONORIA_WORKER="$build/cli/sonoria-worker"

make_wavs() { # folder, count, seconds
    mkdir -p "$1"
    ffmpeg -nostdin -hide_banner -loglevel error -y -f lavfi -i "sine=f=440:d=$3" \
        -ac 2 -ar 44100 "$1/src0001.wav"
    for i in $(seq -f %04g 2 "$2"); do cp "$1/src0001.wav" "$1/src$i.wav"; done
}

# One window run; prints its report line (wall_ms=… longest_block_ms=…).
window_run() { # jobs, source folder, output folder
    rm -rf "$3"; mkdir -p "$3"
    "$window" -f MP3 -j "$1" -o "$3" "$2"
}

# The window's figure is its own wall_ms: from the add to the end of the run, as a user with the
# window open sees it (the add and the probing included, as in the tool's time). The window
# program's start-up and exit (libraries, fonts, the first paint) are printed beside it.
# Run for short files (200 of 2 s) and for long ones (4 of 150 s).
bench_ratio() { # count, seconds
    local count="$1" seconds="$2" src="$work/wav-$1-$2"
    make_wavs "$src" "$count" "$seconds"
    local tc=() tw=() tp=() blocks=() t line i
    run_cli() {
        rm -rf "$work/outC"; mkdir -p "$work/outC"; sync
        t=$(now_ms)
        "$cli" -f MP3 -j 2 --no-organize -o "$work/outC" "$src" >/dev/null
        tc+=($(( $(now_ms) - t )))
    }
    run_window() {
        rm -rf "$work/outW"; sync
        t=$(now_ms)
        line=$(window_run 2 "$src" "$work/outW")
        tp+=($(( $(now_ms) - t )))
        tw+=("$(sed -n 's/.*wall_ms=\([0-9]*\).*/\1/p' <<<"$line")")
        blocks+=("$(sed -n 's/.*longest_block_ms=\([0-9.]*\).*/\1/p' <<<"$line")")
        [ "$(ls "$work/outW" | wc -l)" -eq "$count" ] || { echo "window run wrote $(ls "$work/outW" | wc -l) files" >&2; exit 1; }
    }
    # The previous run's 200 outputs are written back first (sync), and the two take turns at
    # going first: otherwise the second of a pair pays for the first one's write-back.
    for ((i = 1; i <= rounds; i++)); do
        if ((i % 2)); then run_window; run_cli; else run_cli; run_window; fi
    done
    local c w p
    c=$(printf '%s\n' "${tc[@]}" | median)
    w=$(printf '%s\n' "${tw[@]}" | median)
    p=$(printf '%s\n' "${tp[@]}" | median)
    echo "$count WAV of $seconds s to MP3, 2 jobs: window ${w} ms, sonoria-cli ${c} ms, ratio $(ratio "$w" "$c") (target <= 1.05)"
    echo "    window program from start to exit ${p} ms, ratio $(ratio "$p" "$c")"
    echo "    rounds: window ${tw[*]} / program ${tp[*]} / cli ${tc[*]}; longest main-thread block per round: ${blocks[*]} ms (target < 50)"
}

bench_block() {
    make_wavs "$work/short" 1000 0.5
    local line
    line=$(window_run 5 "$work/short" "$work/outS")
    echo "1,000 WAV of 0.5 s to MP3, 5 jobs: $line (target: longest block < 50 ms)"
}

case "$which" in
    ratio) bench_ratio 200 2; bench_ratio 4 150 ;;
    block) bench_block ;;
    all) bench_ratio 200 2; bench_ratio 4 150; bench_block ;;
    *) echo "usage: bench/window.sh [all|ratio|block]" >&2; exit 2 ;;
esac
