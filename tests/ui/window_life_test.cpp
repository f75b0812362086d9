#include <gmock/gmock.h>

#include <random>

#include "main_window_bench.h"
#include "profile/vocabulary.h"

namespace tarnix {
namespace {

using ::testing::ElementsAre;

constexpr const char* farewell = "set 05 03 07";

TEST(MainWindow, StartLoadsTheFilesThenShowsTheIconThenReadsTheKeyboard) {
    MainWindowBench bench;
    bench.keyboard.activeProfile = 1;
    bench.keyboard.profiles[1].keyCodes[17] = 0x3E;
    bench.keyboard.profiles[1].lighting = {0x23, 0x04, 0x44, 0x44};
    ASSERT_TRUE(bench.window->Create());

    Journal start = bench.changes();
    ASSERT_GT(start.size(), 10U);
    start.erase(start.begin(), start.begin() + 6);
    start.resize(4);
    EXPECT_THAT(start,
                ElementsAre("replace " + bench.file("default4.psf"), "tray added", "get 05", "set 04 00 00"));
    EXPECT_EQ(DisplayedProfile, 1);
    EXPECT_TRUE(bench.cap(2201).m_bRemapped);
    EXPECT_EQ(bench.field(id::lightModeField).valueText(), LightModeName(3));
    EXPECT_EQ(bench.field(id::brightnessField).valueText(), BrightnessName(2));
    EXPECT_EQ(bench.field(id::speedField).valueText(), SpeedName(0));
}

TEST(MainWindow, EachPagePaintsItsBand) {
    MainWindowBench bench;
    bench.run([&] {
        const Point inBand{20, 300};
        for (const auto& [page, band] : {std::pair{1, 261U}, {2, 259U}, {3, 399U}, {7, 399U}, {0, 398U}}) {
            g_nMainPage = page;
            const Image* picture = resources().find(ResourceType::Bitmap, band);
            ASSERT_NE(picture, nullptr);
            const Color expected = picture->pixel({inBand.x, inBand.y - pageBand.top});
            EXPECT_EQ(bench.face()->image().pixel(inBand), expected) << page;
        }
    });
}

/// Any message with any words, in any state of popups: nothing of it may touch memory that is not the
/// program's.
TEST(MainWindow, AStormOfMessagesLeavesItStanding) {
    MainWindowBench bench;
    AddMacroKey(AddMacroSet(bench.macros, "Other"), "Tap");
    std::mt19937 random(4711);
    const auto pick = [&random](auto&& from) { return from[random() % std::size(from)]; };
    loop().post([&] {
        // With the program at its end, dialogs close as soon as they open.
        bench.window->endModal(IDCANCEL);
        std::vector<Message> numbers = bench.window->messages().registered();
        std::erase_if(numbers, [](Message number) { return number > 2201 && number <= id::lastKeyCap; });
        const WParam words[] = {0,    1,    4,    100,        id::gKeyField1, id::gKeyField5, id::speedField,
                                2201, 2303, 2304, ~WParam{0}, 0x7FFFFFFF};
        const LParam longs[] = {0,  1,  2,   3,   4,      5,  8,          9,         10,
                                11, 13, 100, 101, 0xFFFF, -1, INTPTR_MIN, INTPTR_MAX};
        for (int i = 0; i < 4000; ++i) {
            if (i % 50 == 0) DisplayedProfile = static_cast<int>(random());
            if (i % 70 == 0)
                bench.store.ConfigTable[0].Value = pick(std::array{"0", "2", "-1", "4", "77", "x"});
            if (i % 90 == 0) g_nMainPage = static_cast<int>(random() % 5);
            bench.window->send(pick(numbers), pick(words), pick(longs));
        }
        bench.window->popups().closeAll();
    });
    bench.window->DoModal();
    EXPECT_EQ(std::count(bench.files.log.begin(), bench.files.log.end(), farewell), 1);
}

} // namespace
} // namespace tarnix
