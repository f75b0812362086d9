// Looking up controls in the layout tables.
#pragma once

#include <stdexcept>

#include "artist/shapes.h"
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

/// A text of the layout, in the small type of explanations.
inline void setHint(QPainter& p, const PaintedText& hint, Type type = Type::Caption) {
    setText(p, rectF(hint.place), QString::fromLatin1(hint.text), type, palette::mist, Qt::AlignLeft);
}

} // namespace tarnix::art
