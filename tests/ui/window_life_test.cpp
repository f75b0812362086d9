#include <gmock/gmock.h>

#include <random>

#include "main_window_bench.h"

namespace tarnix {
namespace {

constexpr const char* farewell = "set 05 03 07";

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
    const Journal& log = bench.files.log;
    EXPECT_EQ(std::count(log.begin(), log.end(), farewell), 1);
    EXPECT_THAT(Journal(log.end() - 2, log.end()), ::testing::ElementsAre(farewell, "tray removed"));
}

} // namespace
} // namespace tarnix
