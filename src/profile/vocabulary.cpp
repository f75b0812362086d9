#include "profile/vocabulary.h"

#include <array>
#include <span>

#include "profile/item_at.h"

namespace tarnix {

namespace {

// The 256-entry tables stand in rows of sixteen, each led by its first code, which the compiler checks.
template <class T>
struct Row {
    int first;
    std::array<T, 16> entries;
};
template <class T>
using Table = std::array<Row<T>, 16>;
using NameTable = Table<std::string_view>;
using CodeTable = Table<std::uint8_t>;

template <class T>
constexpr const T& entry(const Table<T>& table, std::uint8_t index) {
    return table[index >> 4].entries[index & 0x0F];
}

template <class T>
constexpr bool rowsInOrder(const Table<T>& table) {
    for (int row = 0; row < 16; ++row) {
        if (table[row].first != row * 16) return false;
    }
    return true;
}

constexpr bool allNamed(const NameTable& table) {
    for (const auto& row : table) {
        for (const auto& name : row.entries) {
            if (name.empty()) return false;
        }
    }
    return true;
}

constexpr std::string_view undefined = "Undefined";

constexpr NameTable virtualKeyNames{{
    {0x00,
     {undefined, "LBUTTON", "RBUTTON", "CANCEL", "MBUTTON", "XBUTTON1", "XBUTTON2", undefined, "Backspace",
      "Tab", undefined, undefined, "Clear", "Enter", "Keypad Enter", undefined}},
    {0x10,
     {"Shift", "Ctrl", "Alt", "Pause", "Caps Lock", "Kana", undefined, "junja", "Final", "Hanja", undefined,
      "Esc", "Convert", "Nonconvert", "Accept", "ModeChange"}},
    {0x20,
     {"Space", "Page Up", "Page Down", "End", "Home", "Left Arrow", "Up Arrow", "Right Arrow", "Down Arrow",
      "Select", "Print", "Execute", "Print Screen", "Ins", "Del", "Help"}},
    {0x30,
     {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", undefined, undefined, undefined, undefined, undefined,
      undefined}},
    {0x40, {undefined, "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N", "O"}},
    {0x50,
     {"P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", "Win_L", "Win_R", "App", undefined, "Sleep"}},
    {0x60,
     {"Keypad 0", "Keypad 1", "Keypad 2", "Keypad 3", "Keypad 4", "Keypad 5", "Keypad 6", "Keypad 7",
      "Keypad 8", "Keypad 9", "Keypad *", "Keypad +", "Separator", "Keypad -", "Keypad .", "Keypad /"}},
    {0x70,
     {"F1", "F2", "F3", "F4", "F5", "F6", "F7", "F8", "F9", "F10", "F11", "F12", "F13", "F14", "F15", "F16"}},
    {0x80,
     {"F17", "F18", "F19", "F20", "F21", "F22", "F23", "F24", undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined}},
    {0x90,
     {"Num Lock", "Scroll Lock", undefined, undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined, undefined, undefined, undefined}},
    {0xA0,
     {"Shift_L", "Shift_R", "Ctrl_L", "Ctrl_R", "Alt_L", "Alt_R", undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined, undefined, undefined}},
    {0xB0,
     {undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, ";", "=", ",", "-", ".", "/"}},
    {0xC0,
     {"~", undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined, undefined, undefined}},
    {0xD0,
     {undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, "[", "\\", "]", "'", undefined}},
    {0xE0,
     {undefined, undefined, "K45", undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined, undefined, undefined, undefined}},
    {0xF0,
     {"Power", "Wake Up", "K42", "K45", "K107", "K56", "K133", "K14", "K132", "K131", "KR", "KL", undefined,
      undefined, undefined, undefined}},
}};
static_assert(rowsInOrder(virtualKeyNames) && allNamed(virtualKeyNames));
static_assert(entry(virtualKeyNames, 0x0E) == "Keypad Enter" && entry(virtualKeyNames, 0xFB) == "KL");

// The keypad's Enter is misspelt here on purpose: users know the key by this name.
constexpr NameTable keyCodeNames{{
    {0x00,
     {undefined, undefined, undefined, undefined, "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K",
      "L"}},
    {0x10, {"M", "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", "1", "2"}},
    {0x20,
     {"3", "4", "5", "6", "7", "8", "9", "0", "Enter", "Esc", "Backspace", "Tab", "Space", "-", "=", "["}},
    {0x30, {"]", "\\", "K42", ";", "'", "~", ",", ".", "/", "Caps Lock", "F1", "F2", "F3", "F4", "F5", "F6"}},
    {0x40,
     {"F7", "F8", "F9", "F10", "F11", "F12", "Print", "Scroll Lock", "Pause", "Ins", "Home", "Page Up", "Del",
      "End", "Page Down", "Right Arrow"}},
    {0x50,
     {"Left Arrow", "Down Arrow", "Up Arrow", "Num Lock", "Keypad /", "Keypad *", "Keypad -", "Keypad +",
      "Keypad Eenter", "Keypad 1", "Keypad 2", "Keypad 3", "Keypad 4", "Keypad 5", "Keypad 6", "Keypad 7"}},
    {0x60,
     {"Keypad 8", "Keypad 9", "Keypad 0", "Keypad .", "K45", "App", undefined, undefined, "F13", "F14", "F15",
      "F16", "F17", "F18", "F19", "F20"}},
    {0x70,
     {"F21", "F22", "F23", "F24", undefined, undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined, undefined}},
    {0x80,
     {undefined, "Power", "Sleep", "Wake Up", undefined, "K107", undefined, "K56", "K133", "K14", "K132",
      "K131", undefined, undefined, undefined, undefined}},
    {0x90,
     {"KR", "KL", undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined, undefined, undefined}},
    {0xA0,
     {undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined, undefined, undefined, undefined}},
    {0xB0,
     {undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined, undefined, undefined, undefined}},
    {0xC0,
     {"F1", "F2", "F3", "F4", "F5", "F6", "F7", "F8", "F9", "F10", "F11", "F12", "Up", "Down", "Left",
      "Right"}},
    {0xD0,
     {undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined, undefined, undefined, undefined}},
    {0xE0,
     {"Ctrl_L", "Shift_L", "Alt_L", "Win_L", "Ctrl_R", "Shift_R", "Alt_R", "Win_R", "Ins", "Del", "Home",
      "End", "PageUp", "PageDown", "W", "Win_L"}},
    {0xF0,
     {"1", "2", "3", "4", "5", "Esc", undefined, undefined, undefined, undefined, undefined, undefined,
      undefined, undefined, undefined, undefined}},
}};
static_assert(rowsInOrder(keyCodeNames) && allNamed(keyCodeNames));
static_assert(entry(keyCodeNames, 0x58) == "Keypad Eenter" && entry(keyCodeNames, 0xF5) == "Esc");

// The generic modifiers 0x10 to 0x12 have no key code, right Alt gives Print, and 0x3B gives Esc.
constexpr CodeTable keyCodes{{
    {0x00, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x2A, 0x2B, 0x00, 0x00, 0x00, 0x28, 0x58, 0x00}},
    {0x10, {0x00, 0x00, 0x00, 0x48, 0x39, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x29, 0x00, 0x00, 0x00, 0x00}},
    {0x20, {0x2C, 0x4B, 0x4E, 0x4D, 0x4A, 0x50, 0x52, 0x4F, 0x51, 0x00, 0x00, 0x00, 0x46, 0x49, 0x0C, 0x00}},
    {0x30, {0x27, 0x1E, 0x1F, 0x20, 0x21, 0x22, 0x23, 0x24, 0x25, 0x26, 0x00, 0x29, 0x00, 0x00, 0x00, 0x00}},
    {0x40, {0x00, 0x04, 0x05, 0x06, 0x07, 0x08, 0x09, 0x0A, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F, 0x10, 0x11, 0x12}},
    {0x50, {0x13, 0x14, 0x15, 0x16, 0x17, 0x18, 0x19, 0x1A, 0x1B, 0x1C, 0x1D, 0xE3, 0xE7, 0x65, 0x00, 0x82}},
    {0x60, {0x62, 0x59, 0x5A, 0x5B, 0x5C, 0x5D, 0x5E, 0x5F, 0x60, 0x61, 0x55, 0x57, 0x00, 0x56, 0x63, 0x54}},
    {0x70, {0x3A, 0x3B, 0x3C, 0x3D, 0x3E, 0x3F, 0x40, 0x41, 0x42, 0x43, 0x44, 0x45, 0x00, 0x00, 0x00, 0x00}},
    {0x80, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0x90, {0x53, 0x47, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0xA0, {0xE1, 0xE5, 0xE0, 0xE4, 0xE2, 0x46, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0xB0, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x33, 0x2E, 0x36, 0x2D, 0x37, 0x38}},
    {0xC0, {0x35, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0xD0, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x2F, 0x31, 0x30, 0x34, 0x00}},
    {0xE0, {0x00, 0x00, 0x64, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0xF0, {0x81, 0x83, 0x32, 0x64, 0x85, 0x87, 0x88, 0x89, 0x8A, 0x8B, 0x90, 0x91, 0x00, 0x00, 0x00, 0x00}},
}};
static_assert(rowsInOrder(keyCodes) && entry(keyCodes, 0xA5) == 0x46 && entry(keyCodes, 0x3B) == 0x29);

// Left Windows and right Alt come back crossed (0xE3, 0xE6); 0xC0 to 0xCB are the keyboard's own F1 to F12.
constexpr CodeTable virtualKeys{{
    {0x00, {0x00, 0x00, 0x00, 0x00, 0x41, 0x42, 0x43, 0x44, 0x45, 0x46, 0x47, 0x48, 0x49, 0x4A, 0x4B, 0x4C}},
    {0x10, {0x4D, 0x4E, 0x4F, 0x50, 0x51, 0x52, 0x53, 0x54, 0x55, 0x56, 0x57, 0x58, 0x59, 0x5A, 0x31, 0x32}},
    {0x20, {0x33, 0x34, 0x35, 0x36, 0x37, 0x38, 0x39, 0x30, 0x0D, 0x1B, 0x08, 0x09, 0x20, 0xBD, 0xBB, 0xDB}},
    {0x30, {0xDD, 0xDC, 0xF2, 0xBA, 0xDE, 0xC0, 0xBC, 0xBE, 0xBF, 0x14, 0x70, 0x71, 0x72, 0x73, 0x74, 0x75}},
    {0x40, {0x76, 0x77, 0x78, 0x79, 0x7A, 0x7B, 0x2A, 0x91, 0x13, 0x2D, 0x24, 0x21, 0x2E, 0x23, 0x22, 0x27}},
    {0x50, {0x25, 0x28, 0x26, 0x90, 0x6F, 0x6A, 0x6D, 0x6B, 0x0E, 0x61, 0x62, 0x63, 0x64, 0x65, 0x66, 0x67}},
    {0x60, {0x68, 0x69, 0x60, 0x6E, 0xF3, 0x5D, 0x00, 0x00, 0x7C, 0x7D, 0x7E, 0x7F, 0x80, 0x81, 0x82, 0x83}},
    {0x70, {0x84, 0x85, 0x86, 0x87, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0x80, {0x00, 0xF0, 0x5F, 0xF1, 0x00, 0xF4, 0x00, 0xF5, 0xF6, 0xF7, 0xF8, 0xF9, 0x00, 0x00, 0x00, 0x00}},
    {0x90, {0xFA, 0xFB, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0xA0, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0xB0, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0xC0, {0x70, 0x71, 0x72, 0x73, 0x74, 0x75, 0x76, 0x77, 0x78, 0x79, 0x7A, 0x7B, 0x00, 0x00, 0x00, 0x00}},
    {0xD0, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0xE0, {0xA2, 0xA0, 0xA4, 0xA5, 0xA3, 0xA1, 0x5B, 0x5C, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
    {0xF0, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
}};
static_assert(rowsInOrder(virtualKeys) && entry(virtualKeys, 0xE3) == 0xA5 &&
              entry(virtualKeys, 0xE6) == 0x5B);

constexpr std::array<std::string_view, lightModeCount> lightModeNames{
    "Light Off",   "RGB Full",     "RGB Breath", "Flow Right", "Flow Left", "Red Full",
    "Orange Full", "Yellow Full",  "Green Full", "Cyan Full",  "Blue Full", "Purple Full",
    "White Full",  "Cycle Breath", "Neon",       "User Define"};
constexpr std::array<std::string_view, brightnessCount> brightnessNames{"0%", "25%", "50%", "75%", "100%"};
constexpr std::array<std::string_view, speedCount> speedNames{"Slow", "Normal", "Fast"};
constexpr std::array<std::string_view, colourCount> colourNames{"Red",   "Purple", "Blue", "Cyan",
                                                                "Green", "Yellow", "White"};

constexpr KeyAssignment noFunction{};

struct FunctionItem {
    std::string_view name;
    KeyAssignment value;
};

/// A function popup's list: items below `firstOwn` are the ones that all popups share.
struct FunctionList {
    int firstOwn;
    std::span<const FunctionItem> own;
    KeyAssignment fallback;
};

constexpr std::array<std::string_view, 20> sharedFunctionNames{"Assign a Macro",
                                                               "Profile",
                                                               "DPI Setting",
                                                               "Multimedia",
                                                               "Click",
                                                               "Menu",
                                                               "Universal scrolling",
                                                               "Double-click",
                                                               "Assing a shortcut",
                                                               "Disable",
                                                               "IE Forward",
                                                               "IE Backward",
                                                               "Tilt Left",
                                                               "Tilt Right",
                                                               "Scroll Up",
                                                               "Scroll Down",
                                                               "Quick launch",
                                                               "Profile Cycle",
                                                               "Profile Up",
                                                               "Profile Down"};

constexpr std::array<FunctionItem, 10> webItems{{
    {"WWW Search", keyAssignment(FunctionType::Media, 0xA8)},
    {"WWW Home", keyAssignment(FunctionType::Media, 0xA9)},
    {"WWW Back", keyAssignment(FunctionType::Media, 0xAA)},
    {"WWW Forward", keyAssignment(FunctionType::Media, 0xAB)},
    {"WWW Stop", keyAssignment(FunctionType::Media, 0xAC)},
    {"WWW Refresh", keyAssignment(FunctionType::Media, 0xAD)},
    {"WWW Favorite", keyAssignment(FunctionType::Media, 0xAE)},
    {"Email", keyAssignment(FunctionType::Media, 0xAF)},
    {"My Computer", keyAssignment(FunctionType::Media, 0xB0)},
    {"Calculator", keyAssignment(FunctionType::Media, 0xB1)},
}};

constexpr std::array<FunctionItem, 11> mouseItems{{
    {"DPI Cycle", noFunction},
    {"DPI Up", noFunction},
    {"DPI Down", noFunction},
    {"Click", keyAssignment(FunctionType::MouseButton, 0x01)},
    {"Menu", keyAssignment(FunctionType::MouseButton, 0x02)},
    {"Middle Button", keyAssignment(FunctionType::MouseButton, 0x04)},
    {"IE Backward", keyAssignment(FunctionType::MouseButton, 0x08)},
    {"IE Forward", keyAssignment(FunctionType::MouseButton, 0x10)},
    {"Double-click", keyAssignment(FunctionType::DoubleClick)},
    {"Fire", keyAssignment(FunctionType::Fire)},
    {"Volume Down", noFunction},
}};

constexpr std::array<FunctionItem, 8> multimediaItems{{
    {"Mute", keyAssignment(FunctionType::Media, 0xA0)},
    {"Volume+", keyAssignment(FunctionType::Media, 0xA1)},
    {"Volume-", keyAssignment(FunctionType::Media, 0xA2)},
    {"Open Media", keyAssignment(FunctionType::Media, 0xA3)},
    {"PreTrack", keyAssignment(FunctionType::Media, 0xA4)},
    {"NextTrack", keyAssignment(FunctionType::Media, 0xA5)},
    {"Play/Pause", keyAssignment(FunctionType::Media, 0xA6)},
    {"Stop", keyAssignment(FunctionType::Media, 0xA7)},
}};

constexpr FunctionList webList{21, webItems, keyAssignment(FunctionType::Media, 0xA8)};
constexpr FunctionList mouseList{21, mouseItems, noFunction};
constexpr FunctionList multimediaList{18, multimediaItems, keyAssignment(FunctionType::Media, 0xA7)};

std::string_view nameAt(std::span<const std::string_view> names, int index) {
    const std::string_view* name = itemAt(names, index);
    return name ? *name : std::string_view{};
}

const FunctionItem* ownItem(const FunctionList& list, int item) {
    return item >= list.firstOwn ? itemAt(list.own, item - list.firstOwn) : nullptr;
}

std::string_view functionName(const FunctionList& list, int item) {
    if (const FunctionItem* own = ownItem(list, item)) return own->name;
    return item >= 1 && item < list.firstOwn ? nameAt(sharedFunctionNames, item - 1) : std::string_view{};
}

KeyAssignment functionValue(const FunctionList& list, int item) {
    const FunctionItem* own = ownItem(list, item);
    return own ? own->value : list.fallback;
}

/// Buttons whose key has codes of its own: `firstCode` to `lastCode` are stored as `ownCode` and what follows
/// it.
struct OwnFunctionRule {
    int firstButton;
    int lastButton;
    std::uint8_t firstCode;
    std::uint8_t lastCode;
    std::uint8_t ownCode;
};

constexpr OwnFunctionRule ownFunctionRules[] = {
    {1, 12, 0x3A, 0x45, 0xC0},    // F1 to F12
    {17, 21, 0x1E, 0x22, 0xF0},   // 1 to 5
    {0, 0, 0x29, 0x29, 0xF5},     // Esc
    {86, 86, 0x52, 0x52, 0xCC},   // Up
    {99, 99, 0x51, 0x51, 0xCD},   // Down
    {98, 98, 0x50, 0x50, 0xCE},   // Left
    {100, 100, 0x4F, 0x4F, 0xCF}, // Right
    {30, 30, 0x49, 0x49, 0xE8},   // Ins
    {51, 51, 0x4C, 0x4C, 0xE9},   // Del
    {31, 31, 0x4A, 0x4A, 0xEA},   // Home
    {52, 52, 0x4D, 0x4D, 0xEB},   // End
    {32, 32, 0x4B, 0x4B, 0xEC},   // Page Up
    {53, 53, 0x4E, 0x4E, 0xED},   // Page Down
    {39, 39, 0x1A, 0x1A, 0xEE},   // W
    {92, 92, 0xE3, 0xE3, 0xEF},   // left Windows
};

} // namespace

std::string_view VirtualKeyName(std::uint8_t virtualKey) {
    return entry(virtualKeyNames, virtualKey);
}

std::string_view KeyCodeName(std::uint8_t keyCode) {
    return entry(keyCodeNames, keyCode);
}

std::uint8_t ToKeyCode(std::uint8_t virtualKey) {
    return entry(keyCodes, virtualKey);
}

std::uint8_t ToVirtualKey(std::uint8_t keyCode) {
    return entry(virtualKeys, keyCode);
}

std::uint8_t ownFunctionCode(int buttonIndex, std::uint8_t code) {
    for (const auto& rule : ownFunctionRules) {
        const bool button = buttonIndex >= rule.firstButton && buttonIndex <= rule.lastButton;
        if (button && code >= rule.firstCode && code <= rule.lastCode) {
            return static_cast<std::uint8_t>(rule.ownCode + (code - rule.firstCode));
        }
    }
    return code;
}

std::string_view LightModeName(int mode) {
    return nameAt(lightModeNames, mode);
}

std::string_view BrightnessName(int brightness) {
    return nameAt(brightnessNames, brightness);
}

std::string_view SpeedName(int speed) {
    return nameAt(speedNames, speed);
}

std::string_view ColourName(int colour) {
    return nameAt(colourNames, colour);
}

std::string_view WebFunctionName(int item) {
    return functionName(webList, item);
}

std::string_view MouseFunctionName(int item) {
    return functionName(mouseList, item);
}

std::string_view MultimediaFunctionName(int item) {
    return functionName(multimediaList, item);
}

std::string_view keyFunctionName(std::uint8_t keyCode) {
    constexpr int firstMouseItem = 24; // of the popup, which has the mouse functions in the same order
    if (keyCode < firstMouseCode || keyCode > lastMouseCode) return KeyCodeName(keyCode);
    return MouseFunctionName(firstMouseItem + keyCode - firstMouseCode);
}

KeyAssignment webFunctionValue(int item) {
    return functionValue(webList, item);
}

KeyAssignment mouseFunctionValue(int item) {
    return functionValue(mouseList, item);
}

KeyAssignment multimediaFunctionValue(int item) {
    return functionValue(multimediaList, item);
}

} // namespace tarnix
