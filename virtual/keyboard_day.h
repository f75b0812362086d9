// A person at the keyboard.
#pragma once

#include <random>

#include "platform/clock.h"
#include "virtual/glib_source.h"

namespace tarnix {

class Launcher;

/// Lets the user's actions follow one another as a person would do them: mostly lighting and profiles, now
/// and then a lock, a recording or a program, seldom a keyboard that is unplugged for a moment. The same day
/// every time.
class KeyboardDay {
  public:
    /// `pause` lies between two actions on average.
    KeyboardDay(Launcher& launcher, Milliseconds pause);

  private:
    void schedule();
    void act();
    int roll(int sides);

    Launcher& m_launcher;
    Milliseconds m_pause;
    std::mt19937 m_dice;
    GlibSource m_next;
};

} // namespace tarnix
