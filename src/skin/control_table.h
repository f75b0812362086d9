// Tables of controls: constexpr rows, one a control, and the builder that makes a control of a row.
//
//     constexpr ControlRow controls[] = {
//         regionButton(2004, Rect::at(475, 7, 15, 16), {154, 155, 0, 0, 15, 16}, "Close"),
//         comboButton(2012, Rect::at(233, 138, 169, 26), 266, 0x40D, "Mouse function", "Click"),
//     };
#pragma once

#include <memory>

#include "skin/buttons.h"
#include "skin/picture_ids.h"

namespace tarnix {

enum class ControlKind { Image, Check, Radio, Combo, Key, Link, Region, Tab, ScrollBar, Label };

struct ControlRow {
    unsigned id = 0;
    ControlKind kind = ControlKind::Image;
    Rect rect;
    unsigned image = 0;       ///< of a strip; 0 for none
    RegionRecord region = {}; ///< of a region button
    Message notify = 0;       ///< of a drop-down field
    const char* caption = ""; ///< what the control is called
    const char* text = "";    ///< a drop-down field's value, a key cap's name
    Color color = 0;          ///< of a label
    unsigned format = 0;      ///< of a label
    std::uint8_t keyCode = 0; ///< of a key cap: its default code
};

constexpr ControlRow imageButton(unsigned id, const Rect& rect, unsigned image, const char* caption) {
    return {.id = id, .kind = ControlKind::Image, .rect = rect, .image = image, .caption = caption};
}
constexpr ControlRow checkButton(unsigned id, const Rect& rect, unsigned image, const char* caption) {
    return {.id = id, .kind = ControlKind::Check, .rect = rect, .image = image, .caption = caption};
}
/// All radio buttons have one picture.
constexpr ControlRow radioButton(unsigned id, const Rect& rect, const char* caption) {
    return {.id = id,
            .kind = ControlKind::Radio,
            .rect = rect,
            .image = picture::radioButton,
            .caption = caption};
}
constexpr ControlRow comboButton(unsigned id, const Rect& rect, unsigned image, Message notify,
                                 const char* caption, const char* value = "") {
    return {.id = id,
            .kind = ControlKind::Combo,
            .rect = rect,
            .image = image,
            .notify = notify,
            .caption = caption,
            .text = value};
}
constexpr ControlRow keyboardButton(unsigned id, const char* name, const Rect& rect, unsigned image,
                                    std::uint8_t code) {
    return {.id = id, .kind = ControlKind::Key, .rect = rect, .image = image, .text = name, .keyCode = code};
}
constexpr ControlRow linkButton(const Rect& rect, const char* caption) {
    return {.id = CLinkButton::linkId, .kind = ControlKind::Link, .rect = rect, .caption = caption};
}
constexpr ControlRow regionButton(unsigned id, const Rect& rect, const RegionRecord& region,
                                  const char* caption) {
    return {.id = id, .kind = ControlKind::Region, .rect = rect, .region = region, .caption = caption};
}
constexpr ControlRow tabControl(unsigned id, const Rect& rect, unsigned image, const char* caption) {
    return {.id = id, .kind = ControlKind::Tab, .rect = rect, .image = image, .caption = caption};
}
constexpr ControlRow scrollBar(unsigned id, const Rect& rect, const char* caption) {
    return {.id = id, .kind = ControlKind::ScrollBar, .rect = rect, .caption = caption};
}
/// A label without a caption is called what it shows.
constexpr ControlRow staticText(unsigned id, const Rect& rect, Color color, const char* caption = "",
                                unsigned format = 0) {
    return {.id = id,
            .kind = ControlKind::Label,
            .rect = rect,
            .caption = caption,
            .color = color,
            .format = format};
}

/// A text that is part of a background picture.
struct PaintedText {
    const char* text;
    Rect place;
};

/// Makes the control of a row, its pictures loaded, moved by the origin of its owner's client area.
std::unique_ptr<CControlBase> makeControl(Window& owner, const ControlRow& row, Point origin = {});

} // namespace tarnix
