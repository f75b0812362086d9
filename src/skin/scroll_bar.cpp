#include "skin/scroll_bar.h"
#include "skin/picture_ids.h"

#include <algorithm>
#include <utility>

namespace tarnix {

namespace {

constexpr Color barColor = 0xBDD7D0;
constexpr Color thumbEdge = 0x1F1F1F;
constexpr Color thumbFace = 0x508376;
constexpr Color hotThumbEdge = 0x00FF00;
constexpr Color hotThumbFace = 0x68A294;

constexpr int trackLength(const Rect& track) {
    return track.bottom - track.top + 1;
}

/// `value` of `range` in pixels of the track, rounded; never beyond the track.
int scaled(int value, int range, int length) {
    return static_cast<int>(
        std::clamp(static_cast<double>(value) / range * length + 0.5, 0.0, static_cast<double>(length)));
}

} // namespace

CVScrollBar::CVScrollBar(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                         bool disabled)
    : CMouseControl(owner, id, rect, std::move(text), visible, disabled) {}

bool CVScrollBar::LoadImages() {
    const bool up = m_upArrow.load(picture::scrollUp);
    const bool down = m_downArrow.load(picture::scrollDown);
    const int height = m_downArrow.frameSize().height;
    const auto& [left, top, right, bottom] = m_rect;
    m_up = {left, top, right, top + height - 1};
    m_down = {left, bottom - height + 1, right, bottom};
    m_track = m_thumb = {left, top + height, right, bottom - height + 1};
    return up && down;
}

void CVScrollBar::SetScrollState(int position, int page, int range) {
    if (range == 0) {
        m_thumb = m_track;
        return repaint();
    }
    m_nPosition = position;
    m_nPage = page;
    m_nRange = range;
    const int length = trackLength(m_track);
    m_thumb.top = m_track.top + scaled(position, range, length);
    m_thumb.bottom = std::min(m_thumb.top + scaled(page, range, length) - 1, m_track.bottom);
    repaint();
}

void CVScrollBar::Draw(Canvas& canvas, const Rect&) {
    canvas.fill(m_rect, barColor);
    const Size arrow = m_downArrow.frameSize();
    const auto frame = [](bool over) { return over ? mouseHover : mouseNormal; };
    m_upArrow.draw(canvas, frame(m_over.up), Rect::at(m_rect.left, m_rect.top, arrow.width, arrow.height));
    m_downArrow.draw(canvas, frame(m_over.down),
                     Rect::at(m_rect.left, m_rect.bottom - arrow.height + 1, arrow.width, arrow.height));
    canvas.fill(thumb(), m_over.thumb ? hotThumbEdge : thumbEdge);
    canvas.fill(thumb().inset(1), m_over.thumb ? hotThumbFace : thumbFace);
}

void CVScrollBar::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::ScrollBar;
    const int greatest = std::max(m_nRange - m_nPage, 0);
    item.range = {std::clamp(m_nPosition, 0, greatest), greatest};
}

void CVScrollBar::moveTo(int position) {
    if (m_bDisabled || position == m_nPosition) return;
    SetScrollState(position, m_nPage, m_nRange);
    notifyOwner(NOTIFY_DRAG);
}

bool CVScrollBar::OnMouseMove(unsigned, Point at) {
    if (m_bDisabled) return false;
    const int stateBefore = m_nMouseState;
    const Over overBefore = m_over;
    if (m_nMouseState != mousePressed) {
        m_nMouseState = hit(at) ? mouseHover : mouseNormal;
        m_over = {m_up.contains(at), m_down.contains(at), m_thumb.contains(at)};
    }
    if (m_nMouseState == mouseNormal) m_dragging = false;
    if (m_dragging) dragTo(at.y);
    return m_nMouseState != stateBefore || m_over != overBefore;
}

/// Moves the thumb so that its grabbed point is at y, as far as the track goes.
void CVScrollBar::dragTo(int y) {
    const int wish = y - (m_nGrab + m_drag.top);
    const int room =
        wish > 0 ? std::max(m_track.bottom - m_drag.bottom, 0) : std::min(m_track.top - m_drag.top, 0);
    const int step = wish > 0 ? std::min(wish, room) : std::max(wish, room);
    if (step == 0) return;
    m_drag = m_drag.moved(0, step);
    repaint();
    const auto offset = static_cast<long long>(m_drag.top - m_track.top);
    const int position = static_cast<int>(offset * m_nRange / trackLength(m_track));
    if (std::exchange(m_nPosition, position) != position) notifyOwner(NOTIFY_DRAG);
}

bool CVScrollBar::OnLButtonUp(unsigned flags, Point at) {
    if (m_bDisabled) return false;
    const bool changed = CMouseControl::OnLButtonUp(flags, at);
    m_dragging = false;
    SetScrollState(m_nPosition, m_nPage, m_nRange);
    return changed;
}

void CVScrollBar::pressed(Point at) {
    if (m_thumb.contains(at)) {
        m_dragging = true;
        m_nGrab = at.y - m_thumb.top;
        m_drag = m_thumb;
    }
    notifyOwner(NOTIFY_DOWN, partAt(at));
}

void CVScrollBar::clicked(Point) {
    m_dragging = false;
    notifyOwner(NOTIFY_CLICK);
}

CVScrollBar::Part CVScrollBar::partAt(Point at) const {
    if (m_up.contains(at)) return partUp;
    if (m_down.contains(at)) return partDown;
    if (m_thumb.contains(at)) return partThumb;
    return at.y < m_thumb.top ? partAbove : partBelow;
}

} // namespace tarnix
