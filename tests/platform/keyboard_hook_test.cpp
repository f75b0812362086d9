#include "platform/keyboard_hook.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include "platform/window.h"
#include "support/desktop_driver.h"

namespace tarnix::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr LParam releaseBit = 0x80000000;

/// Writes down the keys that a hook posts, and the keys that the window would act on.
class HookedWindow final : public Window {
  public:
    LResult OnMessage(Message message, WParam w, LParam l) override {
        if (message == WM_KEYHOOK) {
            keys.emplace_back(w, (l & releaseBit) == 0);
            times.push_back(l & ~releaseBit);
        }
        return 0;
    }
    bool OnKey(const KeyPress&) override {
        ++ownKeys;
        return true;
    }

    std::vector<std::pair<WParam, bool>> keys;
    std::vector<LParam> times;
    int ownKeys = 0;
};

class KeyboardHookTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(
            window.createWindow({.role = "Hooked", .taskbarButton = true}, Rect::at(100, 100, 200, 100)));
        window.show();
        ASSERT_TRUE(hasKeyboard(window));
        settle();
    }

    HookedWindow window;
    CKeyboardHook hook;
};

TEST_F(KeyboardHookTest, PostsEveryKeyOfTheSessionAndKeepsTheWindowFromActing) {
    EXPECT_NE(hook.StartHook(window), 0);
    tapKey("a");
    tapKey("Escape");
    ASSERT_TRUE(runUntil([&] { return window.keys.size() >= 4; }));
    EXPECT_THAT(window.keys, ElementsAre(std::pair(0x41u, true), std::pair(0x41u, false),
                                         std::pair(0x1Bu, true), std::pair(0x1Bu, false)));
    EXPECT_LT(window.times[3] - window.times[0], 10000);
    settle();
    EXPECT_EQ(window.ownKeys, 0);

    hook.StopHook();
    window.keys.clear();
    tapKey("b");
    EXPECT_TRUE(runUntil([&] { return window.ownKeys > 0; }));
    settle();
    EXPECT_THAT(window.keys, IsEmpty());
}

TEST_F(KeyboardHookTest, TellsTheKeypadAndTheRightSideApart) {
    hook.StartHook(window);
    ASSERT_EQ(std::system("xdotool key 62 key 104"), 0); // keys by their X codes
    ASSERT_TRUE(runUntil([&] { return window.keys.size() >= 4; }));
    EXPECT_THAT(window.keys, ElementsAre(std::pair(0xA1u, true), std::pair(0xA1u, false),
                                         std::pair(0x0Eu, true), std::pair(0x0Eu, false)));
}

TEST_F(KeyboardHookTest, PostsTheWindowsOwnKeysWhereTheSessionGivesNoOthers) {
    const std::string display = std::getenv("DISPLAY");
    ::setenv("DISPLAY", ":nowhere", 1);
    EXPECT_NE(hook.StartHook(window), 0);
    ::setenv("DISPLAY", display.c_str(), 1);
    tapKey("space");
    ASSERT_TRUE(runUntil([&] { return window.keys.size() >= 2; }));
    EXPECT_THAT(window.keys, ElementsAre(std::pair(0x20u, true), std::pair(0x20u, false)));
    settle();
    EXPECT_EQ(window.ownKeys, 0);
}

} // namespace
} // namespace tarnix::testing
