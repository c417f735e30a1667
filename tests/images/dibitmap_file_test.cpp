// Bitmap files, read and written. Every expectation is worked out by hand from the bytes of the file.
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <string>

#include "images/picture_bytes.h"
#include "lvx/images/dibitmap.h"
#include "support/temp_folder.h"

namespace {

using lvx_test::block_of;
using lvx_test::bytes;
using lvx_test::core_header;
using lvx_test::file_header;
using lvx_test::Info;
using lvx_test::little_endian;
using lvx_test::make_block;
using lvx_test::number_at;
using lvx_test::thrown_words;
using LVXUtilities::DIBitmap;

class BitmapFile : public testing::Test {
protected:
    std::string Write(const std::string& data) const {
        const std::string name = m_folder.File("picture.bmp");
        lvx_test::write_file(name, data);
        return name;
    }
    DIBitmap Load(const std::string& data) const { return DIBitmap(Write(data), DIBitmap::DIB); }
    std::string LoadError(const std::string& data) const {
        return thrown_words([&] { Load(data); });
    }

    lvx_test::TempFolder m_folder;
};

// The whole of a small file of 24 bits: 1 by 1 pixel.
std::string one_pixel() {
    return file_header(54) + Info{}.Header() + bytes("11223300");
}

TEST_F(BitmapFile, of_one_pixel_loads_although_it_ends_within_the_header_that_is_asked_for) {
    const DIBitmap bitmap = Load(one_pixel());
    EXPECT_BYTES(Info{}.Header() + bytes("11223300"), block_of(bitmap));
    EXPECT_EQ(owl::TSize(1, 1), bitmap.GetSize());
    EXPECT_EQ(0x11, *bitmap.GetBitsAddress());
}

TEST_F(BitmapFile, has_its_table_taken_from_byte_40_of_the_file) {
    const Info info{.width = 2, .depth = 8, .used = 2};
    const DIBitmap bitmap =
        Load(file_header(62) + info.Header() + bytes("A1A2A3A4 B1B2B3B4") + bytes("00010000"));
    // Bytes 40 to 47 of the file are the upper half of the horizontal resolution, the vertical one and the
    // lower half of the count.
    EXPECT_BYTES(info.Header() + bytes("0304 05060708 0200") + bytes("00010000"), block_of(bitmap));
    EXPECT_EQ(3, bitmap.GetClrTabAddress()->rgbBlue);
    EXPECT_EQ(8, bitmap.GetClrTabAddress()[1].rgbGreen);
    EXPECT_EQ(1, bitmap.GetBitsAddress()[1]);
}

TEST_F(BitmapFile, of_8_bits_gets_256_colours_when_it_tells_no_number) {
    const Info info{.width = 3, .depth = 8};
    std::string table;
    for (int i = 0; i < 256; ++i) {
        table += little_endian(static_cast<std::uint32_t>(i) * 0x00010101, 4);
    }
    const std::string file = file_header(1078) + info.Header() + table + bytes("0A0B0C00");
    const DIBitmap bitmap = Load(file);
    const Info completed{.width = 3, .depth = 8, .used = 256};
    EXPECT_BYTES(completed.Header() + file.substr(40, 1024) + bytes("0A0B0C00"), block_of(bitmap));
}

TEST_F(BitmapFile, of_1_and_4_bits_gets_2_and_16_colours) {
    const Info one{.width = 9, .depth = 1};
    const std::string one_file = file_header(62) + one.Header() + bytes("A1A2A3A4 B1B2B3B4 AA800000");
    EXPECT_BYTES(
        (Info{.width = 9, .depth = 1, .used = 2}.Header()) + one_file.substr(40, 8) + bytes("AA800000"),
        block_of(Load(one_file)));
    const Info four{.width = 3, .depth = 4};
    const std::string four_file = file_header(118) + four.Header() + std::string(64, 't') + bytes("12300000");
    EXPECT_BYTES(
        (Info{.width = 3, .depth = 4, .used = 16}.Header()) + four_file.substr(40, 64) + bytes("12300000"),
        block_of(Load(four_file)));
}

TEST_F(BitmapFile, of_bit_fields_has_three_masks_and_uses_no_colours) {
    for (const std::uint32_t depth : {16u, 32u}) {
        const Info info{.depth = depth, .compression = 3};
        const std::string file = file_header(66) + info.Header() + std::string(12, 'm') + bytes("11223344");
        EXPECT_BYTES(info.Header() + file.substr(40, 12) + bytes("11223344"), block_of(Load(file)));
    }
}

TEST_F(BitmapFile, of_24_bits_may_have_a_table) {
    const Info info{.used = 1};
    const std::string file = file_header(58) + info.Header() + bytes("A1A2A3A4") + bytes("11223300");
    EXPECT_BYTES(info.Header() + bytes("0304 0506") + bytes("11223300"), block_of(Load(file)));
}

TEST_F(BitmapFile, of_16_and_32_bits_has_no_table) {
    for (const std::uint32_t depth : {16u, 32u}) {
        const Info info{.depth = depth};
        EXPECT_BYTES(info.Header() + bytes("11223344"),
                     block_of(Load(file_header(54) + info.Header() + bytes("11223344"))));
    }
}

TEST_F(BitmapFile, keeps_an_image_size_of_zero_and_computes_its_own) {
    const Info info{.width = 2, .height = 3};
    const std::string pixels = "row1..__row2..__row3..__";
    const DIBitmap bitmap = Load(file_header(54) + info.Header() + pixels + "behind");
    EXPECT_BYTES(info.Header() + pixels, block_of(bitmap));
}

TEST_F(BitmapFile, reads_as_many_bytes_as_its_image_size_says) {
    const Info more{.image_size = 6};
    EXPECT_BYTES(more.Header() + "abcdef", block_of(Load(file_header(54) + more.Header() + "abcdefgh")));
    const Info fewer{.width = 5, .height = 5, .image_size = 3};
    EXPECT_BYTES(fewer.Header() + "abc", block_of(Load(file_header(54) + fewer.Header() + "abcdefgh")));
}

TEST_F(BitmapFile, with_the_top_row_first_has_as_many_bytes_as_the_other_way_up) {
    const Info info{.width = 1, .height = -2};
    const DIBitmap bitmap = Load(file_header(54) + info.Header() + "top.low.");
    EXPECT_BYTES(info.Header() + "top.low.", block_of(bitmap));
    EXPECT_EQ(-2, bitmap.GetHeight());
}

TEST_F(BitmapFile, that_is_compressed_keeps_its_codes) {
    const Info info{.width = 9, .height = 1, .depth = 8, .compression = 1, .image_size = 4, .used = 1};
    const DIBitmap bitmap = Load(file_header(58) + info.Header() + "quad" + bytes("09000001"));
    EXPECT_BYTES(info.Header() + bytes("03040506 09000001"), block_of(bitmap));
}

TEST_F(BitmapFile, finds_its_pixels_where_the_file_header_says) {
    const Info info;
    EXPECT_BYTES(info.Header() + "pix.", block_of(Load(file_header(60) + info.Header() + "______pix.")));
    // In the header itself.
    EXPECT_BYTES(info.Header() + info.Header().substr(32, 4),
                 block_of(Load(file_header(46) + info.Header() + "______pix.")));
}

TEST_F(BitmapFile, takes_only_so_much_of_the_header_as_the_distance_to_the_pixels) {
    // 12 bytes: neither depth nor image size, and so no pixels.
    EXPECT_BYTES(Info{.width = 3}.Header().substr(0, 12) + std::string(28, '\0'),
                 block_of(Load(file_header(12) + Info{.width = 3}.Header() + "12345678")));
    // 16 bytes: the depth, but not the compression that would make a table of masks.
    const std::string file = file_header(16) + Info{.width = 1, .compression = 3}.Header() + "1234";
    EXPECT_BYTES(Info{}.Header().substr(0, 16) + std::string(24, '\0') + file.substr(16, 4),
                 block_of(Load(file)));
}

TEST_F(BitmapFile, without_a_distance_to_the_pixels_is_a_header_of_zeros) {
    EXPECT_BYTES(std::string(40, '\0'), block_of(Load(file_header(0) + Info{}.Header())));
    EXPECT_BYTES(std::string(40, '\0'), block_of(Load("BM")));
}

TEST_F(BitmapFile, that_is_cut_has_zeros_for_what_it_lacks) {
    const Info info{.width = 1, .height = 3};
    const DIBitmap bitmap = Load(file_header(54) + info.Header() + "row1ro");
    EXPECT_BYTES(info.Header() + "row1ro" + std::string(6, '\0'), block_of(bitmap));
}

TEST_F(BitmapFile, that_ends_before_its_pixels_has_zeros_for_them) {
    const Info info;
    EXPECT_BYTES(info.Header() + std::string(4, '\0'), block_of(Load(file_header(54) + info.Header())));
    EXPECT_BYTES(info.Header() + std::string(4, '\0'),
                 block_of(Load(file_header(0xFFFFFFFF) + info.Header())));
}

TEST_F(BitmapFile, with_a_core_header_gets_an_info_header) {
    const DIBitmap bitmap = Load(file_header(26) + core_header(2, 1, 24) + "abcdef__");
    EXPECT_BYTES(bytes("28000000 02000000 01000000 0100 1800") + std::string(24, '\0') + "abcdef__",
                 block_of(bitmap));
    EXPECT_EQ(24, bitmap.GetBitsPerPixel());
    EXPECT_EQ(8, bitmap.GetStorageWidth());
}

TEST_F(BitmapFile, with_a_core_header_has_its_table_28_bytes_before_where_the_header_was_read_to) {
    const std::string table = std::string(768, 't');
    const std::string file = file_header(794) + core_header(4, 1, 8) + table + "abcd" + std::string(400, 'e');
    // 108 bytes were read from byte 14 on.
    EXPECT_BYTES(bytes("28000000 04000000 01000000 0100 0800") + std::string(16, '\0') +
                     bytes("00010000 00010000") + file.substr(14 + 108 - 28, 1024) + "abcd",
                 block_of(Load(file)));
}

TEST_F(BitmapFile, with_a_core_header_in_a_small_file_counts_those_28_bytes_from_the_end) {
    const std::string file =
        file_header(32) + core_header(1, 1, 1) + bytes("A1A2A3 B1B2B3") + bytes("80000000");
    ASSERT_EQ(36u, file.size());
    // The read for 32 bytes ended at 36.
    EXPECT_BYTES(bytes("28000000 01000000 01000000 0100 0100") + std::string(16, '\0') +
                     bytes("02000000 02000000") + file.substr(8, 8) + bytes("80000000"),
                 block_of(Load(file)));
}

TEST_F(BitmapFile, with_a_core_header_has_no_table_when_28_bytes_back_is_before_its_start) {
    // 12 bytes are read, up to byte 26; the pixels are then looked for at byte 12.
    const std::string file = file_header(12) + core_header(1, 1, 1);
    EXPECT_BYTES(bytes("28000000 01000000 01000000 0100 0100") + std::string(16, '\0') +
                     bytes("02000000 02000000") + std::string(8, '\0') + file.substr(12, 4),
                 block_of(Load(file)));
}

TEST_F(BitmapFile, with_a_core_header_may_be_65535_wide) {
    const DIBitmap bitmap = Load(file_header(26) + core_header(65535, 1, 1));
    EXPECT_EQ(owl::TSize(65535, 1), bitmap.GetSize());
}

TEST_F(BitmapFile, with_a_long_header_keeps_its_first_40_bytes_and_its_length) {
    Info info{.width = 2, .depth = 8, .used = 2};
    for (const std::uint32_t size_word : {64u, 108u, 124u}) {
        info.size_word = size_word;
        const std::string file = file_header(14 + size_word + 8) + info.Header() +
                                 std::string(size_word - 40, 'v') + bytes("A1A2A3A4 B1B2B3B4") + "pix.";
        const DIBitmap bitmap = Load(file);
        // The table lies at byte 40, but the pixels where a table behind the whole header would end.
        const std::string block = block_of(bitmap);
        ASSERT_EQ(size_word + 8 + 4, block.size());
        EXPECT_BYTES(info.Header() + file.substr(size_word, 8), block.substr(0, 48));
        EXPECT_BYTES(std::string(size_word - 40, '\0') + "pix.", block.substr(48));
        EXPECT_EQ('p', *bitmap.GetBitsAddress());
        EXPECT_EQ(size_word, number_at(block, 0));
    }
}

TEST_F(BitmapFile, with_a_header_shorter_than_40_bytes_has_its_pixels_in_it) {
    Info info;
    info.size_word = 16;
    const DIBitmap bitmap = Load(file_header(54) + info.Header() + "pix.");
    EXPECT_BYTES(info.Header().substr(0, 16) + "pix." + info.Header().substr(20) + std::string(4, '\0'),
                 block_of(bitmap));
}

TEST_F(BitmapFile, with_a_header_beyond_64_kibibytes_is_refused) {
    Info info;
    info.size_word = 65536;
    EXPECT_EQ(65536u + 4, block_of(Load(file_header(54) + info.Header() + "pix.")).size());
    info.size_word = 65537;
    EXPECT_EQ("Error", LoadError(file_header(54) + info.Header() + "pix."));
    info.size_word = 0xFFFFFFFF;
    EXPECT_EQ("Error", LoadError(file_header(54) + info.Header() + "pix."));
}

TEST_F(BitmapFile, with_more_colours_than_any_depth_needs_has_to_hold_them) {
    const Info info{.used = 257};
    const std::string file = file_header(54) + info.Header();
    const std::string table(257 * 4 - 14, 't');
    EXPECT_EQ(40u + 1028 + 4, block_of(Load(file + table)).size());
    EXPECT_EQ("Error", LoadError(file + table.substr(1)));
    EXPECT_EQ("Error", LoadError(file_header(54) + Info{.used = 0xFFFFFFFF}.Header() + table));
    EXPECT_EQ("Error", LoadError(file_header(54) + Info{.used = 0x40000001}.Header() + table));
}

TEST_F(BitmapFile, that_claims_far_more_pixels_than_it_holds_is_refused) {
    constexpr std::uint32_t mebi = 1 << 20;
    EXPECT_EQ("", LoadError(file_header(54) + Info{.image_size = 64 * mebi}.Header()));
    const Info claim{.image_size = 64 * mebi + 1};
    EXPECT_EQ("Error", LoadError(file_header(54) + claim.Header() + std::string(65536, 'p')));
    EXPECT_EQ("", LoadError(file_header(54) + claim.Header() + std::string(65537, 'p')));
    // What stands before the pixels does not count.
    EXPECT_EQ("Error", LoadError(file_header(55) + claim.Header() + std::string(65537, 'p')));
}

TEST_F(BitmapFile, whose_size_overflows_32_bits_is_refused) {
    EXPECT_EQ("Error", LoadError(file_header(54) + Info{.width = 0x10000, .height = 0x10000}.Header()));
    EXPECT_EQ("Error", LoadError(file_header(54) +
                                 Info{.width = 0x7FFFFFFF, .height = 0x7FFFFFFF, .depth = 32}.Header()));
    EXPECT_EQ("Error", LoadError(file_header(54) + Info{.width = -1, .height = 1}.Header()));
    EXPECT_EQ("Error",
              LoadError(file_header(54) +
                        Info{.width = 1, .height = std::numeric_limits<std::int32_t>::min()}.Header()));
    EXPECT_EQ("Error", LoadError(file_header(54) + Info{.width = -1, .height = -1, .depth = 65535}.Header()));
}

TEST_F(BitmapFile, of_two_gibibytes_finds_no_memory) {
    const std::string name = Write(file_header(54) + Info{.image_size = 0x7FFFFFFF - 39}.Header());
    std::filesystem::resize_file(name, 4 << 20);
    EXPECT_THROW(DIBitmap(name, DIBitmap::DIB), std::bad_alloc);
    EXPECT_THROW(DIBitmap(name, DIBitmap::AnyFormat), std::bad_alloc);
}

TEST_F(BitmapFile, begins_with_its_signature_or_is_none) {
    EXPECT_EQ("Not a valid bitmap", LoadError(""));
    EXPECT_EQ("Not a valid bitmap", LoadError("B"));
    EXPECT_EQ("Not a valid bitmap", LoadError("MB" + one_pixel().substr(2)));
    EXPECT_EQ("Not a valid bitmap", LoadError("BA" + one_pixel().substr(2)));
    EXPECT_EQ("Not a valid bitmap", LoadError(" " + one_pixel()));
}

TEST_F(BitmapFile, that_is_missing_or_a_folder_is_none) {
    EXPECT_EQ("Not a valid bitmap",
              thrown_words([&] { DIBitmap(m_folder.File("none.bmp"), DIBitmap::DIB); }));
    EXPECT_EQ("Not a valid bitmap", thrown_words([&] { DIBitmap(m_folder.Path(), DIBitmap::DIB); }));
    EXPECT_EQ("Not a valid bitmap", thrown_words([&] { DIBitmap("", DIBitmap::DIB); }));
}

TEST_F(BitmapFile, that_is_missing_in_another_format_is_no_file) {
    for (const auto format : {DIBitmap::JPEG, DIBitmap::AnyFormat}) {
        EXPECT_EQ("No such file.", thrown_words([&] { DIBitmap(m_folder.File("none.bmp"), format); }));
        EXPECT_EQ("No such file.", thrown_words([&] { DIBitmap(m_folder.Path(), format); }));
    }
}

TEST_F(BitmapFile, needs_a_format_that_exists) {
    const std::string name = Write(one_pixel());
    EXPECT_EQ("Invalid format.", thrown_words([&] { DIBitmap(name, static_cast<DIBitmap::Format>(3)); }));
    EXPECT_EQ("Invalid format.", thrown_words([&] { DIBitmap(name, static_cast<DIBitmap::Format>(-1)); }));
}

TEST_F(BitmapFile, is_found_in_any_format) {
    EXPECT_BYTES(Info{}.Header() + bytes("11223300"),
                 block_of(DIBitmap(Write(one_pixel()), DIBitmap::AnyFormat)));
}

TEST_F(BitmapFile, is_read_into_an_image_that_has_a_block) {
    DIBitmap bitmap(make_block(core_header(9, 9, 8) + std::string(900, '\0')), DIBitmap::Adopt);
    EXPECT_TRUE(bitmap.InitDIB(Write(one_pixel())));
    EXPECT_BYTES(Info{}.Header() + bytes("11223300"), block_of(bitmap));
    EXPECT_EQ(24, bitmap.GetBitsPerPixel());
}

TEST_F(BitmapFile, is_owned_by_an_image_that_borrowed_before) {
    const HGLOBAL block = make_block(core_header(9, 9, 8));
    {
        DIBitmap bitmap(block, DIBitmap::Borrow);
        EXPECT_TRUE(bitmap.InitDIB(Write(one_pixel())));
    }
    EXPECT_EQ(12u, GlobalSize(block));
    GlobalFree(block);
}

TEST_F(BitmapFile, that_is_none_leaves_the_image_as_it_was) {
    DIBitmap bitmap(make_block(core_header(9, 7, 8)), DIBitmap::Adopt);
    EXPECT_FALSE(bitmap.InitDIB(Write("no bitmap")));
    EXPECT_FALSE(bitmap.InitDIB(m_folder.File("none.bmp")));
    EXPECT_EQ(owl::TSize(9, 7), bitmap.GetSize());
}

class SavedBitmap : public BitmapFile {
protected:
    std::string Save(DIBitmap bitmap, DIBitmap::Format format = DIBitmap::DIB) const {
        bitmap.SaveAs(Name(), format);
        return lvx_test::read_file(Name());
    }
    std::string SaveBlock(const std::string& block) const {
        return Save(DIBitmap(make_block(block), DIBitmap::Adopt));
    }
    std::string Name() const { return m_folder.File("saved.bmp"); }
};

TEST_F(SavedBitmap, is_14_bytes_and_the_block) {
    const std::string block = Info{}.Header() + bytes("11223300");
    EXPECT_BYTES(bytes("'BM' 3A000000 0000 0000 36000000") + block, SaveBlock(block));
}

TEST_F(SavedBitmap, has_its_pixels_behind_header_and_table) {
    const std::string info = Info{.depth = 4}.Header() + std::string(68, 't');
    EXPECT_BYTES(bytes("'BM' 7A000000 0000 0000 76000000") + info, SaveBlock(info));
    const std::string core = core_header(1, 1, 4) + std::string(52, 't');
    EXPECT_BYTES(bytes("'BM' 4E000000 0000 0000 4A000000") + core, SaveBlock(core));
    Info long_info{.depth = 1};
    long_info.size_word = 108;
    const std::string v4 = long_info.Header() + std::string(68 + 8 + 4, 't');
    EXPECT_BYTES(bytes("'BM' 86000000 0000 0000 82000000") + v4, SaveBlock(v4));
}

TEST_F(SavedBitmap, tells_where_its_pixels_would_be_although_the_block_is_shorter) {
    const std::string block = Info{.depth = 8}.Header();
    EXPECT_BYTES(bytes("'BM' 36000000 0000 0000 36040000") + block, SaveBlock(block));
}

TEST_F(SavedBitmap, of_an_empty_image_is_a_file_header) {
    EXPECT_BYTES(bytes("'BM' 0E000000 0000 0000 0E000000"), Save(DIBitmap(nullptr, DIBitmap::Copy)));
}

// The worked example of docs/bitmaps.md.
TEST_F(SavedBitmap, of_the_documented_example_is_the_documented_bytes) {
    const std::string file = bytes(
        "42 4D EE EE EE EE 11 11 22 22 3E 00 00 00 28 00 00 00 02 00 00 00 01 00 00 00 01 00 08 00"
        "00 00 00 00 00 00 00 00 01 02 03 04 05 06 07 08 02 00 00 00 09 0A 0B 0C"
        "A1 A2 A3 A4 B1 B2 B3 B4 00 01 00 00");
    const std::string block = bytes(
        "28 00 00 00 02 00 00 00 01 00 00 00 01 00 08 00 00 00 00 00 00 00 00 00 01 02 03 04 05 06 07 08"
        "02 00 00 00 09 0A 0B 0C 03 04 05 06 07 08 02 00 00 01 00 00");
    const DIBitmap bitmap = Load(file);
    EXPECT_BYTES(block, block_of(bitmap));
    EXPECT_BYTES(bytes("42 4D 42 00 00 00 00 00 00 00 3E 00 00 00") + block, Save(bitmap));
}

TEST_F(SavedBitmap, replaces_what_was_there) {
    lvx_test::write_file(Name(), std::string(1000, 'x'));
    EXPECT_EQ(14u + 44, SaveBlock(Info{}.Header() + bytes("11223300")).size());
}

TEST_F(SavedBitmap, loads_again_with_the_same_block_if_it_has_no_table) {
    for (const std::uint32_t image_size : {0u, 16u}) {
        const std::string block =
            Info{.width = 2, .height = 2, .image_size = image_size}.Header() + "abcdef__ghijkl__";
        SaveBlock(block);
        EXPECT_BYTES(block, block_of(DIBitmap(Name(), DIBitmap::DIB)));
    }
}

TEST_F(SavedBitmap, with_a_table_loads_again_with_the_same_pixels_and_a_table_moved_by_14_bytes) {
    const Info info{.width = 4, .depth = 8, .used = 4};
    const std::string file = SaveBlock(info.Header() + "AAAABBBBCCCCDDDD" + "pix.");
    EXPECT_BYTES(info.Header() + info.Header().substr(26) + "AA" + "pix.",
                 block_of(DIBitmap(Name(), DIBitmap::DIB)));
}

TEST_F(SavedBitmap, is_a_bitmap_in_every_format_but_jpeg) {
    const std::string block = Info{}.Header() + bytes("11223300");
    const DIBitmap bitmap(make_block(block), DIBitmap::Adopt);
    for (const int format : {0, 2, 3, -1}) {
        std::filesystem::remove(Name());
        EXPECT_EQ("BM", Save(bitmap, static_cast<DIBitmap::Format>(format)).substr(0, 2)) << format;
    }
}

TEST_F(SavedBitmap, in_jpeg_is_no_file_at_all) {
    DIBitmap bitmap(make_block(Info{}.Header() + bytes("11223300")), DIBitmap::Adopt);
    bitmap.SaveAs(Name(), DIBitmap::JPEG);
    EXPECT_FALSE(std::filesystem::exists(Name()));
    bitmap.SaveAsJPEG(Name());
    EXPECT_FALSE(std::filesystem::exists(Name()));
    lvx_test::write_file(Name(), "kept");
    bitmap.SaveAsJPEG(Name());
    EXPECT_EQ("kept", lvx_test::read_file(Name()));
}

TEST_F(SavedBitmap, needs_a_file_that_can_be_opened) {
    const HGLOBAL block = make_block(Info{}.Header());
    DIBitmap bitmap(block, DIBitmap::Adopt);
    EXPECT_EQ("Cannot open file.", thrown_words([&] { bitmap.SaveAsDIB(m_folder.File("none/x.bmp")); }));
    EXPECT_EQ("Cannot open file.", thrown_words([&] { bitmap.SaveAsDIB(m_folder.Path()); }));
    EXPECT_EQ("Cannot open file.", thrown_words([&] { bitmap.SaveAs("", DIBitmap::AnyFormat); }));
    EXPECT_FALSE(lvx_test::is_locked(block));
}

}  // namespace
