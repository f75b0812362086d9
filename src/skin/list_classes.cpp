// The ten classes of popup lists: their rows and what a choice puts into the record.
#include <algorithm>
#include <climits>
#include <iterator>
#include <string_view>

#include "macro/macro_library.h"
#include "profile/key_assignment.h"
#include "profile/vocabulary.h"
#include "skin/fonts.h"
#include "skin/list_popup.h"

namespace tarnix {

namespace {

constexpr Color white = 0xFFFFFF;
constexpr Color black = 0x000000;
constexpr TextFormat whiteValue = colored(valueFont, white);
constexpr TextFormat blackValue = colored(valueFont, black);

void put(SelectionRecord& record, std::string_view text, const KeyAssignment& value) {
    record.text = text;
    std::copy(value.begin(), value.end(), record.bytes.begin());
}

void chooseMultimedia(int code, SelectionRecord& record) {
    put(record, MultimediaFunctionName(code), multimediaFunctionValue(code));
}

void chooseWeb(int code, SelectionRecord& record) {
    put(record, WebFunctionName(code), webFunctionValue(code));
}

void chooseMouse(int code, SelectionRecord& record) {
    put(record, MouseFunctionName(code), mouseFunctionValue(code));
}

/// The lighting lists answer with the number of the setting, from 0, in byte 0.
template <std::string_view (&name)(int)>
void chooseSetting(int code, SelectionRecord& record) {
    record.text = name(code - 1);
    record.bytes[0] = static_cast<std::uint8_t>(code - 1);
}

// Codes of the function categories.
constexpr int lastSubmenu = 4;
constexpr int defaultFunction = 5;
constexpr int assignShortcut = 6;
constexpr int quickLaunch = 7;
constexpr int noFunction = 8;

constexpr ListItem categories[] = {
    {"Assign a Macro", 1, true},
    {"Multimedia", 2, true},
    {"Window Manage", 3, true},
    {"Mouse Function", lastSubmenu, true},
    {"Default Function", defaultFunction},
    {"Assign a Shortcut", assignShortcut},
    {"Quick Launch", quickLaunch},
    {"No Function", noFunction},
};
constexpr ListItem multimediaFunctions[] = {
    {"Mute", 18},     {"Volume+", 19},   {"Volume-", 20},    {"Open Media", 21},
    {"PreTrack", 22}, {"NextTrack", 23}, {"Play/Pause", 24}, {"Stop", 25},
};
constexpr ListItem webFunctions[] = {
    {"WWW Search", 21},  {"WWW Home", 22},     {"WWW Back", 23}, {"WWW Forward", 24}, {"WWW Stop", 25},
    {"WWW Refresh", 26}, {"WWW Favorite", 27}, {"Email", 28},    {"My Computer", 29}, {"Calculator", 30},
};
constexpr ListItem mouseFunctions[] = {
    {"Click", 24},      {"Menu", 25},         {"Middle Button", 26}, {"IE Backward", 27},
    {"IE Forward", 28}, {"Double-click", 29}, {"Fire", 30},
};
constexpr ListItem brightnesses[] = {{"0%", 1}, {"25%", 2}, {"50%", 3}, {"75%", 4}, {"100%", 5}};
constexpr ListItem lightModes[] = {
    {"Light Off", 1},   {"RGB Full", 2},      {"RGB Breath", 3},  {"Flow Right", 4},
    {"Flow Left", 5},   {"Red Full", 6},      {"Orange Full", 7}, {"Yellow Full", 8},
    {"Green Full", 9},  {"Cyan Full", 10},    {"Blue Full", 11},  {"Purple Full", 12},
    {"White Full", 13}, {"Cycle Breath", 14}, {"Neon", 15},       {"User Define", 16},
};
constexpr ListItem speeds[] = {{"Slow", 1}, {"Normal", 2}, {"Fast", 3}};

// Name, kind, first byte, width, type, presses, rows, choice.
constexpr ListClass categoryList{"CComboPopup", 0, 1, 169, whiteValue, defaultFunction, categories, nullptr};
constexpr ListClass multimediaList{"CProfilePopup", 1, 2, 158, whiteValue, 0, multimediaFunctions,
                                   chooseMultimedia};
constexpr ListClass webList{"CDPIPopup", 2, 2, 158, whiteValue, 0, webFunctions, chooseWeb};
constexpr ListClass mouseList{"CMultimediaPopup", 3, 3, 0, whiteValue, 0, mouseFunctions, chooseMouse};
constexpr ListClass macroList{"CMacroLibraryPopup", 4, 0, 158, whiteValue, 0, {}, nullptr};
constexpr ListClass macroSetsList{"CMacroSetListPopup", 5, 0, 194, whiteValue, 0, {}, nullptr};
constexpr ListClass brightnessList{"CLightBrightnessPopup",      8, 1, 169, blackValue, INT_MAX, brightnesses,
                                   chooseSetting<BrightnessName>};
constexpr ListClass modeList{"CLightModePopup", 9,       1,          169,
                             blackValue,        INT_MAX, lightModes, chooseSetting<LightModeName>};
constexpr ListClass speedList{"CLightSpeedPopup", 10,      1,      169,
                              blackValue,         INT_MAX, speeds, chooseSetting<SpeedName>};
constexpr ListClass macroSetList{"CMacroSetPopup", 100, 0, 158, whiteValue, 0, {}, nullptr};

/// What the category list sends when its rows become hot: one message a row with a sub-list, one for all
/// others.
constexpr Message hoverMessages[] = {1046, 1030, 1040, 1043, 1033};
constexpr Message shortcutMessage = 1035;
constexpr Message launchMessage = 1037;
/// The Chinese for "default function" in GB2312.
constexpr const char* defaultFunctionText = "\xC4\xAC\xC8\xCF\xB9\xA6\xC4\xDC";

constexpr int addSetCode = 0;
constexpr int deleteSetCode = 1;
constexpr int firstSetCode = 2;
constexpr int editMacroCode = 0;
constexpr int firstMacroCode = 1;

} // namespace

CComboPopup::CComboPopup() : CListPopup(categoryList) {}
CProfilePopup::CProfilePopup() : CListPopup(multimediaList) {}
CDPIPopup::CDPIPopup() : CListPopup(webList) {}
CMultimediaPopup::CMultimediaPopup() : CListPopup(mouseList) {}
CLightModePopup::CLightModePopup() : CListPopup(modeList) {}
CLightBrightnessPopup::CLightBrightnessPopup() : CListPopup(brightnessList) {}
CLightSpeedPopup::CLightSpeedPopup() : CListPopup(speedList) {}

void CComboPopup::hovered(int index, const Row& row) {
    const auto last = static_cast<int>(std::size(hoverMessages)) - 1;
    tell(hoverMessages[std::min(index, last)], row.code);
}

void CComboPopup::chosen(const Row& row) {
    switch (row.code) {
        case defaultFunction:
            put(m_record, defaultFunctionText, keyAssignment(FunctionType::KeyCombination, 1));
            return answer(tag());
        case assignShortcut:
            return tell(shortcutMessage, 0);
        case quickLaunch:
            return tell(launchMessage, 0);
        case noFunction:
            put(m_record, row.text, keyAssignment(FunctionType::None));
            return answer(tag());
        default:
            return answer(0); // a category with a sub-list chooses nothing itself
    }
}

CMacroLibraryPopup::CMacroLibraryPopup(MacroLibrary& library) : CListPopup(macroList), m_library(library) {}

void CMacroLibraryPopup::addRows() {
    int code = firstMacroCode;
    if (const MacroSet* set = GetMacroSet(m_library, 0))
        for (const MacroKey& macro : set->keys)
            addRow(macro.name, code++);
    if (code == firstMacroCode) addSeparator();
}

void CMacroLibraryPopup::chosen(const Row& row) {
    const MacroKey* macro = findMacro(m_library, 0, row.code - firstMacroCode);
    if (!macro) return;
    put(m_record, macro->name, keyAssignment(FunctionType::Macro));
    answer(tag());
}

CMacroSetListPopup::CMacroSetListPopup(MacroLibrary& library)
    : CListPopup(macroSetsList), m_library(library) {}

void CMacroSetListPopup::addRows() {
    int code = firstSetCode;
    for (const MacroSet& set : m_library.sets)
        addRow(set.name, code++);
    addSeparator();
    addRow("[+]Add a Macro Set", addSetCode);
    addRow("[--]Delete a Macro Set", deleteSetCode);
}

void CMacroSetListPopup::chosen(const Row& row) {
    tell(notifyMessage(), row.code);
}

CMacroSetPopup::CMacroSetPopup(MacroLibrary& library, unsigned set)
    : CListPopup(macroSetList, set), m_library(library), m_nSet(set) {}

void CMacroSetPopup::addRows() {
    addRow("Edit Macro", editMacroCode);
    const MacroSet* set = GetMacroSet(m_library, static_cast<int>(m_nSet));
    if (!set || set->keys.empty()) return;
    addSeparator();
    int code = firstMacroCode;
    for (const MacroKey& macro : set->keys)
        addRow(macro.name, code++);
}

void CMacroSetPopup::chosen(const Row& row) {
    if (row.code == editMacroCode) return tell(notifyMessage(), 0);
    const int index = row.code - firstMacroCode;
    const MacroKey* macro = findMacro(m_library, static_cast<int>(m_nSet), index);
    if (!macro) return;
    put(m_record, macro->name, {'0', static_cast<std::uint8_t>(m_nSet), static_cast<std::uint8_t>(index)});
    answer(tag());
}

} // namespace tarnix
