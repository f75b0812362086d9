// The window of the on-screen display: one line of text in the corner of the work area.
#pragma once

#include <string>

#include "platform/window.h"

namespace tarnix {

class COSDDialog : public Window {
  public:
    /// Opens the display in the bottom right corner of the work area, above all windows.
    explicit COSDDialog(const std::string& text);

    void SetText(const std::string& text);
    AccessibleFace accessibleFace() const override;

  private:
    void OnPaint(Canvas& canvas, const Rect& dirty) override;

    std::string m_text;
};

} // namespace tarnix
