#!/usr/bin/env bash
# try_installed.sh ROOT: tries what is installed below ROOT, which the user must not be able to write to, with a virtual
# keyboard. To be run under scripts/with_display.sh.
set -euo pipefail
cd "$(dirname "$0")"
source ./desktop.sh

root=$1
programs=$root/usr/bin
virtual_keyboard=$programs/tarnix-virtual-keyboard
entry=$root/usr/share/applications/org.tarnix.Keyboard.desktop

[ ! -w "$programs" ] || fail "the user may write to $programs"
start_program "$programs"
files=$XDG_CONFIG_HOME/tarnix-keyboard/config
eventually grep -q 'get 06 key codes profile 3' "$keyboard_log"
"$programs/tarnixctl" check "$files"/{config.ini,default{0,1,2,3,4}.psf,MacroLibraryFile.mlf} > /dev/null || fail "its files are bad"
"$programs/tarnixctl" select 1 2> /dev/null && fail "tarnixctl gets in the running program's way"
end_program
[ ! -e "$programs/config" ] || fail "it keeps its files beside itself"

"$virtual_keyboard" -- "$programs/tarnixctl" doctor < /dev/null | grep -q 'The keyboard works' || fail "tarnixctl finds no keyboard"
[ -x "$programs/$(sed -n 's/^Exec=//p' "$entry")" ] || fail "the desktop entry starts nothing"
icon=$(sed -n 's/^Icon=//p' "$entry")
for size in 16x16 48x48 256x256; do
    identify "$root/usr/share/icons/hicolor/$size/apps/$icon.png" | grep -q " $size " || fail "no icon of $size"
done
