# A user's hands and eyes for the tour and the end-to-end tests: source it in a bash that runs under
# scripts/with_display.sh. What it starts ends with the shell.

desktop=$(mktemp -d)
desktop_pids=()
desktop_status=0

end_desktop() {
    desktop_status=$?
    if [ $desktop_status != 0 ]; then
        [ -z "${keyboard_log:-}" ] || tail -n 40 "$keyboard_log" >&2
        [ -z "${failure_picture:-}" ] || import -window root "$failure_picture" || true
    fi
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

# window ROLE: the identifier of the visible window of that class; in $window_id, too.
window() {
    local found
    # A window that goes away during the search is an error to xdotool, and no answer.
    until found=$(xdotool search --onlyvisible --name '^Tarnix Keyboard$' 2>&1) || [ -z "$found" ]; do
        sleep 0.05
    done
    for window_id in $found; do
        if [[ $(xprop -id "$window_id" WM_WINDOW_ROLE 2> /dev/null) == *"\"$1\"" ]]; then
            echo "$window_id"
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
    xdotool mousemove --window "$window_id" "$2" "$3" sleep 0.15
}

click() {
    point "$@"
    xdotool click 1 sleep 0.15
}

# picture ROLE WIDTHxHEIGHT+X+Y: what that part of the window looks like, as a word to compare. looks_like ... WORD
# compares; painted ROLE tells that the window's first frame is there. Without a window import would ask for a click.
picture() {
    window "$1" > /dev/null && import -window "$window_id" -crop "$2" +repage rgb:- | md5sum
}

looks_like() {
    [ "$(picture "$1" "$2")" = "$3" ]
}

painted() {
    window "$1" > /dev/null && [ "$(import -window "$window_id" -format %k info:)" -gt 100 ]
}

# screenshot FILE: the whole screen.
screenshot() {
    sleep 0.25
    import -window root "$1"
}

# launch_program FOLDER [RUNS [OPTION...]]: the program from FOLDER, RUNS times in a row with one virtual keyboard, whose
# log goes to $keyboard_log and which takes commands through `keyboard`. start_program waits for its window, too.
launch_program() {
    local folder=$1 runs=${2:-1}
    shift
    shift || true
    keyboard_log=$desktop/keyboard.log
    reports_seen=0
    : > "$keyboard_log"
    rm -f "$desktop/commands"
    mkfifo "$desktop/commands"
    "$virtual_keyboard" "$@" -- sh -c 'while [ "$1" -gt 0 ]; do "$0" || exit; set -- $(($1 - 1)); done' \
        "$folder/tarnix-keyboard" "$runs" < "$desktop/commands" > "$keyboard_log" 2>&1 &
    program_pid=$!
    desktop_pids+=("$program_pid")
    exec 7> "$desktop/commands"
}

start_program() {
    launch_program "$@"
    eventually window CPelmoraDlg
}

# keyboard COMMAND...: tells the virtual keyboard what to do.
keyboard() {
    echo "$*" >&7
}

# reports_are LINE...: since the last time that this was so, these reports went over the wire and no others. A line is
# the start of a report's description.
reports_are() {
    local -a lines
    mapfile -t lines < <(tail -n +$((reports_seen + 1)) "$keyboard_log" | sed -n 's/^[0-9]* ms  //p')
    [ ${#lines[@]} = $# ] || return 1
    local line
    for line in "${lines[@]}"; do
        [[ $line == "$1"* ]] || return 1
        shift
    done
    reports_seen=$(wc -l < "$keyboard_log")
}

# remap_f1 KEY: the key page's F1 gets that key, by pointer and key.
remap_f1() {
    click CPelmoraDlg 147 231
    eventually window CKeyMapSettingDlg
    xdotool key "$1"
    click CKeyMapSettingDlg 198 208
    eventually no_window CKeyMapSettingDlg
    point CPelmoraDlg 400 200
}

# choose_light ROW: that mode of the lighting page's list, counted from 0.
choose_light() {
    click CPelmoraDlg 602 520
    click CPelmoraDlg 137 240
    click CLightModePopup 60 $(($1 * 16 + 9))
    eventually no_window CLightModePopup
}

apply() {
    click CPelmoraDlg 716 135
}

# ended PROCESS: waits until a process of this shell is gone; its status.
ended() {
    eventually eval "! kill -0 $1"
    wait "$1"
}

# end_run: Escape in the main window, and its process is gone.
end_run() {
    local id pid
    id=$(window CPelmoraDlg)
    pid=$(xdotool getwindowpid "$id")
    xdotool windowactivate --sync "$id" key Escape
    eventually eval "! kill -0 $pid"
}

# end_program: the last run ends, and with it the virtual keyboard.
end_program() {
    end_run
    exec 7>&-
    ended "$program_pid"
}
