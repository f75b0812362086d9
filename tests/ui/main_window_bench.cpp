#include "main_window_bench.h"

#include <algorithm>
#include <utility>

#include "platform_qt/modal_runs.h"
#include "profile/numbers.h"

namespace tarnix {

namespace {

constexpr std::size_t shownBytes = 8; ///< of a report

std::string describe(const WireRecord& record) {
    std::string text = record.direction == WireDirection::Get ? "get" : "set";
    const std::size_t shown = record.direction == WireDirection::Get ? 1 : shownBytes;
    for (std::size_t i = 0; i < std::min(shown, record.report.size()); ++i) {
        text += ' ';
        appendHexByte(text, record.report[i]);
    }
    return text;
}

/// Tells that keys reach it.
class ObservedWindow : public CPelmoraDlg {
  public:
    ObservedWindow(const MainWindowSurroundings& surroundings, bool& hearsKeys)
        : CPelmoraDlg(surroundings), m_hearsKeys(hearsKeys) {}
    bool OnKey(const KeyPress& key) override {
        m_hearsKeys = true;
        return CPelmoraDlg::OnKey(key);
    }

  private:
    bool& m_hearsKeys;
};

Point centreOf(const Rect& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

} // namespace

MainWindowBench::MainWindowBench() {
    keyboard.onWire = [this](const WireRecord& record) {
        if (record.direction != WireDirection::Event) files.log.push_back(describe(record));
    };
    window = std::make_unique<ObservedWindow>(
        MainWindowSurroundings{store, macros, files, clock, hid, loop(), shell, presence, "/kbd/"},
        m_hearsKeys);
}

void MainWindowBench::open() {
    window->Create();
    window->show();
    awaitKeyboard();
    files.log.clear();
}

void MainWindowBench::awaitKeyboard() {
    // The desktop gives the keyboard some time after it has shown the window.
    m_hearsKeys = false;
    for (int i = 0; i < 50 && !m_hearsKeys; ++i) {
        testing::tapKey("Shift_L");
        testing::runUntil([&] { return m_hearsKeys; }, Milliseconds(100));
    }
    testing::settle();
}

Journal MainWindowBench::changes() {
    Journal all = std::exchange(files.log, {});
    std::erase_if(all, [](const std::string& line) {
        return line.starts_with("read ") || line.starts_with("set aside ");
    });
    return all;
}

bool MainWindowBench::answered(const std::function<void()>& work,
                               const std::function<void(CDlgBase&)>& answer) {
    bool shown = false;
    answerNext([&](CDlgBase& dialog) {
        shown = true;
        answer(dialog);
    });
    work();
    m_nextLook.reset();
    return shown;
}

void MainWindowBench::answerNext(const std::function<void(CDlgBase&)>& answer) {
    m_nextLook = loop().after(Milliseconds(5), [this, answer] {
        auto* dialog = dynamic_cast<CDlgBase*>(modalWindow());
        const bool shown = dialog && dialog != window.get();
        answerNext(answer);
        if (shown) answer(*dialog);
    });
}

bool MainWindowBench::clickAndAnswer(unsigned control, unsigned inDialog) {
    return answered([&] { click(control); },
                    [=, this](CDlgBase& dialog) {
                        const Point middle = centreOf(window->screenRect());
                        EXPECT_EQ(centreOf(dialog.screenRect()).x, middle.x);
                        EXPECT_NEAR(centreOf(dialog.screenRect()).y, middle.y, 1);
                        clickControl(dialog, inDialog);
                    });
}

CListPopup& MainWindowBench::list(PopupPlace place) {
    return dynamic_cast<CListPopup&>(*window->popups().at(place));
}

void MainWindowBench::point(PopupPlace place, std::size_t row) {
    CListPopup& popup = list(place);
    popup.OnMouseMove(0, centreOf(popup.rows().at(row).rect));
}

void MainWindowBench::choose(PopupPlace place, std::size_t row) {
    CListPopup& popup = list(place);
    clickAt(popup, centreOf(popup.rows().at(row).rect));
    testing::settle();
}

} // namespace tarnix
