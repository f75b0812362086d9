#include "skin/dlg_base.h"

#include <utility>

namespace tarnix {

namespace {

const Image* bitmapResource(unsigned id) {
    const Image* bitmap = nullptr;
    LoadPngResource(id, bitmap, ResourceType::Bitmap);
    return bitmap;
}

} // namespace

CDlgBase::CDlgBase(WindowTraits traits, Size size) : m_traits(std::move(traits)), m_size(size) {}

CDlgBase::~CDlgBase() = default;

bool CDlgBase::Create() {
    if (!createWindow(m_traits, Rect::at(0, 0, m_size.width, m_size.height))) return false;
    OnInitDialog();
    return true;
}

int CDlgBase::DoModal() {
    return Create() ? runModal() : IDCANCEL;
}

void CDlgBase::OnInitDialog() {
    const Image* icon = nullptr;
    if (LoadPngResource(iconId, icon, ResourceType::Icon)) setIcon(*icon);
    BuildControls(clientRect());
    centre();
}

void CDlgBase::LoadBackground(unsigned bitmap) {
    const Image* image = bitmapResource(bitmap);
    if (!image) return;
    m_background.load(*image, m_size);
    invalidate();
}

void CDlgBase::SetShapeFromBitmap(unsigned bitmap) {
    if (const Image* image = bitmapResource(bitmap)) setShape(outlineOf(*image));
}

void CDlgBase::addControls(std::size_t group, std::span<const ControlRow> rows, Point origin) {
    for (const ControlRow& row : rows)
        m_controls.add(group, makeControl(*this, row, origin));
}

void CDlgBase::repaintControl(unsigned id) const {
    if (const CControlBase* found = GetControl(id)) found->repaint();
}

void CDlgBase::OnPaint(Canvas& canvas, const Rect& dirty) {
    if (isMinimised())
        canvas.fill(Rect::at(10, 10, 1, 1), rgb(255, 255, 255));
    else
        DrawWindow(canvas, dirty);
}

void CDlgBase::DrawWindow(Canvas& canvas, const Rect& dirty) {
    drawBackground(canvas, dirty);
    DrawControls(canvas, dirty);
}

void CDlgBase::DrawControls(Canvas& canvas, const Rect& clip) {
    m_controls.draw(canvas, clip);
}

void CDlgBase::OnMouseMove(unsigned flags, Point at) {
    m_mouse.move(flags, at);
}

void CDlgBase::OnLButtonDown(unsigned flags, Point at) {
    m_mouse.press(flags, at);
}

void CDlgBase::OnLButtonUp(unsigned flags, Point at) {
    m_mouse.release(flags, at);
}

void CDlgBase::OnLButtonDblClk(unsigned flags, Point at) {
    m_mouse.doubleClick(flags, at);
}

void CDlgBase::OnMouseLeave() {
    m_mouse.leave();
}

void CDlgBase::OnMouseHover() {
    m_mouse.hover();
}

bool CDlgBase::OnKey(const KeyPress& key) {
    const bool escape = key.key == KeyPress::Key::Escape;
    if (!escape && key.key != KeyPress::Key::Enter) return false;
    if (!key.down) return true;
    if (!escape)
        OnEnter();
    else if (m_popups.any())
        m_popups.dismiss();
    else if (!giveUpTyping())
        OnCancel();
    return true;
}

/// False when no control had begun anything.
bool CDlgBase::giveUpTyping() {
    bool gaveUp = false;
    m_controls.forEach([&gaveUp](CControlBase& control) { gaveUp |= control.OnEscape(); });
    return gaveUp;
}

void CDlgBase::OnCancel() {
    endModal(IDCANCEL);
}

void CDlgBase::OnEnter() {}

void CDlgBase::OnClose() {
    OnCancel();
}

void CDlgBase::OnDestroy() {
    m_popups.destroyAll();
}

/// A control's number is its place in the order of the groups.
AccessibleFace CDlgBase::accessibleFace() const {
    AccessibleFace face{.name = programTitle};
    unsigned number = 0;
    m_controls.forEach([&](const CControlBase& control) {
        AccessibleItem item{.number = number++,
                            .rect = control.GetRect(),
                            .name = control.m_strText,
                            .disabled = control.m_bDisabled,
                            .focused = &control == m_mouse.focus()};
        if (!control.m_bVisible || !item.rect.intersects(clientRect())) return;
        control.describe(item);
        if (item.role != AccessibleRole::None) face.items.push_back(std::move(item));
    });
    return face;
}

void CDlgBase::OnAccessibleValue(unsigned number, int value) {
    unsigned each = 0;
    m_controls.forEach([&](CControlBase& control) {
        if (each++ == number) control.moveTo(value);
    });
}

void addPaintedTexts(AccessibleFace& face, std::span<const PaintedText> texts) {
    constexpr unsigned firstNumber = 0x10000; // beyond any control's
    auto at = face.items.begin();
    for (unsigned i = 0; i < texts.size(); ++i)
        at = face.items.insert(at, {.number = firstNumber + i,
                                    .role = AccessibleRole::Label,
                                    .rect = texts[i].place,
                                    .name = texts[i].text}) +
             1;
}

LResult CDlgBase::OnMessage(Message message, WParam w, LParam l) {
    if (message != CWndPopup::goneMessage) return m_messages.dispatch(message, w, l);
    m_popups.free(l);
    return 0;
}

} // namespace tarnix
