// bench/photograph.h
//
// A picture of 3 megapixels in the forms that those who skew and turn it want, and what became of it in one
// form that can be compared.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "lvx/images/dibitmap.h"

namespace lvx_bench {

constexpr int photograph_width = 2000;
constexpr int photograph_height = 1500;
constexpr std::size_t photograph_pixels = std::size_t{photograph_width} * photograph_height;

/// Blue, green, red in one row after the other, the top row first: the large picture at half its size.
std::vector<unsigned char> make_photograph();

/// The photograph with 24 or 32 bits per pixel.
LVXUtilities::DIBitmap make_photograph_bitmap(int depth);

/// A picture that somebody made. `colour_at` gives 0xRRGGBB, y from the top.
struct MadePicture {
    int width;
    int height;
    std::function<std::uint32_t(int x, int y)> colour_at;
};

/// The pixels of a bitmap of 24 or 32 bits whose bottom row comes first. Keeps `bitmap`, which has to live as
/// long.
MadePicture made_picture(const LVXUtilities::DIBitmap& bitmap);

/// Whether two pictures look alike: their inner parts, laid middle on middle, differ by at most `tolerance`
/// in a component on the average.
bool look_alike(const MadePicture& a, const MadePicture& b, double tolerance);

}  // namespace lvx_bench
