// JPEG files. What a picture must look like comes from a plain decoding by the test itself.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

#include "images/jpeg_maker.h"
#include "images/picture_bytes.h"
#include "lvx/images/dibitmap.h"
#include "support/temp_folder.h"

namespace {

using lvx_test::block_of;
using lvx_test::bytes;
using lvx_test::DecodedJpeg;
using lvx_test::JpegPicture;
using lvx_test::little_endian;
using lvx_test::make_jpeg;
using lvx_test::thrown_words;
using LVXUtilities::DIBitmap;

class JpegFile : public testing::Test {
protected:
    std::string Write(const std::string& data) const {
        const std::string name = m_folder.File("picture.jpg");
        lvx_test::write_file(name, data);
        return name;
    }
    DIBitmap Load(const std::string& data) const { return DIBitmap(Write(data), DIBitmap::JPEG); }

    lvx_test::TempFolder m_folder;
};

// The block that `file` has to give: `pixel_bytes` per pixel, each row made by `convert` from the row as it
// was decoded, which begins it, and zeros.
template <class Convert>
std::string expected_pixels(const DecodedJpeg& picture, std::size_t pixel_bytes, Convert convert) {
    const std::size_t row_size = (picture.width * pixel_bytes + 3) / 4 * 4;
    const std::size_t source_size = std::size_t{picture.width} * picture.components;
    std::string result;
    for (std::size_t y = picture.height; y-- > 0;) {
        std::string row(row_size, '\0');
        std::copy_n(picture.samples.data() + y * source_size, std::min(row_size, source_size), row.data());
        convert(row, picture.width);
        result += row;
    }
    return result;
}

void swap_colours(std::string& row, std::size_t width) {
    for (std::size_t x = 0; x < width; ++x) {
        std::swap(row[3 * x], row[3 * x + 2]);
    }
}

unsigned int byte_of(char c) {
    return static_cast<unsigned char>(c);
}

void mix_inks(std::string& row, std::size_t width) {
    for (std::size_t i = 0; i < 4 * width; i += 4) {
        const unsigned int key = byte_of(row[i + 3]);
        const unsigned int blue = byte_of(row[i + 2]) * key / 255;
        const unsigned int green = byte_of(row[i + 1]) * key / 255;
        const unsigned int red = byte_of(row[i]) * key / 255;
        row[i] = static_cast<char>(blue);
        row[i + 1] = static_cast<char>(green);
        row[i + 2] = static_cast<char>(red);
        row[i + 3] = '\0';
    }
}

std::string expected_header(unsigned int width, unsigned int height, unsigned int depth,
                            std::uint32_t x_resolution = 0, std::uint32_t y_resolution = 0) {
    return bytes("28000000") + little_endian(width, 4) + little_endian(height, 4) + bytes("0100") +
           little_endian(depth, 2) + bytes("00000000") +
           little_endian((width * depth + 31) / 32 * 4 * height, 4) + little_endian(x_resolution, 4) +
           little_endian(y_resolution, 4) + bytes("00000000 00000000");
}

TEST_F(JpegFile, in_colour_becomes_blue_green_red_from_the_bottom_row_up) {
    const std::string file = make_jpeg({.width = 37, .height = 23});
    EXPECT_BYTES(
        expected_header(37, 23, 24) + expected_pixels(lvx_test::decode_plainly(file), 3, swap_colours),
        block_of(Load(file)));
}

TEST_F(JpegFile, of_any_width_leaves_the_padding_of_its_rows_zero) {
    for (const unsigned int width : {1u, 2u, 3u, 4u, 5u, 16u, 17u}) {
        const std::string file = make_jpeg({.width = width, .height = 3});
        EXPECT_BYTES(
            expected_header(width, 3, 24) + expected_pixels(lvx_test::decode_plainly(file), 3, swap_colours),
            block_of(Load(file)))
            << width;
    }
}

TEST_F(JpegFile, that_has_red_green_and_blue_themselves_gives_the_same_order) {
    const std::string file = make_jpeg({.width = 19, .height = 9, .file_space = JCS_RGB});
    EXPECT_BYTES(
        expected_header(19, 9, 24) + expected_pixels(lvx_test::decode_plainly(file), 3, swap_colours),
        block_of(Load(file)));
}

TEST_F(JpegFile, that_is_progressive_is_read_too) {
    const std::string file = make_jpeg({.width = 40, .height = 33, .progressive = true});
    EXPECT_BYTES(
        expected_header(40, 33, 24) + expected_pixels(lvx_test::decode_plainly(file), 3, swap_colours),
        block_of(Load(file)));
}

TEST_F(JpegFile, in_grey_is_laid_out_as_colour_and_garbled) {
    const std::string file = make_jpeg({.width = 10, .height = 4, .components = 1, .space = JCS_GRAYSCALE});
    const DecodedJpeg picture = lvx_test::decode_plainly(file);
    const std::string block = block_of(Load(file));
    EXPECT_BYTES(expected_header(10, 4, 24) + expected_pixels(picture, 3, swap_colours), block);
    // The last row of the picture, the first of the block: ten shades, every three turned round, and zeros.
    const unsigned char* const shade = picture.samples.data() + 30;
    const std::string row = block.substr(40, 32);
    EXPECT_EQ(shade[2], byte_of(row[0]));
    EXPECT_EQ(shade[1], byte_of(row[1]));
    EXPECT_EQ(shade[0], byte_of(row[2]));
    EXPECT_EQ(shade[9], byte_of(row[11]));
    EXPECT_EQ(std::string(20, '\0'), row.substr(12));
}

TEST_F(JpegFile, in_inks_becomes_32_bits_of_blue_green_red_and_zero) {
    for (const J_COLOR_SPACE file_space : {JCS_CMYK, JCS_YCCK}) {
        const std::string file = make_jpeg(
            {.width = 21, .height = 13, .components = 4, .space = JCS_CMYK, .file_space = file_space});
        EXPECT_BYTES(
            expected_header(21, 13, 32) + expected_pixels(lvx_test::decode_plainly(file), 4, mix_inks),
            block_of(Load(file)));
    }
}

TEST_F(JpegFile, of_two_components_begins_its_rows_with_them) {
    const std::string file = make_jpeg({.width = 5, .height = 4, .components = 2, .space = JCS_UNKNOWN});
    EXPECT_BYTES(expected_header(5, 4, 24) + expected_pixels(lvx_test::decode_plainly(file), 3, swap_colours),
                 block_of(Load(file)));
}

TEST_F(JpegFile, of_five_components_has_its_rows_cut) {
    for (const unsigned int width : {1u, 2u, 50u}) {
        std::string file = make_jpeg({.width = width, .height = 6, .components = 5, .space = JCS_UNKNOWN});
        // The decoder takes no scan of a fifth component, but a picture that lacks it.
        file = file.substr(0, file.rfind(bytes("FFDA"))) + bytes("FFD9");
        const DecodedJpeg picture = lvx_test::decode_plainly(file);
        ASSERT_EQ(5u, picture.components);
        EXPECT_BYTES(expected_header(width, 6, 24) + expected_pixels(picture, 3, swap_colours),
                     block_of(Load(file)));
    }
}

TEST_F(JpegFile, has_its_resolution_cut_to_whole_pixels_per_metre) {
    const struct {
        int unit;
        int density;
        int expected;
    } cases[] = {
        {1, 72, 2834}, {1, 96, 3779},       {1, 300, 11811},     {1, 254, 10000},
        {1, 1, 39},    {2, 28, 2800},       {2, 1, 100},         {0, 72, 0},
        {0, 1, 0},     {1, 65535, 2580118}, {2, 65535, 6553500},
    };
    for (const auto& [unit, density, expected] : cases) {
        const DIBitmap bitmap =
            Load(make_jpeg({.density_unit = unit, .x_density = density, .y_density = density}));
        EXPECT_EQ(expected, bitmap.GetPixelsPerMetreX()) << unit << ": " << density;
        EXPECT_EQ(expected, bitmap.GetPixelsPerMetreY()) << unit << ": " << density;
    }
}

TEST_F(JpegFile, has_a_resolution_for_each_direction) {
    const std::string file = make_jpeg({.density_unit = 1, .x_density = 72, .y_density = 96});
    EXPECT_BYTES(expected_header(1, 1, 24, 2834, 3779), block_of(Load(file)).substr(0, 40));
}

TEST_F(JpegFile, is_found_in_any_format) {
    const std::string file = make_jpeg({.width = 8, .height = 8});
    EXPECT_BYTES(block_of(Load(file)), block_of(DIBitmap(Write(file), DIBitmap::AnyFormat)));
}

TEST_F(JpegFile, is_no_bitmap) {
    const std::string name = Write(make_jpeg({}));
    EXPECT_EQ("Not a valid bitmap", thrown_words([&] { DIBitmap(name, DIBitmap::DIB); }));
}

TEST_F(JpegFile, that_is_missing_is_told) {
    const std::string missing = m_folder.File("missing.jpg");
    EXPECT_EQ("No such file.", thrown_words([&] { DIBitmap(missing, DIBitmap::JPEG); }));
    EXPECT_EQ("No such file.", thrown_words([&] { DIBitmap(missing, DIBitmap::AnyFormat); }));
}

TEST_F(JpegFile, is_read_into_an_image_that_has_a_block) {
    DIBitmap bitmap(lvx_test::make_block(lvx_test::core_header(9, 9, 8)), DIBitmap::Adopt);
    bitmap.InitJPEG(Write(make_jpeg({.width = 6, .height = 5})));
    EXPECT_EQ(owl::TSize(6, 5), bitmap.GetSize());
    EXPECT_EQ(24, bitmap.GetBitsPerPixel());
}

TEST_F(JpegFile, is_closed_after_reading) {
    // An open file cannot be removed everywhere, and a process has few of them.
    const std::string name = Write(make_jpeg({}));
    for (int i = 0; i < 3000; ++i) {
        const DIBitmap bitmap(name, DIBitmap::JPEG);
    }
    EXPECT_TRUE(std::filesystem::remove(name));
}

// A picture of one shade, whose header is made to claim another size.
std::string with_claimed_size(unsigned int width, unsigned int height) {
    std::string file = make_jpeg({.width = 8, .height = 8});
    const std::size_t frame = file.find(bytes("FFC0"));
    const auto put = [&](std::size_t offset, unsigned int value) {
        file[frame + offset] = static_cast<char>(value >> 8);
        file[frame + offset + 1] = static_cast<char>(value & 0xFF);
    };
    put(5, height);
    put(7, width);
    return file;
}

// Such files were once taken for damaged ones, by their length.
TEST_F(JpegFile, of_one_colour_is_read_however_large_and_short_it_is) {
    const std::string file = lvx_test::make_white_jpeg(5000, 5000);
    ASSERT_LT(file.size(), 1000u);
    const DIBitmap bitmap = Load(file);
    EXPECT_EQ(owl::TSize(5000, 5000), bitmap.GetSize());
    EXPECT_TRUE(lvx_test::is_white(bitmap.GetBitsAddress().get(), 75'000'000));
}

TEST_F(JpegFile, that_claims_two_gibibytes_or_more_finds_no_memory) {
    EXPECT_THROW(Load(with_claimed_size(40000, 40000)), std::bad_alloc);
    EXPECT_THROW(Load(with_claimed_size(65000, 65000)), std::bad_alloc);
    EXPECT_THROW(Load(with_claimed_size(26755, 26755)), std::bad_alloc);
    // 31 bytes less than the largest block, in which the header has no room.
    EXPECT_THROW(Load(with_claimed_size(32764, 21848)), std::bad_alloc);
}

TEST_F(JpegFile, that_claims_two_gibibytes_leaves_an_image_as_it_was) {
    DIBitmap bitmap(lvx_test::make_block("earlier"), DIBitmap::Adopt);
    const std::string name = Write(with_claimed_size(40000, 40000));
    EXPECT_THROW(bitmap.InitJPEG(name), std::bad_alloc);
    EXPECT_BYTES("earlier", block_of(bitmap));
}

// The decoder's own way to fail, on standard error and with the exit status of a failure.
using JpegFileDeathTest = JpegFile;

TEST_F(JpegFileDeathTest, that_is_none_ends_the_process) {
    const std::string name = Write("this is no picture");
    EXPECT_EXIT(DIBitmap(name, DIBitmap::JPEG), testing::ExitedWithCode(1), "Not a JPEG file");
    EXPECT_EXIT(DIBitmap(name, DIBitmap::AnyFormat), testing::ExitedWithCode(1), "Not a JPEG file");
}

TEST_F(JpegFileDeathTest, that_is_empty_ends_the_process) {
    const std::string name = Write("");
    EXPECT_EXIT(DIBitmap(name, DIBitmap::JPEG), testing::ExitedWithCode(1), "Empty input file");
}

TEST_F(JpegFileDeathTest, that_is_damaged_ends_the_process) {
    std::string file = make_jpeg({.width = 16, .height = 16});
    // A Huffman table of a class that does not exist.
    file[file.find(bytes("FFC4")) + 4] = '\x7F';
    const std::string name = Write(file);
    EXPECT_EXIT(DIBitmap(name, DIBitmap::JPEG), testing::ExitedWithCode(1), "DHT");
}

// The file without the last quarter of its coded samples.
std::string cut_late(const std::string& file) {
    const std::size_t samples = file.rfind(bytes("FFDA"));
    return file.substr(0, samples + (file.size() - samples) / 4 * 3);
}

TEST_F(JpegFile, that_is_cut_keeps_what_came_before_and_is_filled_up_by_the_decoder) {
    const std::string file = make_jpeg({.width = 64, .height = 128});
    const std::string whole = expected_pixels(lvx_test::decode_plainly(file), 3, swap_colours);
    const std::string block = block_of(Load(cut_late(file)));
    EXPECT_BYTES(expected_header(64, 128, 24), block.substr(0, 40));
    ASSERT_EQ(40 + whole.size(), block.size());
    // The lower half of the block is the upper one of the picture, in which all samples are alike hard to
    // code.
    const std::size_t half = whole.size() / 2;
    EXPECT_BYTES(whole.substr(half), block.substr(40 + half));
    EXPECT_NE(whole.substr(0, 192), block.substr(40, 192));
}

}  // namespace
