#include "platform/linux/virtual_keys.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include "profile/vocabulary.h"

namespace tarnix {
namespace {

TEST(VirtualKeys, KeysGoByTheirNames) {
    std::string names;
    for (const unsigned key :
         {KEY_PAGEUP, KEY_PAGEDOWN, KEY_HOME,   KEY_END,      KEY_LEFT,      KEY_RIGHT,   KEY_UP,
          KEY_DOWN,   KEY_INSERT,   KEY_DELETE, KEY_LEFTCTRL, KEY_RIGHTCTRL, KEY_LEFTALT, KEY_RIGHTALT,
          KEY_F1,     KEY_F12,      KEY_KP7,    KEY_Q,        KEY_0,         KEY_SLASH})
        names.append(VirtualKeyName(virtualKeyOf(key))) += '|';
    EXPECT_EQ(names,
              "Page Up|Page Down|Home|End|Left Arrow|Right Arrow|Up Arrow|Down Arrow|Ins|Del|Ctrl_L|Ctrl_R|"
              "Alt_L|Alt_R|F1|F12|Keypad 7|Q|0|/|");
    EXPECT_EQ(virtualKeyOf(KEY_BRIGHTNESSUP) + virtualKeyOf(100000), 0);
}

} // namespace
} // namespace tarnix
