#!/usr/bin/env bash
# What the user does on the keyboard: the on-screen display, programs on G-keys, recorded macros.
source "$(dirname "$0")/scenario.sh"
cd "$desktop"

start
end_program
odd='odd ; touch evil $(touch evil) `touch evil` < "name"'
printf '#!/bin/sh\necho "$# $0" >> "%s"\n' "$desktop/marks" | tee "$program/plain" > "$program/$odd"
chmod +x "$program/plain" "$program/$odd"
sed -i "14s|\$|$program/plain|; 17s|\$|$program/plain; touch evil|; 20s|\$|$program/$odd|" "$config/default0.psf"
cp "$config/default0.psf" "$desktop/before.psf"
start_read
keyboard launch 2
keyboard launch 3
eventually grep -qFx "0 $program/$odd" "$desktop/marks"
keyboard launch 1
eventually grep -qFx "0 $program/plain" "$desktop/marks"

# Values that are none do nothing; a burst of events is shown in one window, which takes no focus and goes by itself.
for event in "5 0" "6 3" "4 1" "1 2" "5 4" "4 7" "1 9" "8 1" "255 255"; do
    keyboard emit $event
done
xdotool windowactivate --sync "$(window CPelmoraDlg)"
focus=$(xdotool getwindowfocus)
keyboard profile 2
eventually window COSDDialog
osd=$window_id
[ "$(xdotool getwindowgeometry --shell "$osd" | sed -n '2,5s/.*=//p' | xargs)" = "980 968 300 56" ]
sleep 2
for event in "lock win 1" "lock all 0" "profile 3" "profile 1"; do
    keyboard $event
done
last=$(date +%s%3N)
eventually grep -q '^ok profile 1' "$keyboard_log"
[ "$(window COSDDialog)" = "$osd" ]
[ "$(xdotool getwindowfocus)" = "$focus" ]
eventually no_window COSDDialog
shown=$(($(date +%s%3N) - last))
[ $shown -gt 4800 ] && [ $shown -lt 9000 ] || fail "the display was there for $shown ms"

reports_seen=$(wc -l < "$keyboard_log")
keyboard record 2 x2 04:00 04:85
eventually reports_are "event 01" "set 04 select profile 1 G2" "get 08 macro" 'set 08 macro profile 1 G2: "Profile1_G2", 2 steps'
sed -i '15s/=.*/=Profile1_G2/; 16s/=.*/=010000/' "$desktop/before.psf"
eventually diff "$desktop/before.psf" "$config/default0.psf"
printf '[MacroLibrary]\nMacroSetNum=1\n\tMacroSet0Name=Keyboard Macro Set\n\t\tMacroKeyNum=1\n\t\tMacroKey0%s\n' \
    $'Name=Profile1_G2\n\t\t\tMacroKey0LoopEnable=1\n\t\t\tMacroKey0LoopNum=2\n\t\t\tMacroActionNum=3' > "$desktop/library"
printf '\t\t\tMacroCommandActionNum=2\n\t\t\tAllAction=410000000300002841800000%01576u\n' 0 >> "$desktop/library"
eventually diff "$desktop/library" "$config/MacroLibraryFile.mlf"
end_program
[ "$(wc -l < marks)" = 2 ] && [ ! -e evil ] && [ ! -e "$program/evil" ] || fail "something else was started"
