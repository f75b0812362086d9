#include "platform/linux/report_descriptor.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes operator+(Bytes left, const Bytes& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

/// Count fields of a size in bits, as an input item.
Bytes input(std::uint8_t size, std::uint8_t count) {
    return {0x75, size, 0x95, count, 0x81, 0x02};
}

Bytes collection(std::uint8_t usagePage, const Bytes& content) {
    return Bytes{0x05, usagePage, 0x09, 0x01, 0xA1, 0x01} + content + Bytes{0xC0};
}

TEST(ReportDescriptor, KeepsWhatAnyPieceOfADescriptorSaysAndReadsNoFurther) {
    const Bytes whole = collection(0x0A, Bytes{0x85, 0x02} + input(8, 7) + Bytes{0xA4, 0xB4}) +
                        collection(0x0B, {0x27, 0xFF, 0xFF, 0xFF, 0x7F});
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        // A copy of the exact size, so that a memory checker sees a read behind it.
        const Bytes piece(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        const ReportDescriptor result = parseReportDescriptor(piece);
        EXPECT_EQ(result.collections.size(), length < 6 ? 0u : length < 23 ? 1u : 2u) << length;
        if (length >= 14) {
            EXPECT_EQ(result.collections.at(0).inputReportLength, 8u) << length;
        }
    }
    EXPECT_TRUE(parseReportDescriptor(Bytes{0xFE, 0x05, 0x10, 0xA1, 0x01}).collections.empty());
}

TEST(ReportDescriptor, TakesTheUsagesOwnPageAndPopsWhatWasPushed) {
    const Bytes extended = Bytes{0x0B, 1, 0, 0x0B, 0, 0xA1, 1, 0xA4, 0x85, 9, 0xB4} + input(8, 1);
    const TopLevelCollection result = parseReportDescriptor(extended).collections.at(0);
    EXPECT_EQ(result.usagePage, 0x0B);
    EXPECT_TRUE(result.inputReports.test(0));
}

} // namespace
} // namespace tarnix
