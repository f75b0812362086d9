#include "accessible_changes.h"

#include <map>
#include <set>

#include "accessible_window.h"

namespace tarnix {

namespace {

using Items = std::map<ItemKey, const AccessibleItem*>;

Items itemsOf(const AccessibleFace& face) {
    Items items;
    for (const AccessibleItem& item : face.items) {
        items.emplace(ItemKey{item.number}, &item);
        for (const AccessibleItem& row : item.rows)
            items.emplace(ItemKey{item.number, row.number}, &row);
    }
    return items;
}

void tell(QAccessibleInterface* about, QAccessible::Event what) {
    QAccessibleEvent event(about, what);
    QAccessible::updateAccessibility(&event);
}

/// One state at a time: the toolkit's bridge passes on the first one of a change.
void tellState(QAccessibleInterface* about, void (*mark)(QAccessible::State&)) {
    QAccessible::State changed;
    mark(changed);
    QAccessibleStateChangeEvent event(about, changed);
    QAccessible::updateAccessibility(&event);
}

void tellDifference(QAccessibleInterface* about, const AccessibleItem& before, const AccessibleItem& now) {
    if (before.name != now.name || before.value != now.value) tell(about, QAccessible::NameChanged);
    if (before.checked != now.checked)
        tellState(about, [](QAccessible::State& state) { state.checked = true; });
    if (before.disabled != now.disabled)
        tellState(about, [](QAccessible::State& state) { state.disabled = true; });
    if (before.expanded != now.expanded)
        tellState(about, [](QAccessible::State& state) { state.expanded = true; });
    if (before.selected != now.selected)
        tell(about, now.selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    if (before.range != now.range) {
        QAccessibleValueChangeEvent event(about, now.range.value_or(AccessibleRange()).now);
        QAccessible::updateAccessibility(&event);
    }
    if (now.focused && !before.focused) tell(about, QAccessible::Focus);
}

/// Tells of the items that the others lack: one for the window and one for each list, which is enough to have
/// them looked at anew. A hundred keys that go with their page would keep a screen reader from speaking.
void tellMissing(AccessibleWindow& window, const Items& items, const Items& others, QAccessible::Event what) {
    std::set<std::optional<unsigned>> told;
    for (const auto& [key, item] : items)
        if (!others.contains(key) && told.insert(key.row ? std::optional(key.item) : std::nullopt).second)
            tell(window.itemOf(key), what);
}

} // namespace

/// A list that has opened is where the user is at work.
void tellAppearance(AccessibleWindow& window, const AccessibleFace& face) {
    tell(&window, QAccessible::ObjectCreated);
    if (face.role != AccessibleRole::Menu) return;
    tell(&window, QAccessible::PopupMenuStart);
    tell(&window, QAccessible::Focus);
}

void tellDisappearance(AccessibleWindow& window, AccessibleWindow* owner) {
    if (window.role() != QAccessible::PopupMenu) return;
    tell(&window, QAccessible::PopupMenuEnd);
    if (QAccessibleInterface* item = owner ? owner->lastFocus() : nullptr) tell(item, QAccessible::Focus);
}

/// What only says something is read out when it shows, so it shows again with every other text.
void tellDifferences(AccessibleWindow& window, const AccessibleFace& before, const AccessibleFace& now) {
    if (before.name != now.name) {
        tell(&window, QAccessible::NameChanged);
        if (now.role == AccessibleRole::Status) tell(&window, QAccessible::ObjectShow);
    }
    const Items then = itemsOf(before);
    const Items present = itemsOf(now);
    for (const auto& [key, item] : present)
        if (const auto old = then.find(key); old != then.end())
            tellDifference(window.itemOf(key), *old->second, *item);
    tellMissing(window, then, present, QAccessible::ObjectDestroyed);
    tellMissing(window, present, then, QAccessible::ObjectCreated);
}

} // namespace tarnix
