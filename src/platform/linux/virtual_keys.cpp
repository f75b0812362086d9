#include "platform/linux/virtual_keys.h"

#include <linux/input-event-codes.h>

#include <array>

namespace tarnix {
namespace {

struct KeyPair {
    std::uint8_t evdev;
    std::uint8_t virtualKey;
};

constexpr KeyPair keyPairs[] = {
    // Letters and digits.
    {KEY_A, 'A'},
    {KEY_B, 'B'},
    {KEY_C, 'C'},
    {KEY_D, 'D'},
    {KEY_E, 'E'},
    {KEY_F, 'F'},
    {KEY_G, 'G'},
    {KEY_H, 'H'},
    {KEY_I, 'I'},
    {KEY_J, 'J'},
    {KEY_K, 'K'},
    {KEY_L, 'L'},
    {KEY_M, 'M'},
    {KEY_N, 'N'},
    {KEY_O, 'O'},
    {KEY_P, 'P'},
    {KEY_Q, 'Q'},
    {KEY_R, 'R'},
    {KEY_S, 'S'},
    {KEY_T, 'T'},
    {KEY_U, 'U'},
    {KEY_V, 'V'},
    {KEY_W, 'W'},
    {KEY_X, 'X'},
    {KEY_Y, 'Y'},
    {KEY_Z, 'Z'},
    {KEY_1, '1'},
    {KEY_2, '2'},
    {KEY_3, '3'},
    {KEY_4, '4'},
    {KEY_5, '5'},
    {KEY_6, '6'},
    {KEY_7, '7'},
    {KEY_8, '8'},
    {KEY_9, '9'},
    {KEY_0, '0'},
    // Punctuation.
    {KEY_GRAVE, 0xC0},
    {KEY_MINUS, 0xBD},
    {KEY_EQUAL, 0xBB},
    {KEY_LEFTBRACE, 0xDB},
    {KEY_RIGHTBRACE, 0xDD},
    {KEY_BACKSLASH, 0xDC},
    {KEY_SEMICOLON, 0xBA},
    {KEY_APOSTROPHE, 0xDE},
    {KEY_COMMA, 0xBC},
    {KEY_DOT, 0xBE},
    {KEY_SLASH, 0xBF},
    {KEY_102ND, 0xE2},
    // Writing and moving.
    {KEY_BACKSPACE, 0x08},
    {KEY_TAB, 0x09},
    {KEY_ENTER, 0x0D},
    {KEY_ESC, 0x1B},
    {KEY_SPACE, 0x20},
    {KEY_PAGEUP, 0x21},
    {KEY_PAGEDOWN, 0x22},
    {KEY_END, 0x23},
    {KEY_HOME, 0x24},
    {KEY_LEFT, 0x25},
    {KEY_UP, 0x26},
    {KEY_RIGHT, 0x27},
    {KEY_DOWN, 0x28},
    {KEY_INSERT, 0x2D},
    {KEY_DELETE, 0x2E},
    {KEY_SYSRQ, 0x2C},
    {KEY_PAUSE, 0x13},
    {KEY_COMPOSE, 0x5D},
    {KEY_MENU, 0x5D},
    {KEY_HELP, 0x2F},
    // Modifiers and locks.
    {KEY_LEFTSHIFT, 0xA0},
    {KEY_RIGHTSHIFT, 0xA1},
    {KEY_LEFTCTRL, 0xA2},
    {KEY_RIGHTCTRL, 0xA3},
    {KEY_LEFTALT, 0xA4},
    {KEY_RIGHTALT, 0xA5},
    {KEY_LEFTMETA, 0x5B},
    {KEY_RIGHTMETA, 0x5C},
    {KEY_CAPSLOCK, 0x14},
    {KEY_NUMLOCK, 0x90},
    {KEY_SCROLLLOCK, 0x91},
    // Function keys.
    {KEY_F1, 0x70},
    {KEY_F2, 0x71},
    {KEY_F3, 0x72},
    {KEY_F4, 0x73},
    {KEY_F5, 0x74},
    {KEY_F6, 0x75},
    {KEY_F7, 0x76},
    {KEY_F8, 0x77},
    {KEY_F9, 0x78},
    {KEY_F10, 0x79},
    {KEY_F11, 0x7A},
    {KEY_F12, 0x7B},
    {KEY_F13, 0x7C},
    {KEY_F14, 0x7D},
    {KEY_F15, 0x7E},
    {KEY_F16, 0x7F},
    {KEY_F17, 0x80},
    {KEY_F18, 0x81},
    {KEY_F19, 0x82},
    {KEY_F20, 0x83},
    {KEY_F21, 0x84},
    {KEY_F22, 0x85},
    {KEY_F23, 0x86},
    {KEY_F24, 0x87},
    // The keypad.
    {KEY_KP0, 0x60},
    {KEY_KP1, 0x61},
    {KEY_KP2, 0x62},
    {KEY_KP3, 0x63},
    {KEY_KP4, 0x64},
    {KEY_KP5, 0x65},
    {KEY_KP6, 0x66},
    {KEY_KP7, 0x67},
    {KEY_KP8, 0x68},
    {KEY_KP9, 0x69},
    {KEY_KPASTERISK, 0x6A},
    {KEY_KPPLUS, 0x6B},
    {KEY_KPMINUS, 0x6D},
    {KEY_KPDOT, 0x6E},
    {KEY_KPSLASH, 0x6F},
    {KEY_KPENTER, 0x0E},
    // System and international keys.
    {KEY_POWER, 0xF0},
    {KEY_SLEEP, 0x5F},
    {KEY_WAKEUP, 0xF1},
    {KEY_KPCOMMA, 0xF4},
    {KEY_RO, 0xF5},
    {KEY_KATAKANAHIRAGANA, 0xF6},
    {KEY_YEN, 0xF7},
    {KEY_HENKAN, 0xF8},
    {KEY_MUHENKAN, 0xF9},
    {KEY_HANGEUL, 0xFA},
    {KEY_HANJA, 0xFB},
    // Multimedia.
    {KEY_MUTE, 0xAD},
    {KEY_VOLUMEDOWN, 0xAE},
    {KEY_VOLUMEUP, 0xAF},
    {KEY_NEXTSONG, 0xB0},
    {KEY_PREVIOUSSONG, 0xB1},
    {KEY_STOPCD, 0xB2},
    {KEY_PLAYPAUSE, 0xB3},
    {KEY_MAIL, 0xB4},
    {KEY_MEDIA, 0xB5},
    {KEY_COMPUTER, 0xB6},
    {KEY_CALC, 0xB7},
    {KEY_BACK, 0xA6},
    {KEY_FORWARD, 0xA7},
    {KEY_REFRESH, 0xA8},
    {KEY_STOP, 0xA9},
    {KEY_SEARCH, 0xAA},
    {KEY_BOOKMARKS, 0xAB},
    {KEY_HOMEPAGE, 0xAC}};

constexpr std::array<std::uint8_t, 256> makeTable() {
    std::array<std::uint8_t, 256> table{};
    for (const KeyPair& pair : keyPairs)
        table[pair.evdev] = pair.virtualKey;
    return table;
}

constexpr auto virtualKeys = makeTable();

constexpr std::size_t keysWithCode() {
    std::size_t count = 0;
    for (const std::uint8_t code : virtualKeys)
        count += code != 0 ? 1 : 0;
    return count;
}
static_assert(keysWithCode() == std::size(keyPairs), "no key stands in the table twice");

} // namespace

std::uint8_t virtualKeyOf(unsigned evdevCode) {
    return evdevCode < virtualKeys.size() ? virtualKeys[evdevCode] : std::uint8_t{0};
}

} // namespace tarnix
