#include "virtual/virtual_keyboard.h"

#include <gtest/gtest.h>

#include "support/fake_clock.h"

namespace tarnix {
namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(VirtualKeyboard, AnswersTheMacroThatItIsSetToAndRefusesWhatNoKeyboardUnderstands) {
    FakeClock clock;
    VirtualKeyboard keyboard{clock};
    Bytes macro{8, 0xE2, 1, 5, 0, 0, 0, 0}, answer{8};
    macro.resize(226, 'M');
    answer.resize(226);
    EXPECT_TRUE(keyboard.setFeature(Bytes{4, 1, 5}) && keyboard.setFeature(macro));
    EXPECT_TRUE(keyboard.getFeature(answer) && keyboard.setFeature(Bytes{5, 3, 7}));
    EXPECT_EQ(answer, macro);
    EXPECT_EQ(keyboard.activeProfile, 0) << "a farewell is no profile";
    const auto before = keyboard.profiles;
    Bytes codes(192);
    codes[0] = 6; // without its length byte
    for (const Bytes& report :
         {Bytes{}, Bytes{4, 3, 0}, Bytes{4, 0, 6}, Bytes{4, 0}, Bytes{5, 4, 1}, Bytes{5, 3, 3},
          Bytes{7, 8, 3, 0, 1, 1, 1, 1}, Bytes{7, 9, 0, 0, 1, 1, 1, 1}, Bytes{9, 0, 0}, codes})
        EXPECT_FALSE(keyboard.setFeature(report)) << testing::PrintToString(report);
    for (Bytes report : {Bytes(191, 6), Bytes(3, 4)})
        EXPECT_FALSE(keyboard.getFeature(report));
    EXPECT_EQ(keyboard.profiles, before);
    EXPECT_EQ(keyboard.wireLog().size(), 16u);
}

} // namespace
} // namespace tarnix
