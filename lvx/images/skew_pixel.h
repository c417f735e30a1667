// lvx/images/skew_pixel.h
//
// A pixel of a skewed picture: where its four samples are taken, and how they are mixed.
#pragma once

#include <cstdint>

namespace lvx::images {

inline constexpr int skew_samples = 4;

/// Within the pixel.
inline constexpr double skew_sample_x[skew_samples] = {0.25, 0.35, 0.75, 0.65};
inline constexpr double skew_sample_y[skew_samples] = {0.65, 0.25, 0.35, 0.75};

/// Two of the four bytes of a word, with room above each for the sum of four.
inline constexpr std::uint32_t skew_byte_pair = 0x00FF00FF;
/// The same behind a division by 4 where the upper of the two has wrapped.
inline constexpr std::uint32_t skew_wrapped_pair = 0x003F00FF;

/// Byte by byte the mean of four words, rounded down. The top bytes' sum wraps at 256 before it is divided,
/// as it does in a sum of whole words.
constexpr std::uint32_t mean_of_four(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    constexpr std::uint32_t pair = skew_byte_pair;
    const std::uint32_t lower = (a & pair) + (b & pair) + (c & pair) + (d & pair);
    const std::uint32_t upper = (a >> 8 & pair) + (b >> 8 & pair) + (c >> 8 & pair) + (d >> 8 & pair);
    return (lower >> 2 & pair) | (upper >> 2 & skew_wrapped_pair) << 8;
}

}  // namespace lvx::images
