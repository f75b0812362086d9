// A label.
#pragma once

#include "skin/control_base.h"

namespace tarnix {

class CStaticText : public CMouseControl {
  public:
    /// Bits of the format: how the line stands in its rectangle.
    static constexpr unsigned formatLeftTop = 0;
    static constexpr unsigned formatCentred = 1;
    static constexpr unsigned formatVerticalCentred = 4;

    CStaticText(Window& owner, unsigned id, const Rect& rect, Color color, unsigned format,
                std::string text = {}, bool visible = true, bool disabled = false);

    void Draw(Canvas& canvas, const Rect& clip) override;
    void describe(AccessibleItem& item) const override;

    std::string m_strLabel; ///< what is drawn; the owner assigns it and repaints
    Color m_color;

  private:
    unsigned m_nFormat;
};

} // namespace tarnix
