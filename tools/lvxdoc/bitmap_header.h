// tools/lvxdoc/bitmap_header.h
//
// The header of a bitmap block, and what it says about the rest of the block: the colour table behind it and
// the rows of pixels behind that.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace lvxdoc {

struct BitmapHeader {
    /// 12 for a core header, which has nothing behind `bits`; 40 or more for the others.
    std::uint32_t header_size = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint32_t planes = 0;
    std::uint32_t bits = 0;
    std::uint32_t compression = 0;
    std::uint32_t image_size = 0;
    std::int32_t pixels_per_metre_x = 0;
    std::int32_t pixels_per_metre_y = 0;
    std::uint32_t colours_used = 0;
    std::uint32_t colours_important = 0;

    bool IsCore() const { return header_size == core_size; }
    /// Bytes that the fields above take in the block.
    std::size_t FieldsSize() const { return IsCore() ? core_size : info_size; }
    std::uint64_t TableBytes() const;
    /// From the start of the block.
    std::uint64_t PixelOffset() const { return header_size + TableBytes(); }
    /// Bytes of a row, padded. Requires: width is not negative.
    std::uint64_t RowBytes() const;

    static constexpr std::uint32_t core_size = 12;
    static constexpr std::uint32_t info_size = 40;
};

/// The header at the start of a block, of which `size` bytes are given; none if they are too few for it.
std::optional<BitmapHeader> decode_bitmap_header(const unsigned char* bytes, std::size_t size);

/// Why a block of `block_size` bytes cannot have this header; nothing if it can.
std::optional<std::string> find_implausible(const BitmapHeader& header, std::uint64_t block_size);

}  // namespace lvxdoc
