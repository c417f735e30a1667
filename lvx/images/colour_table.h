// lvx/images/colour_table.h
//
// How many entries a colour table has.
#pragma once

#include <cstdint>

#include "lvx/platform/bitmap_headers.h"

namespace lvx::images {

/// The entries that a picture of `depth` bits per pixel needs; 0 if its pixels are colours themselves.
constexpr std::uint32_t entries_of_depth(unsigned int depth) {
    switch (depth) {
        case 1:
            return 2;
        case 4:
            return 16;
        case 8:
            return 256;
        default:
            return 0;
    }
}

/// The entries behind an info header or a longer one. The three masks of bit fields count as entries, though
/// only where neither `used` nor the depth says otherwise.
constexpr std::uint32_t entries_of_info(std::uint32_t used, unsigned int depth, std::uint32_t compression) {
    constexpr std::uint32_t masks = 3;
    if (used != 0) {
        return used;
    }
    const std::uint32_t entries = entries_of_depth(depth);
    return entries == 0 && compression == BI_BITFIELDS ? masks : entries;
}

}  // namespace lvx::images
