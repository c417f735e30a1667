// Files with every length and with every byte changed: each is a picture within its block, or an error that
// is told. The sanitizers watch for more.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <new>
#include <numeric>
#include <string>
#include <vector>

#include "images/picture_bytes.h"
#include "lvx/images/dibitmap.h"
#include "support/temp_folder.h"

namespace {

using lvx_test::bytes;
using lvx_test::core_header;
using lvx_test::file_header;
using lvx_test::Info;
using lvx_test::number_at;
using LVXUtilities::DIBitmap;

struct Sample {
    const char* name;
    std::string file;
};

std::vector<Sample> samples() {
    Info v4{.width = 2, .depth = 8, .used = 2};
    v4.size_word = 108;
    return {
        {"bits_24", file_header(54) + Info{.width = 2, .height = 2}.Header() + "abcdef__ghijkl__"},
        {"bits_8", file_header(62) + Info{.width = 2, .depth = 8, .used = 2}.Header() + "AAAABBBB" + "px__"},
        {"bits_1",
         file_header(62) + Info{.width = 9, .height = 2, .depth = 1}.Header() + "AAAABBBB" + "px__px__"},
        {"bit_fields",
         file_header(66) + Info{.depth = 16, .compression = 3}.Header() + "RRRRGGGGBBBB" + "px__"},
        {"core", file_header(32) + core_header(1, 1, 1) + "AAABBB" + "px__"},
        {"v4", file_header(130) + v4.Header() + std::string(68, 'v') + "AAAABBBB" + "px__"},
    };
}

// Asks all that can be asked of the image, and reads all of the colour table.
unsigned int use(const DIBitmap& bitmap) {
    const unsigned int sum =
        static_cast<unsigned int>(bitmap.GetWidth() ^ bitmap.GetHeight()) ^
        static_cast<unsigned int>(bitmap.GetPixelsPerMetreX() ^ bitmap.GetPixelsPerMetreY()) ^
        static_cast<unsigned int>(bitmap.GetBitsPerPixel() ^ bitmap.GetStorageWidth());
    const auto pixels = bitmap.GetBitsAddress();
    const auto table = bitmap.GetClrTabAddress();
    EXPECT_LE(static_cast<const void*>(table.get()), static_cast<const void*>(pixels.get()));
    return std::accumulate(reinterpret_cast<const unsigned char*>(table.get()),
                           static_cast<const unsigned char*>(pixels.get()), sum);
}

// Whether the block is small enough to be read to its end thousands of times.
bool is_small(const DIBitmap& bitmap, const std::string& file) {
    constexpr double limit = 1 << 20;
    const std::uint32_t claimed = file.size() < 38 ? 0 : number_at(file, 34);
    const double computed = double{1} * bitmap.GetWidth() * bitmap.GetHeight() * bitmap.GetBitsPerPixel() / 8;
    return claimed < limit && std::abs(computed) < limit;
}

// "value" or the error that was told.
std::string outcome(const std::string& name, const std::string& file) {
    try {
        const DIBitmap bitmap(name, DIBitmap::DIB);
        use(bitmap);
        if (is_small(bitmap, file)) {
            EXPECT_FALSE(lvx_test::stored(bitmap).empty());
        }
        return "value";
    } catch (const char* text) {
        return text;
    } catch (const std::bad_alloc&) {
        return "bad_alloc";
    }
}

bool is_told(const std::string& outcome) {
    return outcome == "value" || outcome == "Not a valid bitmap" || outcome == "Error" ||
           outcome == "bad_alloc";
}

class DamagedBitmap : public testing::TestWithParam<Sample> {
protected:
    std::string OutcomeOf(const std::string& file) const {
        const std::string name = m_folder.File("damaged.bmp");
        // A new file each time: some file systems wait for the disk when one is cut and written again.
        std::filesystem::remove(name);
        lvx_test::write_file(name, file);
        return outcome(name, file);
    }

    lvx_test::TempFolder m_folder;
};

TEST_P(DamagedBitmap, loads_at_every_length_that_has_the_signature) {
    const std::string& file = GetParam().file;
    for (std::size_t length = 0; length <= file.size(); ++length) {
        EXPECT_EQ(length < 2 ? "Not a valid bitmap" : "value", OutcomeOf(file.substr(0, length))) << length;
    }
}

TEST_P(DamagedBitmap, is_a_picture_or_an_error_whichever_byte_is_changed) {
    const std::string& file = GetParam().file;
    // All of them where files are made fast; else a handful.
    const bool every_value = LVX_TEST_EVERY_CHANGE != 0 && GetParam().name == std::string("bits_24");
    for (std::size_t at = 0; at < file.size(); ++at) {
        const int original = static_cast<unsigned char>(file[at]);
        for (int change = 1; change < 256; change += every_value ? 1 : 36) {
            std::string damaged = file;
            damaged[at] = static_cast<char>(original ^ change);
            const std::string result = OutcomeOf(damaged);
            EXPECT_TRUE(is_told(result)) << result;
            EXPECT_EQ(at < 2, result == "Not a valid bitmap") << at;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryKind, DamagedBitmap, testing::ValuesIn(samples()),
                         [](const auto& sample) { return std::string(sample.param.name); });

}  // namespace
