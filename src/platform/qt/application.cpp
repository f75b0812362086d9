#include "platform/application.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QApplication>
#include <QPixmapCache>
#include <QWindow>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

#include "accessibility.h"
#include "activation.h"
#include "event_gate.h"
#include "modal_runs.h"
#include "qt_main_loop.h"
#include "ui_clock.h"

namespace tarnix {

namespace {

/// Gives an environment variable another value, or none, for a while.
class TemporaryVariable {
  public:
    TemporaryVariable(const char* name, const char* value) : m_name(name) {
        if (const char* now = std::getenv(name)) m_before = now;
        set(value);
    }
    ~TemporaryVariable() { set(m_before ? m_before->c_str() : nullptr); }
    TemporaryVariable(const TemporaryVariable&) = delete;
    TemporaryVariable& operator=(const TemporaryVariable&) = delete;

  private:
    void set(const char* value) {
        if (value) {
            setenv(m_name, value, 1);
        } else {
            unsetenv(m_name);
        }
    }

    const char* m_name;
    std::optional<std::string> m_before;
};

/// X11 first, through XWayland in a Wayland session: placing windows and system-wide keys need it.
const char* platformNames() {
    const char* chosen = std::getenv("QT_QPA_PLATFORM");
    const char* display = std::getenv("DISPLAY");
    if (chosen || !display || !*display) return chosen;
    return "xcb;wayland";
}

/// The windows are painted by the program, so the desktop's theme would be loaded (40 ms for GTK) and not be
/// seen. The toolkit finds it by these variables.
std::unique_ptr<QApplication> makeApplication(int& argc, char** argv) {
    const TemporaryVariable platform("QT_QPA_PLATFORM", platformNames());
    const TemporaryVariable desktop("XDG_CURRENT_DESKTOP", nullptr);
    const TemporaryVariable session("DESKTOP_SESSION", nullptr);
    const TemporaryVariable kde("KDE_FULL_SESSION", nullptr);
    const TemporaryVariable gnome("GNOME_DESKTOP_SESSION_ID", nullptr);
    QApplication::setDesktopSettingsAware(false);
    auto application = std::make_unique<QApplication>(argc, argv);
    // A picture in the toolkit's cache is looked at every 30 s; the icons alone would go there.
    QPixmapCache::setCacheLimit(0);
    return application;
}

int g_endSignals = -1; ///< an event descriptor that the signals raise

void raiseEnd(int) {
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(g_endSignals, &one, sizeof one);
}

} // namespace

/// Also looks at every event on its way: the session manager's end comes to the application object, and modal
/// runs shut windows out.
struct Application::Native : QObject {
    Native(int& argc, char** argv) : application(makeApplication(argc, argv)) {
        QApplication::setQuitOnLastWindowClosed(false);
        offerAccessibility();
        application->installEventFilter(this);
        QObject::connect(application.get(), &QGuiApplication::focusWindowChanged, this,
                         [] { EventGate::instance().enter([] { Activation::instance().focusMoved(); }); });
        listenToSignals();
    }
    ~Native() override {
        for (const int number : {SIGTERM, SIGINT, SIGHUP})
            std::signal(number, SIG_DFL);
        endSignals.reset();
        close(std::exchange(g_endSignals, -1));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void listenToSignals() {
        g_endSignals = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
        endSignals = loop.watch(g_endSignals, [this] {
            std::uint64_t count = 0;
            if (read(g_endSignals, &count, sizeof count) == sizeof count) requestQuit();
        });
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            struct sigaction action {};
            action.sa_handler = raiseEnd;
            action.sa_flags = SA_RESTART;
            sigaction(number, &action, nullptr);
        }
    }

    void requestQuit() {
        if (quitRequest) {
            quitRequest();
        } else {
            endAllModalRuns();
        }
    }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() != QEvent::Quit) return isShutOut(*receiver, *event);
        EventGate::instance().enter([this] { requestQuit(); });
        return true;
    }

    std::unique_ptr<QApplication> application;
    EventGate gate;
    QtMainLoop loop;
    UiClock clock;
    std::function<void()> quitRequest;
    std::unique_ptr<MainLoop::Subscription> endSignals;
};

Application::Application(int& argc, char** argv) : m_native(std::make_unique<Native>(argc, argv)) {}
Application::~Application() = default;

MainLoop& Application::mainLoop() {
    return m_native->loop;
}

Clock& Application::clock() {
    return m_native->clock;
}

void Application::onQuitRequest(std::function<void()> callback) {
    m_native->quitRequest = std::move(callback);
}

} // namespace tarnix
