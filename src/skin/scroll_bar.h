// A vertical scroll bar. It does not move itself on a click: its owner reacts to the part that was pressed.
#pragma once

#include "skin/control_base.h"
#include "skin/image_strip.h"

namespace tarnix {

class CVScrollBar : public CMouseControl {
  public:
    /// The pressed part, the wParam of the press notification.
    enum Part : unsigned { partThumb = 0, partUp = 6, partDown = 7, partAbove = 8, partBelow = 9 };

    CVScrollBar(Window& owner, unsigned id, const Rect& rect, std::string text = {}, bool visible = true,
                bool disabled = false);

    /// Loads the arrows and lays the parts out.
    bool LoadImages();
    /// Places the thumb and repaints. A range of 0 makes the thumb as long as the track and keeps the old
    /// values.
    void SetScrollState(int position, int page, int range);
    int position() const { return m_nPosition; }
    int page() const { return m_nPage; }
    int range() const { return m_nRange; }
    const Rect& thumb() const { return m_dragging ? m_drag : m_thumb; }

    void Draw(Canvas& canvas, const Rect& clip) override;
    void describe(AccessibleItem& item) const override;
    /// Raises NOTIFY_DRAG, as far as the position is another one.
    void moveTo(int position) override;
    bool OnMouseMove(unsigned flags, Point at) override;
    bool OnLButtonUp(unsigned flags, Point at) override;

  protected:
    void pressed(Point at) override;
    void clicked(Point at) override;

  private:
    struct Over {
        bool up = false;
        bool down = false;
        bool thumb = false;
        bool operator==(const Over&) const = default;
    };
    Part partAt(Point at) const;
    void dragTo(int y);

    ImageStrip m_upArrow{3};
    ImageStrip m_downArrow{3};
    Over m_over;
    bool m_dragging = false;
    Rect m_up;
    Rect m_down;
    Rect m_track; ///< its bottom is its last row
    Rect m_thumb; ///< likewise
    Rect m_drag;  ///< the thumb while it is dragged
    int m_nPosition = 0;
    int m_nPage = 1;
    int m_nRange = 1;
    int m_nGrab = 0; ///< from the thumb's top to the grabbed point
};

} // namespace tarnix
