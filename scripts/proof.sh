#!/usr/bin/env bash
# Tries on purpose what loses profiles, crashes or hangs, and prints a table of what was tried, how often, and what came of
# it. Ends with 1 at any finding. Short by default: a few minutes, most of them building.
#
#   scripts/proof.sh [--long] [PART...]
#
#   fuzz        anything read from files, keyboard or windows, with coverage-guided fuzzers (address, undefined)
#   faults      the keyboard fails, dawdles or leaves at every request; the disk fails at every call
#   kills       the process dies at every call and at any moment of saving
#   disk        the program on a disk that is full, read-only, gone or forbidden
#   launch      G-keys start the file that they name, and nothing else
#   soak        random clicks, keys, event reports and unplugging; memory, handles and threads stay as they are
#   sanitizers  the tests with the address, leak and undefined, and with the thread sanitizer
#   valgrind    the unit tests under memcheck; --long: those with windows, too
#
#   --long: hours' worth of fuzzing in an hour, thousands of kills, ten minutes of soak, and whole test suites.
set -euo pipefail
cd "$(dirname "$0")/.."

long=
parts=()
for word in "$@"; do
    case $word in
        --long) long=yes ;;
        fuzz | faults | kills | disk | launch | soak | sanitizers | valgrind) parts+=("$word") ;;
        *) sed -n '2,/^set/{/^#/p}' "$0" >&2; exit 2 ;;
    esac
done
[ ${#parts[@]} -gt 0 ] || parts=(faults kills disk launch soak fuzz sanitizers valgrind)

out=$PWD/build/proof
mkdir -p "$out"
table=$out/table.md
printf '| %-48s | %-36s | %s |\n' "What" "How many" "Result" "---" "---" "---" > "$table"
status=0

# tried WHAT LOG COMMAND...: runs it and adds its row; what it counted stands in lines "counted: ..." of its output.
tried() {
    local what=$1 log=$out/$2.log result=clean
    shift 2
    echo "$what ..." >&2
    "$@" > "$log" 2>&1 || result="FINDING, see $log"
    [ "$result" != clean ] || result=$(grep -m1 -o 'not tried: .*' "$log" || echo clean)
    [[ $result != FINDING* ]] || status=1
    row "$what" "$(sed -n 's/^\(.* \)\?counted: //p' "$log" | paste -sd ';' | sed 's/;/; /g')" "$result"
}

row() {
    printf '| %-48s | %-36s | %s |\n' "$@" >> "$table"
}

short_or_long() {
    [ -z "$long" ] && echo "$1" || echo "$2"
}

# suite FOLDER ARGUMENT...: tests, and their number.
suite() {
    ctest --test-dir "$@" --no-tests=error --output-on-failure | tee "$out/suite.log"
    echo "counted: $(sed -n 's/^100% tests passed.* out of \([0-9]*\)$/\1 tests/p' "$out/suite.log")"
}

faults() {
    tried "The keyboard fails, dawdles, leaves, returns" keyboard build/device_test --gtest_filter='FaultSweep.*'
    tried "It leaves while the program reads and applies" leaving env \
        TARNIX_UNPLUG_AT="$(short_or_long '3 8' '0 1 2 3 4 5 6 7 8 9 10 11 12')" ctest --test-dir build -R end_to_end_unplug \
        --output-on-failure --verbose
    tried "The disk fails at a call of saving or starting" disk build/disk_fault_test --gtest_filter='*Failure*'
    tried "Programs race for the lock; a listener is stopped" races bash -c \
        'build/platform_test --gtest_filter="InstanceLock*" && build/device_test --gtest_filter="EventListener*"'
}

kills() {
    tried "Killed while saving: every file whole" kills env TARNIX_KILLS="$(short_or_long 300 5000)" \
        build/disk_fault_test --gtest_filter='*Death*'
}

disk() {
    tried "Disk full, read-only, gone, forbidden" disks ctest --test-dir build -R end_to_end_disk_faults --output-on-failure \
        --verbose
}

launch() {
    tried "G-keys start their file and nothing else" launch build/platform_test --gtest_filter='Launch*'
    tried "The same with the whole program" keys suite build -R end_to_end_keyboard_events
}

soak() {
    tried "Window and keyboard used at random" soak scripts/with_display.sh scripts/soak.sh "$(short_or_long 30 600)" \
        "${SEED:-1}"
}

# fuzzed TARGET SECONDS LONGEST: runs a fuzzer on the inputs that earlier runs found worth keeping, and on the seeds. An
# input that takes a second counts if it does so five times more: the machine may be busy with other things.
fuzzed() {
    local leaks=1 end=$((SECONDS + $2)) slow executed=0 result
    mkdir -p "$out/corpus-$1"
    TARNIX_SEEDS=$out/corpus-$1 build-fuzz/readers_fuzz
    # The toolkit keeps some of what it makes; leaks are looked for in the whole test suite.
    case $1 in text | window) leaks=0 ;; esac
    local fuzzer=(env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS="detect_leaks=$leaks" nice "build-fuzz/$1_fuzz" -timeout=1
        -malloc_limit_mb=64 -rss_limit_mb=4096 -max_len="$3" -artifact_prefix="$out/" -print_final_stats=1 -verbosity=0)
    again() {
        local n
        for n in {1..5}; do "${fuzzer[@]}" "$slow" && return; done
        return 1
    }
    while [ $SECONDS -lt $end ]; do
        rm -f "$out"/timeout-*
        result=0
        "${fuzzer[@]}" -max_total_time=$((end - SECONDS)) "$out/corpus-$1" 2>&1 | tee "$out/fuzzer.log" || result=1
        executed=$((executed + $(sed -n 's/^stat::number_of_executed_units: *//p' "$out/fuzzer.log")))
        [ $result = 1 ] || continue
        for slow in "$out"/timeout-*; do
            [ -e "$slow" ] && again || break 2
        done
        result=0
    done
    echo "counted: $executed executions"
    return $result
}

fuzz() {
    scripts/setup.sh clang-14 libclang-rt-14-dev llvm-14
    cmake --preset fuzz > /dev/null
    cmake --build --preset fuzz --target readers_fuzz keyboard_fuzz text_fuzz window_fuzz > "$out/build.log"
    tried "Fuzzed: files, macro reports, descriptors" fuzz-readers fuzzed readers "$(short_or_long 5 840)" 1500
    tried "Fuzzed: a keyboard's memory, events and faults" fuzz-keyboard fuzzed keyboard "$(short_or_long 5 840)" 1500
    tried "Fuzzed: decoding of texts" fuzz-text fuzzed text "$(short_or_long 2 240)" 300
    tried "Fuzzed: messages and input of the windows" fuzz-window fuzzed window "$(short_or_long 5 600)" 300
}

# passed COMMAND...: runs test programs, and counts the tests that passed.
passed() {
    "$@" | tee "$out/passed.log" || return
    echo "counted: $(awk '/^\[  PASSED  \]/ {n += $4} END {print n + 0}' "$out/passed.log") tests"
}

# sanitized PRESET: the whole test suite, or the core's part of it. What the sanitizers say ends a test with a failure.
# The thread sanitizer has a thread of its own, which wakes up and is no business of the idle program.
sanitized() {
    cmake --preset "$1" > /dev/null
    local targets=()
    [ -n "$long" ] || targets=(--target profile_test macro_test device_test files_test disk_fault_test platform_test)
    cmake --build --preset "$1" "${targets[@]}"
    export ASAN_OPTIONS=detect_leaks=1:verify_asan_link_order=0 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
    export LSAN_OPTIONS=suppressions=$PWD/tests/support/leak_sanitizer.supp:print_suppressions=0
    export TSAN_OPTIONS=suppressions=$PWD/tests/support/thread_sanitizer.supp:halt_on_error=1:die_after_fork=0
    local chosen=(--timeout 900)
    [ -n "$long" ] || chosen=(-R '^[A-Z]')
    [ "$1" != tsan ] || chosen+=(-E end_to_end_idle)
    suite "build-$1" "${chosen[@]}"
}

sanitizers() {
    tried "Tests, address, leak and undefined sanitizer" asan sanitized asan
    tried "Tests, thread sanitizer" tsan sanitized tsan
}

checked() {
    local each checker=(valgrind -q --error-exitcode=1 --leak-check=full --errors-for-leak-kinds=definite,indirect,possible
        --child-silent-after-fork=yes --suppressions=tests/support/memcheck.supp)
    for each in profile macro device virtual files platform ctl uhid_plug; do
        "${checker[@]}" "build/${each}_test" --gtest_filter="$(short_or_long '-FaultSweep.*' '*')" || return
    done
    [ -n "$long" ] || return 0
    for each in res skin painting manager dialogs main_window keyboard_hook platform_qt_{window,picture,shell}; do
        scripts/with_display.sh "${checker[@]}" "build/${each}_test" || return
    done
}

memcheck() {
    scripts/setup.sh valgrind
    tried "Unit tests, valgrind memcheck" valgrind passed checked
}

scripts/build.sh > "$out/build.log" || { tail -n 20 "$out/build.log" >&2; exit 1; }
for part in "${parts[@]}"; do
    case $part in
        valgrind) memcheck ;;
        *) "$part" ;;
    esac
done
cat "$table"
exit $status
