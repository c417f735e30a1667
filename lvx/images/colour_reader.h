// lvx/images/colour_reader.h
//
// Reads rows of pixels of any depth as colours: 0xRRGGBB, and in the top byte what a pixel of 32 bits has
// there.
#pragma once

#include <cstddef>
#include <cstdint>

#include "lvx/images/pixel_format.h"

namespace lvx::images {

/// A colour table: blue, green, red, and a fourth byte if an entry has that many.
struct ColourTable {
    const unsigned char* entries;
    std::size_t count;
    std::size_t entry_size;
};

class ColourReader {
public:
    /// The table is asked for by pixels of up to 8 bits only; what it has not got is black.
    ColourReader(const PixelFormat& format, const ColourTable& table);

    /// The first `count` pixels of a row.
    void Read(const unsigned char* row, std::size_t count, std::uint32_t* colours) const;

private:
    /// A component in its bits of a pixel.
    struct Field {
        std::uint32_t mask;
        int shift;
        /// Repeats the number until it has 8 bits or more, and what of them is too many.
        std::uint32_t repeat;
        int surplus;

        std::uint32_t Of(std::uint32_t pixel) const { return ((pixel & mask) >> shift) * repeat >> surplus; }
    };
    static Field FieldOf(std::uint32_t mask);

    std::uint32_t FromFields(std::uint32_t pixel) const;
    template <class Pixel>
    void ReadFields(const unsigned char* row, std::size_t count, std::uint32_t* colours) const;
    void ReadIndices(const unsigned char* row, std::size_t count, std::uint32_t* colours) const;

    PixelFormat m_format;
    Field m_red;
    Field m_green;
    Field m_blue;
    std::uint32_t m_table[256] = {};
};

}  // namespace lvx::images
