// JPEG files.
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include <jpeglib.h>

#include "lvx/images/block.h"
#include "lvx/images/dibitmap.h"
#include "lvx/images/dibitmap_strategy.h"
#include "lvx/images/picture_size.h"
#include "lvx/platform/open_file.h"

namespace LVXUtilities {
namespace {

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OwnedFile = std::unique_ptr<std::FILE, Closer>;

OwnedFile open_picture(const std::string& name) {
    OwnedFile file(std::fopen(name.c_str(), "rb"));
    if (file == nullptr || lvx::platform::is_directory(file.get())) {
        throw "No such file.";
    }
    return file;
}

// The decoder with its own error handling, which prints and ends the process: hosts rely on that.
class Decoder {
public:
    Decoder() {
        m_state.err = jpeg_std_error(&m_errors);
        jpeg_create_decompress(&m_state);
    }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;
    ~Decoder() { jpeg_destroy_decompress(&m_state); }

    jpeg_decompress_struct* operator->() { return &m_state; }
    const jpeg_decompress_struct* operator->() const { return &m_state; }
    jpeg_decompress_struct* get() { return &m_state; }

private:
    jpeg_error_mgr m_errors{};
    jpeg_decompress_struct m_state{};
};

bool is_in_ink(J_COLOR_SPACE space) {
    return space == JCS_CMYK || space == JCS_YCCK;
}

// Bits per pixel for what the decoder delivers; 24 for one component too.
std::uint16_t depth_of(J_COLOR_SPACE space) {
    if (space < JCS_CMYK) {
        return 24;
    }
    return is_in_ink(space) ? 32 : 0;
}

// Pixels per metre, cut to an integer.
std::int32_t pixels_per_metre(UINT8 unit, UINT16 density) {
    constexpr UINT8 per_inch = 1;
    constexpr UINT8 per_centimetre = 2;
    switch (unit) {
        case per_inch:
            return static_cast<std::int32_t>(density * 100 * 0.39370078740157477);
        case per_centimetre:
            return density * 100;
        default:
            return 0;
    }
}

BITMAPINFOHEADER header_of(const jpeg_decompress_struct& state, std::uint16_t depth) {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = static_cast<std::int32_t>(state.output_width);
    header.biHeight = static_cast<std::int32_t>(state.output_height);
    header.biPlanes = 1;
    header.biBitCount = depth;
    header.biXPelsPerMeter = pixels_per_metre(state.density_unit, state.X_density);
    header.biYPelsPerMeter = pixels_per_metre(state.density_unit, state.Y_density);
    header.biSizeImage =
        static_cast<std::uint32_t>(lvx::images::picture_size(state.output_width, state.output_height, depth));
    return header;
}

// Red, green, blue to blue, green, red.
void swap_triples(unsigned char* row, std::size_t width) {
    for (unsigned char* const end = row + width * 3; row != end; row += 3) {
        std::swap(row[0], row[2]);
    }
}

// Four inks, inverted, to blue, green, red and zero.
void mix_inks(unsigned char* row, std::size_t width) {
    for (unsigned char* const end = row + width * 4; row != end; row += 4) {
        const int cyan = row[0];
        const int magenta = row[1];
        const int yellow = row[2];
        const int black = row[3];
        row[0] = static_cast<unsigned char>(yellow * black / 255);
        row[1] = static_cast<unsigned char>(magenta * black / 255);
        row[2] = static_cast<unsigned char>(cyan * black / 255);
        row[3] = 0;
    }
}

// Decodes rows into places of a fixed size. A row goes straight there, unless the decoder's is longer, as
// that of an unknown kind of picture with many components is; of such a one the beginning is kept.
class RowReader {
public:
    RowReader(Decoder& decoder, std::size_t place_size)
        : m_decoder(decoder), m_place_size(place_size), m_long_row(size_beyond(place_size, decoder)) {}

    void Read(unsigned char* place) {
        JSAMPROW row = m_long_row.empty() ? place : m_long_row.data();
        jpeg_read_scanlines(m_decoder.get(), &row, 1);
        if (!m_long_row.empty()) {
            std::copy_n(m_long_row.data(), m_place_size, place);
        }
    }

private:
    // The size of a decoder's row, if it exceeds that of a place; else 0.
    static std::size_t size_beyond(std::size_t place_size, const Decoder& decoder) {
        const std::size_t size =
            std::size_t{decoder->output_width} * static_cast<unsigned int>(decoder->output_components);
        return size > place_size ? size : 0;
    }

    Decoder& m_decoder;
    std::size_t m_place_size;
    std::vector<unsigned char> m_long_row;
};

// What a file claims is not held against its length: a picture of one colour takes next to nothing, and a
// pipe has no length.
void refuse_beyond_largest_block(const Decoder& decoder) {
    const std::uint64_t size = lvx::images::picture_size(decoder->image_width, decoder->image_height,
                                                         depth_of(decoder->out_color_space));
    if (size > lvx::images::largest_block - sizeof(BITMAPINFOHEADER)) {
        throw std::bad_alloc();
    }
}

}  // namespace

void DIBitmap::InitJPEG(const std::string& fileName) {
    Decoder decoder;
    const OwnedFile file = open_picture(fileName);
    jpeg_stdio_src(decoder.get(), file.get());
    jpeg_read_header(decoder.get(), TRUE);
    // Before the decoder takes memory of its own for a picture of that size.
    refuse_beyond_largest_block(decoder);

    const J_COLOR_SPACE space = decoder->out_color_space;
    if (space == JCS_RGB) {
        // The one parameter of the decoder that is set, and of its output only: the same values as its
        // default RGB gives, bit by bit, in the order that a block has, without a second walk over each row.
        decoder->out_color_space = JCS_EXT_BGR;
    }
    jpeg_start_decompress(decoder.get());

    const std::uint16_t depth = depth_of(space);
    const BITMAPINFOHEADER header = header_of(*decoder.get(), depth);
    const auto row_size = static_cast<std::size_t>(lvx::images::row_size(decoder->output_width, depth));
    ReplaceByFile(sizeof header + std::uint64_t{row_size} * decoder->output_height);
    const GlobalLocker<unsigned char> bytes(m_block);
    std::memcpy(bytes.get(), &header, sizeof header);

    RowReader reader(decoder, row_size);
    // The file has its top row first, the block its bottom row.
    unsigned char* row = bytes.get() + sizeof header + row_size * decoder->output_height;
    while (decoder->output_scanline < decoder->output_height) {
        row -= row_size;
        reader.Read(row);
        if (is_in_ink(space)) {
            mix_inks(row, decoder->output_width);
        } else if (space < JCS_CMYK && space != JCS_RGB) {
            swap_triples(row, decoder->output_width);
        }
    }
    jpeg_finish_decompress(decoder.get());
}

}  // namespace LVXUtilities
