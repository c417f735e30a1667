// bench/picture.h
//
// A picture of 12 megapixels as a camera would make it, and ways to compare what became of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lvx_bench {

constexpr std::size_t picture_width = 4000;
constexpr std::size_t picture_height = 3000;
constexpr std::size_t picture_pixels = picture_width * picture_height;
/// Bytes per row of three bytes per pixel; a multiple of 4, so that no kind of picture pads it.
constexpr std::size_t picture_stride = picture_width * 3;
constexpr std::size_t picture_bytes = picture_stride * picture_height;

/// Red, green, blue, the top row first: soft shades, edges, texture and a little noise.
std::vector<unsigned char> make_picture();

/// The pixels of a picture of that size, wherever and however they lie.
struct PixelView {
    const unsigned char* top_row;
    /// From a row to the one below it; negative when the bottom row comes first in memory.
    std::ptrdiff_t stride;
    /// Blue, green, red instead of red, green, blue.
    bool is_bgr;
};

/// A view of rows that lie from the top down.
PixelView rgb_from_top(const unsigned char* pixels);
/// A view of rows as bitmaps have them.
PixelView bgr_from_bottom(const unsigned char* pixels);

/// A number made from all pixels, the same for each way in which they lie.
std::uint64_t fingerprint(const PixelView& view);

/// Whether each sample is within `tolerance` of that in the other picture, and within 1 on the average.
bool is_alike(const PixelView& view, const PixelView& other, int tolerance);

}  // namespace lvx_bench
