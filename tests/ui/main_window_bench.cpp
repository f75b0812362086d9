#include "main_window_bench.h"

#include <utility>

#include "virtual/report_log.h"

namespace tarnix {

MainWindowBench::MainWindowBench() {
    keyboard.onWire = [this](const WireRecord& record) {
        if (record.direction != WireDirection::Event)
            files.log.push_back(describeReport(record.direction, record.report));
    };
    window = std::make_unique<CPelmoraDlg>(MainWindowSurroundings{
        store, macros, files, clock, hid, testing::application().mainLoop(), shell, presence, "/kbd/"});
}

Journal MainWindowBench::changes() {
    Journal all = std::exchange(files.log, {});
    std::erase_if(all, [](const std::string& line) {
        return line.starts_with("read ") || line.starts_with("set aside ");
    });
    return all;
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
