#include "frame_sheet.h"

#include <algorithm>
#include <set>
#include <span>

#include "macro_manager/manager_layout.h"
#include "platform/resources.h"
#include "skin/picture_ids.h"
#include "ui/dialog_layouts.h"
#include "ui/main_window_layout.h"

namespace tarnix {

namespace {

constexpr int gap = 6;
constexpr Color ground = rgb(5, 16, 38);

/// Puts pictures side by side, and below each other where a line is full.
class Rows {
  public:
    Rows(Canvas& canvas, int width) : m_canvas(canvas), m_width(width) {}

    void add(ResourceType type, unsigned id) {
        const Image* image = resources().find(type, id);
        if (!image || !m_shown.insert({type, id}).second) return;
        const auto [width, height] = image->size();
        if (m_at.x + width > m_width) {
            m_at = {gap, m_at.y + m_lineHeight + gap};
            m_lineHeight = 0;
        }
        m_canvas.draw(*image, Rect::at(0, 0, width, height), Rect::at(m_at.x, m_at.y, width, height));
        m_at.x += width + gap;
        m_lineHeight = std::max(m_lineHeight, height);
    }

    void add(std::span<const ControlRow> rows) {
        for (const ControlRow& row : rows) {
            if (row.image != 0) add(ResourceType::Png, row.image);
            if (row.kind == ControlKind::Region)
                add(ResourceType::Bitmap, static_cast<unsigned>(row.region.bitmap));
        }
    }

  private:
    Canvas& m_canvas;
    int m_width;
    Point m_at{gap, gap};
    int m_lineHeight = 0;
    std::set<std::pair<ResourceType, unsigned>> m_shown;
};

} // namespace

FrameSheet::FrameSheet() {
    createWindow({.kind = WindowKind::Overlay, .role = "FrameSheet"}, Rect::at(0, 0, 1000, 760));
    show();
}

void FrameSheet::OnPaint(Canvas& canvas, const Rect&) {
    canvas.fill(clientRect(), ground);
    Rows rows(canvas, clientRect().right);
    for (const auto& table :
         {std::span<const ControlRow>(commonControls), std::span<const ControlRow>(keyCaps),
          std::span<const ControlRow>(macroPageControls), std::span<const ControlRow>(gKeyFields),
          std::span<const ControlRow>(areaMarkers), std::span<const ControlRow>(dialog::keymap::controls),
          std::span<const ControlRow>(dialog::shortcut::controls),
          std::span<const ControlRow>(dialog::launch::controls)})
        rows.add(table);
    for (const unsigned id : {picture::scrollUp, picture::scrollDown, picture::stepPress,
                              picture::stepRelease, picture::stepDelay, picture::radioButton})
        rows.add(ResourceType::Png, id);
    rows.add(ResourceType::Icon, picture::programIcon);
}

} // namespace tarnix
