#include "owl/packed_dib.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <initializer_list>
#include <string>

#include "owl/error.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t RunLengths8 = 1, RunLengths4 = 2, BitFields = 3, Jpeg = 4, Png = 5;

void Put(Bytes& bytes, std::uint32_t value, int size = 4) {
    for (int i = 0; i < size; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
}

/// Overwrites four bytes.
void PutAt(Bytes& bytes, std::size_t at, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i)
        bytes[at + i] = static_cast<std::uint8_t>(value >> 8 * i);
}

std::uint32_t NumberAt(const Bytes& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i > 0; --i)
        value = value << 8 | bytes.at(at + i - 1);
    return value;
}

/// What a header says beside its size; the resolution is 11 by 22, and 7 colours are important.
struct Header {
    int width, height, bitCount;
    std::uint32_t compression = 0, bytes = 0, colours = 0;
};

Bytes Made(const Header& header, std::uint32_t size = 40) {
    Bytes bytes;
    Put(bytes, size);
    Put(bytes, static_cast<std::uint32_t>(header.width));
    Put(bytes, static_cast<std::uint32_t>(header.height));
    Put(bytes, 1, 2);
    Put(bytes, static_cast<std::uint32_t>(header.bitCount), 2);
    for (const std::uint32_t value : {header.compression, header.bytes, 11u, 22u, header.colours, 7u})
        Put(bytes, value);
    return bytes;
}

Bytes Joined(Bytes first, std::initializer_list<std::uint8_t> second) {
    first.insert(first.end(), second);
    return first;
}

/// A picture of 2 by 1 pixels with one bit each and both colours: blue, green, red, unused.
Bytes TwoPixels() {
    return Joined(Made({2, 1, 1}), {1, 2, 3, 99, 4, 5, 6, 0, 0x40, 0, 0, 0});
}

owl::DibParts Read(const Bytes& bytes) {
    return owl::ReadPackedDib(bytes.data(), bytes.size());
}

Bytes Behind(const Bytes& bytes, std::size_t at) {
    return Bytes(bytes.begin() + static_cast<std::ptrdiff_t>(at), bytes.end());
}

/// What stands behind the header of what was read: masks and colours.
Bytes BehindHeader(const Bytes& picture) {
    return Behind(Read(picture).info, 40);
}

/// What reading says is wrong.
std::string Complaint(const Bytes& bytes) {
    try {
        Read(bytes);
    } catch (const owl::TXGdi& error) {
        // The system's number for damaged data.
        EXPECT_EQ(13ul, error.GetCode());
        return error.what();
    }
    return "";
}

TEST(DibStride, is_filled_to_4_bytes) {
    EXPECT_EQ(4u, owl::DibStride(1, 1));
    EXPECT_EQ(4u, owl::DibStride(32, 1));
    EXPECT_EQ(8u, owl::DibStride(33, 1));
    EXPECT_EQ(8u, owl::DibStride(2, 24));
    EXPECT_EQ(std::uint64_t{INT_MAX} * 4, owl::DibStride(INT_MAX, 32));
}

TEST(PackedDib, is_taken_apart) {
    const owl::DibParts parts = Read(TwoPixels());
    EXPECT_EQ((Bytes{0x40, 0, 0, 0}), parts.bits);
    // The usual header in full, with its true sizes: 4 bytes of pixels and 2 colours, none more important.
    const Bytes header = {40, 0, 0, 0, 2,  0, 0, 0, 1,  0, 0, 0, 1, 0, 1, 0, 0, 0, 0, 0,
                          4,  0, 0, 0, 11, 0, 0, 0, 22, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(Joined(header, {1, 2, 3, 0, 4, 5, 6, 0}), parts.info);
}

TEST(PackedDib, with_the_oldest_header_gets_the_usual_one) {
    const Bytes bytes = {12, 0, 0, 0, 2, 0, 1, 0, 1, 0, 1, 0, 1, 2, 3, 4, 5, 6, 0x80, 0, 0, 0};
    const owl::DibParts parts = Read(bytes);
    const Bytes header = {40, 0, 0, 0, 2, 0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 0, 0, 0, 0, 0,
                          4,  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(Joined(header, {1, 2, 3, 0, 4, 5, 6, 0}), parts.info);
    EXPECT_EQ((Bytes{0x80, 0, 0, 0}), parts.bits);
}

// Its sides have 16 bits without a sign.
TEST(PackedDib, with_the_oldest_header_may_be_65535_pixels_wide) {
    Bytes bytes = {12, 0, 0, 0, 0xFF, 0xFF, 1, 0, 1, 0, 24, 0};
    bytes.resize(12 + 196608);
    EXPECT_EQ(65535u, NumberAt(Read(bytes).info, 4));
    EXPECT_EQ(196608u, Read(bytes).bits.size());
}

TEST(PackedDib, with_a_larger_header_keeps_its_masks) {
    for (const std::uint32_t size : {52u, 56u, 108u, 124u}) {
        Bytes bytes = Made({1, 1, 16, BitFields}, size);
        for (const std::uint32_t mask : {0xF800u, 0x07E0u, 0x001Fu})
            Put(bytes, mask);
        bytes.resize(size);
        bytes = Joined(bytes, {0x34, 0x12, 0, 0});
        EXPECT_EQ((Bytes{0x34, 0x12, 0, 0}), Read(bytes).bits) << size;
        EXPECT_EQ((Bytes{0, 0xF8, 0, 0, 0xE0, 7, 0, 0, 0x1F, 0, 0, 0}), BehindHeader(bytes)) << size;
    }
}

TEST(PackedDib, with_masks_behind_the_header_keeps_them) {
    // A header of 44 bytes has no room for masks.
    for (const std::uint32_t size : {40u, 44u}) {
        Bytes bytes = Made({1, 1, 32, BitFields}, size);
        bytes.resize(size);
        for (const std::uint32_t mask : {0xFFu, 0xFF00u, 0xFF0000u})
            Put(bytes, mask);
        bytes = Joined(bytes, {7, 8, 9, 0});
        EXPECT_EQ((Bytes{7, 8, 9, 0}), Read(bytes).bits) << size;
        EXPECT_EQ((Bytes{0xFF, 0, 0, 0, 0, 0xFF, 0, 0, 0, 0, 0xFF, 0}), BehindHeader(bytes)) << size;
    }
}

TEST(PackedDib, with_a_larger_header_has_its_colours_behind_that) {
    Bytes bytes = Made({1, 1, 1}, 108);
    bytes.resize(108, 0xEE);
    bytes = Joined(bytes, {1, 2, 3, 0, 4, 5, 6, 0, 0x80, 0, 0, 0});
    EXPECT_EQ((Bytes{1, 2, 3, 0, 4, 5, 6, 0}), BehindHeader(bytes));
    EXPECT_EQ((Bytes{0x80, 0, 0, 0}), Read(bytes).bits);
}

TEST(PackedDib, skips_colours_that_true_colour_does_not_need) {
    const Bytes bytes = Joined(Made({1, 1, 24, 0, 0, 2}), {9, 9, 9, 9, 9, 9, 9, 9, 1, 2, 3, 0});
    EXPECT_EQ((Bytes{1, 2, 3, 0}), Read(bytes).bits);
    EXPECT_EQ(0u, NumberAt(Read(bytes).info, 32));
    EXPECT_EQ(Bytes(), BehindHeader(bytes));
}

TEST(PackedDib, keeps_as_many_colours_as_a_pixel_can_name) {
    Bytes bytes = Joined(Made({1, 1, 1, 0, 0, 3}), {1, 1, 1, 0, 2, 2, 2, 0, 3, 3, 3, 0, 0x80, 0, 0, 0});
    EXPECT_EQ(2u, NumberAt(Read(bytes).info, 32));
    EXPECT_EQ(0x80, Read(bytes).bits[0]);
    PutAt(bytes, 32, 1);
    EXPECT_EQ(1u, NumberAt(Read(bytes).info, 32));
    EXPECT_EQ(2, Read(bytes).bits[0]);
}

TEST(PackedDib, without_a_count_has_all_the_colours_of_its_depth) {
    const struct {
        int bitCount;
        std::size_t colours;
    } cases[] = {{1, 2}, {4, 16}, {8, 256}, {16, 0}, {24, 0}, {32, 0}};
    for (const auto& one : cases) {
        Bytes bytes = Made({1, 1, one.bitCount});
        bytes.resize(40 + one.colours * 4 + 4);
        EXPECT_EQ(one.colours * 4, BehindHeader(bytes).size()) << one.bitCount;
        EXPECT_EQ(4u, Read(bytes).bits.size()) << one.bitCount;
        bytes.pop_back();
        EXPECT_EQ("TDib: the picture is cut off", Complaint(bytes)) << one.bitCount;
    }
}

TEST(PackedDib, may_stand_with_its_upper_row_first) {
    Bytes bytes = TwoPixels();
    PutAt(bytes, 8, static_cast<std::uint32_t>(-1));
    EXPECT_EQ(0xFFFFFFFF, NumberAt(Read(bytes).info, 8));
    EXPECT_EQ(4u, Read(bytes).bits.size());
}

TEST(PackedDib, of_run_lengths_takes_all_the_bytes_there_are) {
    Bytes bytes = Joined(Made({100, 100, 8, RunLengths8, 1000, 1}), {1, 1, 1, 0, 100, 0, 0, 1});
    EXPECT_EQ((Bytes{100, 0, 0, 1}), Read(bytes).bits);
    EXPECT_EQ(4u, NumberAt(Read(bytes).info, 20));
    PutAt(bytes, 20, 2);
    EXPECT_EQ((Bytes{100, 0}), Read(bytes).bits);
    PutAt(bytes, 20, 0);
    EXPECT_EQ((Bytes{100, 0, 0, 1}), Read(bytes).bits);
    EXPECT_EQ(RunLengths8, NumberAt(Read(bytes).info, 16));
}

TEST(PackedDib, cut_off_anywhere_is_refused) {
    const Bytes whole = TwoPixels();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ("TDib: the picture is cut off", Complaint(part)) << size;
    }
    EXPECT_EQ("", Complaint(whole));
    EXPECT_THROW(owl::ReadPackedDib(nullptr, 0), owl::TXGdi);
}

/// What is wrong with a picture of that header before 2000 bytes of pixels.
std::string ComplaintOf(const Header& header, std::uint32_t size = 40) {
    Bytes bytes = Made(header, size);
    bytes.resize(2000);
    return Complaint(bytes);
}

TEST(PackedDib, without_a_size_is_refused) {
    for (const Header& header :
         {Header{0, 1, 1}, Header{-1, 1, 1}, Header{INT_MIN, 1, 1}, Header{1, 0, 1}, Header{1, INT_MIN, 1}})
        EXPECT_EQ("TDib: the picture has no size", ComplaintOf(header)) << header.width << header.height;
}

TEST(PackedDib, of_an_unknown_depth_is_refused) {
    for (const int depth : {0, 2, 3, 7, 12, 33, 64})
        EXPECT_EQ("TDib: the picture has an unknown depth", ComplaintOf({1, 1, depth})) << depth;
}

// Its rows were so long that their length turned negative, and pixels were looked for far outside.
TEST(PackedDib, of_2_gib_or_more_is_refused_whatever_there_is_of_it) {
    const std::string tooLarge = "TDib: the picture is too large";
    for (const Header& header :
         {Header{INT_MAX, INT_MAX, 32}, Header{INT_MAX, -INT_MAX, 1}, Header{0x20000000, 1, 32},
          Header{0x8000, 0x4000, 32}, Header{0x10000, 0x8000, 8, RunLengths8}})
        EXPECT_EQ(tooLarge, ComplaintOf(header)) << header.width;
    // One row less fits, and is only not there.
    EXPECT_EQ("TDib: the picture is cut off", ComplaintOf({0x8000, 0x3FFF, 32}));
    EXPECT_EQ("", ComplaintOf({0x10000, 0x7FFF, 8, RunLengths8}));
}

TEST(PackedDib, with_counts_beyond_its_bytes_is_refused) {
    const std::string cutOff = "TDib: the picture is cut off";
    EXPECT_EQ("TDib: the header has an unknown size", ComplaintOf({1, 1, 1}, 39));
    EXPECT_EQ("TDib: the header has an unknown size", ComplaintOf({1, 1, 1}, 13));
    EXPECT_EQ("TDib: the header has an unknown size", ComplaintOf({1, 1, 1}, 0));
    EXPECT_EQ(cutOff, ComplaintOf({1, 1, 1}, 2001));
    EXPECT_EQ(cutOff, ComplaintOf({1, 1, 1}, 0xFFFFFFFF));
    EXPECT_EQ(cutOff, ComplaintOf({1, 1, 1, 0, 0, 0xFFFFFFFF}));
    EXPECT_EQ(cutOff, ComplaintOf({1, 1, 1, 0, 0, 0x40000000}));
    EXPECT_EQ(cutOff, ComplaintOf({1, 1, 24, 0, 0, 490}));
    EXPECT_EQ("", ComplaintOf({1, 1, 24, 0, 0, 489}));
}

TEST(PackedDib, that_is_compressed_otherwise_is_refused) {
    const std::string compressed = "TDib: the picture is compressed in a way that is not supported";
    for (const std::uint32_t compression : {RunLengths8, RunLengths4, BitFields, Jpeg, Png, 0xFFFFFFFFu})
        EXPECT_EQ(compressed, ComplaintOf({1, 1, 1, compression})) << compression;
    EXPECT_EQ(compressed, ComplaintOf({1, 1, 8, RunLengths4}));
    EXPECT_EQ(compressed, ComplaintOf({1, 1, 4, RunLengths8}));
    EXPECT_EQ(compressed, ComplaintOf({1, 1, 24, BitFields}));
    EXPECT_EQ("TDib: a picture of run lengths begins with its upper row",
              ComplaintOf({1, -1, 8, RunLengths8}));
}

TEST(DibInfo, is_completed_with_what_a_header_may_leave_out) {
    Bytes info = Made({2, 3, 4, 0, 0, 0});
    for (std::uint8_t i = 0; i < 16; ++i)
        info = Joined(info, {i, 1, 2, 99});
    const Bytes complete = owl::CompleteDibInfo(info.data());
    ASSERT_EQ(40u + 64, complete.size());
    EXPECT_EQ(12u, NumberAt(complete, 20));
    EXPECT_EQ(16u, NumberAt(complete, 32));
    EXPECT_EQ((Bytes{15, 1, 2, 0}), Behind(complete, 100));
}

TEST(DibInfo, of_any_header_is_the_usual_one) {
    const Bytes core = {12, 0, 0, 0, 2, 0, 1, 0, 1, 0, 1, 0, 1, 2, 3, 4, 5, 6};
    EXPECT_EQ((Bytes{1, 2, 3, 0, 4, 5, 6, 0}), Behind(owl::CompleteDibInfo(core.data()), 40));
    Bytes larger = Made({1, 1, 16, BitFields}, 108);
    larger.resize(108, 0xCC);
    EXPECT_EQ(Bytes(12, 0xCC), Behind(owl::CompleteDibInfo(larger.data()), 40));
    const Bytes runs = Made({1, 1, 8, RunLengths8, 77, 1});
    EXPECT_EQ(77u, NumberAt(owl::CompleteDibInfo(Joined(runs, {1, 2, 3, 4}).data()), 20));
}

TEST(DibInfo, that_makes_no_sense_is_refused) {
    EXPECT_THROW(owl::CompleteDibInfo(Made({1, 1, 7}).data()), owl::TXGdi);
    EXPECT_THROW(owl::CompleteDibInfo(Made({1, 1, 24}, 39).data()), owl::TXGdi);
    EXPECT_THROW(owl::CompleteDibInfo(Made({1, 1, 24}, 125).data()), owl::TXGdi);
}

Bytes File(std::uint32_t offset) {
    Bytes bytes = {'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0};
    Put(bytes, offset);
    const Bytes picture = TwoPixels();
    bytes.insert(bytes.end(), picture.begin(), picture.end());
    return Joined(bytes, {0x80, 0, 0, 0});
}

TEST(DibFile, has_its_pixels_where_it_says_or_behind_the_colours) {
    const Bytes without = File(0);
    EXPECT_EQ(0x40, owl::ReadDibFile(without.data(), without.size()).bits[0]);
    const Bytes with = File(14 + 40 + 8 + 4);
    EXPECT_EQ(0x80, owl::ReadDibFile(with.data(), with.size()).bits[0]);
}

TEST(DibFile, that_points_outside_or_is_none_is_refused) {
    for (const std::uint32_t offset : {14u + 40 + 8 + 5, 0xFFFFFFFFu}) {
        const Bytes file = File(offset);
        EXPECT_THROW(owl::ReadDibFile(file.data(), file.size()), owl::TXGdi) << offset;
    }
    Bytes file = File(0);
    for (std::size_t size = 0; size < 14 + TwoPixels().size(); ++size)
        EXPECT_THROW(owl::ReadDibFile(file.data(), size), owl::TXGdi) << size;
    file[0] = 'X';
    EXPECT_THROW(owl::ReadDibFile(file.data(), file.size()), owl::TXGdi);
    EXPECT_THROW(owl::ReadDibFile(nullptr, 0), owl::TXGdi);
}

TEST(NewDib, is_black_and_has_all_the_colours_of_its_depth) {
    const owl::DibParts parts = owl::MakeDibParts(3, 2, 4);
    const Bytes header = {40, 0, 0, 0, 3, 0, 0, 0, 2, 0, 0, 0, 1,  0, 4, 0, 0, 0, 0, 0,
                          8,  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 16, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(header, Bytes(parts.info.begin(), parts.info.begin() + 40));
    EXPECT_EQ(Bytes(64), Behind(parts.info, 40));
    EXPECT_EQ(Bytes(8), parts.bits);
    EXPECT_EQ(40u, owl::MakeDibParts(3, 2, 24).info.size());
    EXPECT_EQ(0u, NumberAt(owl::MakeDibParts(3, 2, 24).info, 32));
}

TEST(NewDib, that_makes_no_sense_or_is_too_large_is_refused) {
    const int cases[][3] = {{0, 1, 8},           {1, 0, 8},  {1, -1, 8},        {1, INT_MIN, 8},
                            {1, 1, 7},           {1, 1, -8}, {1, 1, 65536 + 8}, {INT_MAX, INT_MAX, 32},
                            {0x8000, 0x4000, 32}};
    for (const auto& one : cases)
        EXPECT_THROW(owl::MakeDibParts(one[0], one[1], one[2]), owl::TXGdi) << one[0] << " " << one[1];
}

}  // namespace
