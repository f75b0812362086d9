#include "platform/hid.h"

#include <gmock/gmock.h>

#include <future>
#include <thread>

#include "support/echo_function.h"
#include "support/queue_loop.h"
#include "virtual/glib_source.h"
#include "virtual/launcher_bus.h"
#include "virtual/virtual_keyboard.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using ReadResult = HidDevice::ReadResult;

/// A bus whose main loop runs on a thread of its own, as the launcher is a process of its own.
class HidTest : public testing::Test {
  public:
    ~HidTest() override {
        onBus([&] { plugs.clear(), bus.reset(); });
        g_main_loop_quit(m_loop.get());
        m_thread.join();
    }

  protected:
    void onBus(std::function<void()> work) {
        std::packaged_task<void()> task(std::move(work));
        const auto run = [](void* data) -> gboolean {
            return (*static_cast<std::packaged_task<void()>*>(data))(), G_SOURCE_REMOVE;
        };
        g_idle_add(run, &task);
        task.get_future().wait();
    }

    void plug(const BusInterface& interface) {
        onBus([&] { plugs.push_back(bus->plug(interface, function)); });
        ASSERT_NE(plugs.back(), nullptr);
    }

    void plugKeyboard() {
        for (const KeyboardInterface& each : VirtualKeyboard::interfaces())
            plug({"Keyboard", VirtualKeyboard::vendor, VirtualKeyboard::product, 2,
                  static_cast<unsigned>(plugs.size()), each.descriptor});
    }

    void unplugAll() {
        onBus([&] { plugs.clear(); });
    }

    void sendInput(std::size_t interface, const std::vector<std::uint8_t>& report) {
        onBus([&] { plugs.at(interface)->sendInput(report); });
    }

    std::string pathOf(std::uint16_t usagePage) {
        for (const HidInterface& each : hid->enumerate())
            if (each.usagePage == usagePage) return each.path;
        return {};
    }

    EchoFunction function; ///< the bus's thread's alone
    std::unique_ptr<Bus> bus = makeMockBus();
    std::vector<std::unique_ptr<BusPlug>> plugs;
    QueueLoop loop;
    std::unique_ptr<Hid> hid = makeSystemHid(loop);

  private:
    std::unique_ptr<GMainLoop, void (*)(GMainLoop*)> m_loop{g_main_loop_new(nullptr, FALSE),
                                                            g_main_loop_unref};
    std::thread m_thread{[this] { g_main_loop_run(m_loop.get()); }};
};

/// Two collections with report ids: 2 on page 000A with 3 bytes, 3 on page 000B with 1.
const std::vector<std::uint8_t> twoCollections{0x05, 0x0A, 0x09, 0x01, 0xA1, 0x01, 0x85, 0x02, 0x75, 0x08,
                                               0x95, 0x03, 0x81, 0x02, 0xC0, 0x05, 0x0B, 0x09, 0x01, 0xA1,
                                               0x01, 0x85, 0x03, 0x95, 0x01, 0x81, 0x02, 0xC0};

TEST_F(HidTest, EnumeratesEveryInterfaceByItsPlaceOnTheBus) {
    EXPECT_THAT(hid->enumerate(), IsEmpty());
    plug({"Undescribed", 0x1209, 1, 7, 0, {}});
    plug({"Several", 0x1209, 2, 3, 0, twoCollections});
    plugKeyboard();

    std::vector<std::tuple<int, int, std::size_t>> found;
    for (const HidInterface& each : hid->enumerate())
        found.emplace_back(each.product, each.usagePage, each.inputReportLength);
    EXPECT_THAT(found, ElementsAre(std::tuple(0x1406, 0x01, 9u), std::tuple(0x1406, 0x0A, 8u),
                                   std::tuple(0x1406, 0x0B, 0u), std::tuple(2, 0x0A, 4u),
                                   std::tuple(2, 0x0B, 2u), std::tuple(1, 0, 0u)));
}

TEST_F(HidTest, CarriesFeatureReportsAndLeavesTheBufferAloneAfterAFailure) {
    plugKeyboard();
    EXPECT_EQ(hid->open("/dev/hidraw99"), nullptr);
    const auto device = hid->open(pathOf(0x0B));
    ASSERT_NE(device, nullptr);

    // Bytes that a terminal would take for commands go through as they are.
    std::vector<std::uint8_t> report{7, 8, 0x00, 0x03, 0x0A, 0x0D, 0x11, 0xFF};
    EXPECT_TRUE(device->setFeature(report));
    std::vector<std::uint8_t> answer(8, 0x55);
    answer[0] = 7;
    EXPECT_TRUE(device->getFeature(answer));
    EXPECT_EQ(answer, report);

    onBus([&] { function.held.resize(5); });
    EXPECT_FALSE(device->getFeature(answer)) << "a short answer is none";
    onBus([&] { function.answer.accepted = false; });
    EXPECT_FALSE(device->getFeature(answer) || device->setFeature(report));
    onBus([&] { function.answer.accepted = true; });
    unplugAll();
    EXPECT_FALSE(device->getFeature(answer) || device->setFeature(report));
    EXPECT_EQ(answer, report);
}

TEST_F(HidTest, DeliversInputReportsOneByOneWithTheIdInFront) {
    plugKeyboard();
    const auto device = hid->open(pathOf(0x0A));
    ASSERT_NE(device, nullptr);
    sendInput(VirtualKeyboard::eventInterface, {0x05, 0x02, 0, 0, 0, 0, 0});
    sendInput(VirtualKeyboard::eventInterface, {0x0A, 0x0D, 3, 4});
    sendInput(VirtualKeyboard::eventInterface, {1, 2, 3, 4, 5, 6, 7});
    const auto read = [&](std::size_t size) {
        std::vector<std::uint8_t> report(size, 0xFF);
        EXPECT_EQ(device->read(report), ReadResult::Report);
        return report;
    };
    EXPECT_THAT(read(8), ElementsAre(0, 5, 2, 0, 0, 0, 0, 0));
    EXPECT_THAT(read(8), ElementsAre(0, 0x0A, 0x0D, 3, 4, 0xFF, 0xFF, 0xFF)) << "the rest stays as it was";
    EXPECT_THAT(read(3), ElementsAre(0, 1, 2));
}

TEST_F(HidTest, DeliversToEachCollectionItsOwnReports) {
    plug({"Several", 0x1209, 2, 3, 0, twoCollections});
    const auto device = hid->open(pathOf(0x0B));
    ASSERT_NE(device, nullptr);
    sendInput(0, {2, 7, 8, 9});
    sendInput(0, {3, 4});
    std::vector<std::uint8_t> report(4, 0xFF);
    EXPECT_EQ(device->read(report), ReadResult::Report);
    EXPECT_THAT(report, ElementsAre(3, 4, 0xFF, 0xFF));
    EXPECT_EQ(hid->open(pathOf(0x0B) + "7"), nullptr) << "there is no such collection";
}

TEST_F(HidTest, AStopAndAnUnplugEndThePresentAndEveryLaterRead) {
    plugKeyboard();
    std::vector<std::uint8_t> report(8);
    const auto stopped = hid->open(pathOf(0x0A));
    const auto unplugged = hid->open(pathOf(0x0A));
    ASSERT_TRUE(stopped && unplugged);
    const auto readWhile = [&](HidDevice& device, const std::function<void()>& ended) {
        auto waiting = std::async(std::launch::async, [&] { return device.read(report); });
        EXPECT_EQ(waiting.wait_for(Milliseconds(20)), std::future_status::timeout);
        ended();
        return waiting.get();
    };
    EXPECT_EQ(readWhile(*stopped, [&] { stopped->stop(); }), ReadResult::Stopped);
    EXPECT_EQ(readWhile(*unplugged, [&] { unplugAll(); }), ReadResult::Failed);
    EXPECT_EQ(stopped->read(report), ReadResult::Stopped);
    EXPECT_EQ(unplugged->read(report), ReadResult::Failed);
}

} // namespace
} // namespace tarnix

int main(int argc, char** argv) {
    tarnix::preloadMockSystem(argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
