#!/usr/bin/env bash
# The icon in the notification area, of either kind and whenever there is one; without one, hiding minimises.
source "$(dirname "$0")/scenario.sh"

# hide X Y STATE: the button there leaves the main window in that state; none is hidden.
state_is() {
    [ "$(xprop -id "$main" WM_STATE | sed -n 's/.*window state: //p')" = "$1" ]
}
hide() {
    click CPelmoraDlg "$1" "$2"
    eventually state_is "$3"
}
# windows_are NUMBER: what is visible of the program, main window, icon and menu.
windows_are() {
    windows=$(xdotool search --onlyvisible --class '^tarnix-keyboard$')
    [ "$(wc -w <<< "$windows")" = "$1" ]
}
start_tray() {
    trayer --expand false --widthtype request --SetDockType true &
    tray=$!
    desktop_pids+=("$tray")
    eventually windows_are 1
}
on_icon() {
    eventually windows_are 1
    xdotool mousemove --window "$windows" 8 8 click "$@"
}

start
main=$window_id
for button in "568 135" "643 135" "775 24"; do
    xdotool windowactivate "$main"
    hide $button Iconic
done
start_tray
on_icon --repeat 2 --delay 60 1
eventually window CPelmoraDlg
hide 568 135 ""
on_icon 1
on_icon 3
eventually windows_are 2
no_window CPelmoraDlg
xdotool key Down Return
eventually window CPelmoraDlg
hide 775 24 ""
kill "$tray"
eventually state_is Iconic # nothing else would lead back to it
start_tray
on_icon 3
eventually windows_are 2
xdotool key Up Return
ended "$program_pid"
[ "$(grep -c 'program ends' "$keyboard_log")" = 1 ]
kill "$tray"

# On the session bus, with a host that comes after the program; and "Exit" while a dialog is open.
watcher=org.kde.StatusNotifierWatcher mock=org.freedesktop.DBus.Mock
ask() {
    gdbus call --session -d "$1" -o "$2" -m "${@:3}" 2> /dev/null
}
start
main=$window_id
/usr/bin/python3 -m dbusmock --session $watcher /StatusNotifierWatcher $watcher > "$desktop/watcher" &
desktop_pids+=($!)
eventually ask $watcher /StatusNotifierWatcher "$mock.AddMethod" "" RegisterStatusNotifierItem s "" ""
ask $watcher /StatusNotifierWatcher "$mock.AddProperty" $watcher IsStatusNotifierHostRegistered '<true>'
ask $watcher /StatusNotifierWatcher "$mock.EmitSignal" $watcher StatusNotifierHostRegistered "" '[]'
eventually grep RegisterStatusNotifierItem "$desktop/watcher"
item=$(sed -n 's/.*RegisterStatusNotifierItem "\(.*\)"/\1/p' "$desktop/watcher")
menu=$(ask "$item" /MenuBar com.canonical.dbusmenu.GetLayout 0 -- -1 '[]')
entries=$(grep -oE "'(label|type)': <[^>]*" <<< "$menu" | cut -d"'" -f4 | paste -sd,)
[ "$entries" = "Config Tarnix Keyboard,separator,Exit" ]
hide 643 135 ""
ask "$item" /StatusNotifierItem org.kde.StatusNotifierItem.Activate 0 0
eventually window CPelmoraDlg
click CPelmoraDlg 147 231
eventually window CKeyMapSettingDlg
ask "$item" /MenuBar com.canonical.dbusmenu.Event "$(sed -E "s/.*\\(([0-9]+), [^(]*'Exit'.*/\\1/" <<< "$menu")" clicked '<0>' 0
ended "$program_pid"
[ "$(grep -c 'program ends' "$keyboard_log")" = 1 ]
