#!/usr/bin/env bash
# Builds the Debian package into out/, checks it with lintian, and installs it into an empty root, runs it there as a normal
# user and removes it again. Needs lintian beside what scripts/setup.sh installs.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh
mkdir -p out
rm -f out/tarnix-keyboard_*.deb
cpack --config build/CPackConfig.cmake -B build/package > /dev/null
mv build/package/tarnix-keyboard_*.deb out/
rm -rf build/package
package=$(echo out/tarnix-keyboard_*.deb)
echo "Built $package:"
dpkg-deb --field "$package" Version Depends Recommends Installed-Size | sed 's/^/  /'

lintian --allow-root --fail-on error "$package"
echo "lintian finds no errors."

as_root=() as_user=()
if [ "$(id -u)" = 0 ]; then
    as_user=(setpriv --reuid=65534 --regid=65534 --clear-groups)
else
    as_root=(unshare --map-root-user)
fi
trial=$(mktemp -d)
trap 'rm -rf "$trial"' EXIT
chmod 755 "$trial"
root=$trial/root
mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers} "$trial/user"
touch "$root"/var/lib/dpkg/{status,available}
cp scripts/{desktop,try_installed,with_display}.sh "$trial/"
chmod -R a+rX "$trial"
[ ${#as_user[@]} = 0 ] || chown 65534:65534 "$trial/user"

# What the package depends on is this system's.
in_root() {
    "${as_root[@]}" dpkg --root="$root" --log=/dev/null --force-depends --force-script-chrootless "$@" > "$trial/dpkg.log" 2>&1 ||
        { cat "$trial/dpkg.log"; exit 1; }
}
in_root --install "$package"
chmod a-w "$root/usr/bin" # which it is for a user, whoever installs
"${as_user[@]}" env -i PATH="$PATH" TMPDIR="$trial/user" \
    "$trial/with_display.sh" bash "$trial/try_installed.sh" "$root"
chmod u+w "$root/usr/bin"
in_root --purge tarnix-keyboard
left=$(find "$root" -mindepth 1 -not -path "$root/var*")
[ -z "$left" ] || { echo "Left behind by the removal: $left"; exit 1; }
echo "It installs, runs as a normal user, and leaves nothing behind."
