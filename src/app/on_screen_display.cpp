#include "app/on_screen_display.h"

#include <array>

namespace tarnix {
namespace {

constexpr unsigned timerId = 1;
constexpr int timerPeriod = 1000;
constexpr int secondsShown = 5;

/// By event code; code 0 is none.
constexpr std::array<const char*, 8> eventTexts{nullptr,
                                                "Current Profile:1",
                                                "Current Profile:2",
                                                "Current Profile:3",
                                                "Windows Key Status:Disable",
                                                "Windows Key Status:Enable",
                                                "All Key Status:Disable",
                                                "All Key Status:Enable"};

} // namespace

void OnScreenDisplay::OnDeviceEvent(WParam code) {
    if (code > 0 && code < eventTexts.size()) ShowOSD(eventTexts[code]);
}

void OnScreenDisplay::ShowOSD(const char* text) {
    m_secondsLeft = secondsShown;
    if (m_pOSD) {
        m_pOSD->SetText(text);
        return;
    }
    m_pOSD = std::make_unique<COSDDialog>(text);
    m_owner.startTimer(timerId, timerPeriod);
}

void OnScreenDisplay::OnTimer(unsigned id) {
    if (id != timerId) return;
    if (m_secondsLeft > 0) {
        --m_secondsLeft;
        return;
    }
    m_owner.stopTimer(timerId);
    m_pOSD.reset();
}

} // namespace tarnix
