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
    bool arithmetic = false;
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

/// A picture of quality 95 while it is written into memory, row by row.
class JpegWriter {
public:
    explicit JpegWriter(const JpegPicture& picture) : m_scans(scans_of(picture.components)) {
        m_state.err = jpeg_std_error(&m_errors);
        jpeg_create_compress(&m_state);
        jpeg_mem_dest(&m_state, &m_data, &m_size);
        m_state.image_width = picture.width;
        m_state.image_height = picture.height;
        m_state.input_components = picture.components;
        m_state.in_color_space = picture.space;
        jpeg_set_defaults(&m_state);
        if (picture.file_space != JCS_UNKNOWN) {
            jpeg_set_colorspace(&m_state, picture.file_space);
        }
        jpeg_set_quality(&m_state, 95, TRUE);
        m_state.arith_code = picture.arithmetic ? TRUE : FALSE;
        m_state.density_unit = static_cast<UINT8>(picture.density_unit);
        m_state.X_density = static_cast<UINT16>(picture.x_density);
        m_state.Y_density = static_cast<UINT16>(picture.y_density);
        if (picture.progressive) {
            jpeg_simple_progression(&m_state);
        } else if (picture.components > 4) {
            m_state.scan_info = m_scans.data();
            m_state.num_scans = static_cast<int>(m_scans.size());
        }
        jpeg_start_compress(&m_state, TRUE);
    }
    JpegWriter(const JpegWriter&) = delete;
    JpegWriter& operator=(const JpegWriter&) = delete;
    ~JpegWriter() {
        jpeg_destroy_compress(&m_state);
        std::free(m_data);
    }

    void WriteRow(unsigned char* row) { jpeg_write_scanlines(&m_state, &row, 1); }

    /// The file. Requires: all rows are written.
    std::string Finish() {
        jpeg_finish_compress(&m_state);
        return std::string(reinterpret_cast<char*>(m_data), m_size);
    }

private:
    std::vector<jpeg_scan_info> m_scans;
    jpeg_error_mgr m_errors{};
    jpeg_compress_struct m_state{};
    unsigned char* m_data = nullptr;
    unsigned long m_size = 0;
};

/// The picture as a JPEG file.
inline std::string make_jpeg(const JpegPicture& picture) {
    JpegWriter writer(picture);
    std::vector<unsigned char> samples = samples_of(picture);
    const std::size_t row_size = samples.size() / picture.height;
    for (unsigned int y = 0; y < picture.height; ++y) {
        writer.WriteRow(samples.data() + y * row_size);
    }
    return writer.Finish();
}

/// A white picture in as few bytes as there can be: coded arithmetically, 75 MB of pixels take 200 bytes.
inline std::string make_white_jpeg(unsigned int width, unsigned int height) {
    JpegWriter writer({.width = width, .height = height, .arithmetic = true});
    std::vector<unsigned char> row(std::size_t{3} * width, 0xFF);
    for (unsigned int y = 0; y < height; ++y) {
        writer.WriteRow(row.data());
    }
    return writer.Finish();
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
