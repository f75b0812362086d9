// The device link and the event dispatch with a keyboard behind them that holds anything, sends anything, and
// fails, leaves and returns at any request. Whatever it does, the macro library stays a file that can be
// read.
#include <cstdlib>
#include <vector>

#include "device/device_events.h"
#include "input.h"
#include "macro/macro_files.h"
#include "support/device_bench.h"

using namespace tarnix;

namespace {

void step(Input& input, DeviceBench& bench, DeviceEvents& events) {
    VirtualKeyboard& keyboard = bench.keyboard;
    VirtualHid& hid = bench.hid;
    const std::uint8_t choice = input.take() % 8;
    if (choice == 0) {
        keyboard.activeProfile = input.take();
    } else if (choice < 3) { // what it holds is set as over the wire
        std::vector<std::uint8_t> report{static_cast<std::uint8_t>(5 + input.take() % 4)};
        report.resize(VirtualKeyboard::featureLength(report[0]));
        input.fill(std::span(report).subspan(2));
        report[1] = static_cast<std::uint8_t>(report[0] == 6 ? 0xB8 : report[0] == 5 ? 3 : report.size());
        report[2] %= 3;
        keyboard.setFeature(report);
    } else if (choice == 3) {
        keyboard.faultAtRequest(input.take(), [&hid, refuses = input.flag()] {
            if (!refuses) hid.unplug();
            return !refuses;
        });
    } else if (choice == 4) {
        hid.plugIn();
        hid.tell(input.flag() ? HidChange::Arrival : HidChange::Removal);
    } else if (choice == 5) {
        for (int row = input.take() % 16; row >= 0; --row)
            bench.link->pending().mark(row, input.take());
        bench.link->FlushPendingWrites();
    } else {
        const std::uint8_t report[]{0, input.take(), input.take()};
        events.dispatch(std::span(report).first(input.take() % 16 == 0 ? 2 : 3));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    DeviceBench bench;
    bench.hid.missing = {VirtualKeyboard::eventInterface}; // reports are dispatched here, not by a thread
    DeviceEvents events{
        bench.protocol(), {bench.store, bench.macros, bench.files, bench.folder}, bench.owner};
    bench.link->InitDeviceLink();
    for (Input input(data, size); !input.empty();) {
        step(input, bench, events);
        bench.loop.runPosted();
    }
    bench.link->close();
    const bool saved = !bench.files.contents.empty();
    if (LoadMacroLibrary(bench.macros, bench.files, bench.folder) != saved) std::abort();
    return 0;
}
