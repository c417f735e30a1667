// JPEG files made for a test, and decoded in the plainest way for comparison.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <jpeglib.h>

namespace lvx_test {

struct JpegPicture {
    unsigned int width = 1;
    unsigned int height = 1;
    int components = 3;
    J_COLOR_SPACE space = JCS_RGB;
    /// How the file has it; JCS_UNKNOWN: as the library likes for `space`.
    J_COLOR_SPACE file_space = JCS_UNKNOWN;
    int density_unit = 0;
    int x_density = 1;
    int y_density = 1;
    bool progressive = false;
};

/// Samples that differ everywhere, with edges and gradients.
inline std::vector<unsigned char> samples_of(const JpegPicture& picture) {
    std::vector<unsigned char> samples;
    for (unsigned int y = 0; y < picture.height; ++y) {
        for (unsigned int x = 0; x < picture.width; ++x) {
            for (int c = 0; c < picture.components; ++c) {
                const unsigned int component = static_cast<unsigned int>(c);
                samples.push_back(static_cast<unsigned char>(
                    x * (7 + component * 13) + y * (11 + component * 5) + component * 60 + (x / 5 % 2) * 90));
            }
        }
    }
    return samples;
}

// One scan for each component: a scan has at most four.
inline std::vector<jpeg_scan_info> scans_of(int components) {
    std::vector<jpeg_scan_info> scans;
    for (int c = 0; c < components; ++c) {
        jpeg_scan_info scan{};
        scan.comps_in_scan = 1;
        scan.component_index[0] = c;
        scan.Se = 63;
        scans.push_back(scan);
    }
    return scans;
}

/// The picture as a JPEG file of quality 95.
inline std::string make_jpeg(const JpegPicture& picture) {
    jpeg_error_mgr errors;
    jpeg_compress_struct state{};
    state.err = jpeg_std_error(&errors);
    jpeg_create_compress(&state);
    unsigned char* data = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&state, &data, &size);
    state.image_width = picture.width;
    state.image_height = picture.height;
    state.input_components = picture.components;
    state.in_color_space = picture.space;
    jpeg_set_defaults(&state);
    if (picture.file_space != JCS_UNKNOWN) {
        jpeg_set_colorspace(&state, picture.file_space);
    }
    jpeg_set_quality(&state, 95, TRUE);
    state.density_unit = static_cast<UINT8>(picture.density_unit);
    state.X_density = static_cast<UINT16>(picture.x_density);
    state.Y_density = static_cast<UINT16>(picture.y_density);
    const std::vector<jpeg_scan_info> scans = scans_of(picture.components);
    if (picture.progressive) {
        jpeg_simple_progression(&state);
    } else if (picture.components > 4) {
        state.scan_info = scans.data();
        state.num_scans = static_cast<int>(scans.size());
    }
    jpeg_start_compress(&state, TRUE);
    std::vector<unsigned char> samples = samples_of(picture);
    const std::size_t row_size = samples.size() / picture.height;
    for (unsigned int y = 0; y < picture.height; ++y) {
        JSAMPROW row = samples.data() + y * row_size;
        jpeg_write_scanlines(&state, &row, 1);
    }
    jpeg_finish_compress(&state);
    jpeg_destroy_compress(&state);
    std::string file(reinterpret_cast<char*>(data), size);
    std::free(data);
    return file;
}

struct DecodedJpeg {
    unsigned int width;
    unsigned int height;
    unsigned int components;
    /// Rows from the top, without padding.
    std::vector<unsigned char> samples;
};

/// `file` as the library decodes it by default, colours in the order red, green, blue.
inline DecodedJpeg decode_plainly(const std::string& file) {
    jpeg_error_mgr errors;
    jpeg_decompress_struct state{};
    state.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&state);
    jpeg_mem_src(&state, reinterpret_cast<const unsigned char*>(file.data()),
                 static_cast<unsigned long>(file.size()));
    jpeg_read_header(&state, TRUE);
    jpeg_start_decompress(&state);
    DecodedJpeg result{
        state.output_width, state.output_height, static_cast<unsigned int>(state.output_components), {}};
    const std::size_t row_size = std::size_t{result.width} * result.components;
    result.samples.resize(row_size * result.height);
    while (state.output_scanline < state.output_height) {
        JSAMPROW row = result.samples.data() + state.output_scanline * row_size;
        jpeg_read_scanlines(&state, &row, 1);
    }
    jpeg_finish_decompress(&state);
    jpeg_destroy_decompress(&state);
    return result;
}

}  // namespace lvx_test
