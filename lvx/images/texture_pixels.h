// lvx/images/texture_pixels.h
//
// Pictures as OpenGL takes them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lvx::images {

/// A picture whose pixels and colours are all there.
struct TextureSource {
    const unsigned char* pixels;
    /// Bytes from one stored row to the next.
    std::size_t stride;
    int width;
    int height;
    unsigned depth;
    bool has_upper_row_first;
    /// Blue, green and red of each colour, `entry_size` bytes from one to the next.
    const unsigned char* table;
    std::uint32_t entries;
    std::size_t entry_size;
};

/// Red, green and blue, of one pixel after the other without padding, the lowest row first.
inline constexpr std::size_t texture_pixel_size = 3;

/// Writes `width` times `height` pixels to `out`, of pictures of 4, 8 and 24 bits; of another depth nothing.
/// A pixel that names a colour behind the table's end is black.
void write_texture(const TextureSource& source, unsigned char* out);

}  // namespace lvx::images
