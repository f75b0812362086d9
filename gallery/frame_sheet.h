// A window that shows every frame of every strip, in whatever scale the desktop has.
#pragma once

#include "platform/window.h"

namespace tarnix {

class FrameSheet : public Window {
  public:
    FrameSheet();
    void OnPaint(Canvas& canvas, const Rect& dirty) override;
};

} // namespace tarnix
