#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing need, and those that it is given; does nothing where
# they are all there.
set -euo pipefail

packages=(
    # building
    g++ cmake ninja-build pkg-config qt6-base-dev libgl-dev libhidapi-dev libudev-dev libxcb1-dev libxcb-shape0-dev
    libxcb-xinput-dev xdg-utils
    # the look: a Latin and a Chinese font
    fonts-inter fonts-dejavu-core fonts-wqy-microhei
    # the virtual keyboard
    libumockdev-dev umockdev
    # tests and the tour on a virtual display
    libgtest-dev libgmock-dev xvfb xauth xdotool x11-utils x11-xserver-utils openbox imagemagick dbus procps
    trayer libglib2.0-bin python3-dbusmock iproute2 at-spi2-core python3-gi gir1.2-atspi-2.0
    # checks of what is installed
    udev desktop-file-utils appstream man-db groff-base bsdextrautils
)

packages+=("$@")

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Installing: ${missing[*]}"
as_root=()
[ "$(id -u)" = 0 ] || as_root=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get -qq update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends "${missing[@]}" \
    > /dev/null
