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
    EXPECT_EQ(Bytes(codes.begin() + 165, codes.begin() + 174), (Bytes{0, 0, 0, 6, 1, 0x1E, 6, 1, 0x1F}));
    Bytes macro = get(8, 226);
    EXPECT_EQ(Bytes(macro.begin(), macro.begin() + 4), (Bytes{8, 0xE2, 1, 5}));
    Bytes nameless(24, 0xFF);
    nameless.resize(26);
    EXPECT_EQ(Bytes(macro.begin() + 8, macro.begin() + 34), nameless);

    std::fill(macro.begin() + 8, macro.begin() + 32, std::uint8_t{0});
    macro[8] = 'M', macro[32] = 2, macro[33] = 120, macro[225] = 0x77;
    codes[8] = 1, codes[167] = 2, codes[168] = 3, codes[185] = 4;
    EXPECT_TRUE(keyboard.setFeature(macro) && keyboard.setFeature(codes));
    EXPECT_EQ(get(8, 226), macro);
    EXPECT_EQ(get(6, 192), codes);
    EXPECT_TRUE(keyboard.setFeature(Bytes{7, 8, 1, 0, 1, 2, 3, 4}));
    EXPECT_THAT(keyboard.profiles[1].lighting, ElementsAre(1, 2, 3, 4));
    EXPECT_TRUE(keyboard.setFeature(Bytes{5, 3, 2}) && keyboard.setFeature(Bytes{5, 3, 7}));
    EXPECT_THAT(get(5, 3), ElementsAre(5, 3, 2)) << "a farewell is no profile";
}

TEST_F(VirtualKeyboardTest, RefusesWhatNoKeyboardUnderstands) {
    const auto before = keyboard.profiles;
    for (const Bytes& report :
         {Bytes{}, Bytes{4, 3, 0}, Bytes{4, 0, 6}, Bytes{4, 0}, Bytes{5, 4, 1}, Bytes{5, 3, 3},
          Bytes{7, 8, 3, 0, 1, 1, 1, 1}, Bytes{7, 9, 0, 0, 1, 1, 1, 1}, Bytes{9, 0, 0}}) {
        EXPECT_FALSE(keyboard.setFeature(report)) << testing::PrintToString(report);
    }
    Bytes codes(192);
    codes[0] = 6;
    EXPECT_FALSE(keyboard.setFeature(codes)) << "without its length byte";
    Bytes wrongLength(191, 0xEE);
    wrongLength[0] = 6;
    EXPECT_FALSE(keyboard.getFeature(wrongLength));
    EXPECT_EQ(wrongLength[1], 0xEE) << "a refused get leaves the buffer alone";
    EXPECT_TRUE(get(4, 3).empty());
    EXPECT_EQ(keyboard.profiles, before);
    for (const WireRecord& record : keyboard.wireLog())
        EXPECT_FALSE(record.accepted);
    EXPECT_EQ(keyboard.wireLog().size(), 12u);
}

TEST_F(VirtualKeyboardTest, FailsDelaysAndVanishesOnDemand) {
    keyboard.failRequest(1);
    keyboard.delayRequest(2, Milliseconds{40});
    EXPECT_FALSE(get(5, 3).empty());
    EXPECT_TRUE(get(5, 3).empty());
    EXPECT_FALSE(get(5, 3).empty());
    EXPECT_EQ(keyboard.wireLog()[2].time, Milliseconds{40});
    keyboard.setPluggedIn(false);
    EXPECT_TRUE(get(5, 3).empty());
    int events = 0;
    keyboard.onEvent = [&](auto) { ++events; };
    keyboard.pressProfile(2);
    EXPECT_EQ(events, 0);
}

TEST_F(VirtualKeyboardTest, UserActionsChangeWhatItHoldsAndSendTheirEvents) {
    std::vector<Bytes> events;
    keyboard.onEvent = [&](auto report) { events.emplace_back(report.begin(), report.begin() + 2); };
    keyboard.pressProfile(3);
    keyboard.pressProfile(4);
    keyboard.changeMode(5);
    keyboard.changeBrightness(2);
    keyboard.changeSpeed(0);
    EXPECT_THAT(keyboard.profiles[2].lighting, ElementsAre(0x25, 0x04, 0x44, 0x44));
    keyboard.changeLighting(std::array<std::uint8_t, 4>{1, 2, 3, 4});
    keyboard.lockWindowsKey(true);
    keyboard.lockAllKeys(false);
    keyboard.pressGKey(6);
    keyboard.recordMacro(6, Bytes{4, 0});
    keyboard.recordMacro(7, Bytes{4, 0});
    EXPECT_THAT(events, ElementsAre(Bytes{5, 3}, Bytes{6, 5}, Bytes{7, 2}, Bytes{2, 0}, Bytes{10, 0},
                                    Bytes{3, 1}, Bytes{9, 0}, Bytes{4, 6}, Bytes{1, 6}));
    EXPECT_EQ(keyboard.profiles[2].macros[5].name, std::nullopt);
    EXPECT_EQ(keyboard.profiles[2].gKeys[15], 1);
}

} // namespace
} // namespace tarnix
