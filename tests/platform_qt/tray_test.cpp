#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QThread>
#include <mutex>

#include "platform/builtin_resources.h"
#include "platform/shell.h"
#include "window_fixture.h"

namespace tarnix::testing {
namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");

/// A desktop's notification area on the session bus. It answers on a thread of its own: the toolkit waits for
/// it.
class NotificationArea : public QDBusVirtualObject {
  public:
    NotificationArea() : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "area")) {
        moveToThread(&m_thread);
        m_thread.start();
        m_bus.registerVirtualObject(QStringLiteral("/StatusNotifierWatcher"), this);
        m_bus.registerService(watcherName);
    }
    ~NotificationArea() override {
        m_bus.unregisterService(watcherName);
        m_bus.unregisterObject(QStringLiteral("/StatusNotifierWatcher"));
        m_thread.quit();
        m_thread.wait();
        QDBusConnection::disconnectFromBus("area");
    }

    QString introspect(const QString&) const override {
        return QStringLiteral(
            "<interface name='org.kde.StatusNotifierWatcher'>"
            "<property name='IsStatusNotifierHostRegistered' type='b' access='read'/>"
            "<method name='RegisterStatusNotifierItem'><arg type='s'/></method></interface>");
    }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() == "Get") {
            connection.send(message.createReply(QVariant::fromValue(QDBusVariant(true))));
        } else if (message.member() == "RegisterStatusNotifierItem") {
            {
                const std::lock_guard lock(m_mutex);
                m_item = message.arguments().at(0).toString();
            }
            connection.send(message.createReply());
        } else {
            return false;
        }
        return true;
    }

    /// The bus name of the icon; empty before it came.
    QString item() {
        const std::lock_guard lock(m_mutex);
        return m_item;
    }
    void tell(const char* what) {
        auto message = QDBusMessage::createMethodCall(item(), "/StatusNotifierItem", itemInterface, what);
        message << 0 << 0;
        m_bus.send(message);
    }
    /// Chooses an entry of the icon's menu; the toolkit numbers them 1 to 3 in an order of its own.
    void choose(int entry) {
        auto message = QDBusMessage::createMethodCall(item(), "/MenuBar", "com.canonical.dbusmenu", "Event");
        message << entry << QStringLiteral("clicked") << QVariant::fromValue(QDBusVariant(0)) << 0u;
        m_bus.send(message);
    }

  private:
    std::mutex m_mutex;
    QString m_item;
    QThread m_thread;
    QDBusConnection m_bus;
};

class Tray : public WindowTest {
  protected:
    void SetUp() override { showMain(m_window); }
    std::unique_ptr<TrayIcon> make() {
        static constexpr std::uint32_t pixel = 0xFF00FF00;
        m_picture = makeImage({.width = 1,
                               .height = 1,
                               .data = reinterpret_cast<const unsigned char*>(&pixel),
                               .size = sizeof pixel});
        return makeTrayIcon(
            *m_picture, "Tip", {{"Show", 2075}, {}, {"Exit", 2}},
            {.activated = [this] { m_log.push_back("activated"); },
             .selected = [this](unsigned id) { m_log.push_back("chose " + std::to_string(id)); }});
    }

    RecordingWindow m_window{"", m_log};
    std::unique_ptr<Image> m_picture;
};

TEST_F(Tray, AnAreaThatStartsLaterGetsTheIconAndItsClicksWaitForThePauseToEnd) {
    const auto icon = make();
    settle();
    EXPECT_FALSE(icon->available());
    {
        NotificationArea area;
        ASSERT_TRUE(runUntil([&] { return icon->available() && !area.item().isEmpty(); }));
        area.tell("Activate");
        application().clock().pause(std::chrono::milliseconds{100});
        EXPECT_THAT(m_log, IsEmpty());
        EXPECT_TRUE(logged("activated"));
        EXPECT_EQ(m_log.size(), 1u);
        for (const int entry : {1, 2, 3})
            area.choose(entry);
        EXPECT_TRUE(logged("chose 2") && logged("chose 2075"));
        EXPECT_EQ(m_log.size(), 3u) << "the separator is no choice";
    }
    EXPECT_TRUE(runUntil([&] { return !icon->available(); })) << "the area is gone";
}

} // namespace
} // namespace tarnix::testing
