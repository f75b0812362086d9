#!/usr/bin/env bash
# The first start in an empty folder writes every file with its defaults and reads the keyboard in a fixed order.
source "$(dirname "$0")/scenario.sh"

default_profile() {
    printf '%s\n' '[Setting]' "ProfileName=Default$1" LightMode=1 LightBrightness=4 LightSpeed=1 LightArea{1..5}Color=4
    printf 'AllRCKey=%s%s%s%s\n' \
        1DF081A4E6A5828306F200A1A2ADE4AE09C0C4A898ABACA8E118C5C199289ABCE00E139B9C9DF5AF \
        2C0C87EFA98B8A8804C312B1649091B92B35C61CEB2433E7162DC7362F25E811072EC800302634BB \
        EE2ACA46EAE90B37080FCB4748EC3238140DC9893127EDF3050000535F5C590019F40054605D5A62 \
        15230055615E5B6317C20056578558391BF1B0A6A3E5A0A7650ACCCECD10E2CF0000000000000000
    for slot in {0..5}; do
        printf "Key$slot%s\n\tKey$slot%s%X\n\tKey$slot%s\n" Name=CTRL+$((slot + 1)) Value=0601 $((slot + 0x1E)) URL=
    done
}

start_read
end_program
reports_are "set 05 active profile: program ends"

diff - "$config/config.ini" << END
[Setting]
CurrentProfile=0
$(printf "ProfileSlot%uURL=$config\\\\default%u.psf\n" 0 0 1 1 2 2 3 3 4 4)
END
printf '[MacroLibrary]\nMacroSetNum=1\n\tMacroSet0Name=Keyboard Macro Set\n\t\tMacroKeyNum=0\n' |
    diff - "$config/MacroLibraryFile.mlf"
for n in {0..4}; do
    default_profile $((n + 1)) | diff - "$config/default$n.psf"
done
[ "$(find "$program" -type f | wc -l)" = 8 ] || fail "other files: $(find "$program")"
