#include <chrono>

#include "device/device_observer.h"
#include "in_process/report.h"
#include "in_process/window_desk.h"
#include "ui/messages.h"

namespace tarnix::bench {

namespace {

using Time = std::chrono::steady_clock;

constexpr double overPausesLimit = 1.02;
constexpr int burst = 1000;
constexpr double burstLimit = 200; ///< ms: 5,000 reports a second

/// Times work of the device link, whose pauses must make up nearly all of it.
template <class Work>
void overPauses(benchmark::State& state, WindowDesk& desk, Work work) {
    double pauses = 0;
    for (auto _ : state) {
        desk.clock.takeSum();
        const auto start = Time::now();
        work();
        const std::chrono::duration<double> time = Time::now() - start;
        pauses = std::chrono::duration<double, std::milli>(desk.clock.takeSum()).count();
        state.SetIterationTime(time.count());
        WindowDesk::turn();
    }
    state.counters["pauses ms"] = pauses;
    limit(state, pauses * overPausesLimit);
}

void fullRead(benchmark::State& state) {
    WindowDesk desk(true);
    overPauses(state, desk, [&desk] {
        desk.window.link().InitDeviceLink();
        desk.window.link().FindDevice();
        desk.window.link().ReadDeviceState();
    });
}

/// Everything that one profile can have changed but macros, with the files.
void apply(benchmark::State& state) {
    WindowDesk desk(true);
    overPauses(state, desk, [&desk] {
        desk.window.link().pending().mark(PendingWrites::lightingRow, 0);
        desk.window.link().pending().mark(PendingWrites::keyCodeRow, 0);
        desk.window.send(id::applyButton, 0, NOTIFY_CLICK);
    });
}

void emitBurst(VirtualKeyboard& keyboard) {
    for (int i = 0; i + 1 < burst; ++i) {
        const auto value = static_cast<std::uint8_t>(i / 4 % 3 + 1);
        switch (i % 4) {
            case 0:
                keyboard.pressProfile(value);
                break;
            case 1:
                keyboard.changeMode(value);
                break;
            case 2:
                keyboard.changeBrightness(value);
                break;
            default:
                keyboard.lockWindowsKey(value == 1);
        }
    }
    keyboard.lockAllKeys(true);
}

/// From the first report to the painting after the last one.
void eventBurst(benchmark::State& state) {
    WindowDesk desk(true);
    for (auto _ : state) {
        desk.presence.last = 0;
        const auto start = Time::now();
        emitBurst(desk.keyboard);
        while (desk.presence.last != static_cast<WParam>(DeviceEvent::AllKeysEnabled))
            WindowDesk::waitTurn();
        WindowDesk::turn();
        const std::chrono::duration<double> time = Time::now() - start;
        state.SetIterationTime(time.count());
        desk.keyboard.clearWireLog();
    }
    limit(state, burstLimit);
    state.counters["reports a second"] =
        benchmark::Counter(burst, benchmark::Counter::kIsIterationInvariantRate);
}

BENCHMARK(fullRead)->Name("full read")->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(apply)->Name("Apply of one profile")->UseManualTime()->Iterations(2)->Unit(benchmark::kMillisecond);
BENCHMARK(eventBurst)
    ->Name("1,000 event reports")
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tarnix::bench
