#include "bench/raw_jpeg.h"

#include <cstdio>
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <vector>

#include <jpeglib.h>

#include "bench/picture.h"
#include "bench/plain_file.h"

namespace lvx_bench {

void save_raw_jpeg(const std::string& path) {
    const PlainFile file = open_plain_file(path, "wb");
    std::vector<unsigned char> picture = make_picture();
    jpeg_error_mgr errors{};
    jpeg_compress_struct state{};
    state.err = jpeg_std_error(&errors);
    jpeg_create_compress(&state);
    jpeg_stdio_dest(&state, file.get());
    state.image_width = picture_width;
    state.image_height = picture_height;
    state.input_components = 3;
    state.in_color_space = JCS_RGB;
    jpeg_set_defaults(&state);
    jpeg_set_quality(&state, 90, TRUE);
    jpeg_start_compress(&state, TRUE);
    while (state.next_scanline < state.image_height) {
        JSAMPROW row = &picture[state.next_scanline * picture_stride];
        jpeg_write_scanlines(&state, &row, 1);
    }
    jpeg_finish_compress(&state);
    jpeg_destroy_compress(&state);
}

RawFile load_raw_jpeg(const std::string& path) {
    const PlainFile file = open_plain_file(path, "rb");
    jpeg_error_mgr errors{};
    jpeg_decompress_struct state{};
    state.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&state);
    jpeg_stdio_src(&state, file.get());
    jpeg_read_header(&state, TRUE);
    jpeg_start_decompress(&state);
    const std::size_t stride = std::size_t{state.output_width} * 3;
    RawFile pixels(static_cast<unsigned char*>(std::malloc(stride * state.output_height)));
    if (pixels == nullptr) {
        throw std::bad_alloc();
    }
    while (state.output_scanline < state.output_height) {
        JSAMPROW row = pixels.get() + state.output_scanline * stride;
        jpeg_read_scanlines(&state, &row, 1);
    }
    jpeg_finish_decompress(&state);
    jpeg_destroy_decompress(&state);
    return pixels;
}

}  // namespace lvx_bench
