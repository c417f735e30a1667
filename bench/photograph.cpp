#include "bench/photograph.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "bench/picture.h"
#include "lvx/platform/bitmap_headers.h"
#include "lvx/platform/global_memory.h"

namespace lvx_bench {
namespace {

using LVXUtilities::DIBitmap;

int difference(std::uint32_t a, std::uint32_t b) {
    int sum = 0;
    for (const int shift : {0, 8, 16}) {
        sum += std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF));
    }
    return sum;
}

void put_header(unsigned char* block, int depth) {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = photograph_width;
    header.biHeight = photograph_height;
    header.biPlanes = 1;
    header.biBitCount = static_cast<std::uint16_t>(depth);
    std::memcpy(block, &header, sizeof header);
}

}  // namespace

std::vector<unsigned char> make_photograph() {
    constexpr std::size_t half = 2;
    const std::vector<unsigned char> picture = make_picture();
    std::vector<unsigned char> pixels;
    pixels.reserve(photograph_pixels * 3);
    for (std::size_t y = 0; y < photograph_height; ++y) {
        for (std::size_t x = 0; x < photograph_width; ++x) {
            const unsigned char* const rgb = &picture[half * (y * picture_stride + x * 3)];
            pixels.insert(pixels.end(), {rgb[2], rgb[1], rgb[0]});
        }
    }
    return pixels;
}

DIBitmap make_photograph_bitmap(int depth) {
    const std::vector<unsigned char> pixels = make_photograph();
    const std::size_t bytes = static_cast<std::size_t>(depth) / 8;
    // Behind the last pixel there is room for the word that is read where it begins.
    const std::size_t size = sizeof(BITMAPINFOHEADER) + photograph_pixels * bytes + sizeof(std::uint32_t);
    const HGLOBAL block = GlobalAlloc(GHND, size);
    auto* const start = static_cast<unsigned char*>(GlobalLock(block));
    put_header(start, depth);
    unsigned char* pixel = start + sizeof(BITMAPINFOHEADER);
    for (std::size_t y = photograph_height; y-- > 0;) {
        for (std::size_t x = 0; x < photograph_width; ++x) {
            std::copy_n(&pixels[(y * photograph_width + x) * 3], 3, pixel);
            pixel += bytes;
        }
    }
    GlobalUnlock(block);
    return DIBitmap(block, DIBitmap::Adopt);
}

MadePicture made_picture(const DIBitmap& bitmap) {
    const int height = bitmap.GetHeight();
    const int bytes = bitmap.GetBitsPerPixel() / 8;
    return {bitmap.GetWidth(), height, [&bitmap, height, bytes](int x, int y) {
                const auto pixels = bitmap.GetBitsAddress();
                const unsigned char* const pixel =
                    pixels.get() + std::ptrdiff_t{height - 1 - y} * bitmap.GetStorageWidth() + x * bytes;
                return static_cast<std::uint32_t>(pixel[0] | pixel[1] << 8 | pixel[2] << 16);
            }};
}

bool look_alike(const MadePicture& a, const MadePicture& b, double tolerance) {
    // So far from the middle that all of it is inside of a picture that was turned by any angle.
    constexpr int inner = 500;
    double sum = 0;
    int count = 0;
    for (int y = -inner; y < inner; y += 7) {
        for (int x = -inner; x < inner; x += 7) {
            sum += difference(a.colour_at(a.width / 2 + x, a.height / 2 + y),
                              b.colour_at(b.width / 2 + x, b.height / 2 + y));
            count += 3;
        }
    }
    return sum / count <= tolerance;
}

}  // namespace lvx_bench
