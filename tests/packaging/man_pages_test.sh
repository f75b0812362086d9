#!/bin/sh
# man_pages_test.sh FOLDER PROGRAM...: the manual pages are free of formatting faults, and the programs' pages name every
# option, command and exit status that the programs' own help does.
set -eu
pages=$1
shift
failures=0

fail() {
    echo "FAILED: $*"
    failures=1
}

for page in "$pages"/*.1; do
    faults=$(LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 > /dev/null) || fail "$page does not format"
    [ -z "$faults" ] || fail "$page: $faults"
done

for program in "$@"; do
    page=$pages/$(basename "$program").1
    text=$(MANWIDTH=400 man -E UTF-8 -l -Tutf8 "$page" | col -bx)
    help=$("$program" --help)
    words=$(echo "$help" | grep -oE -e '--[a-z][a-z-]*|^  tarnixctl [a-z]+' | sed 's/.* //' | sort -u)
    [ -n "$words" ] || fail "$program has no help"
    for word in $words; do
        echo "$text" | grep -qF -e "$word" || fail "$page says nothing of $word"
    done
    for status in $(echo "$help" | tr '\n' ' ' | grep -o 'Exit status: .*' | grep -oE '\b[0-9]+\b'); do
        echo "$text" | grep -qE "^ +$status +" || fail "$page says nothing of the exit status $status"
    done
done
exit $failures
