// Looking up controls in the layout tables.
#pragma once

#include <stdexcept>

#include "skin/control_table.h"

namespace tarnix::art {

template <typename Table>
const ControlRow& controlOf(const Table& table, unsigned id) {
    for (const ControlRow& row : table)
        if (row.id == id) return row;
    throw std::out_of_range("no such control in the layout table");
}

template <typename Table>
Rect placeOf(const Table& table, unsigned id) {
    return controlOf(table, id).rect;
}

} // namespace tarnix::art
