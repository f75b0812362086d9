#include <cstdio>
#include <stdexcept>
#include <thread>

#include "processes/measures.h"
#include "processes/wire.h"

namespace tarnix::bench {

namespace {

using namespace std::chrono_literals;

/// What comes after the first frame (the icon in the notification area) belongs to the memory.
constexpr auto restAfterStart = 600ms;

constexpr Span fullReadPauses{96};
constexpr Span readAllowance{10};
constexpr double startRatio = 1.25;
constexpr Span closingPauses{25};
constexpr Span exitAllowance{30};

struct Contestant {
    const char* name;
    Recipe recipe;
    Samples start{};
    Samples pss{};
    Samples privateDirty{};
    Samples resident{};
    Samples exit{};
    Samples toFirstReport{};
    Samples readOverPauses{};
    Samples fromReadToFrame{};
};

void noteRead(Contestant& contestant, const WireSequence& read, SteadyTime started, SteadyTime frame) {
    contestant.toFirstReport.add(Span(read.first - started));
    contestant.readOverPauses.add(Span(read.last - read.first) - read.pauses);
    contestant.fromReadToFrame.add(Span(frame - read.last) - read.lastPause);
}

void runOnce(Contestant& contestant, Screen& screen, const Tools& tools) {
    screen.settle();
    const auto process = tools.start(contestant.recipe);
    const auto frame = screen.firstLastingFrame();
    if (!frame) throw std::runtime_error(std::string(contestant.name) + " shows nothing");
    contestant.start.add(Span(*frame - process->started()));
    if (const auto read = wireSequence(process->output().take()))
        noteRead(contestant, *read, process->started(), *frame);
    std::this_thread::sleep_for(restAfterStart);
    const Memory memory = process->memory();
    contestant.pss.add(memory.pss);
    contestant.privateDirty.add(memory.privateDirty);
    contestant.resident.add(memory.resident);
    const auto exit = process->end();
    if (!exit) throw std::runtime_error(std::string(contestant.name) + " does not end");
    contestant.exit.add(*exit);
}

void print(const std::vector<Contestant>& contestants, double bareStart) {
    Table times({"Start to first frame", "median ms", "least", "ratio to toolkit"});
    for (const Contestant& each : contestants) {
        const double median = each.start.median();
        times.row(
            {each.name, number(median, 1), number(each.start.least(), 1), number(median / bareStart, 2)});
    }
    times.print();
    Table parts({"Start with the keyboard", "to the first report", "read over pauses", "from read to frame"});
    for (const Contestant& each : contestants) {
        if (each.toFirstReport.empty()) continue;
        parts.row({each.name, number(each.toFirstReport.median(), 1, " ms"),
                   number(each.readOverPauses.median(), 1, " ms"),
                   number(each.fromReadToFrame.median(), 1, " ms")});
    }
    parts.print();
    Table memory({"Memory", "PSS MB", "private dirty MB", "resident MB"});
    for (const Contestant& each : contestants)
        memory.row({each.name, number(each.pss.median(), 1), number(each.privateDirty.median(), 1),
                    number(each.resident.median(), 1)});
    memory.print();
}

void printLimits(const Contestant& bare, const Contestant& program, const Contestant& gnome,
                 const Contestant& keyboard, const Contestant& keyboardGnome) {
    const double startLimit = startRatio * bare.start.median();
    const double readLimit = startLimit + (fullReadPauses + readAllowance).count();
    Table limits({"Figure", "median", "limit"});
    const auto row = [&](const char* name, double value, double limit, const char* unit) {
        limits.row({name, number(value, 1, unit), verdict(value, limit, 1, unit)});
    };
    row("start without a keyboard", program.start.median(), startLimit, " ms");
    row("the same in GNOME", gnome.start.median(), startLimit, " ms");
    row("start with the keyboard", keyboard.start.median(), readLimit, " ms");
    row("the same in GNOME", keyboardGnome.start.median(), readLimit, " ms");
    row("full read over its pauses, on the wire", keyboard.readOverPauses.median(), readAllowance.count(),
        " ms");
    row("PSS", program.pss.median(), 28, " MB");
    row("private dirty", program.privateDirty.median(), 8, " MB");
    row("quit to end without a keyboard", program.exit.median(), exitAllowance.count(), " ms");
    row("quit to end with the keyboard, over its pauses", keyboard.exit.median() - closingPauses.count(),
        exitAllowance.count(), " ms");
    limits.print();
}

} // namespace

void measureStarts(Screen& screen, Tools& tools, int rounds) {
    std::vector<Contestant> all;
    all.push_back({"bare X window", tools.bareXWindow()});
    all.push_back({"bare toolkit window", tools.bareWindow()});
    all.push_back({"bare toolkit window, GNOME", inGnome(tools.bareWindow())});
    all.push_back({"program", tools.program()});
    all.push_back({"program, GNOME", inGnome(tools.program())});
    all.push_back({"program with keyboard", tools.programWithKeyboard()});
    all.push_back({"program with keyboard, GNOME", inGnome(tools.programWithKeyboard())});
    // The first start writes the program's files and brings what is read from the disk into memory.
    for (const Contestant& each : all) {
        Contestant first = each;
        runOnce(first, screen, tools);
    }
    for (int round = 0; round < rounds; ++round) {
        for (Contestant& each : all)
            runOnce(each, screen, tools);
    }
    print(all, all[1].start.median());
    printLimits(all[1], all[3], all[4], all[5], all[6]);
}

} // namespace tarnix::bench
