#include <gmock/gmock.h>

#include <cstdio>
#include <thread>

#include "support/device_bench.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using Bytes = std::vector<std::uint8_t>;

class EventListenerTest : public testing::Test, protected DeviceBench {
  protected:
    HidInterface eventInterface(std::size_t length = 8) const {
        return {VirtualHid::pathOf(VirtualKeyboard::eventInterface), 0x04F3, 0x1406, 0x000A, length};
    }

    /// Sends reports numbered from 0 in their code and value.
    void emit(int count) {
        for (int i = 0; i < count; ++i)
            keyboard.emit(static_cast<std::uint8_t>(i >> 8), static_cast<std::uint8_t>(i));
    }

    std::vector<Bytes> heard;
    const std::thread::id mainThread = std::this_thread::get_id();
    std::unique_ptr<EventListener> listener =
        std::make_unique<EventListener>(hid, loop, [this](std::span<const std::uint8_t> report) {
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
            heard.emplace_back(report.begin(), report.end());
        });
};

TEST_F(EventListenerTest, AFloodIsReadNoFasterThanItIsHeardAndArrivesWholeAndInOrder) {
    listener->start(eventInterface());
    listener->start(eventInterface());
    EXPECT_EQ(hid.openDevices(), 1);
    emit(6000);
    ASSERT_TRUE(loop.holds(4096));
    ASSERT_TRUE(loop.runOne());
    EXPECT_EQ(heard.size(), 64u) << "and input and painting come in between";
    ASSERT_TRUE(loop.runUntil([this] { return heard.size() == 6000; }));
    for (int i = 0; i < 6000; ++i)
        ASSERT_EQ(heard[i].at(1) << 8 | heard[i].at(2), i);

    loop.runPosted(); // several are heard in one turn, whose own turns find nothing
    emit(6000);
    ASSERT_TRUE(loop.holds(4096));
    listener->stop();
    loop.runPosted();
    EXPECT_EQ(heard.size(), 6000u + 4096u) << "what was read before the stop is still heard";
}

TEST_F(EventListenerTest, ReportsAreReadIntoTheirLengthAndSenselessLengthsAreSurvived) {
    for (const std::size_t length : {std::size_t{0}, std::size_t{2}, ~std::size_t{0}, std::size_t{11}}) {
        heard.clear();
        listener->start(eventInterface(length));
        keyboard.emit(3, 1);
        ASSERT_TRUE(loop.runUntil([this] { return !heard.empty(); }));
        EXPECT_LE(heard[0].size(), 4096u);
        listener->stop();
    }
    EXPECT_THAT(heard[0], ElementsAre(0, 3, 1, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0xFF)) << "left out, left alone";
}

TEST_F(EventListenerTest, AStopAtAnyMomentEndsTheThread) {
    constexpr int stops = 500;
    for (int n = 0; n < stops; ++n) {
        listener->start(eventInterface());
        emit(n % 3);
        listener->stop();
        ASSERT_EQ(hid.openDevices(), 0);
    }
    std::printf("counted: %d stops of a waiting listener\n", stops);
}

TEST_F(EventListenerTest, TheOwnersEndDropsWhatIsPosted) {
    listener->start(eventInterface());
    emit(3);
    ASSERT_TRUE(loop.holds(3));
    listener.reset();
    loop.runPosted();
    EXPECT_THAT(heard, testing::IsEmpty());
}

} // namespace
} // namespace tarnix
