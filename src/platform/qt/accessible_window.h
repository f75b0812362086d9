// A window in the toolkit's accessibility interfaces: itself, its items and the items' rows, and the native
// fields in it. Every question is answered from the window's present face.
#pragma once

#include <QAccessibleWidget>
#include <map>

#include "accessible_key.h"

namespace tarnix {

class WindowWidget;

class AccessibleWindow : public QAccessibleWidget {
  public:
    explicit AccessibleWindow(WindowWidget& widget);
    static AccessibleWindow* of(WindowWidget& widget);

    WindowWidget& windowWidget() const { return m_widget; }
    AccessibleFace face() const;
    /// The interface of an item; made when it is asked for first, and lasting as long as the window.
    QAccessibleInterface* itemOf(ItemKey key) const;

    /// None for a window without an owner.
    AccessibleWindow* owner() const;

    /// The item that had the focus last, if any had it.
    QAccessibleInterface* lastFocus() const { return m_lastFocus; }

    /// Compares the face with the one of the last call and tells of the differences.
    void tellOfChanges();
    /// The window is off the screen.
    void tellOfEnd();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

  protected:
    ~AccessibleWindow() override;

  private:
    QAccessibleInterface* focusedIn(const AccessibleFace& face) const;

    WindowWidget& m_widget;
    mutable std::map<ItemKey, QAccessible::Id> m_items;
    std::optional<AccessibleFace> m_told;
    QAccessibleInterface* m_lastFocus = nullptr; ///< of an item, which lasts as long as this
};

} // namespace tarnix
