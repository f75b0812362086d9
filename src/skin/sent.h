// How the address of a value travels in a message.
#pragma once

#include <cstdint>
#include <vector>

namespace tarnix {

/// A value whose address travels in a synchronous message. The receiver turns the word back into the value
/// with `find`, which knows the values that are being sent just now: any other number is none of them.
template <class T>
class Sent {
  public:
    explicit Sent(const T& value) { underWay().push_back(&value); }
    ~Sent() { underWay().pop_back(); }
    Sent(const Sent&) = delete;
    Sent& operator=(const Sent&) = delete;

    std::uintptr_t word() const { return reinterpret_cast<std::uintptr_t>(underWay().back()); }

    static const T* find(std::uintptr_t word) {
        for (const T* value : underWay())
            if (reinterpret_cast<std::uintptr_t>(value) == word) return value;
        return nullptr;
    }

  private:
    static std::vector<const T*>& underWay() {
        static std::vector<const T*> values;
        return values;
    }
};

} // namespace tarnix
