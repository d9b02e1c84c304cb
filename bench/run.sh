#!/usr/bin/env bash
# Benchmarks of sonoria-cli against bare ffmpeg/ffprobe, measured side by side in one run with the
# two commands alternating, medians of ROUNDS rounds. Not part of the test command.
#   bench/run.sh [all|flac|wav|load|memory]     (ROUNDS=3 by default)
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$root/build/release"
rounds="${ROUNDS:-3}"
which="${1:-all}"

if [ ! -f "$build/build.ninja" ]; then
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
fi
cmake --build "$build" --target sonoria-cli >/dev/null
cli="$build/cli/sonoria-cli"

work="$(mktemp -d "${TMPDIR:-/tmp}/sonoria-bench.XXXXXX")"
trap 'rm -rf "$work"' EXIT
# The tool reads the settings store: give it an empty one of its own.
export XDG_CONFIG_HOME="$work/config"
unset SONORIA_VERBOSE

now_ms() { echo $(( $(date +%s%N) / 1000000 )); }
median() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.3f", a / b }'; }

ffm() { ffmpeg -nostdin -hide_banner -loglevel error -y "$@"; }

# The argument list the conversion operation builds for MP3 at 128 kbit/s, 44.1 kHz, stereo.
bare_mp3() { # folder of sources, extension, output folder
    find "$1" -name "*.$2" -print0 | xargs -0 -P 2 -n 1 sh -c \
        'ffmpeg -i "$1" -vn -acodec libmp3lame -ar 44100.00 -b:a 128.00k -ac 2 -y \
            "$0/$(basename "$1").mp3" </dev/null >/dev/null 2>&1' "$3"
}

# Alternates the tool and bare ffmpeg over one source folder; prints the medians and the ratio.
compare_conversion() { # label, folder, extension, target
    local label="$1" src="$2" ext="$3" target="$4" a b t i
    local ta=() tb=()
    for ((i = 1; i <= rounds; i++)); do
        rm -rf "$work/outA" "$work/outB"; mkdir -p "$work/outA" "$work/outB"
        t=$(now_ms)
        "$cli" -f MP3 -b 128 -j 2 --no-organize -o "$work/outA" "$src" >/dev/null
        ta+=($(( $(now_ms) - t )))
        t=$(now_ms)
        bare_mp3 "$src" "$ext" "$work/outB"
        tb+=($(( $(now_ms) - t )))
    done
    a=$(printf '%s\n' "${ta[@]}" | median)
    b=$(printf '%s\n' "${tb[@]}" | median)
    echo "$label: sonoria-cli ${a} ms, ffmpeg+xargs ${b} ms, ratio $(ratio "$a" "$b") (target <= $target)"
    echo "    rounds: cli ${ta[*]} / ffmpeg ${tb[*]}"
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

bench_load() {
    mkdir -p "$work/load"
    ffm -f lavfi -i "sine=f=440:d=1" -metadata title="Short" "$work/load/short0001.mp3"
    for i in $(seq 2 1000); do cp "$work/load/short0001.mp3" "$work/load/short$(printf %04d "$i").mp3"; done
    local ta=() tb=() t i f a b
    for ((i = 1; i <= rounds; i++)); do
        t=$(now_ms)
        "$cli" -n -o "$work/never" "$work/load" >/dev/null
        ta+=($(( $(now_ms) - t )))
        t=$(now_ms)
        for f in "$work"/load/*.mp3; do ffprobe -v error -show_format -show_streams "$f" >/dev/null; done
        tb+=($(( $(now_ms) - t )))
    done
    a=$(printf '%s\n' "${ta[@]}" | median)
    b=$(printf '%s\n' "${tb[@]}" | median)
    echo "3. load 1000 files: sonoria-cli --dry-run $(awk -v a="$a" 'BEGIN { printf "%.2f", a / 1000 }') ms/file," \
         "ffprobe per file $(awk -v b="$b" 'BEGIN { printf "%.2f", b / 1000 }') ms/file," \
         "$(ratio "$b" "$a")x faster (target >= 20x)"
    echo "    rounds: cli ${ta[*]} ms / ffprobe ${tb[*]} ms"
}

peak_kb() { /usr/bin/time -f %M "$cli" -n -o "$work/never" "$@" 2>&1 >/dev/null | tail -n 1; }

bench_memory() {
    mkdir -p "$work/mem1" "$work/mem"
    # Noise does not compress: a 460x460 RGB PNG of random noise is about 300 KB.
    ffm -f lavfi -i "nullsrc=s=460x460,geq=r='random(1)*255':g='random(2)*255':b='random(3)*255'" \
        -frames:v 1 "$work/cover.png"
    ffm -f lavfi -i "sine=f=440:d=1" -i "$work/cover.png" -map 0 -map 1 -c:a libmp3lame -c:v copy \
        -id3v2_version 3 -metadata:s:v comment="Cover (front)" "$work/mem1/art0001.mp3"
    for i in $(seq 1 2000); do cp "$work/mem1/art0001.mp3" "$work/mem/art$(printf %04d "$i").mp3"; done
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

echo "machine: $(nproc) cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2 | sed 's/^ //'); load: $(cut -d' ' -f1-3 /proc/loadavg)"
case "$which" in
    all) bench_flac; bench_wav; bench_load; bench_memory ;;
    flac) bench_flac ;;
    wav) bench_wav ;;
    load) bench_load ;;
    memory) bench_memory ;;
    *) echo "unknown benchmark: $which" >&2; exit 2 ;;
esac
echo "load after: $(cut -d' ' -f1-3 /proc/loadavg)"
