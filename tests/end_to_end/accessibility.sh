#!/usr/bin/env bash
# Where a screen reader runs, it can read every control and use it, in the order of its presses.
source "$(dirname "$0")/scenario.sh"

gdbus call --session -d org.a11y.Bus -o /org/a11y/bus -m org.freedesktop.DBus.Properties.Set \
    org.a11y.Status IsEnabled '<true>'
start_read
/usr/bin/python3 "$(dirname "$0")/accessibility.py" >&7
eventually reports_are "set 07 lighting profile 1: mode 1 RGB Full, brightness 3 75%, speed 2 Fast" \
    "set 06 key codes profile 1: 1 remapped" "set 05 active profile: 1" "set 05 active profile: 2" "event 05" "event 03"
