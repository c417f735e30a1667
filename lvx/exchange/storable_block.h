// lvx/exchange/storable_block.h
//
// How a stored object lies in one block of global memory: the length of the whole, which counts itself, in 4
// bytes, then a store's bytes as they are. The memory may be longer than the block says: the system rounds
// up.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "lvx/store/byte_order.h"

namespace lvx::exchange {

inline constexpr std::uint32_t length_size = sizeof(std::uint32_t);

/// Writes the length of all of `block` to its beginning and returns the place for the store's bytes.
/// Requires: a block of 4 bytes or more, whose length has room in 4.
inline std::span<unsigned char> begin_block(std::span<unsigned char> block) {
    lvx::store::encode(static_cast<std::uint32_t>(block.size()), block.data());
    return block.subspan(length_size);
}

/// The store's bytes, which may be none. Nothing if the memory ends within the length, or before what the
/// length claims, or the length does not even count itself: another program put that there.
inline std::optional<std::span<const unsigned char>> stored_bytes(std::span<const unsigned char> memory) {
    if (memory.size() < length_size) {
        return std::nullopt;
    }
    const auto length = lvx::store::decode<std::uint32_t>(memory.data());
    if (length < length_size || length > memory.size()) {
        return std::nullopt;
    }
    return memory.subspan(length_size, length - length_size);
}

}  // namespace lvx::exchange
