// The texts that the program shows in notices. Where a text holds a full-width comma, that is the two bytes
// A3 AC (U+FF0C in GB2312). The wording is the product's, to the letter.
#pragma once

#include <string_view>

namespace tarnix::notices {

inline constexpr std::string_view title = "Attention!";

inline constexpr std::string_view keyboardGone =
    "The keyboard is disconnection\xA3\xAC"
    "Please connect!";
inline constexpr std::string_view loopCountRange =
    "The range of loop times is 1~255\xA3\xAC"
    "Please input again!";

// Naming a macro: by a click elsewhere or by Enter, and in the list itself.
inline constexpr std::string_view nameTooLong =
    "The lengh of name exceed 12\xA3\xAC"
    "please new it again!";
inline constexpr std::string_view nameTaken =
    "The macro is existen\xA3\xAC"
    "please new it again!";
inline constexpr std::string_view listNameTooLong = "The lengh of name is exceed 12,please new it again!";
inline constexpr std::string_view listNameTaken = "The Macro is existent,please rename it!";

inline constexpr std::string_view noMacroSet =
    "The config file is error\xA3\xAC"
    "Please uninstall software and install it again!";
inline constexpr std::string_view macroInUse = "The Macro which want to delete is using,can't delete it!";
inline constexpr std::string_view selectToDelete = "Please select which Macro to delete!";
inline constexpr std::string_view selectToImport = "Please select which Macro to import!";
inline constexpr std::string_view selectToExport = "Please select which Macro to export!";
inline constexpr std::string_view importFailed = "The Import file is error!";

// Recording; the recorder brings its own texts for a full macro.
inline constexpr std::string_view selectToRecord = "Please select the macro which to record!";

} // namespace tarnix::notices
