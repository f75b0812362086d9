#!/usr/bin/env bash
# Photographs every page, list and dialog into out/screenshots, at 100 % and at 200 %, and puts each set on a contact
# sheet, out/contact-sheet-100.png and out/contact-sheet-200.png.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake --preset release -DTARNIX_GALLERY=ON > /dev/null
cmake --build --preset release --target tarnix-gallery

for scale in 100 200; do
    folder=$PWD/out/screenshots/$scale
    rm -rf "$folder"
    mkdir -p "$folder"
    GALLERY_FOLDER=$folder tests/support/with_display.sh --size $((1000 * scale / 100))x$((760 * scale / 100)) \
        --dpi $((96 * scale / 100)) build/tarnix-gallery --gtest_brief=1
    montage -label '%t' "$folder"/*.png -tile 4x -geometry $((500 * scale / 100))x+8+8 \
        "out/contact-sheet-$scale.png"
    echo "out/contact-sheet-$scale.png: $(ls "$folder" | wc -l) pictures"
done
