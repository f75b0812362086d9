#!/usr/bin/env bash
# What a start makes of files that are not as it wrote them: kept as they are, or set aside and replaced by the defaults.
# An accepted profile is what an apply then writes.
source "$(dirname "$0")/scenario.sh"

start --unplugged
end_program
cp -r "$config" "$desktop/defaults"

while read -r verdict file edit; do
    rm -r "$config"
    cp -r "$desktop/defaults" "$config"
    sed -i "$edit" "$config/$file"
    cp "$config/$file" "$desktop/given"
    start --unplugged
    if [ $verdict = reset ]; then
        diff "$desktop/defaults/$file" "$config/$file"
        cmp "$desktop/given" "$config/$file.bak"
    else
        diff -r -x "$file" "$desktop/defaults" "$config"
        diff "$desktop/given" "$config/$file"
        apply
        sed 's/\r$//; 11s/^=/AllRCKey=/; 13s/=1$/=010000/; 29q' "$desktop/given" > "$desktop/written"
        [ "${file##*.}" != psf ] || eventually diff "$desktop/written" "$config/$file"
    fi
    end_program
done << 'END'
reset config.ini 1s/S/s/
reset config.ini 2s/0$//
reset config.ini 5s/=//
reset config.ini $aseventh=pair
kept config.ini 2s/0$/a=b/
kept config.ini s/$/\r/
kept config.ini 3,$d
reset default1.psf 1s/^/\xef\xbb\xbf/
reset default1.psf 11s/..$//
reset default1.psf 11s/$/00/
reset default1.psf 22,$d
kept default1.psf 11s/^[^=]*//
kept default1.psf 2s/.*/Mine=a=b/
kept default1.psf 13s/=.*/=1/
kept default1.psf s/$/\r/
kept default1.psf $amore
reset MacroLibraryFile.mlf 3s/=.*/=/
reset MacroLibraryFile.mlf 4s/0/1/
kept MacroLibraryFile.mlf 2s/1/0/
kept MacroLibraryFile.mlf s/$/\r/
END
