#include "profile/vocabulary.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

TEST(Vocabulary, OwnFunctionCodesAreGivenToTheirButtonsAlone) {
    const auto row = [](std::uint8_t code) {
        std::string stored;
        for (const int button : {-1, 0, 1, 2, 12, 13, 92, 104})
            stored += std::to_string(ownFunctionCode(button, code)) + ' ';
        return stored;
    };
    EXPECT_EQ(row(0x29), "41 245 41 41 41 41 41 41 ");
    EXPECT_EQ(row(0x3B), "59 59 193 193 193 59 59 59 ");
    EXPECT_EQ(row(0x46), "70 70 70 70 70 70 70 70 ");
    EXPECT_EQ(row(0xE3), "227 227 227 227 227 227 239 227 ");
}

TEST(Vocabulary, KeysComeBackFromTheirCodesUnderTheirNamesButForTheOddOnes) {
    std::string odd;
    for (int n = 0; n < 256; ++n) {
        const auto key = static_cast<std::uint8_t>(n);
        const std::uint8_t code = ToKeyCode(key);
        const bool same = ToVirtualKey(code) == key && VirtualKeyName(key) == KeyCodeName(code);
        if (code != 0 && !same)
            odd.append(VirtualKeyName(key)).append(" as ").append(KeyCodeName(code)) += '\n';
    }
    EXPECT_EQ(odd,
              "Keypad Enter as Keypad Eenter\nPrint Screen as Print\nDel as I\nUndefined as Esc\n"
              "Win_L as Win_L\nAlt_R as Print\nK45 as K45\n");
}

} // namespace
} // namespace tarnix
