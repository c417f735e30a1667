// lvx/platform/stack_limit.h
//
// The arithmetic of stack_is_low, shared by the systems.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace lvx::platform {

/// The address below which the stack of `size` bytes that ends at `lowest` counts as low.
constexpr std::uintptr_t low_mark(std::uintptr_t lowest, std::size_t size) {
    constexpr std::size_t reserve = 256 * 1024;
    return lowest + std::min(reserve, size / 4);
}

}  // namespace lvx::platform
