#!/bin/sh
# Fails when a source file includes a header from a library above its own. The libraries are
# layered (see src/CMakeLists.txt); the linker only notices an upward include once it needs a
# symbol, so this check reads the include lines instead. Run from the repository's top folder.
set -eu

# The floor of each folder below src/; siblings on one floor may not include each other.
floor() {
    case "$1" in
        base) echo 0 ;;
        framework) echo 1 ;;
        model) echo 2 ;;
        engine) echo 3 ;;
        online) echo 4 ;;
        workspace) echo 5 ;;
        desktop | player) echo 6 ;;
        gui) echo 7 ;;
        cli) echo 6 ;; # the command-line tool sees the core only
        app) echo 8 ;;
        *) echo -1 ;;
    esac
}

status=0
for file in $(find src cli app -name '*.h' -o -name '*.cpp' | sort); do
    case "$file" in
        src/*) own=$(echo "$file" | cut -d/ -f2) ;;
        *) own=$(echo "$file" | cut -d/ -f1) ;;
    esac
    own_floor=$(floor "$own")
    for target in $(sed -n 's|^#include "\([a-z]*\)/.*|\1|p' "$file" | sort -u); do
        target_floor=$(floor "$target")
        [ "$target_floor" -lt 0 ] && continue
        [ "$target" = "$own" ] && continue
        if [ "$target_floor" -ge "$own_floor" ]; then
            echo "$file includes $target/ (a floor at or above $own/)"
            status=1
        fi
    done
done
exit $status
