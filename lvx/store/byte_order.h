// lvx/store/byte_order.h
//
// The stored forms of numbers: little-endian whatever the machine is.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace lvx::store {

template <class Unsigned>
inline void encode(Unsigned value, unsigned char* bytes) {
    for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
        bytes[i] = static_cast<unsigned char>(value >> (8 * i));
    }
}

template <class Unsigned>
inline Unsigned decode(const unsigned char* bytes) {
    Unsigned value = 0;
    for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
        value = static_cast<Unsigned>(value | static_cast<Unsigned>(bytes[i]) << (8 * i));
    }
    return value;
}

}  // namespace lvx::store
