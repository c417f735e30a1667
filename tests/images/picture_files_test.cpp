// Bitmap and JPEG files that other people's programs made.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "images/jpeg_maker.h"
#include "images/picture_bytes.h"
#include "images/reference_picture.h"
#include "lvx/images/dibitmap.h"
#include "support/places.h"
#include "support/shared_data.h"
#include "support/temp_folder.h"

namespace {

using lvx_test::block_of;
using lvx_test::Colour;
using lvx_test::little_endian;
using lvx_test::number_at;
using LVXUtilities::DIBitmap;

std::vector<std::filesystem::path> files_in(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(lvx_test::shared_data() / folder)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::uint32_t entries_of(std::uint32_t depth) {
    return depth > 8 ? 0 : 1u << depth;
}

// The block that `file` has to give, put together from its bytes.
std::string expected_block(const std::string& file) {
    const std::uint32_t pixels_at = number_at(file, 10);
    const std::uint32_t size_word = number_at(file, 14);
    std::string header = file.substr(14, 40);
    std::size_t table_at = size_word;
    if (size_word == 12) {
        const std::uint32_t entries = entries_of(number_at(file, 24, 2));
        header = little_endian(40, 4) + file.substr(18, 2) + std::string(2, '\0') + file.substr(20, 2) +
                 std::string(2, '\0') + file.substr(22, 4) + std::string(16, '\0') +
                 little_endian(entries, 4) + little_endian(entries, 4);
        table_at = 14 + std::min(pixels_at, 108u) - 28;
    }
    if (number_at(header, 32) == 0) {
        header.replace(32, 4, little_endian(entries_of(number_at(header, 14, 2)), 4));
    }
    const bool has_masks = number_at(header, 32) == 0 && number_at(header, 16) == 3;
    const std::size_t entries = has_masks ? 3 : number_at(header, 32);
    std::size_t image_size = number_at(header, 20);
    if (image_size == 0) {
        image_size = (number_at(header, 4) * number_at(header, 14, 2) + 31) / 32 * 4 * number_at(header, 8);
    }
    const std::string gap(std::max(size_word, 40u) - 40, '\0');
    return header + file.substr(table_at, entries * 4) + gap + file.substr(pixels_at, image_size);
}

TEST(BitmapFiles, all_give_the_block_that_their_bytes_make) {
    if (!lvx_test::has_shared_data("bmp")) {
        return;
    }
    int count = 0;
    for (const auto& path : files_in("bmp")) {
        const DIBitmap bitmap(path.string(), DIBitmap::DIB);
        EXPECT_TRUE(expected_block(lvx_test::read_file(path.string())) == block_of(bitmap)) << path;
        ++count;
    }
    EXPECT_GE(count, 29);
}

TEST(SamplePictures, give_the_block_that_their_bytes_make) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(lvx_test::own_data() + "/pictures")) {
        if (entry.path().extension() == ".bmp") {
            const DIBitmap bitmap(entry.path().string(), DIBitmap::AnyFormat);
            EXPECT_TRUE(expected_block(lvx_test::read_file(entry.path().string())) == block_of(bitmap))
                << entry.path();
            ++count;
        }
    }
    EXPECT_EQ(7, count);
}

TEST(SamplePictures, of_24_bits_are_saved_and_loaded_without_a_difference) {
    const lvx_test::TempFolder folder;
    for (const char* const name : {"rgb24.bmp", "testorig.jpg", "testimgint.jpg"}) {
        DIBitmap bitmap(lvx_test::own_data() + "/pictures/" + name, DIBitmap::AnyFormat);
        bitmap.SaveAs(folder.File(name), DIBitmap::DIB);
        const DIBitmap again(folder.File(name), DIBitmap::DIB);
        EXPECT_TRUE(block_of(bitmap) == block_of(again)) << name;
        EXPECT_EQ(bitmap.GetSize(), again.GetSize()) << name;
    }
}

// The colours as the file has them: the block's table begins earlier in the file than the file's own.
class TrueColours {
public:
    explicit TrueColours(const std::string& file)
        : m_file(file),
          m_size_word(number_at(file, 14)),
          m_depth(number_at(file, m_size_word == 12 ? 24 : 28, 2)),
          m_has_masks(m_size_word != 12 && number_at(file, 30) == 3) {}

    Colour At(const unsigned char* row, std::size_t x) const {
        if (m_depth <= 8) {
            const std::size_t per_byte = 8 / m_depth;
            const std::size_t shift = (per_byte - 1 - x % per_byte) * m_depth;
            return Entry(static_cast<std::size_t>(row[x / per_byte]) >> shift & ((1u << m_depth) - 1));
        }
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < m_depth / 8; ++i) {
            value |= std::uint32_t{row[x * m_depth / 8 + i]} << (8 * i);
        }
        return {Part(value, 0), Part(value, 1), Part(value, 2)};
    }

private:
    Colour Entry(std::size_t index) const {
        const std::size_t size = m_size_word == 12 ? 3 : 4;
        const std::string_view entry = std::string_view(m_file).substr(14 + m_size_word + index * size, 3);
        return {static_cast<unsigned char>(entry[2]), static_cast<unsigned char>(entry[1]),
                static_cast<unsigned char>(entry[0])};
    }

    std::uint32_t Mask(std::size_t part) const {
        if (m_has_masks) {
            return number_at(m_file, 54 + 4 * part);
        }
        return m_depth == 16 ? 0x7C00u >> (5 * part) : 0xFF0000u >> (8 * part);
    }

    // Red, green or blue, scaled to 8 bits and rounded.
    unsigned char Part(std::uint32_t value, std::size_t part) const {
        const std::uint32_t mask = Mask(part);
        const std::uint32_t lowest = mask & (0 - mask);
        const std::uint32_t most = mask / lowest;
        return static_cast<unsigned char>(((value & mask) / lowest * 255 + most / 2) / most);
    }

    const std::string& m_file;
    std::uint32_t m_size_word;
    std::uint32_t m_depth;
    bool m_has_masks;
};

// Rows from the top.
std::vector<Colour> colours_of(const DIBitmap& bitmap, const std::string& file) {
    const TrueColours colours(file);
    const auto pixels = bitmap.GetBitsAddress();
    const auto width = static_cast<std::size_t>(bitmap.GetWidth());
    const auto stride = static_cast<std::size_t>(bitmap.GetStorageWidth());
    const bool top_first = bitmap.GetHeight() < 0;
    const auto height = static_cast<std::size_t>(top_first ? -bitmap.GetHeight() : bitmap.GetHeight());
    std::vector<Colour> result;
    for (std::size_t y = 0; y < height; ++y) {
        const unsigned char* const row = pixels.get() + (top_first ? y : height - 1 - y) * stride;
        for (std::size_t x = 0; x < width; ++x) {
            result.push_back(colours.At(row, x));
        }
    }
    return result;
}

TEST(BitmapFiles, have_the_pixels_of_their_reference_pictures) {
    if (!lvx_test::has_shared_data("bmp/reference")) {
        return;
    }
    if (!lvx_test::can_read_references()) {
        std::cout << "ran without the reference pictures: this build has no reader for them" << std::endl;
        return;
    }
    const struct {
        const char* bitmap;
        const char* reference;
    } pairs[] = {
        {"pal1", "pal1"},
        {"pal1bg", "pal1bg"},
        {"pal1wb", "pal1"},
        {"pal4", "pal4"},
        {"pal4gs", "pal4gs"},
        {"pal8-0", "pal8"},
        {"pal8", "pal8"},
        {"pal8gs", "pal8gs"},
        {"pal8os2", "pal8"},
        {"pal8topdown", "pal8"},
        {"pal8v4", "pal8"},
        {"pal8v5", "pal8"},
        {"pal8w124", "pal8w124"},
        {"pal8w125", "pal8w125"},
        {"pal8w126", "pal8w126"},
        {"rgb16", "rgb16"},
        {"rgb16bfdef", "rgb16"},
        {"rgb16-565", "rgb16-565"},
        {"rgb16-565pal", "rgb16-565"},
        {"rgb24", "rgb24"},
        {"rgb24pal", "rgb24"},
        {"rgb32", "rgb24"},
        {"rgb32bf", "rgb24"},
        {"rgb32bfdef", "rgb24"},
    };
    const std::filesystem::path folder = lvx_test::shared_data() / "bmp";
    for (const auto& [name, reference] : pairs) {
        const std::string path = (folder / name).string() + ".bmp";
        const DIBitmap bitmap(path, DIBitmap::AnyFormat);
        const lvx_test::ReferencePicture expected =
            lvx_test::read_reference((folder / "reference" / reference).string() + ".png");
        EXPECT_EQ(bitmap.GetWidth(), static_cast<int>(expected.width)) << name;
        EXPECT_EQ(std::abs(bitmap.GetHeight()), static_cast<int>(expected.height)) << name;
        EXPECT_TRUE(expected.colours == colours_of(bitmap, lvx_test::read_file(path))) << name;
    }
}

TEST(BitmapFiles, have_the_headers_that_they_were_made_with) {
    if (!lvx_test::has_shared_data("bmp")) {
        return;
    }
    const auto load = [](const char* name) {
        return DIBitmap((lvx_test::shared_data() / "bmp" / name).string(), DIBitmap::DIB);
    };
    EXPECT_EQ(owl::TSize(127, 64), load("pal1.bmp").GetSize());
    EXPECT_EQ(owl::TSize(127, -64), load("pal8topdown.bmp").GetSize());
    EXPECT_EQ(owl::TSize(127, 64), load("pal8os2.bmp").GetSize());
    EXPECT_EQ(2835, load("pal8nonsquare.bmp").GetPixelsPerMetreX());
    EXPECT_EQ(1417, load("pal8nonsquare.bmp").GetPixelsPerMetreY());
    EXPECT_EQ(0, load("pal8os2.bmp").GetPixelsPerMetreX());
    EXPECT_EQ(owl::TSize(119, 96), load("vgl_6434_0018a.bmp").GetSize());
    EXPECT_EQ(owl::TSize(192, 176), load("clock.dib").GetSize());
    EXPECT_EQ(192 * 3, load("clock.dib").GetStorageWidth());
}

TEST(JpegFiles, all_load_with_their_sizes) {
    if (!lvx_test::has_shared_data("jpeg")) {
        return;
    }
    const struct {
        const char* name;
        owl::TSize size;
        int resolution;
    } cases[] = {{"abstract4.jpg", {1024, 768}, 0},
                 {"nature2.jpg", {1024, 768}, 0},
                 {"simple_image.jpg", {20, 20}, 2834},
                 {"testimgint.jpg", {227, 149}, 0},
                 {"testorig.jpg", {227, 149}, 0}};
    for (const auto& [name, size, resolution] : cases) {
        const DIBitmap bitmap((lvx_test::shared_data() / "jpeg" / name).string(), DIBitmap::AnyFormat);
        EXPECT_EQ(size, bitmap.GetSize()) << name;
        EXPECT_EQ(24, bitmap.GetBitsPerPixel()) << name;
        EXPECT_EQ(resolution, bitmap.GetPixelsPerMetreX()) << name;
    }
}

TEST(JpegFiles, all_have_the_pixels_of_a_plain_decoding) {
    if (!lvx_test::has_shared_data("jpeg")) {
        return;
    }
    for (const auto& path : files_in("jpeg")) {
        if (path.extension() != ".jpg") {
            continue;
        }
        const DIBitmap bitmap(path.string(), DIBitmap::JPEG);
        const auto plain = lvx_test::decode_plainly(lvx_test::read_file(path.string()));
        const auto stride = static_cast<std::size_t>(bitmap.GetStorageWidth());
        const auto pixels = bitmap.GetBitsAddress();
        std::vector<unsigned char> samples;
        for (std::size_t y = plain.height; y-- > 0;) {
            for (std::size_t x = 0; x < plain.width; ++x) {
                const unsigned char* const pixel = pixels.get() + y * stride + 3 * x;
                samples.insert(samples.end(), {pixel[2], pixel[1], pixel[0]});
            }
        }
        EXPECT_TRUE(plain.samples == samples) << path;
    }
}

// Its makers' picture was decoded with another, less exact inverse transform than the one in use by default.
TEST(JpegFiles, the_original_has_the_pixels_that_its_makers_decoded_but_for_rounding) {
    if (!lvx_test::has_shared_data("jpeg")) {
        return;
    }
    constexpr std::size_t width = 227;
    constexpr std::size_t height = 149;
    constexpr std::size_t stride = 684;
    const std::filesystem::path folder = lvx_test::shared_data() / "jpeg";
    const DIBitmap bitmap((folder / "testorig.jpg").string(), DIBitmap::JPEG);
    const std::string picture = lvx_test::read_file((folder / "testorig.ppm").string());
    const std::size_t header_size = picture.size() - width * height * 3;
    const auto pixels = bitmap.GetBitsAddress();
    int largest = 0;
    double sum = 0;
    for (std::size_t i = 0; i < width * height * 3; ++i) {
        const std::size_t x = i / 3 % width;
        const std::size_t y = i / 3 / width;
        const int ours = pixels[(height - 1 - y) * stride + x * 3 + (2 - i % 3)];
        const int difference = std::abs(ours - static_cast<unsigned char>(picture[header_size + i]));
        largest = std::max(largest, difference);
        sum += difference;
    }
    EXPECT_LE(largest, 4);
    EXPECT_LT(sum / (width * height * 3), 0.25);
}

}  // namespace
