#include "virtual/launcher.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>

#include "virtual/keyboard_day.h"
#include "virtual/launcher_commands.h"
#include "virtual/report_log.h"

namespace tarnix {
namespace {

/// A boot mouse (HID 1.11, appendix B.2), for a bus with more than a keyboard on it.
constexpr std::array<std::uint8_t, 52> mouseDescriptor{
    0x05, 0x01, 0x09, 0x02, 0xA1, 0x01, 0x09, 0x01, 0xA1, 0x00, 0x05, 0x09, 0x19,
    0x01, 0x29, 0x03, 0x15, 0x00, 0x25, 0x01, 0x95, 0x03, 0x75, 0x01, 0x81, 0x02,
    0x95, 0x01, 0x75, 0x05, 0x81, 0x03, 0x05, 0x01, 0x09, 0x30, 0x09, 0x31, 0x09,
    0x38, 0x15, 0x81, 0x25, 0x7F, 0x75, 0x08, 0x95, 0x03, 0x81, 0x06, 0xC0, 0xC0};

constexpr unsigned keyboardPort = 2;
constexpr unsigned mousePort = 3;

} // namespace

Milliseconds LauncherClock::now() {
    return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now() - m_start);
}

/// An interface of the keyboard on the bus: the model's feature reports, or none.
class Launcher::Function final : public BusFunction {
  public:
    Function(LauncherClock& clock, VirtualKeyboard* keyboard) : m_clock(clock), m_keyboard(keyboard) {}

    FeatureAnswer setFeature(std::span<const std::uint8_t> report) override {
        if (m_keyboard == nullptr) return {};
        const bool accepted = m_keyboard->setFeature(report);
        return {accepted, {}, m_clock.takeOwed()};
    }

    FeatureAnswer getFeature(std::uint8_t reportId, std::size_t length) override {
        if (m_keyboard == nullptr) return {};
        if (length == 0) length = std::max<std::size_t>(1, VirtualKeyboard::featureLength(reportId));
        std::vector<std::uint8_t> report(length);
        report[0] = reportId;
        const bool accepted = m_keyboard->getFeature(report);
        return {accepted, std::move(report), m_clock.takeOwed()};
    }

  private:
    LauncherClock& m_clock;
    VirtualKeyboard* m_keyboard;
};

Launcher::Launcher(const LauncherOptions& options)
    : m_options(options),
      m_bus(options.kernel ? makeUhidBus() : makeMockBus()),
      m_silent(std::make_unique<Function>(m_clock, nullptr)),
      m_features(std::make_unique<Function>(m_clock, &m_keyboard)),
      m_commands(std::make_unique<CommandQueue>(*this)) {
    m_keyboard.setPluggedIn(false);
    m_keyboard.onWire = [this](const WireRecord& record) {
        print(describeRecord(record));
        m_keyboard.clearWireLog();
    };
    m_keyboard.onEvent = [this](std::span<const std::uint8_t> report) {
        if (!m_keyboardPlugs.empty()) m_keyboardPlugs[VirtualKeyboard::eventInterface]->sendInput(report);
    };
}

Launcher::~Launcher() {
    m_child.reset();
    m_keyboardPlugs.clear();
    m_mouse.reset();
}

bool Launcher::plugKeyboard() {
    if (!m_keyboardPlugs.empty()) return true;
    const auto& interfaces = VirtualKeyboard::interfaces();
    for (std::size_t i = 0; i < interfaces.size(); ++i) {
        BusInterface interface {
            "Tarnix Keyboard", VirtualKeyboard::vendor, VirtualKeyboard::product, keyboardPort,
                static_cast<unsigned>(i), interfaces[i].descriptor
        };
        Function& function = i == VirtualKeyboard::featureInterface ? *m_features : *m_silent;
        if (auto plug = m_bus->plug(interface, function)) m_keyboardPlugs.push_back(std::move(plug));
    }
    if (m_keyboardPlugs.size() < interfaces.size()) m_keyboardPlugs.clear();
    m_keyboard.setPluggedIn(!m_keyboardPlugs.empty());
    return m_keyboard.isPluggedIn();
}

void Launcher::unplugKeyboard() {
    m_keyboard.setPluggedIn(false);
    m_keyboardPlugs.clear();
}

/// The nodes outlive the request that one of them brings.
void Launcher::unplugAtRequest(std::size_t number) {
    m_keyboard.faultAtRequest(number, [this] {
        m_keyboard.setPluggedIn(false);
        m_vanishing = GlibSource::every(Milliseconds(0), [this] {
            unplugKeyboard();
            return false;
        });
        return false;
    });
}

bool Launcher::plugMouse() {
    if (m_mouse) return true;
    const BusInterface interface {
        "Mouse", 0x1209, 0x0001, mousePort, 0, { mouseDescriptor.begin(), mouseDescriptor.end() }
    };
    m_mouse = m_bus->plug(interface, *m_silent);
    return m_mouse != nullptr;
}

void Launcher::unplugMouse() {
    m_mouse.reset();
}

void Launcher::print(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
    if (!m_log) return;
    std::fprintf(m_log.get(), "%s\n", line.c_str());
    std::fflush(m_log.get());
}

bool Launcher::prepare() {
    if (!m_bus) {
        std::fprintf(stderr, "The kernel lets nobody make HID devices here (/dev/uhid).\n");
        return false;
    }
    if (!m_options.logFile.empty()) m_log.reset(std::fopen(m_options.logFile.c_str(), "we"));
    if (!m_options.logFile.empty() && !m_log) {
        std::perror(m_options.logFile.c_str());
        return false;
    }
    for (const std::string& seed : m_options.seeds) {
        if (m_commands->execute("seed " + seed)) continue;
        std::fprintf(stderr, "--seed-macro: %s is no macro\n", seed.c_str());
        return false;
    }
    if (m_options.extraMouse && !plugMouse()) return false;
    if (!m_options.unplugged && !plugKeyboard()) return false;
    if (m_options.commandFile.empty()) return true;
    std::ifstream file(m_options.commandFile);
    if (!file) std::perror(m_options.commandFile.c_str());
    for (std::string line; std::getline(file, line);)
        m_commands->add(line);
    return file.eof();
}

void Launcher::readInput() {
    m_inputSource = GlibSource::readable(STDIN_FILENO, [this] {
        std::array<char, 4096> bytes{};
        const ssize_t length = ::read(STDIN_FILENO, bytes.data(), bytes.size());
        if (length <= 0) {
            // Nobody is left to give commands; without a program there is nothing to wait for either.
            if (!m_child) end(0);
            return false;
        }
        m_input.append(bytes.data(), static_cast<std::size_t>(length));
        for (std::size_t eol = 0; (eol = m_input.find('\n')) != std::string::npos; m_input.erase(0, eol + 1))
            m_commands->add(m_input.substr(0, eol));
        return true;
    });
}

void Launcher::end(int status) {
    m_status = status;
    g_main_loop_quit(m_loop.get());
}

void Launcher::quit() {
    if (m_child)
        m_child->terminate();
    else
        end(0);
}

int Launcher::run() {
    if (!prepare()) return EXIT_FAILURE;
    std::vector<GlibSource> signals;
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        signals.push_back(GlibSource::onSignal(number, [this] {
            quit();
            return true;
        }));
    if (!m_options.program.empty()) {
        m_child = std::make_unique<LauncherChild>(m_options.program, [this](int status) { end(status); });
        if (!m_child->running()) return EXIT_FAILURE;
    }
    readInput();
    m_commands->start();
    if (m_options.day) m_day = std::make_unique<KeyboardDay>(*this, m_options.dayPause);
    g_main_loop_run(m_loop.get());
    return m_status;
}

} // namespace tarnix
