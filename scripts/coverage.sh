#!/usr/bin/env bash
# coverage.sh [build dir]: builds the tree with gcov's counters (default build/coverage), runs
# every test once in a temporary home and prints the line coverage of src/ with lcov. The programs
# the tests start (sonoria-cli, sonoria-worker) link the same libraries and so count too.
# Needs lcov (sudo apt-get install lcov).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dir="${1:-$root/build/coverage}"
command -v lcov >/dev/null || { echo "lcov is missing: sudo apt-get install lcov" >&2; exit 1; }

flags=(-DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_FLAGS=--coverage -DCMAKE_CXX_FLAGS=--coverage
       -DCMAKE_EXE_LINKER_FLAGS=--coverage -DCMAKE_SHARED_LINKER_FLAGS=--coverage)
"$root/scripts/build.sh" "$dir" "${flags[@]}"
find "$dir" -name '*.gcda' -delete

scratch="$(mktemp -d "${TMPDIR:-/tmp}/sonoria-coverage.XXXXXX")"
trap 'rm -rf "$scratch"' EXIT
status=0
"$root/scripts/ctest-home.sh" "$dir" "$scratch/home" || status=1

# lcov, without the warnings about redefined subroutines that Debian's geninfo prints each time.
quiet_lcov() {
    if ! lcov --quiet "$@" 2>"$scratch/lcov.log"; then
        grep -v "redefined at" "$scratch/lcov.log" >&2
        return 1
    fi
}
# Counters of the libraries under src/ only: the tests' own code does not count.
quiet_lcov --capture --directory "$dir/src" --output-file "$scratch/all.info"
quiet_lcov --extract "$scratch/all.info" "*/src/*" --output-file "$dir/coverage.info"
lcov --summary "$dir/coverage.info" 2>&1 | grep -E "lines|functions"
[ $status -eq 0 ] || echo "Some tests FAILED: the figures above miss what they did not reach."
exit $status
