#!/usr/bin/env bash
# A program that nobody uses does nothing: no thread of it runs or wakes up, with its window open or hidden.
source "$(dirname "$0")/scenario.sh"

# work_done: clock ticks, and how often each thread has waited.
work_done() {
    cut -d' ' -f14,15 "/proc/$pid/stat"
    grep -H '^voluntary' /proc/"$pid"/task/*/status
}

unchanged() {
    local before
    before=$(work_done)
    sleep "$1"
    diff <(echo "$before") <(work_done)
}

trayer &
desktop_pids+=($!)
eventually xdotool search --onlyvisible --class trayer
start
pid=$(xdotool getwindowpid "$window_id")
eventually unchanged 1
unchanged 10 || fail "busy with its window open"
click CPelmoraDlg 643 135
eventually no_window CPelmoraDlg
eventually unchanged 1
unchanged 10 || fail "busy with its window hidden"
