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

TEST(Vocabulary, PopupItemsOutsideTheirListGetTheFallbackAndNoName) {
    EXPECT_EQ(multimediaFunctionValue(25), multimediaFunctionValue(26));
    EXPECT_EQ(multimediaFunctionValue(17), keyAssignment(FunctionType::Media, 0xA7));
    EXPECT_EQ(webFunctionValue(21), webFunctionValue(-1));
    EXPECT_EQ(mouseFunctionValue(31), KeyAssignment{});
    EXPECT_EQ(MultimediaFunctionName(17), "Quick launch");
    EXPECT_EQ(MultimediaFunctionName(18), "Mute");
    for (const int outside : {-1, 0, 32})
        EXPECT_EQ(MouseFunctionName(outside), "");
    for (const int outside : {-1, 16, 17})
        EXPECT_EQ(LightModeName(outside), "");
}

} // namespace
} // namespace tarnix
