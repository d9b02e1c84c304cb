#!/bin/sh
# Fails when the tests grow past a third of all C++ lines, tests included. Tests that restate the
# code cost as much to change as the code and catch nothing, so the team keeps them within a
# quarter to a third; this check makes a growing share visible in the change that grows it.
# Counts non-blank lines of every .cpp and .h file. Run from the repository's top folder.
set -eu

count() {
    find "$@" \( -name '*.cpp' -o -name '*.h' \) -type f -exec cat {} + | grep -cv '^[[:space:]]*$'
}

tests=$(count tests)
rest=$(count src app cli worker bench tools)
total=$((tests + rest))
echo "tests: $tests of $total non-blank C++ lines ($((tests * 1000 / total / 10)).$((tests * 1000 / total % 10)) %)"
if [ $((tests * 3)) -gt "$total" ]; then
    echo "the tests are more than a third of all C++ lines: fold cases into tables, drop what" \
        "restates the code" >&2
    exit 1
fi
