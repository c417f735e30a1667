// lvx/store/byte_order.h
//
// The stored forms of numbers: little-endian whatever the machine is.
#pragma once

#include <cstring>

#include "lvx/platform/little_endian.h"

namespace lvx::store {

template <class Unsigned>
inline void encode(Unsigned value, unsigned char* bytes) {
    const platform::LittleEndian<Unsigned> ordered(value);
    std::memcpy(bytes, &ordered, sizeof ordered);
}

template <class Unsigned>
inline Unsigned decode(const unsigned char* bytes) {
    platform::LittleEndian<Unsigned> ordered;
    std::memcpy(&ordered, bytes, sizeof ordered);
    return ordered;
}

}  // namespace lvx::store
