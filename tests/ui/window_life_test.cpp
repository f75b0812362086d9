#include <gmock/gmock.h>

#include <random>

#include "main_window_bench.h"
#include "profile/vocabulary.h"

namespace tarnix {
namespace {

using tarnix::testing::runUntil;
using tarnix::testing::settle;
using tarnix::testing::tapKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* farewell = "set 05 03 07";

TEST(MainWindow, StartLoadsTheFilesThenShowsTheIconThenReadsTheKeyboard) {
    MainWindowBench bench;
    bench.keyboard.activeProfile = 1;
    bench.keyboard.profiles[1].keyCodes[17] = 0x3E;
    bench.keyboard.profiles[1].lighting = {0x23, 0x04, 0x44, 0x44};
    ASSERT_TRUE(bench.window->Create());

    Journal start = bench.changes();
    ASSERT_GT(start.size(), 11U);
    start.resize(11);
    EXPECT_THAT(start,
                ElementsAre("replace " + bench.file("MacroLibraryFile.mlf"),
                            "replace " + bench.file("config.ini"), "replace " + bench.file("default0.psf"),
                            "replace " + bench.file("default1.psf"), "replace " + bench.file("default2.psf"),
                            "replace " + bench.file("default3.psf"), "replace " + bench.file("default4.psf"),
                            "tray added", "get 05", "set 04 00 00", "get 07"));
    EXPECT_FALSE(bench.window->isVisible());
    EXPECT_EQ(DisplayedProfile, 1);
    EXPECT_TRUE(bench.cap(2201).m_bRemapped);
    EXPECT_EQ(bench.field(id::lightModeField).valueText(), LightModeName(3));
    EXPECT_EQ(bench.field(id::brightnessField).valueText(), BrightnessName(2));
    EXPECT_EQ(bench.field(id::speedField).valueText(), SpeedName(0));
}

TEST(MainWindow, EscapeEndsTheProgramWithItsFarewellAndSavesNothing) {
    MainWindowBench bench;
    loop().post([&] {
        bench.awaitKeyboard();
        bench.window->send(msg::keyCodeChosen, 2201, 62);
        bench.changes();
        tapKey("Return");
        tapKey("Escape");
    });
    bench.window->DoModal();
    EXPECT_THAT(bench.changes(), ElementsAre(farewell, "tray removed"));
    bench.window.reset();
    EXPECT_THAT(bench.changes(), IsEmpty());
}

TEST(MainWindow, ExitFromTheMenuClosesListsAndDialogsFirst) {
    MainWindowBench bench;
    loop().post([&] {
        bench.window->send(msg::openLightMode, id::lightModeField, NOTIFY_CLICK);
        // The reset confirmation runs inside this call, and ends with the program.
        loop().post([&] { bench.window->post(msg::command, command::exit); });
        bench.window->send(id::resetButton, 0, NOTIFY_CLICK);
        bench.files.log.push_back("dialog closed");
    });
    bench.window->DoModal();
    Journal end = bench.changes();
    ASSERT_GE(end.size(), 3U);
    end.erase(end.begin(), end.end() - 3);
    EXPECT_THAT(end, ElementsAre("dialog closed", farewell, "tray removed"));
}

TEST(MainWindow, CloseHidesWithAnIconAndMinimisesWithoutOne) {
    MainWindowBench bench;
    bench.run([&] {
        bench.click(id::closeButton);
        EXPECT_FALSE(bench.window->isVisible());
        bench.window->send(msg::command, command::showWindow);
        EXPECT_TRUE(runUntil([&] { return bench.window->isVisible() && !bench.window->isMinimised(); }));

        bench.presence.trayShown = false;
        bench.window->send(msg::openSpeed, id::speedField, NOTIFY_CLICK);
        bench.click(id::cancelButton);
        EXPECT_TRUE(runUntil([&] { return bench.window->isMinimised(); }));
        EXPECT_FALSE(bench.window->popups().any());
        bench.window->send(msg::trayNotify, CDlgBase::iconId, 0x0203);
        EXPECT_TRUE(runUntil([&] { return !bench.window->isMinimised(); }));
    });
}

TEST(MainWindow, EachPagePaintsItsBandAndItsControls) {
    MainWindowBench bench;
    bench.run([&] {
        const Point inBand{20, 300};
        const Point beyondBand{780, 300}; // where the smaller bands have ended
        const Color behind = resources().find(ResourceType::Bitmap, mainBackground)->pixel(beyondBand);
        for (const auto& [page, band] : {std::pair{1, 261U}, {2, 259U}, {3, 399U}, {7, 399U}, {0, 398U}}) {
            g_nMainPage = page;
            const auto face = bench.face();
            const Image* picture = resources().find(ResourceType::Bitmap, band);
            ASSERT_NE(picture, nullptr);
            EXPECT_EQ(face->image().pixel(inBand), picture->pixel({inBand.x, inBand.y - pageBand.top}))
                << page;
            if (picture->size().width < beyondBand.x) {
                EXPECT_EQ(face->image().pixel(beyondBand), behind) << page;
            }
        }
        bench.click(id::lightingPageTab);
        // The hidden tabs are not there for the pointer.
        clickAt(*bench.window, {300, 520});
        clickAt(*bench.window, {500, 520});
        EXPECT_EQ(g_nMainPage, 3);
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
