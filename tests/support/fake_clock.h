// A clock that stands still but for the pauses it is asked for, which it notes.
#pragma once

#include <vector>

#include "platform/clock.h"

namespace tarnix {

class FakeClock : public Clock {
  public:
    std::vector<Milliseconds> pauses;

    Milliseconds now() override { return m_now; }

    void pause(Milliseconds time) override {
        pauses.push_back(time);
        m_now += time;
    }

    void advance(Milliseconds time) { m_now += time; }

  private:
    Milliseconds m_now{0};
};

} // namespace tarnix
