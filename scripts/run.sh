#!/usr/bin/env bash
# Builds the program and starts it: with the keyboard if one is attached, else with the virtual keyboard. Without a
# display it plays a short tour on a virtual one and leaves screenshots in out/.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh

keyboard_attached() {
    grep -qsi '^HID_ID=[0-9a-f]*:000004F3:00001406' /sys/class/hidraw/*/device/uevent
}

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec scripts/tour.sh
elif keyboard_attached; then
    exec build/tarnix-keyboard
else
    echo "No keyboard attached: starting with the virtual one. Type \"help\" for what it can do."
    exec build/tarnix-virtual-keyboard -- build/tarnix-keyboard
fi
