// The display as an onlooker sees it: when it changes and to what; and a hand that points, presses and types.
#pragma once

#include <xcb/damage.h>
#include <xcb/shm.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

#include "figures.h"

namespace tarnix::bench {

struct WindowPlace {
    xcb_window_t window = 0;
    int x = 0; ///< on the screen
    int y = 0;
};

/// The topmost rows of the screen belong to the notification area, which this object provides: they are not
/// looked at.
class Screen {
  public:
    Screen();
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// The time of the first frame that shows what the screen shows when it has been quiet for a while. None
    /// where it stays blank.
    std::optional<SteadyTime> firstLastingFrame();
    /// The time of the next change of the picture.
    std::optional<SteadyTime> nextFrame(std::chrono::milliseconds patience);
    /// Waits until nothing has changed for the given time.
    void settle(std::chrono::milliseconds quiet = std::chrono::milliseconds(150));
    /// Forgets what the screen showed; to be called before the change that is waited for.
    void look();

    /// A visible window of that size, wherever a window manager has put it.
    std::optional<WindowPlace> find(int width, int height);

    void point(int x, int y);
    void press() { button(true); }
    void release() { button(false); }
    void click(int x, int y);
    void type(std::uint8_t evdevCode);

  private:
    using Picture = std::uint64_t; ///< a digest of the screen's pixels

    void button(bool down);
    void ownNotificationArea();
    void dock(xcb_window_t icon);
    std::optional<Picture> picture(); ///< none of one colour
    /// Serves the display until something has been drawn.
    bool waitForDamage(SteadyTime deadline);
    bool handle(const xcb_generic_event_t& event);
    std::optional<WindowPlace> findBelow(xcb_window_t parent, int width, int height);
    xcb_atom_t atom(const char* name);
    void flush() { xcb_flush(m_connection); }

    xcb_connection_t* m_connection;
    const xcb_screen_t* m_screen = nullptr;
    xcb_damage_damage_t m_damage = 0;
    xcb_shm_seg_t m_segment = 0;
    const std::uint32_t* m_pixels = nullptr; ///< the server puts them here
    std::uint8_t m_damageEvent = 0;
    xcb_window_t m_notificationArea = 0;
    xcb_atom_t m_trayOpcode = 0;
    std::optional<Picture> m_last;
};

} // namespace tarnix::bench
