# A user's hands and eyes for the tour and the end-to-end tests: source it in a bash that runs under
# tests/support/with_display.sh. What it starts ends with the shell.

desktop=$(mktemp -d)
desktop_pids=()
desktop_status=0

end_desktop() {
    desktop_status=$?
    exec 7>&- 2>/dev/null || true
    kill "${desktop_pids[@]}" 2>/dev/null || true
    wait "${desktop_pids[@]}" 2>/dev/null || true
    rm -rf "$desktop"
    exit "$desktop_status"
}
trap end_desktop EXIT

# fail TEXT...: ends with the reason.
fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# eventually COMMAND...: waits until the command succeeds, 15 seconds at most.
eventually() {
    local tries=300
    until "$@" > /dev/null 2>&1; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || fail "waited in vain for: $*"
        sleep 0.05
    done
}

# window ROLE: the identifier of the visible window of that class.
window() {
    local id
    for id in $(xdotool search --onlyvisible --name '^Tarnix Keyboard$' 2> /dev/null); do
        if xprop -id "$id" WM_WINDOW_ROLE 2> /dev/null | grep -q "\"$1\""; then
            echo "$id"
            return 0
        fi
    done
    return 1
}

no_window() {
    ! window "$1"
}

# point ROLE X Y: moves the pointer over the window; click does so and clicks.
point() {
    eventually window "$1"
    xdotool mousemove --window "$(window "$1")" "$2" "$3"
    sleep 0.15
}

click() {
    point "$@"
    xdotool click 1
    sleep 0.15
}

# screenshot FILE: the whole screen.
screenshot() {
    sleep 0.25
    import -window root "$1"
}

# start_program FOLDER [RUNS [OPTION...]]: the program from FOLDER, RUNS times in a row with one virtual keyboard, whose
# log goes to $keyboard_log and which takes commands through `keyboard`.
start_program() {
    local folder=$1 runs=${2:-1}
    shift
    shift || true
    keyboard_log=$desktop/keyboard.log
    : > "$keyboard_log"
    rm -f "$desktop/commands"
    mkfifo "$desktop/commands"
    "$virtual_keyboard" "$@" -- sh -c 'while [ "$1" -gt 0 ]; do "$0" || exit; set -- $(($1 - 1)); done' \
        "$folder/tarnix-keyboard" "$runs" < "$desktop/commands" > "$keyboard_log" 2>&1 &
    program_pid=$!
    desktop_pids+=("$program_pid")
    exec 7> "$desktop/commands"
    eventually window CPelmoraDlg
}

# keyboard COMMAND...: tells the virtual keyboard what to do.
keyboard() {
    echo "$*" >&7
}

# end_run: Escape in the main window, and its process is gone.
end_run() {
    local id pid
    id=$(window CPelmoraDlg)
    pid=$(xdotool getwindowpid "$id")
    xdotool windowactivate --sync "$id" key Escape
    eventually sh -c "! kill -0 $pid"
}

# end_program: the last run ends, and with it the virtual keyboard.
end_program() {
    end_run
    exec 7>&-
    wait "$program_pid"
}
