// The keys of the whole session, from the X server.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace tarnix {

struct RawKey {
    unsigned evdevCode = 0; ///< linux/input-event-codes.h
    bool down = true;       ///< a release otherwise; repetitions of a held key are left out
    std::uint32_t time = 0; ///< milliseconds on the X server's clock
};

/// Listens to XInput2's raw key events on a connection and a thread of its own, which sleeps between keys.
/// The keys reach their programs all the same.
class RawKeys {
  public:
    using Listener = std::function<void(const RawKey&)>;

    virtual ~RawKeys() = default;
    /// Every key from the return on until the object is destroyed goes to the listener, on the other thread.
    /// None where the session has no X server with XInput 2.1.
    static std::unique_ptr<RawKeys> listen(Listener listener);
};

} // namespace tarnix
