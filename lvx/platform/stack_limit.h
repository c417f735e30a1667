// lvx/platform/stack_limit.h
//
// The arithmetic of stack_is_low, shared by the systems.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace lvx::platform {

/// How much of a stack of `size` bytes counts as low, from its lowest address on.
constexpr std::size_t low_part(std::size_t size) {
    constexpr std::size_t reserve = 256 * 1024;
    return std::min(reserve, size / 4);
}

/// Whether `address` lies in the lowest `part` bytes of the stack that begins at `lowest`. What lies
/// elsewhere, on a stack that a host made itself, as coroutines have it, does not: nothing is known of that
/// one.
constexpr bool is_low(std::uintptr_t address, std::uintptr_t lowest, std::size_t part) {
    return address - lowest < part;
}

}  // namespace lvx::platform
