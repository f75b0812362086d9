// Which item of a window is meant, whatever else has come or gone meanwhile.
#pragma once

#include <compare>
#include <optional>

#include "platform/accessible.h"

namespace tarnix {

struct ItemKey {
    unsigned item = 0;
    std::optional<unsigned> row = {}; ///< a row of the item
    auto operator<=>(const ItemKey&) const = default;
};

/// None when the face has no such item any more.
inline const AccessibleItem* findItem(const AccessibleFace& face, const ItemKey& key) {
    const auto find = [](const std::vector<AccessibleItem>& items, unsigned number) -> const AccessibleItem* {
        for (const AccessibleItem& item : items)
            if (item.number == number) return &item;
        return nullptr;
    };
    const AccessibleItem* item = find(face.items, key.item);
    return item && key.row ? find(item->rows, *key.row) : item;
}

} // namespace tarnix
