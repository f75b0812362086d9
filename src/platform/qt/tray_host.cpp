#include "tray_host.h"

#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <utility>

#include "x11.h"

namespace tarnix {

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

/// Within it a desktop's panel that was restarted is back.
constexpr std::chrono::seconds longestRestart{5};

} // namespace

TrayHost::TrayHost(std::function<void()> appeared, std::function<void()> vanished)
    : m_appeared(std::move(appeared)) {
    m_absence.setSingleShot(true);
    m_absence.setInterval(longestRestart);
    m_absence.callOnTimeout(this, [this, vanished = std::move(vanished)] {
        if (!isPresent()) vanished();
    });
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto* watch = new QDBusServiceWatcher(watcherName, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watch, &QDBusServiceWatcher::serviceRegistered, this, [this] { askNotifierWatcher(); });
    connect(watch, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setNotifierHost(false); });
    // A host may register with the watcher later, or leave it.
    auto* ask = new QTimer(this);
    ask->setSingleShot(true);
    connect(ask, &QTimer::timeout, this, [this] { askNotifierWatcher(); });
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus.connect(watcherName, watcherPath, watcherName, QString::fromLatin1(signal), ask, SLOT(start()));
    askNotifierWatcher();
    QCoreApplication::instance()->installNativeEventFilter(this);
    QTimer::singleShot(0, this, [this] { lookForXembedTray(); });
}

TrayHost::~TrayHost() {
    if (QCoreApplication* application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
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
        setNotifierHost(reply.isValid() && reply.value().variant().toBool());
    });
}

void TrayHost::setNotifierHost(bool present) {
    if (std::exchange(m_notifierHost, present) && !present) m_absence.start();
    if (present) m_appeared();
}

void TrayHost::lookForXembedTray() {
    m_xembedTray = watchXembedTray();
    if (m_xembedTray != 0) m_appeared();
}

bool TrayHost::nativeEventFilter(const QByteArray& type, void* event, qintptr*) {
    if (type != "xcb_generic_event_t") return false;
    const int kind = static_cast<const xcb_generic_event_t*>(event)->response_type & 0x7F;
    // A tray that starts tells the root window's listeners.
    if (kind == XCB_CLIENT_MESSAGE) {
        const auto* message = static_cast<const xcb_client_message_event_t*>(event);
        if (announcesXembedTray(message->type, message->data.data32[1])) lookForXembedTray();
    }
    if (kind == XCB_DESTROY_NOTIFY) {
        const auto* destroyed = static_cast<const xcb_destroy_notify_event_t*>(event);
        if (destroyed->window == m_xembedTray) {
            m_xembedTray = 0;
            m_absence.start();
        }
    }
    return false;
}

} // namespace tarnix
