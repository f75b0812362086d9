// The virtual keyboard on a bus, with a program beside it and somebody who gives commands.
#pragma once

#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include "virtual/launcher_bus.h"
#include "virtual/launcher_child.h"
#include "virtual/launcher_options.h"
#include "virtual/virtual_keyboard.h"

namespace tarnix {

/// Real time, whose pauses do not stop the launcher: they are collected, for the bus to keep the asker
/// waiting.
class LauncherClock final : public Clock {
  public:
    Milliseconds now() override;
    void pause(Milliseconds time) override { m_owed += time; }
    /// What was to be paused since the last call.
    Milliseconds takeOwed() { return std::exchange(m_owed, Milliseconds(0)); }

  private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    Milliseconds m_owed{0};
};

class Launcher {
  public:
    explicit Launcher(const LauncherOptions& options);
    ~Launcher();
    Launcher(const Launcher&) = delete;
    Launcher& operator=(const Launcher&) = delete;

    /// Runs until the program ends or somebody ends the launcher; the status to exit with.
    int run();

    // For commands.
    VirtualKeyboard& keyboard() { return m_keyboard; }
    /// False when the bus refuses.
    bool plugKeyboard();
    void unplugKeyboard();
    /// Pulls the plug at the request that follows the given number of others, which it refuses.
    void unplugAtRequest(std::size_t number);
    bool plugMouse();
    void unplugMouse();
    void print(const std::string& line);
    void quit();

  private:
    class Function;

    bool prepare();
    void readInput();
    void end(int status);

    LauncherOptions m_options;
    LauncherClock m_clock;
    VirtualKeyboard m_keyboard{m_clock};
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_log{nullptr, std::fclose};
    std::unique_ptr<Bus> m_bus;
    std::unique_ptr<Function> m_silent;
    std::unique_ptr<Function> m_features;
    std::vector<std::unique_ptr<BusPlug>> m_keyboardPlugs; ///< one an interface; empty while unplugged
    GlibSource m_vanishing;
    std::unique_ptr<BusPlug> m_mouse;
    std::unique_ptr<class CommandQueue> m_commands;
    std::unique_ptr<class KeyboardDay> m_day;
    std::string m_input; ///< of the standard input, what is no whole line yet
    GlibSource m_inputSource;
    std::unique_ptr<LauncherChild> m_child;
    std::unique_ptr<GMainLoop, void (*)(GMainLoop*)> m_loop{g_main_loop_new(nullptr, FALSE),
                                                            g_main_loop_unref};
    int m_status = 0;
};

} // namespace tarnix
