// lvx/images/picture_size.h
//
// How many bytes a picture takes, and whether a bitmap file can be meant to hold that many.
#pragma once

#include <cstdint>
#include <limits>

namespace lvx::images {

/// The height in rows, whichever way up they lie.
constexpr std::uint32_t magnitude(std::int32_t height) {
    const auto rows = static_cast<std::uint32_t>(height);
    return height < 0 ? 0 - rows : rows;
}

/// Bytes per row, a multiple of 4.
constexpr std::uint64_t row_size(std::uint32_t width, std::uint16_t depth) {
    return ((std::uint64_t{width} * depth + 31) >> 5) << 2;
}

/// Bytes of all rows; the largest number there is if they are more.
constexpr std::uint64_t picture_size(std::uint32_t width, std::uint32_t height, std::uint16_t depth) {
    constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
    const std::uint64_t row = row_size(width, depth);
    return height != 0 && row > most / height ? most : row * height;
}

/// False for a picture of more than 64 MiB that claims more than 1024 times the `bytes_left` in the file: so
/// few bytes are damaged rather than a picture, and are not to cost gigabytes. For pixels that lie in a file
/// as they are or as run lengths; a JPEG file may well have a picture of one colour in less.
constexpr bool is_credible_picture(std::uint64_t size, std::uint64_t bytes_left) {
    constexpr std::uint64_t harmless = 64 * 1024 * 1024;
    constexpr std::uint64_t largest_ratio = 1024;
    return size <= harmless || size / largest_ratio + (size % largest_ratio != 0 ? 1 : 0) <= bytes_left;
}

}  // namespace lvx::images
