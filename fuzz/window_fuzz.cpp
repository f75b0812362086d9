// The main window's message table: any message with any words, to the window and to whatever dialog it has
// opened, between presses, keys and events of the keyboard. Run it with QT_QPA_PLATFORM=offscreen.
#include <array>
#include <cstring>
#include <memory>
#include <span>

#include "platform/application.h"
#include "platform_qt/modal_runs.h"
#include "support/fake_clock.h"
#include "support/memory_files.h"
#include "ui/messages.h"
#include "ui/pelmora_dlg.h"
#include "virtual/virtual_hid.h"

using namespace tarnix;

namespace {

Application* application;

class Play : Shell, DesktopPresence {
  public:
    explicit Play(std::span<const std::uint8_t> input) : m_input(input) {
        m_hid.missing = {VirtualKeyboard::eventInterface};
        goOn();
        m_window.DoModal();
    }

  private:
    template <class T>
    T take() {
        T value{};
        const std::size_t length = std::min(sizeof value, m_input.size());
        std::memcpy(&value, m_input.data(), length);
        m_input = m_input.subspan(length);
        return value;
    }

    /// Also when the window has gone before the input's end.
    void goOn() {
        application->mainLoop().post([play = std::weak_ptr(m_self)] {
            if (const auto alive = play.lock()) (*alive)->step();
        });
    }
    /// Goes on inside whatever the step has opened. The end of the input ends it all.
    void step() {
        if (m_input.empty()) return m_window.endModal(IDCANCEL);
        goOn();
        Window* modal = modalWindow();
        Window& target = take<std::uint8_t>() % 4 == 0 && modal != nullptr ? *modal : m_window;
        switch (take<std::uint8_t>() % 8) {
            case 0:
                return press(target);
            case 1:
                target.OnKey(
                    {static_cast<KeyPress::Key>(take<std::uint8_t>() % 5), take<std::uint8_t>() % 2 == 0});
                return;
            case 2:
                return target.OnMouseWheel(take<std::int16_t>(), place());
            case 3:
                return target.OnTimer(take<std::uint8_t>());
            case 4:
                m_hid.tell(take<std::uint8_t>() % 2 == 0 ? HidChange::Arrival : HidChange::Removal);
                return;
            case 5:
                m_keyboard.setPluggedIn(take<std::uint8_t>() % 2 == 0);
                return;
            default:
                target.send(number(), word(), static_cast<LParam>(word()));
        }
    }
    Point place() { return {take<std::int16_t>() % 900, take<std::int16_t>() % 600}; }
    void press(Window& target) {
        const Point at = place();
        target.OnMouseMove(0, at);
        target.OnLButtonDown(1, at);
        target.OnLButtonUp(0, at);
    }
    /// Mostly a number that means something.
    Message number() {
        const auto seed = take<std::uint16_t>();
        if (seed % 8 == 0) return take<Message>();
        return seed % 2 == 0 ? 0x400 + seed / 8 % 0x40 : id::closeButton + seed / 8 % 310;
    }
    WParam word() {
        const auto seed = take<std::uint8_t>();
        if (seed % 4 == 0) return take<WParam>();
        return seed % 4 == 1 ? id::closeButton + take<std::uint16_t>() % 310
                             : static_cast<WParam>(seed / 4 - 3);
    }
    std::optional<std::string> path() {
        const std::string paths[]{"/kbd/config\\default1.psf", "/kbd/config\\MacroLibraryFile.mlf", "/x", ""};
        const auto seed = take<std::uint8_t>() % 5;
        return seed == 4 ? std::nullopt : std::optional(paths[seed]);
    }

    void messageBox(const std::string&) override {}
    std::optional<std::string> openFile(const FileDialog&, Window&) override { return path(); }
    std::optional<std::string> saveFile(const FileDialog&, Window&) override { return path(); }
    void openLink(const std::string&) override {}
    void launch(const std::string&) override {}
    void AddTrayIcon(Window&) override {}
    void RemoveTrayIcon() override {}
    bool isTrayShown() const override { return true; }
    void OnDeviceEvent(WParam) override {}
    void OnTimer(unsigned) override {}

    std::span<const std::uint8_t> m_input;
    std::shared_ptr<Play*> m_self = std::make_shared<Play*>(this);
    FakeClock m_clock;
    VirtualKeyboard m_keyboard{m_clock};
    VirtualHid m_hid{m_keyboard};
    MemoryFiles m_files;
    ProfileStore m_store;
    MacroLibrary m_macros;
    CPelmoraDlg m_window{
        {m_store, m_macros, m_files, m_clock, m_hid, application->mainLoop(), *this, *this, "/kbd/"}};
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    application = new Application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) Play(std::span(data, size));
    return 0;
}
