// lvx/images/skew_source.h
//
// The pixels of a picture as a skew reads them: whole words of 32 bits from where a pixel begins, whatever
// its depth. What reaches behind the end of the block is 0.
#pragma once

#include <cstddef>
#include <cstdint>

#include "lvx/store/byte_order.h"

namespace lvx::images {

struct SkewSource {
    /// The first row; null if there are no bytes.
    const unsigned char* pixels;
    /// The bytes from there to the end of the block.
    std::size_t size;
    std::int64_t width;
    std::int64_t height;
    /// Bytes per row.
    std::uint64_t stride;
    /// Bits per pixel.
    std::uint32_t depth;

    /// Requires: 0 <= x < width, 0 <= y < height, and that all rows together take less than 2^64 bytes.
    std::uint32_t Word(std::int64_t x, std::int64_t y) const {
        const std::uint64_t place =
            static_cast<std::uint64_t>(y) * stride + static_cast<std::uint64_t>(x) * depth / 8;
        if (place < size && size - place >= 4) {
            return store::decode<std::uint32_t>(pixels + place);
        }
        std::uint32_t word = 0;
        for (std::uint64_t i = 0; i < 4 && place + i < size; ++i) {
            word |= std::uint32_t{pixels[place + i]} << (8 * i);
        }
        return word;
    }
};

}  // namespace lvx::images
