#!/usr/bin/env bash
# Edits by pointer and key reach the keyboard and the disk at Apply, once, lighting before key codes; Escape drops the rest.
source "$(dirname "$0")/scenario.sh"

start_read
cp -r "$config" "$desktop/before"
plain=$(picture CPelmoraDlg $f1)
remap_f1 F5
remapped() { ! looks_like CPelmoraDlg $f1 "$plain"; }
eventually remapped
choose_light 8
click CPelmoraDlg 502 555
choose_light 2
click CPelmoraDlg 200 520
eventually looks_like CPelmoraDlg $f1 "$plain"
xdotool key Return KP_Enter
reports_are
diff -r "$desktop/before" "$config"

apply
eventually reports_are "set 07 lighting profile 1: mode 8" "set 07 lighting profile 3: mode 2" \
    "set 06 key codes profile 1: 1 remapped" "set 05 active profile: 3"
keyboard show
eventually grep -q '^ok show' "$keyboard_log"
for held in "active profile 3" "profile 1 lighting 48 14 44 44" "profile 2 lighting 41 14 44 44" \
    "profile 3 lighting 42 14 44 44" "profile 1 keys( ..){17} C4"; do
    grep -qE "^$held" "$keyboard_log" || fail "the keyboard does not hold: $held"
done
sed -i '2s/0/2/' "$desktop/before/config.ini"
sed -i '3s/1$/8/; 11s/^\(.\{43\}\)C0/\1C4/' "$desktop/before/default0.psf"
sed -i '3s/1$/2/' "$desktop/before/default2.psf"
eventually diff -r "$desktop/before" "$config"

apply
eventually reports_are "set 05 active profile: 3"
click CPelmoraDlg 302 555
remap_f1 F1
eventually looks_like CPelmoraDlg $f1 "$plain"
choose_light 0
end_program
reports_are "set 05 active profile: program ends"
diff -r "$desktop/before" "$config"
