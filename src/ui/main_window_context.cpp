#include "ui/main_window_context.h"

namespace tarnix {

void buildControls(CDlgBase& window, std::size_t group, std::span<const ControlRow> rows, Point origin) {
    for (const ControlRow& row : rows)
        window.controls().add(group, makeControl(window, row, origin));
}

} // namespace tarnix
