#!/usr/bin/env bash
# A disk that is full, read-only, gone or forbidden costs nothing but the save: files stay as they were, the keyboard is
# served, and the next apply saves. Run as a plain user.
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
cat > "$desktop/as_user" << END
#!/bin/sh
export HOME=$desktop/home TMPDIR=$desktop/home
[ \$(id -u) != 0 ] || exec setpriv --reuid 65534 --regid 65534 --clear-groups -- "$desktop/virtual" "\$@"
exec "$desktop/virtual" "\$@"
END
chmod +x "$desktop/as_user"
chmod 755 "$desktop"
chown 65534 "$desktop/home" "$program" 2> /dev/null || true
virtual_keyboard=$desktop/as_user

# keeps MODE KEY: an apply that cannot save.
keeps() {
    remap_f1 "$2"
    apply
    eventually reports_are "set 06 key codes profile 1: 1 remapped" "set 05 active profile: 1"
    diff -r -x filler "$desktop/given" "$config" || fail "files changed with a disk that is $1"
}
saves() {
    apply
    eventually eval "! diff -rq '$desktop/given' '$config'"
    eventually eval "[ \$(ls -A '$config' | wc -l) = 7 ]"
    rm -r "$desktop/given"
    cp -r "$config" "$desktop/given"
    reports_seen=$(wc -l < "$keyboard_log")
}

start
end_program
cp -r "$config" "$desktop/given"
mount -t tmpfs -o size=96k none "$config"
cp "$desktop/given"/* "$config"
chown -R 65534 "$config" 2> /dev/null || true
start
eventually reports_are "${full_read[@]}"
cat /dev/zero > "$config/filler" 2> /dev/null || true
keeps full F5
mount -o remount,ro "$config"
keeps read-only F6
mount -o remount,rw "$config"
rm "$config/filler"
saves
chmod 500 "$config"
keeps forbidden F7
chmod 700 "$config"
saves
umount -l "$config"
remap_f1 F8
apply
eventually reports_are "set 06" "set 05"
end_program

# Folders that may not be read or written at the start.
rm -r "$desktop/given"
cp -r "$config" "$desktop/given"
for mode in 500 000; do
    chmod $mode "$config"
    start
    eventually reports_are "${full_read[@]}"
    remap_f1 F9
    apply
    eventually reports_are "set 06" "set 05"
    end_program
    chmod 700 "$config"
    diff -r "$desktop/given" "$config"
done
