#include "accessible_window.h"

#include <algorithm>
#include <utility>

#include "accessible_changes.h"
#include "accessible_press.h"
#include "convert.h"
#include "modal_runs.h"
#include "native_window.h"
#include "text_decoding.h"
#include "window_widget.h"

namespace tarnix {

namespace {

QAccessible::Role roleOf(AccessibleRole role) {
    switch (role) {
        case AccessibleRole::None:
            return QAccessible::NoRole;
        case AccessibleRole::MainWindow:
            return QAccessible::Window;
        case AccessibleRole::Dialog:
            return QAccessible::Dialog;
        case AccessibleRole::Alert:
            return QAccessible::AlertMessage;
        case AccessibleRole::Menu:
            return QAccessible::PopupMenu;
        case AccessibleRole::Status:
            return QAccessible::Notification;
        case AccessibleRole::Button:
            return QAccessible::Button;
        case AccessibleRole::CheckBox:
            return QAccessible::CheckBox;
        case AccessibleRole::RadioButton:
            return QAccessible::RadioButton;
        case AccessibleRole::Tab:
            return QAccessible::PageTab;
        case AccessibleRole::DropDown:
            return QAccessible::ComboBox;
        case AccessibleRole::Link:
            return QAccessible::Link;
        case AccessibleRole::MenuItem:
            return QAccessible::MenuItem;
        case AccessibleRole::Separator:
            return QAccessible::Separator;
        case AccessibleRole::List:
            return QAccessible::List;
        case AccessibleRole::ListItem:
            return QAccessible::ListItem;
        case AccessibleRole::ScrollBar:
            return QAccessible::ScrollBar;
        case AccessibleRole::Label:
            return QAccessible::StaticText;
    }
    return QAccessible::NoRole;
}

QAccessible::State stateOf(const AccessibleItem& item) {
    using Role = AccessibleRole;
    QAccessible::State state;
    state.disabled = item.disabled;
    state.focusable = item.pressable() || item.role == Role::ScrollBar;
    state.focused = item.focused;
    state.checkable = item.role == Role::CheckBox || item.role == Role::RadioButton;
    state.checked = item.checked;
    state.selectable = item.role == Role::Tab || item.role == Role::ListItem || item.role == Role::MenuItem;
    state.selected = item.selected;
    state.expandable = item.role == Role::DropDown;
    state.expanded = item.expanded;
    state.collapsed = state.expandable && !item.expanded;
    state.hasPopup = item.role == Role::DropDown || item.opens;
    return state;
}

class AccessibleItemFace : public QAccessibleInterface,
                           public QAccessibleActionInterface,
                           public QAccessibleValueInterface {
  public:
    AccessibleItemFace(const AccessibleWindow& window, ItemKey key) : m_window(window), m_key(key) {}

    /// An item that is gone is told of once more, and may come again.
    bool isValid() const override { return m_window.isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_window.window(); }

    QAccessibleInterface* parent() const override {
        return m_key.row ? m_window.itemOf({m_key.item})
                         : QAccessible::queryAccessibleInterface(&m_window.windowWidget());
    }
    int childCount() const override { return static_cast<int>(item().rows.size()); }
    QAccessibleInterface* child(int index) const override {
        const AccessibleItem now = item();
        if (index < 0 || index >= static_cast<int>(now.rows.size())) return nullptr;
        return m_window.itemOf({m_key.item, now.rows[static_cast<std::size_t>(index)].number});
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int i = 0; i < childCount(); ++i)
            if (this->child(i) == child) return i;
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i)->rect().contains(x, y)) return child(i);
        return nullptr;
    }

    /// The value is read after the name: screen readers say no value of most roles by themselves.
    QString text(QAccessible::Text kind) const override {
        const AccessibleItem now = item();
        const QString value = decodeText(now.value);
        if (kind == QAccessible::Value) return now.range ? QString::number(now.range->now) : value;
        if (kind != QAccessible::Name) return {};
        return value.isEmpty() ? decodeText(now.name) : decodeText(now.name) + QStringLiteral(", ") + value;
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        const WindowWidget& widget = m_window.windowWidget();
        return toQt(item().rect).translated(widget.mapToGlobal(QPoint(0, 0)));
    }
    QAccessible::Role role() const override { return roleOf(item().role); }
    QAccessible::State state() const override {
        const AccessibleFace face = m_window.face();
        const AccessibleItem* now = findItem(face, m_key);
        QAccessible::State state = now ? stateOf(*now) : QAccessible::State();
        state.invisible = !now || m_window.state().invisible;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        const AccessibleItem now = item();
        if (type == QAccessible::ActionInterface && now.pressable())
            return static_cast<QAccessibleActionInterface*>(this);
        if (type == QAccessible::ValueInterface && now.range)
            return static_cast<QAccessibleValueInterface*>(this);
        return nullptr;
    }

    QStringList actionNames() const override {
        const AccessibleItem now = item();
        if (!now.pressable()) return {};
        if (now.role == AccessibleRole::CheckBox) return {toggleAction()};
        return {now.role == AccessibleRole::DropDown ? showMenuAction() : pressAction()};
    }
    void doAction(const QString& name) override {
        if (actionNames().contains(name)) pressItem(m_window.windowWidget(), m_key);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    QVariant currentValue() const override { return item().range.value_or(AccessibleRange()).now; }
    void setCurrentValue(const QVariant& value) override {
        moveItem(m_window.windowWidget(), m_key, value.toInt());
    }
    QVariant maximumValue() const override { return item().range.value_or(AccessibleRange()).greatest; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

  private:
    /// An item that is gone has no role and no text.
    AccessibleItem item() const {
        const AccessibleFace face = m_window.face();
        const AccessibleItem* now = findItem(face, m_key);
        return now ? *now : AccessibleItem();
    }

    const AccessibleWindow& m_window;
    const ItemKey m_key;
};

} // namespace

AccessibleWindow::AccessibleWindow(WindowWidget& widget) : QAccessibleWidget(&widget), m_widget(widget) {}

AccessibleWindow::~AccessibleWindow() {
    for (const auto& [key, id] : m_items)
        QAccessible::deleteAccessibleInterface(id);
}

AccessibleFace AccessibleWindow::face() const {
    const Window* window = m_widget.window();
    return window ? window->accessibleFace() : AccessibleFace();
}

QAccessibleInterface* AccessibleWindow::itemOf(ItemKey key) const {
    auto& id = m_items[key];
    if (id == 0) id = QAccessible::registerAccessibleInterface(new AccessibleItemFace(*this, key));
    return QAccessible::accessibleInterface(id);
}

AccessibleWindow* AccessibleWindow::of(WindowWidget& widget) {
    return dynamic_cast<AccessibleWindow*>(QAccessible::queryAccessibleInterface(&widget));
}

AccessibleWindow* AccessibleWindow::owner() const {
    const Window* owner = m_widget.window() ? m_widget.window()->owner() : nullptr;
    return owner && owner->exists() ? of(*owner->native()->widget) : nullptr;
}

void AccessibleWindow::tellOfChanges() {
    AccessibleFace now = face();
    if (m_told) {
        tellDifferences(*this, *m_told, now);
    } else {
        // What led here comes first.
        if (AccessibleWindow* before = owner()) before->tellOfChanges();
        tellAppearance(*this, now);
    }
    if (QAccessibleInterface* item = focusedIn(now)) m_lastFocus = item;
    m_told = std::move(now);
}

void AccessibleWindow::tellOfEnd() {
    if (m_told) tellDisappearance(*this, owner());
    m_told.reset();
}

int AccessibleWindow::childCount() const {
    return static_cast<int>(face().items.size()) + QAccessibleWidget::childCount();
}

QAccessibleInterface* AccessibleWindow::child(int index) const {
    const AccessibleFace now = face();
    const int items = static_cast<int>(now.items.size());
    if (index < 0) return nullptr;
    if (index >= items) return QAccessibleWidget::child(index - items);
    return itemOf({now.items[static_cast<std::size_t>(index)].number});
}

int AccessibleWindow::indexOfChild(const QAccessibleInterface* child) const {
    const AccessibleFace now = face();
    for (std::size_t i = 0; i < now.items.size(); ++i)
        if (itemOf({now.items[i].number}) == child) return static_cast<int>(i);
    const int field = QAccessibleWidget::indexOfChild(child);
    return field < 0 ? -1 : static_cast<int>(now.items.size()) + field;
}

/// The fields stand above what the window paints; of the items the last one is on top.
QAccessibleInterface* AccessibleWindow::childAt(int x, int y) const {
    if (QAccessibleInterface* field = QAccessibleWidget::childAt(x, y)) return field;
    const AccessibleFace now = face();
    const Point at = fromQt(m_widget.mapFromGlobal(QPoint(x, y)));
    const auto item = std::find_if(now.items.rbegin(), now.items.rend(),
                                   [at](const AccessibleItem& each) { return each.rect.contains(at); });
    return item == now.items.rend() ? nullptr : itemOf({item->number});
}

QAccessibleInterface* AccessibleWindow::focusChild() const {
    QAccessibleInterface* item = focusedIn(face());
    return item ? item : QAccessibleWidget::focusChild();
}

QAccessibleInterface* AccessibleWindow::focusedIn(const AccessibleFace& face) const {
    for (const AccessibleItem& item : face.items)
        if (item.focused) return itemOf({item.number});
    return nullptr;
}

QString AccessibleWindow::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? decodeText(face().name) : QAccessibleWidget::text(kind);
}

QAccessible::Role AccessibleWindow::role() const {
    return roleOf(face().role);
}

QAccessible::State AccessibleWindow::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    const Window* window = m_widget.window();
    state.invisible = state.invisible || m_widget.isMinimized();
    if (role() == QAccessible::PopupMenu) state.focusable = state.focused = true;
    state.modal = window && role() != QAccessible::Window && runsModally(*window);
    return state;
}

} // namespace tarnix
