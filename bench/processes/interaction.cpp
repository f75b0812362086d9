#include <linux/input-event-codes.h>

#include <stdexcept>
#include <thread>

#include "processes/measures.h"
#include "processes/wire.h"

namespace tarnix::bench {

namespace {

using namespace std::chrono_literals;

// Places of the main window and of its dialog for a key's function, in their coordinates.
constexpr int mainWidth = 805;
constexpr int mainHeight = 588;
constexpr int keyCapF1[] = {147, 231};
constexpr int applyButton[] = {716, 135};
constexpr int besideEverything[] = {20, 560};
constexpr int dialogWidth = 496;
constexpr int dialogHeight = 247;
constexpr int dialogOk[] = {198, 208};

constexpr Span pressLimit{5};
constexpr Span wireLimit{10};

/// More than Apply takes for one key.
constexpr auto applyTime = 1000ms;

WindowPlace mainWindow(Screen& screen) {
    const auto place = screen.find(mainWidth, mainHeight);
    if (!place) throw std::runtime_error("the main window is not on the screen");
    return *place;
}

void pointIn(Screen& screen, const WindowPlace& window, const int (&at)[2]) {
    screen.point(window.x + at[0], window.y + at[1]);
    screen.settle();
}

void clickIn(Screen& screen, const WindowPlace& window, const int (&at)[2]) {
    screen.click(window.x + at[0], window.y + at[1]);
    screen.settle();
}

/// F1 gets another key's function through its dialog.
void remapKey(Screen& screen, std::uint8_t evdevCode) {
    clickIn(screen, mainWindow(screen), keyCapF1);
    const auto dialog = screen.find(dialogWidth, dialogHeight);
    if (!dialog) throw std::runtime_error("the dialog for a key does not open");
    screen.type(evdevCode);
    screen.settle();
    clickIn(screen, *dialog, dialogOk);
    if (screen.find(dialogWidth, dialogHeight))
        throw std::runtime_error("the dialog for a key does not close");
}

} // namespace

void measurePress(Screen& screen, Tools& tools, int rounds) {
    const auto process = tools.start(tools.program());
    screen.firstLastingFrame();
    const WindowPlace window = mainWindow(screen);
    Samples toFrame;
    for (int i = 0; i < rounds; ++i) {
        pointIn(screen, window, keyCapF1);
        const SteadyTime pressed = std::chrono::steady_clock::now();
        screen.press();
        const auto frame = screen.nextFrame(1s);
        if (!frame) throw std::runtime_error("a press shows nothing");
        toFrame.add(Span(*frame - pressed));
        pointIn(screen, window, besideEverything);
        screen.release();
        screen.settle();
    }
    process->end();
    Table table({"Press on a key cap", "median", "least", "limit"});
    table.row({"to the pressed frame on the screen", number(toFrame.median(), 2, " ms"),
               number(toFrame.least(), 2, " ms"), verdict(toFrame.median(), pressLimit.count(), 1, " ms")});
    table.print();
}

void measureApply(Screen& screen, Tools& tools, int rounds) {
    const auto process = tools.start(tools.programWithKeyboard());
    screen.firstLastingFrame();
    Samples overPauses;
    Samples all;
    for (int i = 0; i < rounds; ++i) {
        remapKey(screen, i % 2 == 0 ? KEY_F5 : KEY_F6);
        process->output().take();
        const WindowPlace window = mainWindow(screen);
        pointIn(screen, window, applyButton);
        screen.press();
        screen.settle();
        const SteadyTime clicked = std::chrono::steady_clock::now();
        screen.release();
        std::this_thread::sleep_for(applyTime);
        const auto sequence = wireSequence(process->output().take());
        if (!sequence) throw std::runtime_error("Apply sends nothing");
        overPauses.add(Span(sequence->last - clicked) - sequence->pauses);
        all.add(sequence->pauses + sequence->lastPause);
        pointIn(screen, window, besideEverything);
    }
    process->end();
    Table table({"Apply of one key", "median", "most", "limit"});
    table.row({"its pauses", number(all.median(), 0, " ms"), "", ""});
    table.row({"click to last report, over the pauses between", number(overPauses.median(), 1, " ms"),
               number(overPauses.most(), 1, " ms"),
               verdict(overPauses.median(), wireLimit.count(), 1, " ms")});
    table.print();
}

} // namespace tarnix::bench
