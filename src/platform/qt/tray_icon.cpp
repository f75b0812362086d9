#include <QAction>
#include <QMenu>
#include <QSystemTrayIcon>
#include <optional>
#include <utility>

#include "event_gate.h"
#include "picture.h"
#include "platform/shell.h"
#include "text_decoding.h"
#include "tray_host.h"
#include "window_widget.h"

namespace tarnix {

namespace {

/// Connects to the desktop after the first frame (the bus and the icon take 8 ms), and makes the toolkit's
/// icon once there is a notification area: the toolkit decides the kind of area once and for all at that
/// moment.
class QtTrayIcon : public TrayIcon {
  public:
    QtTrayIcon(const Image& icon, const std::string& tip, const std::vector<MenuItem>& items,
               Callbacks callbacks)
        : m_picture(iconOf(icon)), m_tip(decodeText(tip)), m_items(items), m_callbacks(std::move(callbacks)) {
        afterFirstPaint(m_context, [this] {
            m_host.emplace([this] { appear(); }, [this] { enter(m_callbacks.vanished); });
        });
    }

    bool available() const override { return m_icon && m_host && m_host->isPresent(); }

  private:
    void appear() {
        if (m_icon) return;
        fillMenu();
        m_icon.emplace(m_picture);
        m_icon->setToolTip(m_tip);
        m_icon->setContextMenu(&m_menu);
        QObject::connect(&*m_icon, &QSystemTrayIcon::activated, &m_context,
                         [this](QSystemTrayIcon::ActivationReason reason) { act(reason); });
        m_icon->show();
    }

    void fillMenu() {
        for (const MenuItem& item : m_items) {
            if (item.text.empty()) {
                m_menu.addSeparator();
                continue;
            }
            QAction* action = m_menu.addAction(decodeText(item.text));
            QObject::connect(action, &QAction::triggered, &m_context, [this, command = item.command] {
                enter([this, command] { m_callbacks.selected(command); });
            });
        }
    }

    /// A tray host on the bus has one "activate" and no double-click; an icon there has no place on the
    /// screen.
    void act(QSystemTrayIcon::ActivationReason reason) {
        const bool activate = reason == QSystemTrayIcon::Trigger && m_icon->geometry().isEmpty();
        if (activate || reason == QSystemTrayIcon::DoubleClick) enter([this] { m_callbacks.activated(); });
    }

    /// From the event loop: the toolkit's menu is still at work when it tells of a choice.
    void enter(std::function<void()> work) {
        EventGate::instance().post([alive = QPointer<QObject>(&m_context), work = std::move(work)] {
            if (alive) work();
        });
    }

    QIcon m_picture;
    QString m_tip;
    std::vector<MenuItem> m_items;
    Callbacks m_callbacks;
    QMenu m_menu;
    std::optional<QSystemTrayIcon> m_icon;
    std::optional<TrayHost> m_host;
    QObject m_context; ///< ends the connections first
};

} // namespace

std::unique_ptr<TrayIcon> makeTrayIcon(const Image& icon, const std::string& tip,
                                       const std::vector<MenuItem>& menu, TrayIcon::Callbacks callbacks) {
    return std::make_unique<QtTrayIcon>(icon, tip, menu, std::move(callbacks));
}

} // namespace tarnix
