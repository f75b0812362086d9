#include "skin/control_table.h"

#include "skin/scroll_bar.h"
#include "skin/static_text.h"
#include "skin/tab_control.h"

namespace tarnix {

namespace {

template <class T>
std::unique_ptr<CControlBase> makeStrip(Window& owner, const ControlRow& row, const Rect& rect) {
    auto button = std::make_unique<T>(owner, row.id, rect, row.caption);
    if (row.image) button->LoadImage(row.image);
    return button;
}

std::unique_ptr<CControlBase> makeCombo(Window& owner, const ControlRow& row, const Rect& rect) {
    auto field =
        std::make_unique<CComboButton>(owner, row.notify, row.id, rect, row.caption, true, false, row.text);
    field->LoadImage(row.image);
    return field;
}

std::unique_ptr<CControlBase> makeKey(Window& owner, const ControlRow& row, const Rect& rect) {
    auto key = std::make_unique<CKeyboardButton>(owner, row.id, rect);
    key->LoadImage(row.image);
    key->SetKey(row.text, row.keyCode, row.keyCode);
    return key;
}

std::unique_ptr<CControlBase> makeRegion(Window& owner, const ControlRow& row, const Rect& rect) {
    auto button = std::make_unique<CRegionButton>(owner, row.id, rect, row.caption);
    button->m_region = row.region;
    return button;
}

std::unique_ptr<CControlBase> makeScrollBar(Window& owner, const ControlRow& row, const Rect& rect) {
    auto bar = std::make_unique<CVScrollBar>(owner, row.id, rect, row.caption);
    bar->LoadImages();
    return bar;
}

std::unique_ptr<CControlBase> makeLabel(Window& owner, const ControlRow& row, const Rect& rect) {
    return std::make_unique<CStaticText>(owner, row.id, rect, row.color, row.format, row.caption);
}

} // namespace

std::unique_ptr<CControlBase> makeControl(Window& owner, const ControlRow& row, Point origin) {
    const Rect rect = row.rect.moved(origin.x, origin.y);
    switch (row.kind) {
        case ControlKind::Image:
            return makeStrip<CImageButton>(owner, row, rect);
        case ControlKind::Check:
            return makeStrip<CCheckButton>(owner, row, rect);
        case ControlKind::Radio:
            return makeStrip<CRadioButton>(owner, row, rect);
        case ControlKind::Link:
            return makeStrip<CLinkButton>(owner, row, rect);
        case ControlKind::Tab:
            return makeStrip<CTabControl>(owner, row, rect);
        case ControlKind::Combo:
            return makeCombo(owner, row, rect);
        case ControlKind::Key:
            return makeKey(owner, row, rect);
        case ControlKind::Region:
            return makeRegion(owner, row, rect);
        case ControlKind::ScrollBar:
            return makeScrollBar(owner, row, rect);
        case ControlKind::Label:
            return makeLabel(owner, row, rect);
    }
    return nullptr;
}

} // namespace tarnix
