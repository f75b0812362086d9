#include "virtual/uhid_plug.h"

#include <gmock/gmock.h>
#include <linux/uhid.h>
#include <sys/socket.h>

#include <optional>

#include "support/echo_function.h"

namespace tarnix {
namespace {

using testing::ElementsAre;

using Bytes = std::vector<std::uint8_t>;

TEST(UhidPlug, MakesADeviceThatAnswersWithTheRequestsNumberAndTakesItAway) {
    int ends[2];
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends), 0);
    const FileDescriptor kernel(ends[0]); // its end of /dev/uhid, where every event is a packet
    EchoFunction device;
    const BusInterface interface {
        "Keyboard", 0x04F3, 0x1406, 2, 1, { 5, 10, 0xC0 }
    };
    std::optional<UhidPlug> plug(std::in_place, FileDescriptor(ends[1]), interface, device);
    const auto ask = [&](const uhid_event& event) {
        ASSERT_EQ(::write(kernel.get(), &event, sizeof event), static_cast<ssize_t>(sizeof event));
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
    };
    // The next event; its type is 0, which is none, where there is no more.
    const auto told = [&] {
        uhid_event event{};
        (void)::recv(kernel.get(), &event, sizeof event, MSG_DONTWAIT);
        return event;
    };

    const uhid_event create = told();
    EXPECT_EQ(create.type, UHID_CREATE2);
    EXPECT_THAT(Bytes(create.u.create2.rd_data, create.u.create2.rd_data + create.u.create2.rd_size),
                ElementsAre(5, 10, 0xC0));
    plug->sendInput(Bytes{5, 2, 0});
    const uhid_event input = told();
    EXPECT_EQ(input.type, UHID_INPUT2);
    EXPECT_THAT(Bytes(input.u.input2.data, input.u.input2.data + input.u.input2.size), ElementsAre(5, 2, 0));

    const uhid_event get{UHID_GET_REPORT, {.get_report = {41, 7, UHID_FEATURE_REPORT}}};
    device.held = {7, 8, 9};
    ask(get);
    const auto got = told().u.get_report_reply;
    EXPECT_EQ(got.id, 41u);
    EXPECT_EQ(got.err, 0);
    EXPECT_THAT(Bytes(got.data, got.data + got.size), ElementsAre(7, 8, 9));

    // It says that there is more than it has room for.
    const uhid_event set{UHID_SET_REPORT, {.set_report = {42, 7, UHID_FEATURE_REPORT, 0xFFFF, {}}}};
    device.answer = {false, {}, Milliseconds(20)};
    ask(set);
    EXPECT_EQ(device.held.size(), sizeof set.u.set_report.data);
    EXPECT_EQ(told().type, 0u) << "the device takes its time";
    g_main_context_iteration(nullptr, TRUE);
    const auto answered = told().u.set_report_reply;
    EXPECT_EQ(answered.id, 42u);
    EXPECT_NE(answered.err, 0);
    plug.reset();
    EXPECT_EQ(told().type, UHID_DESTROY);
}

} // namespace
} // namespace tarnix
