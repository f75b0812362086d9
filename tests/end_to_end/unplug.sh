#!/usr/bin/env bash
# Unplugging is told once and never hangs or ends the program, whatever it is doing; plugging in reads everything again.
source "$(dirname "$0")/scenario.sh"

close_notice() {
    eventually window CAttentionDlg
    eventually eval "xdotool key Return; no_window CAttentionDlg"
}
plug_in() {
    reports_seen=$(wc -l < "$keyboard_log")
    keyboard plug
    eventually reports_are "${full_read[@]}"
}
# let_go: the program has closed the keyboard, whose nodes are terminals to the kernel.
let_go() {
    ! find "/proc/$(xdotool getwindowpid "$(window CPelmoraDlg)")/fd" -lname '/dev/pts/*' | grep .
}

# While a key is being chosen; a second unplug finds the notice open and adds none.
start
click CPelmoraDlg 147 231
eventually window CKeyMapSettingDlg
keyboard unplug
eventually window CAttentionDlg
plug_in
keyboard unplug
eventually let_go
plug_in
close_notice
xdotool key F5
click CKeyMapSettingDlg 198 208
apply
eventually reports_are "set 06 key codes profile 1: 1 remapped" "set 05 active profile: 1"
# There is one listener again, and another device's coming and going is none of the program's business.
keyboard mouse in
keyboard mouse out
keyboard record 2 04:00 04:80
eventually reports_are "event 01" "set 04 select profile 1 G2" "get 08" "set 08 macro profile 1 G2"
end_program

# At a request of the first reading, of which a keyboard without macros gets 13, and then of an apply.
unplugs=0
for request in ${TARNIX_UNPLUG_AT:-0 1 6}; do
    printf '%s\n' "delay 20 60" "vanish $request" > "$desktop/faults"
    launch_program "$program" 1 --commands "$desktop/faults"
    close_notice
    plug_in
    remap_f1 F5
    choose_light 3
    keyboard vanish $((request % 3))
    apply
    close_notice
    end_program
    unplugs=$((unplugs + 2))
done
echo "counted: $unplugs unpluggings"

# A keyboard that answers nothing is there all the same.
echo "fail all" > "$desktop/silent"
start --commands "$desktop/silent"
keyboard fail none
apply
eventually grep -q 'set 05 active profile: 1$' "$keyboard_log"
end_program
