// The one way in which lists are reached by indexes that nobody has checked.
#pragma once

#include <cstddef>

namespace tarnix {

/// The item at the index, or none outside the list.
template <class Items>
constexpr auto* itemAt(Items& items, int index) {
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < items.size();
    return inside ? &items[static_cast<std::size_t>(index)] : nullptr;
}

} // namespace tarnix
