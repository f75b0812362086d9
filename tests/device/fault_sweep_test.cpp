// The keyboard fails, dawdles, vanishes, or vanishes and returns, at every single request of everything that
// the program asks of it.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>

#include "device/feature_reports.h"
#include "macro/macro_files.h"
#include "profile/profile_file.h"
#include "support/device_bench.h"

namespace tarnix {
namespace {

enum class Fault { Refusal, Delay, Leaving, LeavingAndReturn };
constexpr Fault allFaults[] = {Fault::Refusal, Fault::Delay, Fault::Leaving, Fault::LeavingAndReturn};

constexpr std::uint8_t applied = 0x11;
constexpr std::uint8_t appliedAgain = 0x77;

using Records = std::array<ProfileRecord, profileCount>;

void change(Records& records, MacroLibrary& macros, std::uint8_t mark) {
    for (int p = 0; p < keyboardProfileCount; ++p) {
        records[p].KeyCodes.fill(mark);
        records[p].Settings[settingLightMode].Value = toText(mark & 7);
    }
    for (MacroKey& macro : macros.sets[0].keys) {
        macro.loopEnable = 1;
        macro.loopCount = mark;
    }
}

/// A keyboard whose G-keys all hold macros, every fourth without a name, and a program that has read it or
/// not.
struct SweptBench : DeviceBench {
    SweptBench() {
        for (std::uint8_t p = 0; p < 3; ++p) {
            keyboard.profiles[p].lighting = {static_cast<std::uint8_t>(0x20 + p), 0x01, 0x23, 0x45};
            keyboard.profiles[p].gKeys = {1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0};
            keyboard.profiles[p].keyCodes[16] = static_cast<std::uint8_t>(0x50 + p);
            for (std::uint8_t slot = 0; slot < 6; ++slot) {
                KeyboardMacro& macro = keyboard.profiles[p].macros[slot];
                macro = {"M" + toText(p) + toText(slot), slot, 1, {4, slot}};
                if ((p + slot) % 4 == 0) macro.name.reset();
            }
        }
        keyboard.activeProfile = 1;
    }

    void applyAll(std::uint8_t mark) {
        change(store.ProfileTable, macros, mark);
        for (int p = 0; p < keyboardProfileCount; ++p)
            for (int row = 0; row < PendingWrites::rowCount; ++row)
                link->pending().mark(row, p);
        link->FlushPendingWrites();
        protocol().SetActiveProfile(2);
    }
    /// An event report that makes requests is heard whole.
    void hear(std::uint8_t code, std::uint8_t value) {
        const std::size_t before = keyboard.requestCount();
        keyboard.emit(code, value);
        EXPECT_TRUE(loop.runUntil([&] { return keyboard.requestCount() > before; }));
    }
};

struct Sequence {
    std::string name;
    bool readBefore;
    bool asks; ///< so that later requests depend on answers
    bool applies;
    void (*run)(SweptBench&);
};
const Sequence sequences[] = {
    {"full read", false, true, false, [](SweptBench& bench) { bench.start(); }},
    {"apply", true, false, true, [](SweptBench& bench) { bench.applyAll(applied); }},
    {"upload", true, true, false,
     [](SweptBench& bench) {
         bench.keyboard.profiles[1].macros[2] = {std::nullopt, 3, 2, {7, 0, 7, 0x80}};
         bench.hear(eventReport::macroRecorded, 3);
     }},
    {"lighting", true, false, false, [](SweptBench& bench) { bench.hear(eventReport::lightingChanged, 0); }},
    {"farewell", true, false, false, [](SweptBench& bench) { bench.link->close(); }},
};

Milliseconds pauseAfter(const WireRecord& record) {
    if (record.direction == WireDirection::Event) return Milliseconds(0);
    if (record.report[0] == 5)
        return record.direction == WireDirection::Get ? Milliseconds(0) : smallSetPause;
    if (record.direction == WireDirection::Get || record.report[0] == 4) return exchangePause;
    return record.report[0] == 7 ? smallSetPause : memorySetPause;
}

/// What the wire says that records and macros hold now: each answer in its place, all else as before.
void takeAnswers(const std::vector<WireRecord>& log, Records& records, MacroLibrary& macros) {
    int profile = 0;
    int slot = 0;
    for (const WireRecord& record : log) {
        const std::span<const std::uint8_t> bytes = record.report;
        if (record.direction == WireDirection::Set && bytes[0] == 4) profile = bytes[1], slot = bytes[2];
        if (record.direction != WireDirection::Get || !record.accepted) continue;
        if (bytes[0] == 7) unpackLighting(records[profile], bytes.first<lightingReport::length>());
        if (bytes[0] == 6) unpackKeyCodes(records[profile], bytes.first<keyCodeReport::length>());
        if (bytes[0] != 8) continue;
        GKeySlot& gKey = records[profile].GKeys[slot];
        gKey.Name = "Profile" + toText(profile + 1) + "_G" + toText(slot + 1);
        if (const auto name = macroReportName(bytes.first<macroReport::length>())) gKey.Name = *name;
        MacroSet& set = macros.sets[0];
        const int known = findMacroName(set, gKey.Name);
        DecodeMacroReport(known >= 0 ? set.keys[known] : AddMacroKey(set, gKey.Name),
                          bytes.first<macroReport::length>());
    }
}

std::string words(const MacroLibrary& library) {
    return formatMacroLibrary(library, LibraryForm::Long);
}

/// The notices of what happened meanwhile come, then the keyboard is plugged out and in, and everything
/// works.
void recover(SweptBench& bench, bool closed, bool away, bool back) {
    bench.keyboard.forgetFaults();
    if (back) bench.hid.plugIn();
    if (away) bench.hid.tell(HidChange::Removal);
    if (back) bench.hid.tell(HidChange::Arrival);
    bench.loop.runPosted();
    if (closed) bench.makeLink(), bench.hid.plugIn(), bench.start();
    bench.unplug();
    EXPECT_FALSE(bench.link->isDeviceFound());
    bench.replug();
    EXPECT_EQ(bench.hid.openDevices(), 2) << "one listener and one handle";
    bench.applyAll(appliedAgain);
    for (const KeyboardProfile& held : bench.keyboard.profiles) {
        EXPECT_THAT(held.keyCodes, testing::Each(appliedAgain));
        EXPECT_EQ(held.lighting[0] & 0x0F, appliedAgain & 7);
        for (const KeyboardMacro& macro : held.macros)
            EXPECT_EQ(macro.loopCount, appliedAgain) << macro.name.value_or("unnamed");
    }
    const Words told = bench.told();
    EXPECT_EQ(std::count(told.begin(), told.end(), "notice"), 1);
    EXPECT_EQ(bench.event(eventReport::profileChanged, 1), (Words{"show 0", "event 1"}));
}

/// Goes through the sequence with the fault at those requests; what it asked of the keyboard.
Words sweep(const Sequence& sequence, Fault fault, const std::vector<std::size_t>& places) {
    SCOPED_TRACE(sequence.name + " fault " + toText(static_cast<int>(fault)) +
                 testing::PrintToString(places));
    SweptBench bench;
    if (sequence.readBefore) bench.startQuietly();
    for (const std::size_t place : places) {
        bench.keyboard.faultAtRequest(place, [&] {
            if (fault == Fault::Delay) bench.clock.advance(Milliseconds(60000));
            if (fault == Fault::Leaving || fault == Fault::LeavingAndReturn) bench.hid.unplug();
            return fault != Fault::Refusal;
        });
    }
    bench.files.contents.clear();
    Records records = bench.store.ProfileTable;
    MacroLibrary macros = bench.macros;
    if (sequence.applies) change(records, macros, applied);
    sequence.run(bench);

    std::vector<Milliseconds> pauses;
    for (const WireRecord& record : bench.keyboard.wireLog())
        if (const Milliseconds pause = pauseAfter(record); pause.count() > 0) pauses.push_back(pause);
    const bool closed = sequence.name == "farewell";
    EXPECT_EQ(bench.hid.openDevices() == 0, closed);
    if (closed) pauses.emplace_back(10); // before the handle is closed for good
    EXPECT_EQ(bench.clock.pauses, pauses);
    takeAnswers(bench.keyboard.wireLog(), records, macros);
    EXPECT_TRUE(bench.store.ProfileTable == records);
    EXPECT_EQ(words(bench.macros), words(macros));
    for (const auto& [path, text] : bench.files.contents)
        EXPECT_EQ(text, path == "p1" ? formatProfile(records[1]) : words(macros)) << path;
    Words requests = bench.requests();
    for (std::string& request : requests)
        std::erase(request, '!');
    bench.link->FlushPendingWrites();
    EXPECT_THAT(bench.requests(), testing::IsEmpty()) << "what was sent in vain is not pending any more";
    recover(bench, closed, fault >= Fault::Leaving, fault == Fault::LeavingAndReturn);
    return requests;
}

TEST(FaultSweep, NoFaultAtAnyRequestOfAnySequenceLosesAnythingOrStopsAnything) {
    int count = 0;
    for (const Sequence& sequence : sequences) {
        const Words clean = sweep(sequence, Fault::Delay, {});
        for (std::size_t first = 0; first < clean.size(); ++first) {
            for (const Fault fault : allFaults) {
                const Words requests = sweep(sequence, fault, {first});
                EXPECT_TRUE((sequence.asks && fault != Fault::Delay) || requests == clean);
                ++count;
                ASSERT_FALSE(HasFailure());
            }
            for (std::size_t second = first + 1; second < clean.size(); ++second) {
                if (sweep(sequence, Fault::Refusal, {first, second}).size() > second) ++count;
                ASSERT_FALSE(HasFailure());
            }
        }
    }
    std::printf("counted: %d faults of the keyboard\n", count);
}

} // namespace
} // namespace tarnix
