#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test twice: a normal build and one with
# AddressSanitizer and UndefinedBehaviorSanitizer, in separate build folders. Prints CTest's
# summary of each and exits non-zero when anything failed.
set -uo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/setup.sh" || exit 1

status=0
run_suite() {
    local name="$1"; shift
    local dir="$root/build/$name"
    echo "== $name: building"
    if ! "$root/scripts/build.sh" "$dir" "$@" > "$root/build/$name.build.log" 2>&1; then
        tail -n 60 "$root/build/$name.build.log"
        echo "== $name: build failed"
        status=1
        return
    fi
    echo "== $name: testing"
    if ! ctest --test-dir "$dir" --output-on-failure --timeout 900 -j 2; then
        status=1
    fi
}

mkdir -p "$root/build"
run_suite release -DCMAKE_BUILD_TYPE=RelWithDebInfo
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:strict_string_checks=1"
export LSAN_OPTIONS="suppressions=$root/scripts/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
run_suite asan -DCMAKE_BUILD_TYPE=Debug -DSONORIA_SANITIZE=ON

if [ $status -eq 0 ]; then echo "All test suites passed."; else echo "Some tests FAILED."; fi
exit $status
