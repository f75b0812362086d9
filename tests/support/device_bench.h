// A device link on the bench: the virtual keyboard below it, a clock and files that obey, and an owner that
// notes what it is told.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "device/device_link.h"
#include "profile/numbers.h"
#include "support/fake_clock.h"
#include "support/memory_files.h"
#include "support/queue_loop.h"
#include "virtual/virtual_hid.h"
#include "virtual/virtual_keyboard.h"

namespace tarnix {

using Words = std::vector<std::string>;

class NotingOwner : public DeviceObserver {
  public:
    explicit NotingOwner(const ProfileStore& store) : m_store(store) {}
    Words told;

    void ShowCurrentProfile() override { told.push_back("show " + m_store.GetConfig(0, PairText::Value)); }
    void onDeviceEvent(DeviceEvent event) override {
        told.push_back("event " + toText(static_cast<int>(event)));
    }
    void launchGKeyUrl(const std::string& url) override { told.push_back("launch " + url); }
    void onMacrosChanged() override { told.push_back("macros"); }
    void showDisconnectedNotice() override { told.push_back("notice"); }

  private:
    const ProfileStore& m_store;
};

class DeviceBench {
  public:
    FakeClock clock;
    VirtualKeyboard keyboard{clock};
    VirtualHid hid{keyboard};
    QueueLoop loop;
    MemoryFiles files;
    ProfileStore store;
    MacroLibrary macros;
    std::string folder = "/kbd/";
    NotingOwner owner{store};
    std::unique_ptr<DeviceLink> link;

    DeviceBench() {
        resetMacroLibrary(macros);
        for (int n = 0; n < profileCount; ++n) {
            store.ResetProfile(n);
            store.SetSlotPath(n, "p" + toText(n));
        }
        makeLink();
    }

    /// A new one, as after a new start of the program.
    void makeLink() {
        link.reset();
        DeviceLink::Surroundings surroundings{hid, clock, loop, {store, macros, files, folder}, owner};
        link = std::make_unique<DeviceLink>(surroundings);
    }

    FeatureProtocol& protocol() { return link->protocol(); }

    /// What the main window does at its start.
    void start() {
        link->InitDeviceLink();
        link->FindDevice();
        link->ReadDeviceState();
    }
    void startQuietly() {
        start();
        keyboard.clearWireLog();
        clock.pauses.clear();
        owner.told.clear();
    }
    void unplug() {
        hid.unplug();
        hid.tell(HidChange::Removal);
        loop.runPosted();
    }
    void replug() {
        hid.plugIn();
        hid.tell(HidChange::Arrival);
    }

    Words told() { return std::exchange(owner.told, {}); }
    /// Sends an event report and tells what came of it.
    Words event(std::uint8_t code, std::uint8_t value) {
        keyboard.emit(code, value);
        return settle();
    }
    /// Lets the event reports so far take effect: two more, which do nothing but be told, mark the end.
    Words settle() {
        keyboard.lockAllKeys(false);
        keyboard.lockAllKeys(true);
        const Words& all = owner.told;
        const auto marked = [&] {
            return all.size() > 1 && all.end()[-2] == "event 6" && all.back() == "event 7";
        };
        if (loop.runUntil(marked)) owner.told.resize(owner.told.size() - 2);
        return told();
    }

    /// The requests since the last call: "07?" is a get of report 7, "07 1" its set for profile index 1,
    /// "08 1.2" a macro's set for slot 2, "04 1.2" the selection of both, "05 7" the active profile; "!"
    /// where it was refused.
    Words requests() {
        Words all;
        for (const WireRecord& record : keyboard.wireLog()) {
            if (record.direction == WireDirection::Event) continue;
            const auto& bytes = record.report;
            const auto number = [&](std::size_t i) { return toText(bytes[i]); };
            std::string text = "0" + number(0);
            if (record.direction == WireDirection::Get)
                text += '?';
            else if (bytes[0] == 4)
                text += ' ' + number(1) + '.' + number(2);
            else
                text += ' ' + number(2) + (bytes[0] == 8 ? '.' + number(3) : "");
            all.push_back(record.accepted ? text : text + '!');
        }
        keyboard.clearWireLog();
        return all;
    }

    std::vector<int> pauses() {
        std::vector<int> all;
        for (const auto pause : std::exchange(clock.pauses, {}))
            all.push_back(static_cast<int>(pause.count()));
        return all;
    }
};

} // namespace tarnix
