// What the device link tells its owner. All calls come on the user-interface thread.
#pragma once

#include <string>

namespace tarnix {

/// What the on-screen display is asked to tell; the numbers are the words of the owner's WM_DEVICE_EVENT
/// message.
enum class DeviceEvent {
    Profile1 = 1,
    Profile2 = 2,
    Profile3 = 3,
    WindowsKeyDisabled = 4,
    WindowsKeyEnabled = 5,
    AllKeysDisabled = 6,
    AllKeysEnabled = 7,
};

class DeviceObserver {
  public:
    virtual ~DeviceObserver() = default;
    /// The current profile, or what it holds, has changed: display it.
    virtual void ShowCurrentProfile() = 0;
    /// To be posted to the window, never handled within the call.
    virtual void onDeviceEvent(DeviceEvent event) = 0;
    /// A G-key asks for its program, document or address; the text is as the user gave it and is never empty.
    virtual void launchGKeyUrl(const std::string& url) = 0;
    /// Macros of the main library were added or replaced.
    virtual void onMacrosChanged() = 0;
    /// The keyboard was unplugged. Called from the loop and may be modal: the link goes on working meanwhile,
    /// and calls this again only after it has returned.
    virtual void showDisconnectedNotice() = 0;
};

} // namespace tarnix
