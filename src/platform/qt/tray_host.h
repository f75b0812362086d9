// Whether the desktop has a notification area: a StatusNotifierItem host (the freedesktop.org draft) on the
// session bus, or an XEmbed tray (freedesktop.org System Tray Protocol 0.3) on the display. Either may come
// and go.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <functional>

namespace tarnix {

class TrayHost : public QObject, QAbstractNativeEventFilter {
  public:
    /// Looks for one without waiting for the answers. `appeared` is called when there is one, then and later.
    explicit TrayHost(std::function<void()> appeared);
    ~TrayHost() override;

    bool isPresent() const;

  private:
    void askNotifierWatcher();
    bool nativeEventFilter(const QByteArray& type, void* event, qintptr* result) override;

    std::function<void()> m_appeared;
    bool m_notifierHost = false;
};

} // namespace tarnix
