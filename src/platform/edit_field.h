// A native one-line text field inside a window.
#pragma once

#include <memory>
#include <string>

#include "platform/window.h"

namespace tarnix {

struct EditStyle {
    bool numbersOnly = false; ///< typing takes digits alone; pasting takes any text
    Color text = 0x000000;
    Color background = 0xFFFFFF;
    const char* caption = ""; ///< what assistive technology calls the field
    bool visible = true;      ///< at first; a field that was never shown holds no native one
};

class EditField {
  public:
    /// Made without focus; lives inside `parent`, which must outlive it.
    EditField(Window& parent, unsigned id, const Rect& clientRect, const EditStyle& style = {});
    ~EditField();
    EditField(const EditField&) = delete;
    EditField& operator=(const EditField&) = delete;

    unsigned id() const;
    /// What the field holds, as UTF-8.
    std::string text() const;
    /// Raises no OnEditChange.
    void setText(const std::string& text);
    void setVisible(bool visible);
    void setEnabled(bool enabled);
    void setFocus();

  private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace tarnix
