// bench/literal_skew.h
//
// A skewed picture by its rule as it is told, with nothing taken out of the loops: for each column and each
// row four samples, each through both divisions.
#pragma once

#include <cstdint>
#include <vector>

namespace lvx_bench {

/// The corner with the smallest x and y is dragged into the picture, by a way that is not negative.
struct LiteralSkew {
    int width;
    int height;
    int dx;
    int dy;
    /// 24 bits per pixel, rows padded to 4 bytes.
    const unsigned char* pixels;
};

/// Pixels of 32 bits.
std::vector<std::uint32_t> skew_literally(const LiteralSkew& skew);

}  // namespace lvx_bench
