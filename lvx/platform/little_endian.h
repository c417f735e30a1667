// lvx/platform/little_endian.h
//
// An integer that lies in memory little-endian and unaligned, on every machine, and otherwise reads and
// writes as an integer does. For the structs of file formats, which are copied to and from raw bytes.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>

namespace lvx::platform {

template <std::integral T>
class LittleEndian {
public:
    LittleEndian() = default;
    constexpr LittleEndian(T value) : m_bytes(Ordered(std::bit_cast<Bytes>(value))) {}
    constexpr operator T() const { return std::bit_cast<T>(Ordered(m_bytes)); }

private:
    using Bytes = std::array<unsigned char, sizeof(T)>;

    // From the machine's order to ours, or back.
    static constexpr Bytes Ordered(Bytes bytes) {
        if constexpr (std::endian::native == std::endian::big) {
            std::reverse(bytes.begin(), bytes.end());
        }
        return bytes;
    }

    Bytes m_bytes;
};

}  // namespace lvx::platform
