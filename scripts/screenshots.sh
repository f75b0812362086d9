#!/usr/bin/env bash
# Photographs every page, list, dialog and state into out/screenshots/SCALE, each set on a contact sheet,
# out/contact-sheet-SCALE.png, and the icon at its sizes on out/icons.png.
#
#   scripts/screenshots.sh [--docs] [SCALE...]    in per cent; 100 and 200 when none is given
#
# --docs also makes the pictures of the README anew, from those at 100 %.
set -euo pipefail
cd "$(dirname "$0")/.."
docs=
[ "${1:-}" != --docs ] || { docs=yes; shift; }
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
        GALLERY_FOLDER=$folder scripts/with_display.sh --size $((1000 * scale / 100))x$((760 * scale / 100)) \
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
montage -background '#808890' -label '%t' $(printf "$icons/%s.png " 16 22 24 32 48 64 128 256) out/icon-scalable.png \
    -geometry '256x256>+8+8' -tile 3x out/icons.png
rm out/icon-scalable.png
echo "out/icons.png"

# document PICTURE WIDTHxHEIGHT+LEFT+TOP NAME: a window out of a picture, with nothing beyond its corners.
document() {
    local width=${2%%x*} height=${2#*x} desktop='#5a6472'
    local right=$((width - 1)) bottom=$((${height%%+*} - 1))
    convert "out/screenshots/100/$1.png" -crop "$2" +repage -alpha set -fuzz 3% -fill none \
        -floodfill +0+0 "$desktop" -floodfill "+$right+0" "$desktop" \
        -floodfill "+0+$bottom" "$desktop" -floodfill "+$right+$bottom" "$desktop" \
        -strip -define png:compression-level=9 "docs/images/$3.png"
}
if [ -n "$docs" ]; then
    document main-remapped 805x588+97+86 main-window
    document lighting 805x588+97+86 lighting
    document key-map-mouse 496x247+251+256 key-function
    echo "docs/images"
fi
