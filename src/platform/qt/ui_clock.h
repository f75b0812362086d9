// The user-interface thread's clock.
#pragma once

#include "platform/clock.h"

namespace tarnix {

class UiClock : public Clock {
  public:
    Milliseconds now() override;
    void pause(Milliseconds time) override;
};

} // namespace tarnix
