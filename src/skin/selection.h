// What a popup list or an editing dialog answers with, and how its address travels in a message.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/window.h"
#include "profile/key_assignment.h"

namespace tarnix {

/// A chosen name and the bytes of a key assignment value: type, parameter 1, parameter 2, and a fourth one.
struct SelectionRecord {
    std::string text;
    std::array<std::uint8_t, 4> bytes{};

    KeyAssignment value() const { return {bytes[0], bytes[1], bytes[2]}; }
};

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

/// Sends a message with the record's address as its lParam.
LResult sendSelection(Window& to, Message message, WParam tag, const SelectionRecord& record);
/// The record of a message that is being handled; none when lParam is no record's address.
const SelectionRecord* receivedSelection(LParam lParam);

} // namespace tarnix
