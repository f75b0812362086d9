// The device link and the event dispatch with a keyboard behind them that holds anything, sends anything, and
// fails, leaves and returns at any request. Whatever it does, the macro library stays a file that can be
// read.
#include <cstdlib>
#include <vector>

#include "device/device_events.h"
#include "device/device_link.h"
#include "input.h"
#include "macro/macro_files.h"
#include "support/fake_clock.h"
#include "support/memory_files.h"
#include "virtual/virtual_hid.h"

using namespace tarnix;

namespace {

struct ImmediateLoop : MainLoop {
    std::unique_ptr<Subscription> watch(int, std::function<void()>) override { return nullptr; }
    std::unique_ptr<Subscription> after(Milliseconds, std::function<void()>) override { return nullptr; }
    void post(std::function<void()> work) override { work(); }
};

struct SilentOwner : DeviceObserver {
    void ShowCurrentProfile() override {}
    void onDeviceEvent(DeviceEvent) override {}
    void launchGKeyUrl(const std::string&) override {}
    void onMacrosChanged() override {}
    void showDisconnectedNotice() override {}
};

void step(Input& input, VirtualKeyboard& keyboard, VirtualHid& hid, DeviceLink& link, DeviceEvents& events) {
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
            link.pending().mark(row, input.take());
        link.FlushPendingWrites();
    } else {
        const std::uint8_t report[]{0, input.take(), input.take()};
        events.dispatch(std::span(report).first(input.take() % 16 == 0 ? 2 : 3));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FakeClock clock;
    VirtualKeyboard keyboard{clock};
    VirtualHid hid{keyboard};
    hid.missing = {VirtualKeyboard::eventInterface}; // reports are dispatched here, not by a thread
    ImmediateLoop loop;
    MemoryFiles files;
    ProfileStore store;
    MacroLibrary macros;
    const std::string folder = "/";
    SilentOwner owner;
    DeviceLink link{{hid, clock, loop, {store, macros, files, folder}, owner}};
    DeviceEvents events{link.protocol(), {store, macros, files, folder}, owner};

    resetMacroLibrary(macros);
    for (int n = 0; n < profileCount; ++n)
        store.ResetProfile(n);
    link.InitDeviceLink();
    for (Input input(data, size); !input.empty();)
        step(input, keyboard, hid, link, events);
    link.close();
    const bool saved = !files.contents.empty();
    if (LoadMacroLibrary(macros, files, folder) != saved) std::abort();
    return 0;
}
