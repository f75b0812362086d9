#include <stdexcept>
#include <thread>

#include "processes/measures.h"

namespace tarnix::bench {

namespace {

using namespace std::chrono_literals;

constexpr auto restAfterStart = 3s;

// Of the main window.
constexpr int mainWidth = 805;
constexpr int mainHeight = 588;
constexpr int closeButtonX = 775;
constexpr int closeButtonY = 24;

struct Idler {
    const char* name;
    Recipe recipe;
    bool hidden = false;
    std::unique_ptr<Process> process{};
    Activity before{};
    Activity after{};
};

/// The close button hides the window in the notification area.
void hideMainWindow(Screen& screen) {
    const auto window = screen.find(mainWidth, mainHeight);
    if (!window) throw std::runtime_error("the main window is not on the screen");
    screen.click(window->x + closeButtonX, window->y + closeButtonY);
    screen.settle(500ms);
    if (screen.find(mainWidth, mainHeight)) throw std::runtime_error("the main window does not hide");
    screen.point(0, 0);
    screen.settle();
}

} // namespace

/// All at the same time, each in a session of its own; the hidden ones first, to be alone on the screen.
void measureIdle(Screen& screen, Tools& tools, std::chrono::seconds time) {
    std::vector<Idler> all;
    all.push_back({"program, hidden", tools.beside(tools.program()), true});
    all.push_back({"program with keyboard, hidden", tools.beside(tools.programWithKeyboard()), true});
    all.push_back({"program, shown", tools.beside(tools.program())});
    all.push_back({"program with keyboard, shown", tools.beside(tools.programWithKeyboard())});
    all.push_back({"bare toolkit window", tools.bareWindow()});
    all.push_back({"bare X window", tools.bareXWindow()});
    for (Idler& each : all) {
        each.process = tools.start(each.recipe);
        screen.firstLastingFrame();
        if (each.hidden) hideMainWindow(screen);
    }
    std::this_thread::sleep_for(restAfterStart);
    for (Idler& each : all)
        each.before = each.process->activity();
    std::this_thread::sleep_for(time);
    for (Idler& each : all)
        each.after = each.process->activity();

    Table table(
        {"Idle for " + std::to_string(time.count()) + " s", "wake-ups", "CPU ticks", "threads", "limit"});
    for (const Idler& each : all) {
        const long wakeUps = each.after.wakeUps - each.before.wakeUps;
        const long ticks = each.after.cpuTicks - each.before.cpuTicks;
        table.row({each.name, std::to_string(wakeUps), std::to_string(ticks),
                   std::to_string(each.after.threads), wakeUps + ticks == 0 ? "0 and 0" : "0 and 0 MISSED"});
    }
    table.print();
    for (Idler& each : all)
        each.process->end();
}

} // namespace tarnix::bench
