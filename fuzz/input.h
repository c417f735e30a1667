// The fuzzer's bytes, cut up: parameters come from the front, what is left is the document. At the end of the
// bytes every parameter is 0.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lvx_fuzz {

class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size) {}

    std::uint8_t Byte() {
        const std::string_view byte = Take(1);
        return byte.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(byte[0]);
    }

    /// At most `size` bytes.
    std::string_view Take(std::size_t size) {
        const std::string_view taken = m_rest.substr(0, size);
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    /// A length in one byte, at most `most`, and that many bytes.
    std::string_view Short(std::size_t most) { return Take(std::min<std::size_t>(Byte(), most)); }

    bool IsEmpty() const { return m_rest.empty(); }
    std::string_view Rest() { return Take(m_rest.size()); }

private:
    std::string_view m_rest;
};

}  // namespace lvx_fuzz
