#include "modal_runs.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QMouseEvent>
#include <algorithm>
#include <functional>
#include <vector>

#include "native_window.h"
#include "window_widget.h"
#include "x11.h"

namespace tarnix {

namespace {

struct Run {
    WindowHandle window = 0; ///< 0 for a dialog of the toolkit
    std::function<void()> stop;
    int result = IDCANCEL;
    bool ended = false;
};

std::vector<Run*> g_runs;

class Entry {
  public:
    explicit Entry(Run& run) { g_runs.push_back(&run); }
    ~Entry() { g_runs.pop_back(); }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
};

void end(Run& run, int result) {
    if (run.ended) return;
    run.ended = true;
    run.result = result;
    run.stop();
}

bool outerRunHasEnded() {
    return std::any_of(g_runs.begin(), g_runs.end(), [](const Run* run) { return run->ended; });
}

std::vector<Run*>::iterator runOf(const Window& window) {
    const WindowHandle handle = window.native()->handle;
    return std::find_if(g_runs.begin(), g_runs.end(),
                        [handle](const Run* run) { return handle != 0 && run->window == handle; });
}

bool isUsersWork(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Enter:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::InputMethod:
        case QEvent::ContextMenu:
        case QEvent::Drop:
        case QEvent::Close:
            return true;
        default:
            return false;
    }
}

void closeMenus() {
    while (QWidget* menu = QApplication::activePopupWidget()) {
        if (!menu->close()) break;
    }
}

} // namespace

int runModally(Window& window) {
    if (!window.exists()) return IDCANCEL;
    Window::Native& native = *window.native();
    Run run{native.handle, nullptr};
    if (native.modalResult) {
        run.result = *native.modalResult;
    } else if (!outerRunHasEnded()) {
        QEventLoop loop;
        run.stop = [&loop] { loop.quit(); };
        // The first run is the program itself, for the desktop an ordinary window.
        if (!g_runs.empty()) addInitialState(*native.widget, InitialState::Modal);
        const Entry entry(run);
        window.show();
        if (!run.ended) loop.exec();
    }
    if (Window* left = WindowRegistry::instance().find(run.window)) left->destroyWindow();
    return run.result;
}

bool runsModally(const Window& window) {
    const auto found = runOf(window);
    return found != g_runs.end() && !(*found)->ended;
}

void endModalRun(Window& window, int result) {
    const auto found = runOf(window);
    if (!window.native()->modalResult) window.native()->modalResult = result;
    if (found == g_runs.end()) return;
    closeMenus();
    for (auto inner = g_runs.end() - 1; inner != found; --inner)
        end(**inner, IDCANCEL);
    end(**found, result);
}

void endAllModalRuns() {
    closeMenus();
    for (auto run = g_runs.rbegin(); run != g_runs.rend(); ++run)
        end(**run, IDCANCEL);
}

Window* modalWindow() {
    return g_runs.empty() ? nullptr : WindowRegistry::instance().find(g_runs.back()->window);
}

bool isShutOut(const Window& window) {
    const Window* modal = modalWindow();
    return modal && modal != &window && !WindowRegistry::isOwnedBy(window, *modal);
}

bool isShutOut(QObject& receiver, QEvent& event) {
    if (!receiver.isWidgetType() || !isUsersWork(event.type())) return false;
    auto* widget = dynamic_cast<WindowWidget*>(static_cast<QWidget&>(receiver).window());
    if (!widget || !widget->window() || !isShutOut(*widget->window())) return false;
    // A press that opened the modal window, or was there before it, still has to end.
    if (event.type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent&>(event).button() == Qt::LeftButton)
        widget->cancelPress();
    event.ignore();
    return true;
}

bool runModally(QDialog& dialog) {
    if (outerRunHasEnded()) return false;
    Run run;
    run.stop = [&dialog] { dialog.reject(); };
    const Entry entry(run);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace tarnix
