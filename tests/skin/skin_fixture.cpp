#include "skin_fixture.h"

#include "skin/wnd_popup.h"

namespace tarnix {

std::ostream& operator<<(std::ostream& out, const Notice& notice) {
    return out << '(' << notice.message << ", " << notice.w << ", " << notice.l << ')';
}

LResult TestDialog::OnMessage(Message message, WParam w, LParam l) {
    if (message != CWndPopup::goneMessage) notices.push_back({message, w, l});
    return CDlgBase::OnMessage(message, w, l);
}

void TestDialog::OnPaint(Canvas& canvas, const Rect& dirty) {
    paints.push_back(dirty);
    CDlgBase::OnPaint(canvas, dirty);
}

void TestResources::addStrip(unsigned id, int frames, Size frame, int leftoverColumns) {
    const Size size{frames * frame.width + leftoverColumns, frame.height};
    Canvas& canvas = add(ResourceType::Png, id, size);
    canvas.fill({0, 0, size.width, size.height}, leftover);
    for (int i = 0; i < frames; ++i)
        canvas.fill(Rect::at(i * frame.width, 0, frame.width, frame.height), frameColor(i));
}

Canvas& TestResources::add(ResourceType type, unsigned id, Size size) {
    auto& picture = m_pictures[{type, id}] = makeSurface(size);
    return picture->canvas();
}

const Image* TestResources::find(ResourceType type, unsigned id) {
    const auto found = m_pictures.find({type, id});
    return found == m_pictures.end() ? nullptr : &found->second->image();
}

std::unique_ptr<Surface> painted(CControlBase& control, Size size) {
    auto surface = makeSurface(size);
    control.Draw(surface->canvas(), {0, 0, size.width, size.height});
    return surface;
}

int shownFrame(CControlBase& control) {
    const Color color = painted(control)->image().pixel(centreOf(control.GetRect()));
    for (int frame = 0; frame < 7; ++frame)
        if (color == frameColor(frame)) return frame;
    return -1;
}

void SkinTest::SetUp() {
    ASSERT_TRUE(dialog.Create());
    dialog.take();
}

} // namespace tarnix
