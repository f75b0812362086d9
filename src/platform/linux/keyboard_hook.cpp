#include "platform/keyboard_hook.h"

#include <chrono>

#include "platform/key_source.h"
#include "platform/linux/raw_keys.h"
#include "platform/linux/virtual_keys.h"
#include "platform/window.h"

namespace tarnix {
namespace {

constexpr LParam timeBits = 0x7FFFFFFF;
constexpr LParam releaseBit = 0x80000000;

void postKey(Window& target, unsigned evdevCode, bool down, std::uint64_t time) {
    const std::uint8_t virtualKey = virtualKeyOf(evdevCode);
    if (virtualKey == 0) return;
    target.post(WM_KEYHOOK, virtualKey, (static_cast<LParam>(time) & timeBits) | (down ? 0 : releaseBit));
}

std::uint64_t milliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

} // namespace

struct CKeyboardHook::Native {
    explicit Native(Window& target)
        : session(RawKeys::listen(
              [&target](const RawKey& key) { postKey(target, key.evdevCode, key.down, key.time); })),
          windows(target,
                  session ? nullptr : std::function<void(const WindowKey&)>([&target](const WindowKey& key) {
                      postKey(target, key.scanCode, key.down, milliseconds());
                  })) {}

    std::unique_ptr<RawKeys> session; ///< none where the session gives no system-wide keys
    KeyInterception windows; ///< keeps the program's own windows from acting; else the source of keys
};

CKeyboardHook::CKeyboardHook() = default;
CKeyboardHook::~CKeyboardHook() = default;

int CKeyboardHook::StartHook(Window& target) {
    m_native.reset();
    m_native = std::make_unique<Native>(target);
    return 1;
}

int CKeyboardHook::StopHook() {
    const bool running = m_native != nullptr;
    m_native.reset();
    return running ? 1 : 0;
}

} // namespace tarnix
