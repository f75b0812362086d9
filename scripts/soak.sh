#!/usr/bin/env bash
# Uses the window and the keyboard at random, like somebody who does not care, and watches the program: it must neither end
# nor hang, nor hold more memory, handles or threads than after the first minute. To be run on a display of its own:
#
#   scripts/with_display.sh scripts/soak.sh [SECONDS [SEED]]
set -euo pipefail
seconds=${1:-60}
RANDOM=${2:-1}
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
build=$(dirname "${BASH_SOURCE[0]}")/../build
virtual_keyboard=$(realpath "${TARNIX_VIRTUAL_KEYBOARD:-$build/tarnix-virtual-keyboard}")
mkdir "$desktop/bin" "$desktop/program"
cp "$(realpath "${TARNIX_KEYBOARD:-$build/tarnix-keyboard}")" "$desktop/program/"
# Links and documents go nowhere, and files land in a folder of this run.
ln -s /bin/true "$desktop/bin/xdg-open"
PATH=$desktop/bin:$PATH
cd "$desktop"

inputs=0 events=0 disturbances=0

# use_window: forty clicks, wheel notches and keys somewhere on the window that has the focus, or on the main one.
use_window() {
    local -a work=()
    local n keys=(a B 7 F5 Tab Return BackSpace Down space) x y
    for n in {1..40}; do
        x=$((RANDOM % 760)) y=$((RANDOM % 560))
        case $((RANDOM % 8)) in
            0) work+=(key "${keys[RANDOM % ${#keys[@]}]}") ;;
            1) work+=(click $((4 + RANDOM % 2))) ;;
            2) work+=(mousedown 1 mousemove_relative -- $((RANDOM % 80 - 40)) $((RANDOM % 80 - 40)) mouseup 1) ;;
            *) work+=(mousemove --window "$main_window" $x $y click 1) ;;
        esac
    done
    xdotool "${work[@]}"
    inputs=$((inputs + 40))
}

use_keyboard() {
    local n
    for n in {1..80}; do
        keyboard emit $((RANDOM % 12)) $((RANDOM % 8))
    done
    keyboard record $((1 + RANDOM % 6)) 04:00 04:8$((RANDOM % 10)) 05:00 05:80
    keyboard profile $((1 + RANDOM % 3))
    events=$((events + 82))
}

disturb() {
    case $((RANDOM % 4)) in
        0) keyboard fail $((RANDOM % 5)) ;;
        1) keyboard vanish $((RANDOM % 8)) ;;
        2) keyboard unplug ;;
        3) keyboard mouse in; keyboard mouse out ;;
    esac
    disturbances=$((disturbances + 1))
}

# others: the program's visible windows but the main one and the on-screen display.
others() {
    local each
    for each in $(xdotool search --onlyvisible --class tarnix 2> /dev/null); do
        [ "$each" != "$main_window" ] || continue
        [[ $(xprop -id "$each" WM_WINDOW_ROLE 2> /dev/null) == *COSDDlg* ]] || echo "$each"
    done
}

# rest: the keyboard is there, the main window is shown and alone. A minute is allowed for it: an apply with every macro
# takes the keyboard seven seconds, and clicks wait behind it.
rest() {
    local other deadline=$((SECONDS + 60))
    keyboard fail none
    keyboard plug
    while [ -n "$(others)" ] || ! xdotool search --onlyvisible --name '^Tarnix Keyboard$' > /dev/null 2>&1; do
        [ $SECONDS -lt $deadline ] || fail "the program does not answer: $(others | wc -l) windows beside the main one"
        xdotool windowactivate "$main_window" sleep 0.1 2> /dev/null || true
        # Escape would end the program, were the window gone just now: ours have Cancel and OK at the same places, and
        # a popup goes with a press elsewhere. Only the toolkit's own dialogs need a key.
        for other in $(others); do
            xdotool windowmove --sync "$other" 300 300 mousemove --window "$other" 298 208 click 1 sleep 0.05 \
                mousemove --window "$other" 198 208 click 1 sleep 0.05 2> /dev/null || true
            [[ $(xprop -id "$other" WM_WINDOW_ROLE 2> /dev/null) != *"not found"* ]] ||
                xdotool windowfocus --sync "$other" key Escape 2> /dev/null || true
        done
        [ -z "$(others)" ] || xdotool mousemove --window "$main_window" 400 30 click 1 sleep 0.1
    done
}

# handles: how many the program has, without those to which the mocked system's library connects files that are none of
# its devices; it keeps some of these.
handles() {
    local mocked
    mocked=$(ss -xapnH | awk -v process="pid=$program_process," '
        $5 ~ /umockdev.*ioctl\/_default$/ {mocked[$6] = 1}
        index($0, process) {peers[$8] = 1}
        END {for (peer in peers) n += peer in mocked; print n + 0}')
    echo $(($(ls "/proc/$program_process/fd" | wc -l) - mocked))
}

# sample: what the program holds now: anonymous memory in kB, handles, threads.
sample() {
    local memory
    memory=$(sed -n 's/^RssAnon:[^0-9]*\([0-9]*\).*/\1/p' "/proc/$program_process/status")
    samples+=("$((SECONDS - start)) $memory $(handles) $(ls "/proc/$program_process/task" | wc -l)")
    echo "after ${samples[-1]} (s, kB, handles, threads)"
}

# highest FIELD FROM TO: of the samples between these seconds.
highest() {
    printf '%s\n' "${samples[@]}" | awk -v f="$1" -v a="$2" -v b="$3" '$1 >= a && $1 <= b && $f > m {m = $f} END {print m + 0}'
}

start_program "$desktop/program" 1
main_window=$window_id
program_process=$(xdotool getwindowpid "$main_window")
start=$SECONDS
samples=()
while [ $((SECONDS - start)) -lt "$seconds" ]; do
    use_window
    use_keyboard
    use_window
    disturb
    use_window
    rest
    sample
done
[ -e "/proc/$program_process" ] || fail "the program has ended"
keyboard quit
ended "$program_pid" || true

echo "counted: $inputs clicks and keys, $events event reports, $disturbances faults and unpluggings in $seconds s"
if [ "$seconds" -ge 180 ]; then
    now=$((SECONDS - start))
    memory_before=$(highest 2 60 120) memory_after=$(highest 2 $((now - 60)) $now)
    handles_before=$(highest 3 60 120) handles_after=$(highest 3 $((now - 60)) $now)
    threads_before=$(highest 4 60 120) threads_after=$(highest 4 $((now - 60)) $now)
    echo "counted: memory $memory_before to $memory_after kB, handles $handles_before to $handles_after," \
        "threads $threads_before to $threads_after"
    # It grows by steps, fewer and fewer; a leak in what is used all the time takes more.
    [ $((memory_after - memory_before)) -le 2048 ] || fail "memory grows"
    [ "$handles_after" -le "$handles_before" ] || fail "handles grow"
    [ "$threads_after" -le "$threads_before" ] || fail "threads grow"
fi
