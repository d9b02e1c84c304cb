#!/usr/bin/env bash
# Benchmarks of sonoria-cli against bare ffmpeg/ffprobe, measured side by side in one run with the
# two commands alternating, medians of ROUNDS rounds. Not part of the test command.
#   bench/run.sh [all|flac|wav|load|memory|again|replaygain|peers]     (ROUNDS=3 by default; BASELINE_CLI=path to an
#   earlier sonoria-cli adds it to the conversion and loading benchmarks)
set -euo pipefail
source "$(dirname "$0")/common.sh"
which="${1:-all}"
bench_prepare cli sonoria-cli sonoria-worker

per_file() { awk -v t="$1" -v n="$2" 'BEGIN { printf "%.2f", t / n }'; } # ms in all, files

# The argument list the conversion operation builds for MP3 at 128 kbit/s, 44.1 kHz, stereo.
bare_mp3() { # folder of sources, extension, output folder
    find "$1" -name "*.$2" -print0 | xargs -0 -P 2 -n 1 sh -c \
        'ffmpeg -i "$1" -vn -acodec libmp3lame -ar 44100.00 -b:a 128.00k -ac 2 -y \
            "$0/$(basename "$1").mp3" </dev/null >/dev/null 2>&1' "$3"
}

# Alternates the tool and bare ffmpeg over one source folder (and, when BASELINE_CLI names an
# earlier build of the tool, that one too); prints the medians of wall-clock and CPU time (the
# children's included) and the ratios.
compare_conversion() { # label, folder, extension, target
    local label="$1" src="$2" ext="$3" target="$4" a b c i
    local ta=() ca=() tb=() cb=() tc=() cc=()
    for ((i = 1; i <= rounds; i++)); do
        rm -rf "$work/outA" "$work/outB" "$work/outC"; mkdir -p "$work/outA" "$work/outB" "$work/outC"
        measure ta ca "$cli" -f MP3 -b 128 -j 2 --no-organize -o "$work/outA" "$src"
        measure tb cb bash -c "$(declare -f bare_mp3); bare_mp3 \"\$@\"" _ "$src" "$ext" "$work/outB"
        if [ -n "${BASELINE_CLI:-}" ]; then
            measure tc cc "$BASELINE_CLI" -f MP3 -b 128 -j 2 --no-organize -o "$work/outC" "$src"
        fi
    done
    a=$(printf '%s\n' "${ta[@]}" | median)
    b=$(printf '%s\n' "${tb[@]}" | median)
    echo "$label: sonoria-cli ${a} ms, ffmpeg+xargs ${b} ms, ratio $(ratio "$a" "$b") (target <= $target)"
    echo "    rounds: cli ${ta[*]} / ffmpeg ${tb[*]}"
    echo "    CPU ms: cli $(printf '%s\n' "${ca[@]}" | median) (${ca[*]}) / ffmpeg $(printf '%s\n' "${cb[@]}" | median) (${cb[*]})"
    if [ -n "${BASELINE_CLI:-}" ]; then
        c=$(printf '%s\n' "${tc[@]}" | median)
        echo "    baseline build: ${c} ms (${tc[*]}), CPU $(printf '%s\n' "${cc[@]}" | median) ms (${cc[*]}); this build / baseline $(ratio "$a" "$c")"
    fi
}

bench_flac() {
    mkdir -p "$work/flac"
    ffm -f lavfi -i "anoisesrc=color=pink:duration=120" -f lavfi -i "sine=f=440:d=120" \
        -filter_complex amix -metadata title="Pink and tone" -metadata artist="Bench" \
        -metadata album="Sonoria bench" "$work/flac/track01.flac"
    for i in $(seq -w 2 24); do cp "$work/flac/track01.flac" "$work/flac/track$i.flac"; done
    compare_conversion "1. 24 FLAC x 120 s -> MP3 128k, 2 jobs" "$work/flac" flac 1.03
}

bench_wav() {
    mkdir -p "$work/wav"
    ffm -f lavfi -i "sine=f=440:d=2" -ac 2 "$work/wav/clip001.wav"
    for i in $(seq -w 2 200); do cp "$work/wav/clip001.wav" "$work/wav/clip$(printf %03d "$((10#$i))").wav"; done
    compare_conversion "2. 200 WAV x 2 s -> MP3 128k, 2 jobs" "$work/wav" wav 1.10
}

# A picture of random noise, which does not compress: its size follows its dimensions.
noise_picture() { # output file, width and height in pixels, extra ffmpeg options
    local out="$1" side="$2"; shift 2
    ffm -f lavfi -i "nullsrc=s=${side}x${side},geq=r='random(1)*255':g='random(2)*255':b='random(3)*255'" \
        -frames:v 1 "$@" "$out"
}

# Runs a command, output discarded; appends its wall-clock and CPU milliseconds (user and
# system, its child processes included) to the arrays named first and second.
measure() { # wall array, CPU array, command...
    local -n wall_ms="$1" cpu_ms="$2"
    shift 2
    local out
    out=$(mktemp)
    /usr/bin/time -f '%e %U %S' -o "$out" "$@" >/dev/null
    wall_ms+=($(awk '{ printf "%d", $1 * 1000 }' "$out"))
    cpu_ms+=($(awk '{ printf "%d", ($2 + $3) * 1000 }' "$out"))
    rm -f "$out"
}

# One ffprobe per file of a folder; arguments: the folder and the files' extension.
ffprobe_each=(bash -c
    'for f in "$0"/*."$1"; do ffprobe -v error -show_format -show_streams "$f"; done')

# Alternates a dry run over one folder with one ffprobe per file (and, when BASELINE_CLI names
# an earlier build of the tool, a dry run of that one); prints per-file medians of wall-clock
# and CPU time. On a shared machine the CPU times are the steadier comparison.
compare_load() { # label, folder, extension, number of files
    local label="$1" src="$2" ext="$3" count="$4" i a b c
    local wa=() ca=() wb=() cb=() wc=() cc=()
    for ((i = 1; i <= rounds; i++)); do
        measure wa ca "$cli" -n -o "$work/never" "$src"
        measure wb cb "${ffprobe_each[@]}" "$src" "$ext"
        if [ -n "${BASELINE_CLI:-}" ]; then
            measure wc cc "$BASELINE_CLI" -n -o "$work/never" "$src"
        fi
    done
    a=$(printf '%s\n' "${wa[@]}" | median) b=$(printf '%s\n' "${wb[@]}" | median)
    echo "$label: sonoria-cli --dry-run $(per_file "$a" "$count") ms/file," \
         "ffprobe per file $(per_file "$b" "$count") ms/file: $(ratio "$b" "$a")x faster"
    echo "    rounds (wall ms): cli ${wa[*]} / ffprobe ${wb[*]}"
    a=$(printf '%s\n' "${ca[@]}" | median) b=$(printf '%s\n' "${cb[@]}" | median)
    echo "    CPU: cli $(per_file "$a" "$count") ms/file, ffprobe $(per_file "$b" "$count") ms/file:" \
         "$(ratio "$b" "$a")x less (rounds: cli ${ca[*]} / ffprobe ${cb[*]} ms)"
    if [ -n "${BASELINE_CLI:-}" ]; then
        c=$(printf '%s\n' "${wc[@]}" | median)
        echo "    baseline build: $(per_file "$c" "$count") ms/file (rounds ${wc[*]} ms), CPU" \
             "$(per_file "$(printf '%s\n' "${cc[@]}" | median)" "$count") ms/file (rounds ${cc[*]} ms)"
    fi
}

# Copies one file to `count` numbered names in a folder of its own.
fill_folder() { # source file, folder, name stem, count
    local i ext="${1##*.}"
    mkdir -p "$2"
    for i in $(seq 1 "$4"); do cp "$1" "$2/$3$(printf %04d "$i").$ext"; done
}

bench_load() {
    mkdir -p "$work/load-src"
    # Covers as large as real libraries carry, as JPEG like most of them: 650x650 of noise at the
    # best quality is about 300 KB, 1200x1200 about 1 MB.
    noise_picture "$work/load-src/cover300k.jpg" 650 -q:v 1
    noise_picture "$work/load-src/cover1m.jpg" 1200 -q:v 1
    ffm -f lavfi -i "sine=f=440:d=1" -metadata title="Short" "$work/load-src/short.mp3"
    ffm -f lavfi -i "sine=f=440:d=1" -i "$work/load-src/cover300k.jpg" -map 0 -map 1 -c:v copy \
        -id3v2_version 3 -disposition:v attached_pic -metadata title="Short" "$work/load-src/art.mp3"
    ffm -f lavfi -i "sine=f=440:d=1" -i "$work/load-src/cover1m.jpg" -map 0 -map 1 -c:v copy \
        -disposition:v attached_pic -metadata title="Short" "$work/load-src/art.flac"
    fill_folder "$work/load-src/short.mp3" "$work/load" short 1000
    fill_folder "$work/load-src/art.mp3" "$work/load-art" art 1000
    fill_folder "$work/load-src/art.flac" "$work/load-flac" art 200
    echo "3. loading (covers of $(stat -c %s "$work/load-src/cover300k.jpg") and" \
         "$(stat -c %s "$work/load-src/cover1m.jpg") bytes; target >= 50x with covers," \
         "no slower than before without)"
    compare_load "   a. 1000 MP3 without art" "$work/load" mp3 1000
    compare_load "   b. 1000 MP3 with a 300 KB ID3v2 cover" "$work/load-art" mp3 1000
    compare_load "   c. 200 FLAC with a 1 MB picture block" "$work/load-flac" flac 200
}

peak_kb() { /usr/bin/time -f %M "$cli" -n -o "$work/never" "$@" 2>&1 >/dev/null | tail -n 1; }

bench_memory() {
    mkdir -p "$work/mem1" "$work/mem"
    # A 460x460 RGB PNG of random noise is about 300 KB.
    noise_picture "$work/cover.png" 460
    ffm -f lavfi -i "sine=f=440:d=1" -i "$work/cover.png" -map 0 -map 1 -c:a libmp3lame -c:v copy \
        -id3v2_version 3 -metadata:s:v comment="Cover (front)" "$work/mem1/art0001.mp3"
    fill_folder "$work/mem1/art0001.mp3" "$work/mem" art 2000
    local one=() many=() i o m
    for ((i = 1; i <= rounds; i++)); do
        one+=("$(peak_kb "$work/mem1")")
        many+=("$(peak_kb "$work/mem")")
    done
    o=$(printf '%s\n' "${one[@]}" | median)
    m=$(printf '%s\n' "${many[@]}" | median)
    echo "4. memory: cover art $(( $(stat -c %s "$work/cover.png") / 1024 )) KB; peak RSS 1 file ${o} KB," \
         "2000 files ${m} KB: $(awk -v o="$o" -v m="$m" 'BEGIN { printf "%.1f", (m - o) / 2000 }') KB per item (target <= 16)"
}

# A second run over outputs that are already there: with the default (skip what is whole and
# newer than its source) it probes every output and converts nothing.
bench_again() {
    mkdir -p "$work/again"
    ffm -f lavfi -i "sine=f=440:d=1" -ac 2 "$work/again/clip0001.wav"
    for i in $(seq 2 1000); do cp "$work/again/clip0001.wav" "$work/again/clip$(printf %04d "$i").wav"; done
    local first=() second=() c1=() c2=() i a b
    for ((i = 1; i <= rounds; i++)); do
        rm -rf "$work/outA"; mkdir -p "$work/outA"
        measure first c1 "$cli" -f MP3 -b 128 -j 2 --no-organize -o "$work/outA" "$work/again"
        measure second c2 "$cli" -f MP3 -b 128 -j 2 --no-organize -o "$work/outA" "$work/again"
        [ "$(find "$work/outA" -type f | wc -l)" -eq 1000 ] || { echo "8. the second run wrote files" >&2; exit 1; }
    done
    a=$(printf '%s\n' "${first[@]}" | median)
    b=$(printf '%s\n' "${second[@]}" | median)
    echo "8. 1,000 WAV x 1 s -> MP3, then again over the same outputs: first ${a} ms, second ${b} ms," \
         "second / first $(ratio "$b" "$a") (target <= 0.05)"
    echo "    rounds: first ${first[*]} / second ${second[*]}"
}

# The cost of ReplayGain: the same run with and without measuring the sources (album mode).
bench_replaygain() {
    mkdir -p "$work/rg"
    ffm -f lavfi -i "anoisesrc=color=pink:duration=180" -f lavfi -i "sine=f=440:d=180" \
        -filter_complex amix -ac 2 "$work/rg/song001.flac"
    for i in $(seq 2 "${RG_FILES:-100}"); do cp "$work/rg/song001.flac" "$work/rg/song$(printf %03d "$i").flac"; done
    local plain=() gain=() c1=() c2=() i a b
    for ((i = 1; i <= rounds; i++)); do
        rm -rf "$work/outA" "$work/outB"; mkdir -p "$work/outA" "$work/outB"
        measure plain c1 "$cli" -f MP3 -j 2 --no-organize -o "$work/outA" "$work/rg"
        measure gain c2 "$cli" -f MP3 -j 2 --no-organize --replaygain album -o "$work/outB" "$work/rg"
    done
    a=$(printf '%s\n' "${plain[@]}" | median)
    b=$(printf '%s\n' "${gain[@]}" | median)
    echo "9. ${RG_FILES:-100} FLAC x 180 s -> MP3, 2 jobs: without ReplayGain ${a} ms, with" \
         "--replaygain album ${b} ms, ratio $(ratio "$b" "$a") (target <= 1.25)"
    echo "    rounds: plain ${plain[*]} / replaygain ${gain[*]}; CPU ms plain ${c1[*]} / replaygain ${c2[*]}"
}

# The bare ffmpeg command of benchmark 7: the argument list the conversion operation builds for
# MP3 at 192 kbit/s.
bare_mp3_192() { # folder of sources, output folder
    find "$1" -name "*.wav" -print0 | xargs -0 -P 2 -n 1 sh -c \
        'ffmpeg -i "$1" -vn -acodec libmp3lame -ar 44100.00 -b:a 192.00k -ac 2 -y \
            "$0/$(basename "$1").mp3" </dev/null >/dev/null 2>&1' "$2"
}

# The GStreamer converter in batch mode (it needs no display there).
soundconverter_mp3() { # folder of sources, output folder
    soundconverter -b -j 2 -f mp3 -m cbr -q 192 -o "$2" "$1"/*.wav >/dev/null 2>&1
}

# Alternates the tool, bare ffmpeg and the GStreamer converter over one folder; prints the
# medians and the tool's ratios to both.
compare_peers() { # label, folder, number of files
    local label="$1" src="$2" count="$3" i a b c
    local ta=() ca=() tb=() cb=() tc=() cc=()
    for ((i = 1; i <= rounds; i++)); do
        rm -rf "$work/outA" "$work/outB" "$work/outC"; mkdir -p "$work/outA" "$work/outB" "$work/outC"
        measure ta ca "$cli" -f MP3 -b 192 -j 2 --no-organize -o "$work/outA" "$src"
        measure tb cb bash -c "$(declare -f bare_mp3_192); bare_mp3_192 \"\$@\"" _ "$src" "$work/outB"
        if [ -n "$peer" ]; then
            measure tc cc bash -c "$(declare -f soundconverter_mp3); soundconverter_mp3 \"\$@\"" _ "$src" "$work/outC"
            [ "$(find "$work/outC" -name '*.mp3' | wc -l)" -eq "$count" ] || { echo "7. soundconverter wrote $(find "$work/outC" -name '*.mp3' | wc -l) of $count files" >&2; exit 1; }
        fi
        [ "$(find "$work/outA" -name '*.mp3' | wc -l)" -eq "$count" ] || { echo "7. sonoria-cli wrote too few files" >&2; exit 1; }
    done
    a=$(printf '%s\n' "${ta[@]}" | median)
    b=$(printf '%s\n' "${tb[@]}" | median)
    echo "$label: sonoria-cli ${a} ms, ffmpeg+xargs ${b} ms (cli/ffmpeg $(ratio "$a" "$b"))"
    echo "    rounds: cli ${ta[*]} / ffmpeg ${tb[*]}; CPU ms cli ${ca[*]} / ffmpeg ${cb[*]}"
    if [ -n "$peer" ]; then
        c=$(printf '%s\n' "${tc[@]}" | median)
        echo "    soundconverter ${c} ms (cli/soundconverter $(ratio "$a" "$c")); rounds ${tc[*]}; CPU ms ${cc[*]}"
    fi
}

# The resident size of one sonoria-worker after 10 and after 1,000 jobs (2-s WAV to MP3).
worker_memory() { # a source WAV
    local rss10 rss1000 i
    coproc WORKER { exec "$build/cli/sonoria-worker"; }
    local pid="$WORKER_PID"
    run_jobs() { # from, to
        for ((i = $1; i <= $2; i++)); do
            printf 'job\tid=%d\tin=%s\tout=%s\tcodec=libmp3lame\tar=44100\tb=192000\tac=2\n' \
                "$i" "$src" "$work/mem-$((i % 2)).mp3" >&"${WORKER[1]}"
            while :; do
                read -r line <&"${WORKER[0]}" || { echo "7. the worker ended" >&2; exit 1; }
                case "$line" in done*) break ;; failed*) echo "worker: $line" >&2; exit 1 ;; esac
            done
        done
    }
    local src="$1"
    run_jobs 1 10
    rss10=$(awk '/VmRSS/ { print $2 }' "/proc/$pid/status")
    run_jobs 11 1000
    rss1000=$(awk '/VmRSS/ { print $2 }' "/proc/$pid/status")
    printf 'quit\n' >&"${WORKER[1]}"
    wait "$pid" || true
    echo "    worker VmRSS after 10 jobs ${rss10} KB, after 1,000 jobs ${rss1000} KB:" \
         "$(ratio "$rss1000" "$rss10") (target within 10 %)"
}

bench_peers() {
    peer=""
    if command -v soundconverter >/dev/null; then peer=1; fi
    [ -n "$peer" ] || echo "7. soundconverter is missing: only sonoria-cli and ffmpeg are compared"
    mkdir -p "$work/short" "$work/long"
    ffm -f lavfi -i "sine=f=440:d=2" -ac 2 "$work/short/clip001.wav"
    for i in $(seq 2 200); do cp "$work/short/clip001.wav" "$work/short/clip$(printf %03d "$i").wav"; done
    ffm -f lavfi -i "anoisesrc=color=pink:duration=150" -f lavfi -i "sine=f=440:d=150" \
        -filter_complex amix -ac 2 "$work/long/song1.wav"
    for i in 2 3 4; do cp "$work/long/song1.wav" "$work/long/song$i.wav"; done
    compare_peers "7. a. 200 WAV x 2 s -> MP3 192k, 2 jobs (target cli <= 0.67 x soundconverter)" "$work/short" 200
    compare_peers "   b. 4 WAV x 150 s -> MP3 192k, 2 jobs (target cli <= 1.03 x ffmpeg)" "$work/long" 4
    worker_memory "$work/short/clip001.wav"
}

echo "machine: $(nproc) cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2 | sed 's/^ //'); load: $(cut -d' ' -f1-3 /proc/loadavg)"
case "$which" in
    all) bench_flac; bench_wav; bench_load; bench_memory ;;
    flac) bench_flac ;;
    wav) bench_wav ;;
    load) bench_load ;;
    memory) bench_memory ;;
    again) bench_again ;;
    replaygain) bench_replaygain ;;
    peers) bench_peers ;;
    *) echo "unknown benchmark: $which" >&2; exit 2 ;;
esac
echo "load after: $(cut -d' ' -f1-3 /proc/loadavg)"
