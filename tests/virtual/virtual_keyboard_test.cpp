#include "virtual/virtual_keyboard.h"

#include <gmock/gmock.h>

#include "support/fake_clock.h"
#include "virtual/virtual_hid.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using Bytes = std::vector<std::uint8_t>;

class VirtualKeyboardTest : public testing::Test {
  protected:
    Bytes get(std::uint8_t id, std::size_t length) {
        Bytes report(length, 0xEE);
        report[0] = id;
        return keyboard.getFeature(report) ? report : Bytes{};
    }

    FakeClock clock;
    VirtualKeyboard keyboard{clock};
};

TEST_F(VirtualKeyboardTest, AnswersFactoryDefaultsAndThenWhatItIsSetTo) {
    EXPECT_TRUE(keyboard.setFeature(Bytes{4, 1, 5}));
    EXPECT_THAT(get(7, 8), ElementsAre(7, 8, 1, 0, 0x41, 0x14, 0x44, 0x44));
    Bytes codes = get(6, 192);
    EXPECT_EQ(Bytes(codes.begin(), codes.begin() + 10), (Bytes{6, 0xB8, 1, 0, 0, 0, 0, 0, 0x1D, 0xF0}));
    Bytes macro = get(8, 226);
    EXPECT_EQ(Bytes(macro.begin(), macro.begin() + 4), (Bytes{8, 0xE2, 1, 5}));
    std::fill(macro.begin() + 8, macro.begin() + 32, std::uint8_t{0});
    macro[8] = 'M', macro[32] = 2, macro[33] = 120, macro[225] = 0x77;
    codes[8] = 1, codes[167] = 2, codes[168] = 3, codes[185] = 4;
    EXPECT_TRUE(keyboard.setFeature(macro) && keyboard.setFeature(codes));
    EXPECT_EQ(get(8, 226), macro);
    EXPECT_EQ(get(6, 192), codes);
    EXPECT_TRUE(keyboard.setFeature(Bytes{5, 3, 2}) && keyboard.setFeature(Bytes{5, 3, 7}));
    EXPECT_THAT(get(5, 3), ElementsAre(5, 3, 2)) << "a farewell is no profile";
}

TEST_F(VirtualKeyboardTest, RefusesWhatNoKeyboardUnderstands) {
    const auto before = keyboard.profiles;
    Bytes codes(192);
    codes[0] = 6; // without its length byte
    for (const Bytes& report :
         {Bytes{}, Bytes{4, 3, 0}, Bytes{4, 0, 6}, Bytes{4, 0}, Bytes{5, 4, 1}, Bytes{5, 3, 3},
          Bytes{7, 8, 3, 0, 1, 1, 1, 1}, Bytes{7, 9, 0, 0, 1, 1, 1, 1}, Bytes{9, 0, 0}, codes})
        EXPECT_FALSE(keyboard.setFeature(report)) << testing::PrintToString(report);
    EXPECT_TRUE(get(6, 191).empty() && get(4, 3).empty());
    EXPECT_EQ(keyboard.profiles, before);
    EXPECT_EQ(keyboard.wireLog().size(), 12u);
}

} // namespace
} // namespace tarnix
