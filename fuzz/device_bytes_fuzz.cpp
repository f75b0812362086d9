// Bytes from a device: macro reports and report descriptors. A macro that was read is encoded again.
#include <algorithm>
#include <span>

#include "device/macro_report.h"
#include "platform/linux/report_descriptor.h"

using namespace tarnix;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    (void)parseReportDescriptor(std::span(data, size));
    MacroReport report{};
    std::copy_n(data, std::min(size, report.size()), report.begin());
    MacroKey macro;
    macro.name = macroReportName(report).value_or("");
    DecodeMacroReport(macro, report);
    (void)encodeMacroReport(macro, 0, 0);
    return 0;
}
