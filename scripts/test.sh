#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test twice: a normal build and one with
# AddressSanitizer and UndefinedBehaviorSanitizer, in separate build folders. Prints CTest's
# summary of each and exits non-zero when anything failed.
#
# The tests run in a temporary home (HOME and the XDG folders), and the suite fails
# when the user's real home gained or changed a file in a folder that a test could write to.
set -uo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/setup.sh" || exit 1

scratch="$(mktemp -d "${TMPDIR:-/tmp}/sonoria-test-home.XXXXXX")" || exit 1
trap 'rm -rf "$scratch"' EXIT

# The folders of one home that the program or its tests might write to: the user folders, named
# or as the desktop's user-dirs.dirs moves them, and the per-user configuration. Each comes with
# what counts there: "changed" (new files and files whose size or times moved) or "new" (only
# new entries; the desktop itself keeps rewriting files in the shared data folders).
watched_folders() {
    local home="$1" folder value
    for folder in Music Videos Movies Documents .config/Sonoria; do
        printf 'changed %s\n' "$home/$folder"
    done
    printf 'new %s\n' "$home/.local/share" "$home/.local/state"
    [ -r "$home/.config/user-dirs.dirs" ] || return 0
    sed -n 's/^[[:space:]]*XDG_[A-Z]*_DIR[[:space:]]*=[[:space:]]*"\(.*\)"[[:space:]]*$/\1/p' \
        "$home/.config/user-dirs.dirs" | while IFS= read -r value; do
        case "$value" in
        '$HOME/'?*) printf 'changed %s\n' "$home/${value#'$HOME/'}" ;;
        /*) printf 'changed %s\n' "$value" ;;
        esac
    done
}

# One line per entry, sorted: the home's own entries and all folders by name alone (a new one
# counts, one whose contents changed does not), files with size and times where changes count.
# This repository and the scratch home are left out, wherever they lie.
home_snapshot() {
    local home counts folder files
    for home in "$@"; do
        find "$home" -mindepth 1 -maxdepth 1 -printf 'entry %p\n' 2>/dev/null
        watched_folders "$home" | while read -r counts folder; do
            [ -d "$folder" ] || continue
            files='file %p %s %T@ %C@\n'
            [ "$counts" = new ] && files='file %p\n'
            find "$folder" \( -path "$root" -o -path "$scratch" \) -prune \
                -o -type d -printf 'folder %p\n' -o -printf "$files" 2>/dev/null
        done
    done | sort -u
}

real_home="$(getent passwd "$(id -u)" | cut -d: -f6)"
homes=("$real_home")
if [ -n "${HOME:-}" ] && [ "$HOME" != "$real_home" ]; then homes+=("$HOME"); fi

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
    # Around the tests only: a build may write the compiler cache into the home.
    home_snapshot "${homes[@]}" > "$scratch/home-before"
    # The temporary home is for the tests only: the builds keep the user's home and so their
    # compiler cache.
    "$root/scripts/ctest-home.sh" "$dir" "$scratch/home" || status=1
    home_snapshot "${homes[@]}" > "$scratch/home-after"
    local written
    written="$(comm -13 "$scratch/home-before" "$scratch/home-after")"
    if [ -n "$written" ]; then
        echo "== $name: the tests wrote into the real home (${homes[*]}):"
        printf '%s\n' "$written" | head -n 40
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
