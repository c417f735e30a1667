// lvx/images/block_layout.h
//
// What a block says of its picture, in numbers that can be reckoned with, whatever they claim.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "lvx/images/block.h"
#include "lvx/images/picture_size.h"
#include "lvx/platform/bitmap_headers.h"

namespace lvx::images {

struct BlockLayout {
    /// The first 40 bytes, with 0 for fields that the block ends within or before; of a core header the
    /// fields, widened. biSize is always 40.
    BITMAPINFOHEADER header;
    /// 0 for a negative width, which no picture has.
    std::uint32_t width;
    /// Whichever way up they lie.
    std::uint32_t rows;
    /// Bytes per row.
    std::uint64_t stride;
    std::uint64_t table_at;
    std::uint64_t table_size;
    std::uint64_t pixels_at;
    /// Of the block.
    std::uint64_t size;

    std::uint64_t PixelsSize() const { return picture_size(width, rows, header.biBitCount); }

    /// Whether the block can be meant to hold what it claims, counting 32 bits for smaller pixels: that is
    /// what they take when something is made of them. What a block lacks reads as 0.
    bool IsCredible() const {
        const std::uint16_t depth = std::max<std::uint16_t>(header.biBitCount, 32);
        const std::uint64_t pixels = picture_size(width, rows, depth);
        return pixels + pixels_at >= pixels && is_credible_picture(pixels + pixels_at, size);
    }
};

/// How many of `size` bytes from the start of an info header are whole fields.
constexpr std::size_t whole_fields(std::size_t size) {
    constexpr std::size_t two_short_ones = 12;
    const std::size_t field = size >= two_short_ones && size < two_short_ones + 4 ? 2 : 4;
    return std::min(size / field * field, sizeof(BITMAPINFOHEADER));
}

inline BITMAPINFOHEADER info_header_of(HGLOBAL block) {
    BITMAPINFOHEADER header{};
    if (header_size(block) == sizeof(BITMAPCOREHEADER)) {
        header.biWidth = read_field<std::uint16_t>(block, &BITMAPCOREHEADER::bcWidth);
        header.biHeight = read_field<std::uint16_t>(block, &BITMAPCOREHEADER::bcHeight);
        header.biPlanes = read_field<std::uint16_t>(block, &BITMAPCOREHEADER::bcPlanes);
        header.biBitCount = read_field<std::uint16_t>(block, &BITMAPCOREHEADER::bcBitCount);
    } else {
        const LVXUtilities::GlobalLocker<const unsigned char> bytes(block);
        if (bytes.get() != nullptr) {
            std::memcpy(&header, bytes.get(), whole_fields(GlobalSize(block)));
        }
    }
    header.biSize = sizeof header;
    return header;
}

/// Of a block whose header says that its colour table has `table_size` bytes. All 0 for a null block.
inline BlockLayout layout_of(HGLOBAL block, std::uint64_t table_size) {
    BlockLayout layout{};
    layout.header = info_header_of(block);
    layout.width = static_cast<std::uint32_t>(std::max<std::int32_t>(layout.header.biWidth, 0));
    layout.rows = magnitude(layout.header.biHeight);
    layout.stride = row_size(layout.width, layout.header.biBitCount);
    layout.table_at = header_size(block);
    layout.table_size = table_size;
    layout.pixels_at = layout.table_at + table_size;
    layout.size = block == nullptr ? 0 : GlobalSize(block);
    return layout;
}

/// The bytes of a locked block from `offset` on, none behind its end.
struct BlockBytes {
    unsigned char* start;
    std::size_t size;

    BlockBytes From(std::uint64_t offset) const {
        const std::size_t skipped = offset < size ? static_cast<std::size_t>(offset) : size;
        return {start + skipped, size - skipped};
    }
};

}  // namespace lvx::images
