#include "bench/picture.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace lvx_bench {
namespace {

// The sample of a channel, 0 for red, in a pixel that `from_left` counts.
int sample(const PixelView& view, const unsigned char* row, std::size_t from_left, std::size_t channel) {
    return row[from_left * 3 + (view.is_bgr ? 2 - channel : channel)];
}

const unsigned char* row_of(const PixelView& view, std::size_t from_top) {
    return view.top_row + view.stride * static_cast<std::ptrdiff_t>(from_top);
}

double shade(std::size_t x, std::size_t y) {
    const double across = static_cast<double>(x) / picture_width;
    const double down = static_cast<double>(y) / picture_height;
    return 110 + 70 * std::sin(across * 5 + down * 2) + 40 * std::cos(down * 7 - across * 3);
}

double texture(std::size_t x, std::size_t y) {
    const bool on_wall = (x / 500 + y / 375) % 3 == 0;
    const double bricks = (x % 60 < 4 || y % 24 < 3) ? -35 : 0;
    return on_wall ? bricks : 12 * std::sin(static_cast<double>(x * y % 4001) * 0.01);
}

unsigned char clamp(double value) {
    return static_cast<unsigned char>(std::clamp(value, 0.0, 255.0));
}

}  // namespace

std::vector<unsigned char> make_picture() {
    std::vector<unsigned char> pixels;
    pixels.reserve(picture_bytes);
    std::uint32_t random = 1;
    for (std::size_t y = 0; y < picture_height; ++y) {
        for (std::size_t x = 0; x < picture_width; ++x) {
            random = random * 1664525 + 1013904223;
            const double light = shade(x, y) + texture(x, y) + static_cast<double>(random >> 29) - 4;
            pixels.push_back(clamp(light * 1.05));
            pixels.push_back(clamp(light * 0.95 + 8));
            pixels.push_back(clamp(light * 0.8 + static_cast<double>(y) / 40));
        }
    }
    return pixels;
}

PixelView rgb_from_top(const unsigned char* pixels) {
    return {pixels, static_cast<std::ptrdiff_t>(picture_stride), false};
}

PixelView bgr_from_bottom(const unsigned char* pixels) {
    return {pixels + picture_bytes - picture_stride, -static_cast<std::ptrdiff_t>(picture_stride), true};
}

std::uint64_t fingerprint(const PixelView& view) {
    std::uint64_t sum = 0;
    for (std::size_t y = 0; y < picture_height; ++y) {
        const unsigned char* const row = row_of(view, y);
        for (std::size_t x = 0; x < picture_width; ++x) {
            for (std::size_t channel = 0; channel < 3; ++channel) {
                sum = (sum ^ static_cast<std::uint64_t>(sample(view, row, x, channel))) * 0x100000001B3u;
            }
        }
    }
    return sum;
}

bool is_alike(const PixelView& view, const PixelView& other, int tolerance) {
    std::uint64_t all = 0;
    int largest = 0;
    for (std::size_t y = 0; y < picture_height; ++y) {
        const unsigned char* const row = row_of(view, y);
        const unsigned char* const other_row = row_of(other, y);
        for (std::size_t x = 0; x < picture_width; ++x) {
            for (std::size_t channel = 0; channel < 3; ++channel) {
                const int difference =
                    std::abs(sample(view, row, x, channel) - sample(other, other_row, x, channel));
                largest = std::max(largest, difference);
                all += static_cast<std::uint64_t>(difference);
            }
        }
    }
    return largest <= tolerance && all <= picture_bytes;
}

}  // namespace lvx_bench
