#include "in_process/window_desk.h"

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <stdexcept>

namespace tarnix::bench {

namespace {

Application* g_application = nullptr;

bool isExposed() {
    const auto windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWindow* each) { return each->isVisible() && each->isExposed(); });
}

} // namespace

Application& application() {
    return *g_application;
}

void setApplication(Application* application) {
    g_application = application;
}

WindowDesk::WindowDesk(bool plugged) {
    if (!plugged) hid.unplug();
    if (!window.Create()) throw std::runtime_error("no window");
    window.show();
    while (!isExposed())
        waitTurn();
}

void WindowDesk::turn() {
    QCoreApplication::processEvents();
}

void WindowDesk::waitTurn() {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace tarnix::bench
