# Sourced by the benchmark scripts. bench_prepare NAME TARGET... builds the targets in the release
# build (configuring it when needed) and makes a scratch folder ($work, removed at exit) with an
# empty settings store and home of its own; sets $root, $build, $cli, $rounds (ROUNDS, 3 by default).
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="$root/build/release"
cli="$build/cli/sonoria-cli"
rounds="${ROUNDS:-3}"

bench_prepare() { # name, build targets
    local name="$1"
    shift
    if [ ! -f "$build/build.ninja" ]; then
        cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
    fi
    cmake --build "$build" --target "$@" >/dev/null
    work="$(mktemp -d "${TMPDIR:-/tmp}/sonoria-bench-$name.XXXXXX")"
    trap 'rm -rf "$work"' EXIT
    export XDG_CONFIG_HOME="$work/config" HOME="$work/home"
    mkdir -p "$HOME"
    unset SONORIA_VERBOSE
}

now_ms() { echo $(( $(date +%s%N) / 1000000 )); }
median() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
largest() { sort -n | tail -n 1; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.3f", a / b }'; }
ffm() { ffmpeg -nostdin -hide_banner -loglevel error -y "$@"; }
