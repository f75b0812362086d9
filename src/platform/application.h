// The process's connection to the desktop: made once, before the first window, and destroyed last.
#pragma once

#include <functional>
#include <memory>

#include "platform/clock.h"
#include "platform/main_loop.h"

namespace tarnix {

class Application {
  public:
    Application(int& argc, char** argv);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    MainLoop& mainLoop();
    /// The user-interface thread's clock. A pause serves expose events alone: input, messages, timers,
    /// hot-plug, tray and accessibility actions are kept and delivered in order once the work that paused is
    /// done.
    Clock& clock();
    /// Calls back when the session asks the program to end.
    void onQuitRequest(std::function<void()> callback);

  private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace tarnix
