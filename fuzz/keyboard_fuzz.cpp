// The device link and the event dispatch with a keyboard behind them that holds anything, sends anything, and
// fails, leaves and returns at any request. Whatever it does, the program's files stay readable and small.
#include <algorithm>
#include <cstdlib>

#include "device/device_events.h"
#include "device/device_link.h"
#include "macro/macro_files.h"
#include "profile/profile_file.h"
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
    void launchGKeyUrl(const std::string& url) override {
        if (url.empty()) std::abort();
    }
    void onMacrosChanged() override {}
    void showDisconnectedNotice() override {}
};

/// A keyboard and a program; the input says what happens.
class Play {
  public:
    explicit Play(std::span<const std::uint8_t> input) : m_input(input) {
        resetMacroLibrary(macros);
        for (int n = 0; n < profileCount; ++n) {
            store.ResetProfile(n);
            store.SetSlotPath(n, std::string(1, static_cast<char>('0' + n)));
        }
        hid.missing = {VirtualKeyboard::eventInterface}; // reports are dispatched here, not by a thread
        link.InitDeviceLink();
    }

    void run() {
        while (!m_input.empty())
            step();
        link.close();
        const bool saved = !files.contents.empty();
        MacroLibrary read;
        if (LoadMacroLibrary(read, files, folder) != saved) std::abort();
    }

  private:
    std::uint8_t byte() {
        if (m_input.empty()) return 0;
        const std::uint8_t first = m_input[0];
        m_input = m_input.subspan(1);
        return first;
    }
    /// Puts some of the input at some place.
    void poke(std::span<std::uint8_t> bytes) {
        const std::size_t start = byte() % bytes.size();
        const std::size_t length = std::min({bytes.size() - start, std::size_t{byte()}, m_input.size()});
        std::copy_n(m_input.begin(), length, bytes.begin() + start);
        m_input = m_input.subspan(length);
    }
    void step() {
        KeyboardProfile& profile = keyboard.profiles[byte() % 3];
        KeyboardMacro& macro = profile.macros[byte() % 6];
        std::array<std::uint8_t, 24> name{};
        switch (byte() % 12) {
            case 0:
                poke(profile.lighting);
                break;
            case 1:
                poke(profile.keyCodes);
                break;
            case 2:
                poke(profile.gKeys);
                break;
            case 3:
                poke(macro.steps);
                break;
            case 4:
                poke(name);
                macro.name = std::string(name.begin(), name.end());
                break;
            case 5:
                macro.stepCount = byte();
                macro.loopCount = byte();
                break;
            case 6:
                keyboard.activeProfile = byte();
                break;
            case 7:
                keyboard.failRequest(byte());
                break;
            case 8:
                keyboard.faultAtRequest(byte(), [this] {
                    hid.unplug();
                    return true;
                });
                break;
            case 9:
                hid.plugIn();
                hid.tell(byte() % 2 == 0 ? HidChange::Arrival : HidChange::Removal);
                break;
            case 10:
                for (int row = byte(); row >= 0; --row)
                    link.pending().mark(row, byte());
                link.FlushPendingWrites();
                break;
            default: {
                const std::array<std::uint8_t, 3> report{0, byte(), byte()};
                events.dispatch(std::span(report).first(byte() % 4));
            }
        }
    }

    std::span<const std::uint8_t> m_input;
    FakeClock clock;
    VirtualKeyboard keyboard{clock};
    VirtualHid hid{keyboard};
    ImmediateLoop loop;
    MemoryFiles files;
    ProfileStore store;
    MacroLibrary macros;
    std::string folder = "/";
    SilentOwner owner;
    DeviceLink link{{hid, clock, loop, {store, macros, files, folder}, owner}};
    DeviceEvents events{link.protocol(), {store, macros, files, folder}, owner};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Play(std::span(data, size)).run();
    return 0;
}
