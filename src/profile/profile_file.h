// Profile files (*.psf): one profile record as text. Record n's file is at the path of the configuration's
// slot n.
//
//     [Setting]
//     ProfileName=Default1                 (nine settings)
//     AllRCKey=<160 key codes, two hexadecimal digits each>
//     Key0Name=CTRL+1                      (three lines for each of the six G-keys)
//     <tab>Key0Value=06011E
//     <tab>Key0URL=
//
// Lines are taken by their place. The settings' keys are kept as the file gives them; all other keys are
// ignored, and so is what follows the last line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "profile/profile_store.h"
#include "profile/text_lines.h"

namespace tarnix {

/// Reads the file's text into the record; what stood before a refused line is already taken.
std::optional<FileError> parseProfile(std::string_view text, ProfileRecord& record);
std::string formatProfile(const ProfileRecord& record);

/// Writes record n to its slot's path; false when that cannot be done, the old file being untouched.
bool SaveProfileFile(const ProfileStore& store, int n, Files& files);
/// Reads record n from its slot's path. If the file is missing or refused the record takes its defaults, a
/// refused file is set aside, the defaults are written in its place, and the answer is false.
bool LoadProfileFile(ProfileStore& store, int n, Files& files);

} // namespace tarnix
