#!/usr/bin/env bash
# One copy runs at a time, whatever became of the one before; a current profile that is none is shown and written nowhere.
source "$(dirname "$0")/scenario.sh"

start_read
first=$window_id
plain=$(picture CPelmoraDlg $f1)

mkdir "$desktop/other"
cp "$TARNIX_KEYBOARD" "$desktop/other/"
for end in key signal; do
    "$desktop/other/tarnix-keyboard" &
    second=$!
    desktop_pids+=("$second")
    eventually xdotool search --onlyvisible --pid $second
    xdotool windowactivate --sync "$(xdotool search --onlyvisible --pid $second)"
    case $end in key) xdotool key Return ;; signal) kill $second ;; esac
    ended $second
done
reports_are
[ ! -e "$desktop/other/config" ] && [ "$(window CPelmoraDlg)" = "$first" ]

kill -9 "$(xdotool getwindowpid "$first")"
wait "$program_pid" || true
start
kill "$(xdotool getwindowpid "$window_id")"
ended "$program_pid"
[ "$(grep -c 'program ends' "$keyboard_log")" = 1 ]

# All profiles have F1 remapped: the picture tells whether one of them is shown.
sed -i '11s/^\(.\{43\}\)C0/\1C4/' "$config"/default?.psf
cp -r "$config" "$desktop/given"
while read -r text changed; do
    cp "$desktop/given"/* "$config"
    sed -i "2s/=.*/=$text/" "$config/config.ini"
    start --unplugged
    [ "$(looks_like CPelmoraDlg $f1 "$plain" || echo remapped)" = "${changed:+remapped}" ] || fail "shown with $text"
    remap_f1 F6
    apply
    end_program
    for n in {0..4}; do
        cmp -s "$config/default$n.psf" "$desktop/given/default$n.psf" || echo $n
    done | diff <(echo -n "${changed:+$changed$'\n'}") -
done << 'END'
-1
5
abc 0
4 4
END
