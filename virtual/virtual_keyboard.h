// A model of the keyboard as the host meets it: what it keeps, the reports that it answers and sends, and its
// faults. It sits below the protocol, at the HID transport.
//
// The device has three HID interfaces, each a node of its own:
//   0  boot keyboard (usage page 0001)          input reports of 8 bytes, no report ids; sends nothing here
//   1  events        (usage page 000A)          input reports of 7 bytes, no report ids
//   2  configuration (usage page 000B)          feature reports 4, 5, 6, 7 and 8
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/clock.h"

namespace tarnix {

/// A G-key's macro as the keyboard's memory holds it.
struct KeyboardMacro {
    static constexpr std::size_t nameLength = 24;

    std::optional<std::string> name; ///< none: the name field holds FF throughout
    std::uint8_t loopCount = 0;      ///< 0: plays once
    std::uint8_t stepCount = 0;      ///< as it was sent; may exceed the steps that there is room for
    std::array<std::uint8_t, 192> steps{};
    bool operator==(const KeyboardMacro&) const = default;
};

struct KeyboardProfile {
    /// Fields of four bits, high one first: brightness, mode; speed, area 1; areas 2, 3; areas 4, 5.
    std::array<std::uint8_t, 4> lighting{};
    std::array<std::uint8_t, 160> keyCodes{};
    std::array<std::uint8_t, 18> gKeys{}; ///< three bytes for each of six G-keys
    std::array<KeyboardMacro, 6> macros;
    bool operator==(const KeyboardProfile&) const = default;
};

/// One HID interface of the keyboard.
struct KeyboardInterface {
    std::uint16_t usagePage = 0;
    std::size_t inputReportLength = 0; ///< with a byte for the report id, sent or not; 0 if it sends none
    std::vector<std::uint8_t> descriptor;
};

enum class WireDirection { Set, Get, Event };

/// One report that went over the wire, or was refused there.
struct WireRecord {
    Milliseconds time{0};
    WireDirection direction = WireDirection::Set;
    std::vector<std::uint8_t> report; ///< report id first; of a refused get: the id and its length in zeros
    bool accepted = true;
};

class VirtualKeyboard {
  public:
    static constexpr std::uint16_t vendor = 0x04F3;
    static constexpr std::uint16_t product = 0x1406;
    static constexpr int profileCount = 3;
    static constexpr std::size_t eventInterface = 1;
    static constexpr std::size_t featureInterface = 2;

    /// Its state is what the factory gives it. The clock times the wire log and takes the delays.
    explicit VirtualKeyboard(Clock& clock);

    static const std::vector<KeyboardInterface>& interfaces();

    /// The configuration interface. Byte 0 is the report id. False where the keyboard refuses: unknown id,
    /// wrong length, a profile or slot that it has not, a fault that was asked for, or no keyboard plugged
    /// in.
    bool setFeature(std::span<const std::uint8_t> report);
    /// Byte 0 names the report; the answer replaces the span, which stays as it was after a refusal.
    bool getFeature(std::span<std::uint8_t> report);
    /// Length of a feature report with its id; 0 for an id that the keyboard does not know.
    static std::size_t featureLength(std::uint8_t id);

    /// What it holds; a test looks here, and prepares its keyboard here.
    std::array<KeyboardProfile, profileCount> profiles;
    /// 0 to 2; the program's farewell leaves it as it is. A test may put any number here.
    std::uint8_t activeProfile = 0;

    // The user at the keyboard. Profiles and G-keys count from 1, as they are engraved. All of it does
    // nothing but change what the keyboard holds and send the event report.
    void pressProfile(std::uint8_t profile);
    void pressGKey(std::uint8_t gKey);
    void changeMode(std::uint8_t mode);
    void changeBrightness(std::uint8_t brightness);
    void changeSpeed(std::uint8_t speed);
    /// Changes the lighting of the active profile in a way that no other event tells.
    void changeLighting(std::span<const std::uint8_t, 4> lighting);
    void lockWindowsKey(bool enabled);
    void lockAllKeys(bool enabled);
    /// Records on a G-key of the active profile; `steps` are pairs of code and parameter.
    void recordMacro(std::uint8_t gKey, std::span<const std::uint8_t> steps, std::uint8_t loopCount = 0);
    /// Sends any event report.
    void emit(std::uint8_t code, std::uint8_t value);

    /// Takes the event reports, as the interface sends them: event code first, 7 bytes.
    std::function<void(std::span<const std::uint8_t>)> onEvent;

    // Faults. A request is a feature set or get; requests count from 0 from now on.
    /// The fault happens as the request arrives, and lets it through or refuses it. It may pull the plug.
    void faultAtRequest(std::size_t number, std::function<bool()> fault) {
        m_faults.push_back({m_requests + number, std::move(fault)});
    }
    void failRequest(std::size_t number) {
        faultAtRequest(number, [] { return false; });
    }
    /// Those that were to come at a certain request.
    void forgetFaults() { m_faults.clear(); }
    void failEveryRequest(bool fail) { m_failEvery = fail; }
    void delayRequest(std::size_t number, Milliseconds delay) {
        faultAtRequest(number, [this, delay] {
            m_clock.pause(delay);
            return true;
        });
    }
    std::size_t requestCount() const { return m_requests; }
    void setPluggedIn(bool pluggedIn) { m_pluggedIn = pluggedIn; }
    bool isPluggedIn() const { return m_pluggedIn; }

    const std::vector<WireRecord>& wireLog() const { return m_log; }
    void clearWireLog() { m_log.clear(); }
    /// Told of each record as it is logged.
    std::function<void(const WireRecord&)> onWire;

  private:
    struct Fault {
        std::size_t request;
        std::function<bool()> happen;
    };

    bool admitRequest();
    bool acceptSet(std::span<const std::uint8_t> report);
    bool acceptGet(std::span<std::uint8_t> report);
    bool setKeyCodes(std::span<const std::uint8_t> report);
    bool setLighting(std::span<const std::uint8_t> report);
    bool setMacro(std::span<const std::uint8_t> report);
    void getMacro(std::span<std::uint8_t> report) const;
    KeyboardProfile& active();
    void log(WireDirection direction, std::span<const std::uint8_t> report, bool accepted);

    Clock& m_clock;
    std::uint8_t m_selectedProfile = 0;
    std::uint8_t m_selectedSlot = 0;
    std::size_t m_requests = 0;
    std::vector<Fault> m_faults;
    bool m_failEvery = false;
    bool m_pluggedIn = true;
    std::vector<WireRecord> m_log;
};

} // namespace tarnix
