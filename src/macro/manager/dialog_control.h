// One control of a dialog as data: what the dialogs build from and what the artist paints for.
#pragma once

#include "platform/canvas.h"
#include "platform/geometry.h"

namespace tarnix {

enum class DialogControlKind {
    RegionButton, ///< drawn from a bitmap strip with a key colour
    ImageButton,  ///< PNG strip of 3 frames
    CheckButton,  ///< PNG strip of 7 frames
    RadioButton,  ///< PNG strip of 3 frames
    ComboButton,  ///< PNG strip of 5 frames
    StaticText,
    NameList,   ///< the macros of one set
    ActionList, ///< the steps of one macro
    ScrollBar,
    EditField ///< native
};

/// The strip of a region button: a bitmap resource with three frames side by side. Pixels of the colour that
/// the bitmap has at `key` are left out.
struct RegionStrip {
    unsigned bitmap = 0;
    unsigned secondBitmap = 0; ///< kept, never drawn
    Point key;
    Size frame;
};

/// A row of a dialog's table. Only the fields that the kind needs are filled in.
struct DialogControl {
    unsigned id = 0;
    DialogControlKind kind = DialogControlKind::StaticText;
    Rect rect;
    unsigned image = 0;   ///< PNG resource of the strip
    RegionStrip region;   ///< region buttons
    Color textColor = 0;  ///< labels
    bool centred = false; ///< labels: else flush left
    unsigned message = 0; ///< drop-down fields: the message that reports a click
};

namespace row {

constexpr DialogControl region(unsigned id, const Rect& rect, unsigned bitmap, unsigned second, Point key) {
    return {id, DialogControlKind::RegionButton, rect, 0, {bitmap, second, key, rect.size()}, 0, false, 0};
}
constexpr DialogControl strip(unsigned id, DialogControlKind kind, const Rect& rect, unsigned image) {
    return {id, kind, rect, image, {}, 0, false, 0};
}
constexpr DialogControl combo(unsigned id, const Rect& rect, unsigned image, unsigned message) {
    return {id, DialogControlKind::ComboButton, rect, image, {}, 0, false, message};
}
constexpr DialogControl label(unsigned id, const Rect& rect, Color color, bool centred = false) {
    return {id, DialogControlKind::StaticText, rect, 0, {}, color, centred, 0};
}
constexpr DialogControl plain(unsigned id, DialogControlKind kind, const Rect& rect) {
    return {id, kind, rect, 0, {}, 0, false, 0};
}

} // namespace row

} // namespace tarnix
