#!/usr/bin/env bash
# Photographs every page, list, dialog and state into out/screenshots/SCALE, each set on a contact sheet,
# out/contact-sheet-SCALE.png, and the icon at its sizes on out/icons.png.
#
#   scripts/screenshots.sh [SCALE...]    in per cent; 100 and 200 when none is given
set -euo pipefail
cd "$(dirname "$0")/.."
[ $# -gt 0 ] || set -- 100 200

# The on-screen display is translucent where a compositor runs; the scalable icon wants a renderer of its own.
scripts/setup.sh xcompmgr librsvg2-bin
cmake --preset release -DTARNIX_GALLERY=ON > /dev/null
cmake --build --preset release --target tarnix-gallery tarnix_icons

for scale in "$@"; do
    folder=$PWD/out/screenshots/$scale
    rm -rf "$folder"
    mkdir -p "$folder"
    on_a_desktop() {
        GALLERY_FOLDER=$folder tests/support/with_display.sh --size $((1000 * scale / 100))x$((760 * scale / 100)) \
            --dpi $((96 * scale / 100)) -- "$@" --gtest_brief=1
    }
    on_a_desktop build/tarnix-gallery
    GALLERY_COMPOSITED=-composited on_a_desktop \
        sh -c 'xcompmgr & "$@"; status=$?; kill $!; exit $status' gallery \
            build/tarnix-gallery --gtest_filter="*OnScreenDisplay"
    pictures=("$folder"/*.png)
    montage -label '%t' "${pictures[@]/%/[500x]}" -tile 6x -geometry +8+8 "out/contact-sheet-$scale.png"
    echo "out/contact-sheet-$scale.png: ${#pictures[@]} pictures"
done

icons=build/src/res/art/icons
rsvg-convert -w 256 -h 256 "$icons/scalable.svg" -o out/icon-scalable.png
montage -background '#808890' -label '%t' "$icons"/*.png out/icon-scalable.png -geometry +8+8 -tile 5x out/icons.png
rm out/icon-scalable.png
echo "out/icons.png"
