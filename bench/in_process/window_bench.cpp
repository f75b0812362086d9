#include "in_process/report.h"
#include "in_process/window_desk.h"
#include "ui/main_window_layout.h"
#include "ui/messages.h"

namespace tarnix::bench {

namespace {

constexpr double fullRepaintLimit = 0.3; ///< ms
constexpr double keyCapLimit = 10;       ///< us

/// Painting alone: into memory, with the window as it is on its page.
void paintArea(benchmark::State& state, const Rect& area, unsigned pageTab) {
    WindowDesk desk(false);
    desk.window.send(pageTab, 0, NOTIFY_CLICK);
    const auto face = makeSurface(mainWindowSize);
    for (auto _ : state)
        desk.window.OnPaint(face->canvas(), area);
}

constexpr Rect everything = Rect::at(0, 0, mainWindowSize.width, mainWindowSize.height);

void fullRepaint(benchmark::State& state) {
    paintArea(state, everything, id::keyPageTab);
    limit(state, fullRepaintLimit);
}

void fullRepaintOfLighting(benchmark::State& state) {
    paintArea(state, everything, id::lightingPageTab);
    limit(state, fullRepaintLimit);
}

void keyCapRepaint(benchmark::State& state) {
    paintArea(state, keyCaps[1].rect, id::keyPageTab);
    limit(state, keyCapLimit);
}

/// Painting and handing the pixels to the display.
void updateWindow(benchmark::State& state) {
    WindowDesk desk(false);
    for (auto _ : state) {
        desk.window.invalidate();
        desk.window.update();
    }
}

void pageSwitch(benchmark::State& state) {
    WindowDesk desk(false);
    bool lighting = false;
    for (auto _ : state) {
        lighting = !lighting;
        desk.window.send(lighting ? id::lightingPageTab : id::keyPageTab, 0, NOTIFY_CLICK);
        desk.window.update();
    }
}

void popupOpening(benchmark::State& state) {
    WindowDesk desk(false);
    desk.window.send(id::lightingPageTab, 0, NOTIFY_CLICK);
    for (auto _ : state) {
        desk.window.send(msg::openLightMode, id::lightModeField, NOTIFY_CLICK);
        CWndPopup* popup = desk.window.popups().at(PopupPlace::LightMode);
        if (!popup) return state.SkipWithError("no popup");
        popup->update();
        state.PauseTiming();
        desk.window.popups().dismiss();
        WindowDesk::turn();
        state.ResumeTiming();
    }
}

void messageDispatch(benchmark::State& state) {
    WindowDesk desk(false);
    for (auto _ : state)
        benchmark::DoNotOptimize(desk.window.send(id::unusedButton, 0, NOTIFY_CLICK));
}

BENCHMARK(fullRepaint)->Name("full repaint, key page")->Iterations(300)->Unit(benchmark::kMillisecond);
BENCHMARK(fullRepaintOfLighting)
    ->Name("full repaint, lighting page")
    ->Iterations(300)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(keyCapRepaint)->Name("one key cap's repaint")->Iterations(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(updateWindow)
    ->Name("full repaint and hand-over to the display")
    ->Iterations(100)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(pageSwitch)->Name("page switch and hand-over")->Iterations(100)->Unit(benchmark::kMillisecond);
BENCHMARK(popupOpening)->Name("a popup's opening")->Iterations(30)->Unit(benchmark::kMillisecond);
BENCHMARK(messageDispatch)->Name("message dispatch")->Iterations(100000)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace tarnix::bench
