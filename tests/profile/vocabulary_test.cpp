#include "profile/vocabulary.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

TEST(Vocabulary, KeysThatConvertUnevenlyKeepTheirNamesAndCodes) {
    EXPECT_EQ(VirtualKeyName(0x0E), "Keypad Enter");
    EXPECT_EQ(KeyCodeName(ToKeyCode(0x0E)), "Keypad Eenter");
    EXPECT_EQ(ToKeyCode(0x12), 0x00);
    EXPECT_EQ(ToKeyCode(0xA5), 0x46);
    EXPECT_EQ(ToVirtualKey(ToKeyCode(0x5B)), 0xA5);
    EXPECT_EQ(ToVirtualKey(0xE6), 0x5B);
    EXPECT_EQ(ToVirtualKey(0xC5), 0x75);
    EXPECT_EQ(ToVirtualKey(0xE8), 0x00);
    EXPECT_EQ(KeyCodeName(0xFF), "Undefined");
}

TEST(Vocabulary, OwnFunctionCodesAreGivenToTheirButtonsAlone) {
    struct Case {
        int button;
        std::uint8_t chosen, stored;
    };
    for (const Case& c : {Case{2, 0x3B, 0xC1},
                          {5, 0x3B, 0xC1},
                          {12, 0x45, 0xCB},
                          {12, 0x46, 0x46},
                          {13, 0x3B, 0x3B},
                          {1, 0x29, 0x29},
                          {0, 0x29, 0xF5},
                          {17, 0x1E, 0xF0},
                          {21, 0x22, 0xF4},
                          {22, 0x22, 0x22},
                          {92, 0xE3, 0xEF},
                          {-1, 0x29, 0x29},
                          {104, 0x1A, 0x1A}}) {
        EXPECT_EQ(ownFunctionCode(c.button, c.chosen), c.stored) << c.button << ' ' << int{c.chosen};
    }
}

TEST(Vocabulary, PopupItemsOutsideTheirListGetTheFallbackAndNoName) {
    EXPECT_EQ(multimediaFunctionValue(25), multimediaFunctionValue(26));
    EXPECT_EQ(multimediaFunctionValue(17), keyAssignment(FunctionType::Media, 0xA7));
    EXPECT_EQ(webFunctionValue(21), webFunctionValue(-1));
    EXPECT_EQ(webFunctionValue(30), keyAssignment(FunctionType::Media, 0xB1));
    EXPECT_EQ(mouseFunctionValue(28), keyAssignment(FunctionType::MouseButton, 0x10));
    EXPECT_EQ(mouseFunctionValue(23), KeyAssignment{});
    EXPECT_EQ(mouseFunctionValue(31), KeyAssignment{});
    EXPECT_EQ(MultimediaFunctionName(17), "Quick launch");
    EXPECT_EQ(MultimediaFunctionName(18), "Mute");
    EXPECT_EQ(MouseFunctionName(31), "Volume Down");
    for (const int outside : {-1, 0, 32})
        EXPECT_EQ(MouseFunctionName(outside), "");
    EXPECT_EQ(LightModeName(15), "User Define");
    for (const int outside : {-1, 16, 17})
        EXPECT_EQ(LightModeName(outside), "");
}

} // namespace
} // namespace tarnix
