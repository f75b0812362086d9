#!/bin/sh
# Runs a command under a desktop of its own: an X display, a window manager, a D-Bus session, and empty home,
# configuration and runtime folders. All of it goes away with the command, whose status is returned. Any number of
# them run side by side.
#
#   with_display.sh [--no-wm] [--size WIDTHxHEIGHT] [--dpi DPI] [--] COMMAND [ARGUMENT...]
#
# --dpi sets the desktop's text resolution (Xft.dpi): 144 is a desktop at 150 %.
set -u

window_manager=yes
size=1280x1024
dpi=96
while [ $# -gt 0 ]; do
    case $1 in
        --no-wm) window_manager=no; shift ;;
        --size) size=$2; shift 2 ;;
        --dpi) dpi=$2; shift 2 ;;
        --) shift; break ;;
        -*) echo "with_display.sh: unknown option $1" >&2; exit 2 ;;
        *) break ;;
    esac
done
[ $# -gt 0 ] || { echo "with_display.sh: no command" >&2; exit 2; }

for program in Xvfb openbox dbus-daemon xrdb; do
    command -v $program >/dev/null || { echo "with_display.sh: $program is not installed" >&2; exit 2; }
done

folder=$(mktemp -d -t tarnix-display.XXXXXX) || exit 2
server= manager= bus= command=

finish() {
    trap '' INT TERM HUP
    for process in $command $manager $bus $server; do kill "$process" 2>/dev/null; done
    for process in $command $manager $bus $server; do wait "$process" 2>/dev/null; done
    rm -rf "$folder"
}
trap 'finish; exit 143' INT TERM HUP

mkdir -m 700 "$folder/home" "$folder/run" "$folder/config" "$folder/cache" "$folder/data"

# The server writes its display's number once it takes connections.
mkfifo "$folder/display" "$folder/bus"
Xvfb -displayfd 3 -screen 0 "${size}x24" -dpi 96 -nolisten tcp -noreset 3>"$folder/display" \
    >"$folder/server.log" 2>&1 &
server=$!
read -r number <"$folder/display" || number=
if [ -z "$number" ]; then
    cat "$folder/server.log" >&2
    finish
    exit 2
fi

export DISPLAY=":$number"
export HOME="$folder/home" XDG_RUNTIME_DIR="$folder/run" XDG_CONFIG_HOME="$folder/config"
export XDG_CACHE_HOME="$folder/cache" XDG_DATA_HOME="$folder/data"
unset WAYLAND_DISPLAY XDG_CURRENT_DESKTOP DESKTOP_SESSION XAUTHORITY SESSION_MANAGER QT_QPA_PLATFORM \
    QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE QT_SCALE_FACTOR QT_IM_MODULE AT_SPI_BUS_ADDRESS
export NO_AT_BRIDGE=1 LC_ALL=C.UTF-8

dbus-daemon --session --nofork --address="unix:dir=$folder/run" --print-address=3 3>"$folder/bus" \
    >"$folder/bus.log" 2>&1 &
bus=$!
read -r DBUS_SESSION_BUS_ADDRESS <"$folder/bus"
export DBUS_SESSION_BUS_ADDRESS

if [ "$dpi" != 96 ]; then
    printf 'Xft.dpi: %s\n' "$dpi" | xrdb -merge || { finish; exit 2; }
fi

if [ $window_manager = yes ]; then
    # openbox runs its start-up command once it manages the display.
    mkfifo "$folder/manager"
    openbox --startup "sh -c 'echo up >\"$folder/manager\"'" >"$folder/manager.log" 2>&1 &
    manager=$!
    read -r answer <"$folder/manager"
fi

"$@" &
command=$!
wait "$command"
status=$?
command=
finish
exit $status
