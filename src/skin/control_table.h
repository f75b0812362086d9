// Tables of controls: constexpr rows, one a control, and the builder that makes a control of a row.
//
//     constexpr ControlRow controls[] = {
//         regionButton(2004, Rect::at(475, 7, 15, 16), {154, 155, 0, 0, 15, 16}),
//         comboButton(2012, Rect::at(233, 138, 169, 26), 266, 0x40D, "Click"),
//     };
#pragma once

#include <memory>

#include "skin/buttons.h"

namespace tarnix {

enum class ControlKind { Image, Check, Radio, Combo, Key, Link, Region, Tab, ScrollBar, Label };

struct ControlRow {
    unsigned id = 0;
    ControlKind kind = ControlKind::Image;
    Rect rect;
    unsigned image = 0;       ///< of a strip; 0 for none
    RegionRecord region = {}; ///< of a region button
    Message notify = 0;       ///< of a drop-down field
    const char* text = "";    ///< of a label, a drop-down field's value, a key cap's name
    Color color = 0;          ///< of a label
    unsigned format = 0;      ///< of a label
    std::uint8_t keyCode = 0; ///< of a key cap: its default code
};

constexpr ControlRow imageButton(unsigned id, const Rect& rect, unsigned image) {
    return {.id = id, .kind = ControlKind::Image, .rect = rect, .image = image};
}
constexpr ControlRow checkButton(unsigned id, const Rect& rect, unsigned image) {
    return {.id = id, .kind = ControlKind::Check, .rect = rect, .image = image};
}
/// All radio buttons have one picture.
constexpr ControlRow radioButton(unsigned id, const Rect& rect) {
    return {.id = id, .kind = ControlKind::Radio, .rect = rect, .image = 400};
}
constexpr ControlRow comboButton(unsigned id, const Rect& rect, unsigned image, Message notify,
                                 const char* value = "") {
    return {
        .id = id, .kind = ControlKind::Combo, .rect = rect, .image = image, .notify = notify, .text = value};
}
constexpr ControlRow keyboardButton(unsigned id, const char* name, const Rect& rect, unsigned image,
                                    std::uint8_t code) {
    return {.id = id, .kind = ControlKind::Key, .rect = rect, .image = image, .text = name, .keyCode = code};
}
constexpr ControlRow linkButton(const Rect& rect, unsigned image = 0) {
    return {.id = CLinkButton::linkId, .kind = ControlKind::Link, .rect = rect, .image = image};
}
constexpr ControlRow regionButton(unsigned id, const Rect& rect, const RegionRecord& region) {
    return {.id = id, .kind = ControlKind::Region, .rect = rect, .region = region};
}
constexpr ControlRow tabControl(unsigned id, const Rect& rect, unsigned image) {
    return {.id = id, .kind = ControlKind::Tab, .rect = rect, .image = image};
}
constexpr ControlRow scrollBar(unsigned id, const Rect& rect) {
    return {.id = id, .kind = ControlKind::ScrollBar, .rect = rect};
}
constexpr ControlRow staticText(unsigned id, const Rect& rect, Color color, unsigned format = 0,
                                const char* label = "") {
    return {
        .id = id, .kind = ControlKind::Label, .rect = rect, .text = label, .color = color, .format = format};
}

/// Makes the control of a row, its pictures loaded, moved by the origin of its owner's client area.
std::unique_ptr<CControlBase> makeControl(Window& owner, const ControlRow& row, Point origin = {});

} // namespace tarnix
