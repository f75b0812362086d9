# What every scenario stands on; source it. The program lies alone in a folder of its own and runs on the display that
# is there; TARNIX_KEYBOARD and TARNIX_VIRTUAL_KEYBOARD name the executables.
set -Eeuo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/desktop.sh"
trap 'echo "FAILED: ${BASH_SOURCE[0]}:$LINENO: $BASH_COMMAND" >&2' ERR
failure_picture=$PWD/$(basename "$0" .sh)-failed.png

virtual_keyboard=$TARNIX_VIRTUAL_KEYBOARD
program=$desktop/tarnix
config=$program/config
mkdir "$program"
ln "$TARNIX_KEYBOARD" "$program/" 2> /dev/null || cp "$TARNIX_KEYBOARD" "$program/"

# start [OPTION...]: the program with a virtual keyboard; the options are the latter's. start_read: and it has read that.
start() {
    start_program "$program" 1 "$@"
    point CPelmoraDlg 400 200
    eventually painted CPelmoraDlg
}
start_read() {
    start
    eventually reports_are "${full_read[@]}"
}

full_read=("get 05 active profile:")
for id in "07 lighting" "06 key codes"; do
    for n in 1 2 3; do
        full_read+=("set 04 select profile $n G1" "get $id profile $n:")
    done
done
f1=28x27+133+218
