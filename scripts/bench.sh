#!/usr/bin/env bash
# Measures what the program costs and prints tables of medians with the limits that they keep: first whole processes in
# turn, the program beside a bare window of the toolkit and a bare X window, then parts of the program inside one process.
# Ends with 1 if a limit is missed.
#
#   scripts/bench.sh [--quick] [--no-wm] [--rounds N] [--idle SECONDS]
#
#   --rounds   starts of each program (21); --idle: how long nothing happens (60)
#   --no-wm    on a display without a window manager
#   --quick    7 rounds and 5 seconds
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=21
idle=60
display=()
while [ $# -gt 0 ]; do
    case $1 in
        --rounds) rounds=$2; shift 2 ;;
        --idle) idle=$2; shift 2 ;;
        --no-wm) display+=(--no-wm); shift ;;
        --quick) rounds=7; idle=5; shift ;;
        *) sed -n '2,/^set/{/^#/p}' "$0" >&2; exit 2 ;;
    esac
done

scripts/setup.sh libbenchmark-dev libxcb-damage0-dev libxcb-shm0-dev libxcb-xtest0-dev qt6-gtk-platformtheme
cmake --preset bench > /dev/null
cmake --build --preset bench

# Ahead of whatever else the machine does, where that is allowed: all that is measured, and the display, alike.
first=()
if chrt -r 1 true 2> /dev/null; then first=(chrt -r 1); fi
on_display() {
    "${first[@]}" sh scripts/with_display.sh "${display[@]}" --size 1280x800 -- "$@"
}

status=0
on_display build-bench/bench-processes --rounds "$rounds" --idle "$idle" | tee build-bench/processes.md || status=1
on_display build-bench/bench-in-process --benchmark_repetitions=9 --benchmark_min_time=0.05 \
    --benchmark_report_aggregates_only=true | tee build-bench/in-process.md || status=1
if grep MISSED build-bench/processes.md build-bench/in-process.md > /dev/null; then
    echo "A limit is missed." >&2
    status=1
fi
exit $status
