// A clock that stands still but for the pauses it is asked for, which it notes.
#pragma once

#include <functional>
#include <vector>

#include "platform/clock.h"

namespace tarnix {

class FakeClock : public Clock {
  public:
    std::vector<Milliseconds> pauses;
    /// Called at each pause, once its time has been noted and has passed.
    std::function<void(Milliseconds)> onPause;

    Milliseconds now() override { return m_now; }

    void pause(Milliseconds time) override {
        pauses.push_back(time);
        m_now += time;
        if (onPause) onPause(time);
    }

    void advance(Milliseconds time) { m_now += time; }

  private:
    Milliseconds m_now{0};
};

} // namespace tarnix
