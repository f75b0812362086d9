// Whether the desktop has a notification area: a StatusNotifierItem host (the freedesktop.org draft) on the
// session bus, or an XEmbed tray (freedesktop.org System Tray Protocol 0.3) on the display. Either may come
// and go.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>
#include <cstdint>
#include <functional>

namespace tarnix {

class TrayHost : public QObject, QAbstractNativeEventFilter {
  public:
    /// Looks for one without waiting for the answers. `appeared` is called when there is one, then and later;
    /// `vanished` when it has gone and none has come in its place for some seconds.
    TrayHost(std::function<void()> appeared, std::function<void()> vanished);
    ~TrayHost() override;

    bool isPresent() const { return m_notifierHost || m_xembedTray != 0; }

  private:
    void askNotifierWatcher();
    void setNotifierHost(bool present);
    void lookForXembedTray();
    bool nativeEventFilter(const QByteArray& type, void* event, qintptr* result) override;

    std::function<void()> m_appeared;
    QTimer m_absence;
    bool m_notifierHost = false;
    std::uint32_t m_xembedTray = 0; ///< its window; 0 without one
};

} // namespace tarnix
