#include "tray_host.h"

#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QTimer>
#include <utility>

#include "x11.h"

namespace tarnix {

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

TrayHost::TrayHost(std::function<void()> appeared) : m_appeared(std::move(appeared)) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto* watch = new QDBusServiceWatcher(watcherName, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watch, &QDBusServiceWatcher::serviceRegistered, this, [this] { askNotifierWatcher(); });
    connect(watch, &QDBusServiceWatcher::serviceUnregistered, this, [this] { m_notifierHost = false; });
    // The host may register with the watcher later.
    auto* ask = new QTimer(this);
    ask->setSingleShot(true);
    connect(ask, &QTimer::timeout, this, [this] { askNotifierWatcher(); });
    bus.connect(watcherName, watcherPath, watcherName, QStringLiteral("StatusNotifierHostRegistered"), ask,
                SLOT(start()));
    askNotifierWatcher();
    QCoreApplication::instance()->installNativeEventFilter(this);
    QTimer::singleShot(0, this, [this] {
        if (xembedTrayRuns()) m_appeared();
    });
}

TrayHost::~TrayHost() {
    if (QCoreApplication* application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

bool TrayHost::isPresent() const {
    return m_notifierHost || xembedTrayRuns();
}

void TrayHost::askNotifierWatcher() {
    auto message = QDBusMessage::createMethodCall(
        watcherName, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << watcherName << QStringLiteral("IsStatusNotifierHostRegistered");
    message.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        m_notifierHost = reply.isValid() && reply.value().variant().toBool();
        if (m_notifierHost) m_appeared();
    });
}

bool TrayHost::nativeEventFilter(const QByteArray& type, void* event, qintptr*) {
    // A tray that starts tells the root window's listeners.
    if (type != "xcb_generic_event_t") return false;
    const auto* generic = static_cast<const xcb_generic_event_t*>(event);
    if ((generic->response_type & 0x7F) != XCB_CLIENT_MESSAGE) return false;
    const auto* message = static_cast<const xcb_client_message_event_t*>(event);
    if (announcesXembedTray(message->type, message->data.data32[1])) m_appeared();
    return false;
}

} // namespace tarnix
