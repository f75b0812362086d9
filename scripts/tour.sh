#!/usr/bin/env bash
# A short tour on a virtual display with the virtual keyboard, played with real pointer and key input: remap a key, choose
# a light, apply, restart, see it again. Prints the keyboard's reports and the changed lines of the files as it goes and
# leaves numbered screenshots in out/. With --here it plays on the display that is there.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-}" != --here ]; then
    exec scripts/with_display.sh --size 1280x800 scripts/tour.sh --here
fi
source scripts/desktop.sh

virtual_keyboard=$PWD/build/tarnix-virtual-keyboard
out=$PWD/out
mkdir -p "$out"
rm -f "$out"/[0-9][0-9]-*.png

program=$desktop/tarnix
mkdir "$program"
cp build/tarnix-keyboard "$program/"

shots=0
shot() {
    shots=$((shots + 1))
    local file
    file=$(printf '%s/%02d-%s.png' "$out" $shots "$1")
    screenshot "$file"
    echo "  screenshot out/$(basename "$file")"
}

seen=0
reports() {
    tail -n +$((seen + 1)) "$keyboard_log" | sed 's/^/  keyboard | /'
    seen=$(wc -l < "$keyboard_log")
}

changed_lines() {
    diff -r "$desktop/before" "$program/config" | grep '^[<>]' | cut -c1-110 | sed 's/^/  files    | /' || true
    rm -rf "$desktop/before"
    cp -r "$program/config" "$desktop/before"
}

echo "The program starts and reads the keyboard:"
start_program "$program" 2
shot main-window
reports
cp -r "$program/config" "$desktop/before"
echo "It has written its first files: $(cd "$program" && echo config/*)"

echo "F1 is clicked and shall become F5:"
click CPelmoraDlg 147 231
eventually window CKeyMapSettingDlg
xdotool key F5
shot key-map-captured
click CKeyMapSettingDlg 198 208
eventually no_window CKeyMapSettingDlg
point CPelmoraDlg 400 200
shot remapped

echo "The lighting page, and another mode from its list:"
click CPelmoraDlg 602 520
shot lighting-page
click CPelmoraDlg 137 240
point CLightModePopup 60 171
shot light-popup
click CLightModePopup 60 171
eventually no_window CLightModePopup
shot light-chosen

echo "Apply:"
apply
eventually grep -q 'set 05' "$keyboard_log"
sleep 0.6
reports
changed_lines
shot applied

echo "What the user does on the keyboard itself:"
keyboard profile 2
eventually window COSDDialog
shot profile-switched
keyboard lock win 1
sleep 0.5
shot windows-key-locked
keyboard profile 1
sleep 0.5
reports

echo "The keyboard is unplugged, and comes back:"
keyboard unplug
eventually window CAttentionDlg
shot unplugged
click CAttentionDlg 198 208
eventually no_window CAttentionDlg
keyboard plug
sleep 1
reports

echo "The program ends and starts again:"
end_run
eventually window CPelmoraDlg
sleep 0.5
reports
shot after-restart
end_program
reports
echo "Done: $shots screenshots in out/."
