// The macro library file, config\MacroLibraryFile.mlf below the program folder, in its two forms, and macro
// key files (*.mkf), which hold one macro without its name.
//
//     [MacroLibrary]                           [MacroKey]
//     MacroSetNum=1                            1 MacroKeyLoopEnable=1
//     1 MacroSet0Name=Keyboard Macro Set       1 MacroKeyLoopNum=1
//     2 MacroKeyNum=1                          1 MacroActionNum=2
//     2 MacroKey0Name=Fire                     1 MacroCommandActionNum=2
//     3 MacroKey0LoopEnable=1         (long)   2 AllAction=<200 actions>
//     3 MacroKey0LoopNum=1            (long)
//     3 MacroActionNum=2
//     3 MacroCommandActionNum=2       (long)
//     3 AllAction=<200 actions, eight hexadecimal digits each>
//
// A figure in front stands for that many tabs. The short form, which is the macro manager's, leaves out the
// lines marked long. Lines are taken by their place and only their values count; once a set holds a macro,
// neither form's reader takes the other form.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "macro/macro_library.h"
#include "platform/files.h"
#include "profile/text_lines.h"

namespace tarnix {

enum class LibraryForm { Long, Short };

/// Reads the file's text into the library in place of what it holds; after a refusal the library is empty.
std::optional<FileError> parseMacroLibrary(std::string_view text, LibraryForm form, MacroLibrary& library);
std::string formatMacroLibrary(const MacroLibrary& library, LibraryForm form);

/// Reads a macro key file's text into the macro. Fields before a refused line are already taken; the name
/// stays.
std::optional<FileError> parseMacroKey(std::string_view text, MacroKey& macro);
std::string formatMacroKey(const MacroKey& macro);

// The program folder ends with a slash. Writers answer false when the file cannot be written; the old one is
// then untouched.

bool SaveMacroLibrary(MacroLibrary& library, Files& files, const std::string& programFolder);
/// Reads the long form. A file that is missing or refused is set aside, and the default library takes its
/// place in memory and on disk; the answer is then false.
bool LoadMacroLibrary(MacroLibrary& library, Files& files, const std::string& programFolder);
/// Writes the short form over the same file.
bool SaveManagerLibrary(const MacroLibrary& library, Files& files, const std::string& programFolder);
/// Reads the short form. When the file is missing or refused the library is empty, the file is left alone,
/// and the answer is false.
bool LoadManagerLibrary(MacroLibrary& library, Files& files, const std::string& programFolder);

bool writeMacroKeyFile(const MacroKey& macro, Files& files, const std::string& path);
/// False when the file is missing or refused; fields before the refused line are then already taken.
bool readMacroKeyFile(MacroKey& macro, Files& files, const std::string& path);

} // namespace tarnix
