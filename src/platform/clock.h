// Time and pauses. Pauses between device reports go through this interface, so a test counts them instead of
// waiting.
#pragma once

#include <chrono>

namespace tarnix {

using Milliseconds = std::chrono::milliseconds;

class Clock {
  public:
    virtual ~Clock() = default;
    /// Milliseconds on a counter that never runs backwards.
    virtual Milliseconds now() = 0;
    /// Returns after at least the given time. On the user-interface thread the windows keep painting
    /// meanwhile and nothing else is let in (see Application).
    virtual void pause(Milliseconds time) = 0;
};

} // namespace tarnix
