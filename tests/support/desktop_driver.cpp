#include "support/desktop_driver.h"

#include <gmock/gmock.h>
#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QTimer>
#include <QtMath>
#include <cstdlib>

#include "platform_qt/native_window.h"
#include "platform_qt/window_widget.h"

namespace tarnix::testing {

namespace {

Application* g_application = nullptr;

/// The tool returns once the display has taken the events.
void hand(const QStringList& arguments) {
    QProcess::execute(QStringLiteral("xdotool"), arguments);
}

QStringList move(Point screen) {
    const qreal scale = qGuiApp->devicePixelRatio();
    return {QStringLiteral("mousemove"), QString::number(qCeil(screen.x * scale)),
            QString::number(qCeil(screen.y * scale))};
}

/// A round trip: whatever the display had for this program is in its queue afterwards.
void askDisplay() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    const auto cookie = xcb_get_input_focus(x11->connection());
    std::free(xcb_get_input_focus_reply(x11->connection(), cookie, nullptr));
}

} // namespace

Application& application() {
    return *g_application;
}

bool runUntil(const std::function<bool()>& condition, std::chrono::milliseconds atMost) {
    QTimer wake;
    wake.start(5);
    QElapsedTimer time;
    time.start();
    while (!condition()) {
        if (time.elapsed() > atMost.count()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

bool hasKeyboard(const Window& window) {
    const QWindow* native = window.native()->widget->windowHandle();
    return runUntil([&] { return QGuiApplication::focusWindow() == native; });
}

std::string focusedText() {
    return QGuiApplication::focusObject()->property("text").toString().toStdString();
}

void settle() {
    for (int round = 0; round < 5; ++round) {
        askDisplay();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void movePointer(Point screen) {
    hand(move(screen));
}

void pressButton(int button) {
    hand({"mousedown", QString::number(button)});
}

void releaseButton(int button) {
    hand({"mouseup", QString::number(button)});
}

void click(Point screen) {
    hand(move(screen) + QStringList{"click", "1"});
}

void doubleClick(Point screen) {
    hand(move(screen) + QStringList{"click", "--repeat", "2", "--delay", "20", "1"});
}

void turnWheel(bool up) {
    hand({"click", up ? "4" : "5"});
}

void tapKey(const std::string& name) {
    hand({"key", QString::fromStdString(name)});
}

void typeText(const std::string& text) {
    hand({"type", "--delay", "2", QString::fromStdString(text)});
}

std::shared_ptr<void> anotherProgram() {
    xcb_connection_t* x11 = xcb_connect(nullptr, nullptr);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(x11)).data;
    const xcb_window_t window = xcb_generate_id(x11);
    const std::uint32_t unmanaged = 1;
    xcb_create_window(x11, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_OVERRIDE_REDIRECT,
                      &unmanaged);
    xcb_map_window(x11, window);
    xcb_set_input_focus(x11, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    std::free(xcb_get_input_focus_reply(x11, xcb_get_input_focus(x11), nullptr));
    return {x11, [](void* connection) { xcb_disconnect(static_cast<xcb_connection_t*>(connection)); }};
}

} // namespace tarnix::testing

// Of the test programs that link the driver: one connection to the desktop for all tests.
int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    tarnix::Application application(argc, argv);
    tarnix::testing::g_application = &application;
    return RUN_ALL_TESTS();
}
