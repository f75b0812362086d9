#include "virtual/report_log.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::string set(const Bytes& report) {
    return describeReport(WireDirection::Set, report);
}

std::string event(const Bytes& report) {
    return describeReport(WireDirection::Event, report);
}

TEST(ReportLog, EveryReportReadsAsOneLine) {
    EXPECT_EQ(set({4, 2, 5}), "set 04 select profile 3 G6");
    EXPECT_EQ(
        set({7, 8, 0, 0, 0x42, 0x14, 0x56, 0x78}),
        "set 07 lighting profile 1: mode 2 RGB Breath, brightness 4 100%, speed 1 Normal, colours 4 5 6 7 8");
    Bytes macro(226);
    macro[0] = 8, macro[3] = 1, macro[8] = 'A', macro[9] = '\n', macro[32] = 3, macro[33] = 2;
    EXPECT_EQ(set(macro), "set 08 macro profile 1 G2: \"A\\x0A\", 2 steps, loop 3");
}

TEST(ReportLog, OddReportsAreToldAsSuch) {
    EXPECT_EQ(set({}), "set of nothing");
    EXPECT_EQ(set({8, 1}), "set 08 unknown report of 2 bytes");
    EXPECT_EQ(event({6}), "event 06 mode changed: 0 Light Off");
    EXPECT_EQ(event({6, 99}), "event 06 mode changed: 99");
    EXPECT_EQ(event({0x77, 5}), "event 77 value 5");
}

} // namespace
} // namespace tarnix
