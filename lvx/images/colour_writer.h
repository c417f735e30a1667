// lvx/images/colour_writer.h
//
// Writes colours as rows of pixels of any depth, as the system does where it reads pictures back: what a
// depth cannot hold is cut off, and for those with a colour table the nearest default colour is taken. For
// 256 colours all shades count as one that share their five highest bits in red, green and blue.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "lvx/images/pixel_format.h"

namespace lvx::images {

class ColourWriter {
public:
    explicit ColourWriter(const PixelFormat& format);

    /// `count` pixels to the beginning of a row. The row's padding stays as it is; bits that share a byte
    /// with the last pixel become 0.
    void Write(const std::uint32_t* colours, std::size_t count, unsigned char* row);

private:
    void WriteIndices(const std::uint32_t* colours, std::size_t count, unsigned char* row);
    template <class Pixel>
    void WriteFields(const std::uint32_t* colours, std::size_t count, unsigned char* row) const;

    unsigned IndexOf(std::uint32_t colour);
    unsigned Nearest(std::uint32_t colour) const;
    std::uint32_t ToFields(std::uint32_t colour) const;

    PixelFormat m_format;
    /// By five bits each of red, green and blue, the index and 1; 0 if it was not asked for yet.
    std::vector<std::uint16_t> m_known;
    /// The colour that was asked for last; none at first.
    std::uint32_t m_last_colour = 0xFFFFFFFF;
    unsigned m_last_index = 0;
};

}  // namespace lvx::images
