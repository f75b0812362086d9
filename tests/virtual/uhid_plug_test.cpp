#include "virtual/uhid_plug.h"

#include <gmock/gmock.h>
#include <linux/uhid.h>
#include <poll.h>
#include <sys/socket.h>

#include <optional>

namespace tarnix {
namespace {

using testing::ElementsAre;

struct Device final : BusFunction {
    FeatureAnswer setFeature(std::span<const std::uint8_t> report) override {
        held.assign(report.begin(), report.end());
        return answer;
    }
    FeatureAnswer getFeature(std::uint8_t reportId, std::size_t length) override {
        asked = {reportId, length};
        return answer;
    }
    FeatureAnswer answer{true};
    std::vector<std::uint8_t> held;
    std::pair<int, std::size_t> asked;
};

std::vector<std::uint8_t> bytes(const std::uint8_t* data, std::size_t length) {
    return {data, data + length};
}

/// The kernel's end of /dev/uhid, where every event is a packet.
class UhidPlugTest : public testing::Test {
  protected:
    void SetUp() override {
        int ends[2];
        ASSERT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends), 0);
        kernel = FileDescriptor(ends[0]);
        plug.emplace(FileDescriptor(ends[1]), BusInterface{"Keyboard", 0x04F3, 0x1406, 2, 1, {5, 10, 0xC0}},
                     device);
    }

    void ask(const uhid_event& event) {
        ASSERT_EQ(::write(kernel.get(), &event, sizeof event), static_cast<ssize_t>(sizeof event));
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
    }

    std::optional<uhid_event> told() {
        uhid_event event{};
        if (::recv(kernel.get(), &event, sizeof event, MSG_DONTWAIT) <= 0) return std::nullopt;
        return event;
    }

    Device device;
    FileDescriptor kernel;
    std::optional<UhidPlug> plug;
};

TEST_F(UhidPlugTest, MakesTheDeviceSendsItsReportsAndTakesItAway) {
    auto event = told();
    ASSERT_TRUE(event && event->type == UHID_CREATE2);
    const uhid_create2_req create = event->u.create2;
    EXPECT_EQ(create.vendor, 0x04F3u);
    EXPECT_EQ(create.rd_size, 3);
    EXPECT_EQ(create.rd_data[1], 10);

    plug->sendInput(std::vector<std::uint8_t>{5, 2, 0});
    event = told();
    ASSERT_TRUE(event && event->type == UHID_INPUT2);
    EXPECT_EQ(event->u.input2.size, 3);
    EXPECT_THAT(bytes(event->u.input2.data, 3), ElementsAre(5, 2, 0));

    plug.reset();
    event = told();
    ASSERT_TRUE(event && event->type == UHID_DESTROY);
    EXPECT_FALSE(told());
}

TEST_F(UhidPlugTest, AnswersFeatureRequestsWithTheirNumberWhenTheDeviceHasDecided) {
    told();
    uhid_event get{};
    get.type = UHID_GET_REPORT;
    get.u.get_report = {41, 7, UHID_FEATURE_REPORT};
    device.answer = {true, {7, 8, 9}};
    ask(get);
    auto event = told();
    ASSERT_TRUE(event && event->type == UHID_GET_REPORT_REPLY);
    EXPECT_EQ(event->u.get_report_reply.id, 41u);
    EXPECT_EQ(event->u.get_report_reply.err, 0);
    EXPECT_THAT(bytes(event->u.get_report_reply.data, event->u.get_report_reply.size), ElementsAre(7, 8, 9));
    EXPECT_EQ(device.asked, std::pair(7, std::size_t{0}));

    uhid_event set{};
    set.type = UHID_SET_REPORT;
    set.u.set_report.id = 42;
    set.u.set_report.rtype = UHID_FEATURE_REPORT;
    set.u.set_report.size = 3;
    set.u.set_report.data[0] = 5;
    device.answer = {false, {}, Milliseconds(20)};
    ask(set);
    EXPECT_THAT(device.held, ElementsAre(5, 0, 0));
    EXPECT_FALSE(told()) << "the device takes its time";
    g_main_context_iteration(nullptr, TRUE);
    event = told();
    ASSERT_TRUE(event && event->type == UHID_SET_REPORT_REPLY);
    EXPECT_EQ(event->u.set_report_reply.id, 42u);
    EXPECT_NE(event->u.set_report_reply.err, 0);

    // More than the report has room for is cut off, not read.
    set.u.set_report.size = 0xFFFF;
    device.answer = {true};
    ask(set);
    EXPECT_EQ(device.held.size(), sizeof set.u.set_report.data);
}

} // namespace
} // namespace tarnix
