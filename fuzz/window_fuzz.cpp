// The main window's message table: any message with any words, to the window and to whatever dialog it has
// opened, between presses, keys and events of the keyboard. Run it with QT_QPA_PLATFORM=offscreen.
#include <memory>

#include "input.h"
#include "platform/application.h"
#include "platform_qt/modal_runs.h"
#include "support/fake_clock.h"
#include "support/memory_files.h"
#include "support/prepared_shell.h"
#include "ui/messages.h"
#include "ui/pelmora_dlg.h"
#include "virtual/virtual_hid.h"

using namespace tarnix;

namespace {

Application* application;

class Play : PreparedShell, DesktopPresence {
  public:
    explicit Play(const Input& input) : m_input(input) {
        m_hid.missing = {VirtualKeyboard::eventInterface};
        goOn();
        m_window.DoModal();
    }

  private:
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
        Window& target = modal != nullptr && m_input.flag() ? *modal : m_window;
        const std::uint8_t choice = m_input.take() % 8;
        const Point at{m_input.take<std::uint16_t>() % 900, m_input.take<std::uint16_t>() % 600};
        if (choice == 0) {
            target.OnMouseMove(0, at);
            target.OnLButtonDown(1, at);
            target.OnLButtonUp(0, at);
        } else if (choice == 1) {
            target.OnKey({static_cast<KeyPress::Key>(at.x % 5), m_input.flag()});
        } else if (choice == 2) {
            target.OnMouseWheel(m_input.take<std::int16_t>(), at);
        } else if (choice == 3) {
            m_keyboard.setPluggedIn(m_input.flag());
            m_hid.tell(m_input.flag() ? HidChange::Arrival : HidChange::Removal);
        } else {
            target.send(number(), word(), static_cast<LParam>(word()));
        }
    }
    /// Mostly a number that means something.
    Message number() {
        const auto seed = m_input.take<std::uint16_t>();
        if (seed % 8 == 0) return m_input.take<Message>();
        return seed % 2 == 0 ? 0x400 + seed / 8 % 0x40 : id::closeButton + seed / 8 % 310;
    }
    WParam word() {
        const std::uint8_t seed = m_input.take();
        if (seed % 4 == 0) return m_input.take<WParam>();
        if (seed % 4 == 1) return id::closeButton + m_input.take<std::uint16_t>() % 310;
        return static_cast<WParam>(seed / 4 - 3);
    }
    std::optional<std::string> openFile(const FileDialog&, Window&) override {
        if (m_input.flag()) return std::nullopt;
        return m_input.flag() ? "/kbd/config\\default1.psf" : "/kbd/config\\MacroLibraryFile.mlf";
    }
    void AddTrayIcon(Window&) override {}
    void RemoveTrayIcon() override {}
    bool isTrayShown() const override { return true; }
    void OnDeviceEvent(WParam) override {}
    void OnTimer(unsigned) override {}

    Input m_input;
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
    if (size > 0) Play(Input(data, size));
    return 0;
}
