#include "lvx/images/texture_pixels.h"

namespace lvx::images {
namespace {

unsigned char* put(unsigned char* out, const unsigned char* blue_green_red) {
    *out++ = blue_green_red[2];
    *out++ = blue_green_red[1];
    *out++ = blue_green_red[0];
    return out;
}

unsigned char* put_colour(const TextureSource& source, unsigned index, unsigned char* out) {
    constexpr unsigned char black[texture_pixel_size] = {};
    return put(out, index < source.entries ? source.table + index * source.entry_size : black);
}

unsigned char* write_row_of_4(const TextureSource& source, const unsigned char* row, unsigned char* out) {
    for (int x = 0; x < source.width; ++x) {
        const unsigned both = row[x / 2];
        out = put_colour(source, x % 2 == 0 ? both >> 4 : both & 0xF, out);
    }
    return out;
}

unsigned char* write_row_of_8(const TextureSource& source, const unsigned char* row, unsigned char* out) {
    for (int x = 0; x < source.width; ++x) {
        out = put_colour(source, row[x], out);
    }
    return out;
}

unsigned char* write_row_of_24(const TextureSource& source, const unsigned char* row, unsigned char* out) {
    for (int x = 0; x < source.width; ++x) {
        out = put(out, row + static_cast<std::size_t>(x) * texture_pixel_size);
    }
    return out;
}

using RowWriter = unsigned char* (*)(const TextureSource&, const unsigned char*, unsigned char*);

RowWriter writer_for(unsigned depth) {
    switch (depth) {
        case 4:
            return write_row_of_4;
        case 8:
            return write_row_of_8;
        case 24:
            return write_row_of_24;
        default:
            return nullptr;
    }
}

}  // namespace

void write_texture(const TextureSource& source, unsigned char* out) {
    const RowWriter write_row = writer_for(source.depth);
    if (write_row == nullptr) {
        return;
    }
    for (int y = 0; y < source.height; ++y) {
        const int stored = source.has_upper_row_first ? source.height - 1 - y : y;
        out = write_row(source, source.pixels + static_cast<std::size_t>(stored) * source.stride, out);
    }
}

}  // namespace lvx::images
