#include "device/feature_reports.h"
#include "device/macro_report.h"
#include "in_process/report.h"

namespace tarnix::bench {

namespace {

MacroKey longMacro() {
    MacroKey macro;
    macro.name = "TwelveLetter";
    for (int i = 0; i < maxActionCount; ++i)
        AppendAction(macro, i % 2 == 0 ? MacroAction::key(0x41, i % 4 == 2) : MacroAction::delay(20));
    return macro;
}

void encodeKeyCodes(benchmark::State& state) {
    const ProfileRecord record{};
    for (auto _ : state)
        benchmark::DoNotOptimize(packKeyCodes(record, 1));
}

void decodeKeyCodes(benchmark::State& state) {
    ProfileRecord record{};
    const KeyCodeReport report = packKeyCodes(record, 1);
    for (auto _ : state) {
        unpackKeyCodes(record, report);
        benchmark::DoNotOptimize(record);
    }
}

void encodeLighting(benchmark::State& state) {
    const ProfileRecord record{};
    for (auto _ : state)
        benchmark::DoNotOptimize(packLighting(record, 1));
}

void decodeLighting(benchmark::State& state) {
    ProfileRecord record{};
    const LightingReport report = packLighting(record, 1);
    for (auto _ : state) {
        unpackLighting(record, report);
        benchmark::DoNotOptimize(record);
    }
}

void encodeMacro(benchmark::State& state) {
    const MacroKey macro = longMacro();
    for (auto _ : state)
        benchmark::DoNotOptimize(encodeMacroReport(macro, 0, 0));
}

void decodeMacro(benchmark::State& state) {
    const MacroReport report = encodeMacroReport(longMacro(), 0, 0);
    MacroKey macro;
    for (auto _ : state) {
        DecodeMacroReport(macro, report);
        benchmark::DoNotOptimize(macro);
    }
}

BENCHMARK(encodeKeyCodes)->Name("key codes to report")->Unit(benchmark::kMicrosecond);
BENCHMARK(decodeKeyCodes)->Name("report to key codes")->Unit(benchmark::kMicrosecond);
BENCHMARK(encodeLighting)->Name("lighting to report")->Unit(benchmark::kMicrosecond);
BENCHMARK(decodeLighting)->Name("report to lighting")->Unit(benchmark::kMicrosecond);
BENCHMARK(encodeMacro)->Name("macro to report")->Unit(benchmark::kMicrosecond);
BENCHMARK(decodeMacro)->Name("report to macro")->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace tarnix::bench
