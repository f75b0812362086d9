#!/usr/bin/env bash
# A disk that is full, read-only, gone or forbidden costs nothing but the save: files stay as they were, the keyboard is
# served, and a later apply saves. With the rights of a plain user.
if [ -z "${TARNIX_MOUNTS_APART:-}" ]; then
    apart=(unshare --mount)
    [ "$(id -u)" = 0 ] || apart=(unshare --mount --map-root-user)
    if ! "${apart[@]}" mount -t tmpfs none /mnt 2> /dev/null; then
        echo "not tried: this system lets nobody mount a disk"
        exit 0
    fi
    exec env TARNIX_MOUNTS_APART=1 "${apart[@]}" bash "$0"
fi
source "$(dirname "$0")/scenario.sh"
cp "$TARNIX_VIRTUAL_KEYBOARD" "$desktop/virtual"
mkdir "$desktop/home"
chmod 755 "$desktop"
chown 65534 "$desktop/home" "$program" 2> /dev/null || true
virtual_keyboard=as_user
as_user() {
    local user=()
    [ "$(id -u)" != 0 ] || user=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    HOME=$desktop/home TMPDIR=$desktop/home "${user[@]}" "$desktop/virtual" "$@"
}

given() {
    rm -rf "$desktop/given"
    cp -r "$config" "$desktop/given"
}
# keeps KEY: an apply that cannot save.
keeps() {
    remap_f1 "$1"
    apply
    eventually reports_are "set 06 key codes profile 1: 1 remapped" "set 05 active profile: 1"
    keyboard emit 10 0 # which is heard once the apply is over
    eventually reports_are "event 0A" "set 04 select profile 1 G1" "get 07 lighting profile 1"
    diff -r -x filler "$desktop/given" "$config"
}
saves() {
    apply
    eventually eval "! diff -q '$desktop/given/default0.psf' '$config/default0.psf'"
    eventually reports_are "set 05 active profile: 1"
    [ "$(ls -A "$config" | wc -l)" = 7 ]
    given
}

start
end_program
given
mount -t tmpfs -o size=96k none "$config"
cp "$desktop/given"/* "$config"
chown -R 65534 "$config" 2> /dev/null || true
start_read
cat /dev/zero > "$config/filler" 2> /dev/null || true
keeps F5
rm "$config/filler"
mount -o remount,ro "$config"
keeps F6
mount -o remount,rw "$config"
chmod 400 "$config"/*
keeps F7
chmod 600 "$config"/*
saves
umount -l "$config"
keyboard emit 9 1
apply
eventually reports_are "event 09" "set 05 active profile: 1"
end_program

# Folders that may not be written, or not even be read, from the start.
given
for mode in 500 000; do
    chmod $mode "$config"
    start_read
    remap_f1 F9
    apply
    eventually reports_are "set 06" "set 05"
    end_program
    chmod 700 "$config"
    diff -r "$desktop/given" "$config"
done
echo "counted: six states of the disk"
