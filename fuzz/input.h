// What a fuzzer's bytes say, taken from the front; zeros once they are used up.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

namespace tarnix {

class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : m_rest(data, size) {}

    bool empty() const { return m_rest.empty(); }
    void fill(std::span<std::uint8_t> bytes) {
        const std::size_t length = std::min(bytes.size(), m_rest.size());
        std::copy_n(m_rest.begin(), length, bytes.begin());
        m_rest = m_rest.subspan(length);
    }
    template <class T = std::uint8_t>
    T take() {
        std::uint8_t bytes[sizeof(T)]{};
        fill(bytes);
        T value;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }
    bool flag() { return take() % 2 == 0; }

  private:
    std::span<const std::uint8_t> m_rest;
};

} // namespace tarnix
