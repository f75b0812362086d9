// The configuration file, config\config.ini below the program folder: the current profile and the paths of
// the five profile files.
//
//     [Setting]
//     CurrentProfile=0
//     ProfileSlot0URL=<path>       (five such lines)
//
// Pairs are taken by their place, whatever their key. Fewer lines are accepted and leave the other pairs
// alone; an empty key or value, or a line too many, is not.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "profile/profile_store.h"
#include "profile/text_lines.h"

namespace tarnix {

/// Reads the file's text into the pairs; pairs before a refused line are already taken.
std::optional<FileError> parseConfiguration(std::string_view text, ConfigPairs& pairs);
std::string formatConfiguration(const ConfigPairs& pairs);

// The program folder ends with a slash.

/// Reads the file. One that is missing or refused is set aside and replaced by the defaults. True if it was
/// accepted.
bool LoadConfig(ProfileStore& store, Files& files, const std::string& programFolder);
/// False when the file cannot be written; the old one is then untouched.
bool SaveConfig(const ProfileStore& store, Files& files, const std::string& programFolder);
/// Puts the defaults into the pairs; writes nothing.
void ResetConfig(ProfileStore& store, const std::string& programFolder);
/// Makes the displayed profile the current one and writes the file.
bool SaveCurrentProfile(ProfileStore& store, Files& files, const std::string& programFolder);

} // namespace tarnix
