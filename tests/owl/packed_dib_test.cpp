#include "owl/packed_dib.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>

#include "owl/error.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

template <class T>
void Put(Bytes& bytes, const T& value) {
    const auto* first = reinterpret_cast<const std::uint8_t*>(&value);
    bytes.insert(bytes.end(), first, first + sizeof value);
}

BITMAPINFOHEADER Header(int width, int height, int bitCount) {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(bitCount);
    return header;
}

/// A picture of 2 by 1 pixels with one bit each and both colours: blue, green, red, unused.
Bytes TwoPixels() {
    Bytes bytes;
    Put(bytes, Header(2, 1, 1));
    Put(bytes, RGBQUAD{1, 2, 3, 99});
    Put(bytes, RGBQUAD{4, 5, 6, 0});
    bytes.insert(bytes.end(), {0x40, 0, 0, 0});
    return bytes;
}

BITMAPINFOHEADER HeaderOf(const owl::DibParts& parts) {
    BITMAPINFOHEADER header;
    std::memcpy(&header, parts.info.data(), sizeof header);
    return header;
}

owl::DibParts Read(const Bytes& bytes) {
    return owl::ReadPackedDib(bytes.data(), bytes.size());
}

/// What reading says is wrong.
std::string Complaint(const Bytes& bytes) {
    try {
        Read(bytes);
    } catch (const owl::TXGdi& error) {
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
    ASSERT_EQ(sizeof(BITMAPINFOHEADER) + 8, parts.info.size());
    EXPECT_EQ(2u, HeaderOf(parts).biClrUsed);
    EXPECT_EQ(4u, HeaderOf(parts).biSizeImage);
    const Bytes table(parts.info.begin() + sizeof(BITMAPINFOHEADER), parts.info.end());
    EXPECT_EQ((Bytes{1, 2, 3, 0, 4, 5, 6, 0}), table);
}

TEST(PackedDib, with_the_oldest_header_gets_the_usual_one) {
    Bytes bytes;
    Put(bytes, BITMAPCOREHEADER{sizeof(BITMAPCOREHEADER), 2, 1, 1, 1});
    bytes.insert(bytes.end(), {1, 2, 3, 4, 5, 6, 0x80, 0, 0, 0});
    const owl::DibParts parts = Read(bytes);
    EXPECT_EQ(sizeof(BITMAPINFOHEADER), HeaderOf(parts).biSize);
    EXPECT_EQ(2, HeaderOf(parts).biWidth);
    EXPECT_EQ(2u, HeaderOf(parts).biClrUsed);
    EXPECT_EQ(0x80, parts.bits[0]);
    EXPECT_EQ(6, parts.info[sizeof(BITMAPINFOHEADER) + 6]);
}

TEST(PackedDib, with_a_larger_header_keeps_its_masks) {
    BITMAPV4HEADER header{};
    const BITMAPINFOHEADER first = Header(1, 1, 16);
    std::memcpy(&header, &first, sizeof first);
    header.bV4Size = sizeof header;
    header.bV4V4Compression = BI_BITFIELDS;
    header.bV4RedMask = 0xF800;
    header.bV4GreenMask = 0x07E0;
    header.bV4BlueMask = 0x001F;
    Bytes bytes;
    Put(bytes, header);
    bytes.insert(bytes.end(), {0x34, 0x12, 0, 0});
    const owl::DibParts parts = Read(bytes);
    EXPECT_EQ((Bytes{0x34, 0x12, 0, 0}), parts.bits);
    DWORD masks[3];
    ASSERT_EQ(sizeof first + sizeof masks, parts.info.size());
    std::memcpy(masks, parts.info.data() + sizeof first, sizeof masks);
    EXPECT_EQ(0xF800u, masks[0]);
    EXPECT_EQ(0x001Fu, masks[2]);
}

TEST(PackedDib, with_masks_behind_the_header_keeps_them) {
    BITMAPINFOHEADER header = Header(1, 1, 32);
    header.biCompression = BI_BITFIELDS;
    Bytes bytes;
    Put(bytes, header);
    for (const DWORD mask : {0xFFu, 0xFF00u, 0xFF0000u})
        Put(bytes, mask);
    bytes.insert(bytes.end(), {7, 8, 9, 0});
    const owl::DibParts parts = Read(bytes);
    EXPECT_EQ((Bytes{7, 8, 9, 0}), parts.bits);
    EXPECT_EQ(0xFF, parts.info[sizeof header]);
}

TEST(PackedDib, skips_colours_that_true_colour_does_not_need) {
    BITMAPINFOHEADER header = Header(1, 1, 24);
    header.biClrUsed = 2;
    Bytes bytes;
    Put(bytes, header);
    bytes.insert(bytes.end(), {9, 9, 9, 9, 9, 9, 9, 9, 1, 2, 3, 0});
    const owl::DibParts parts = Read(bytes);
    EXPECT_EQ((Bytes{1, 2, 3, 0}), parts.bits);
    EXPECT_EQ(0u, HeaderOf(parts).biClrUsed);
    EXPECT_EQ(sizeof header, parts.info.size());
}

TEST(PackedDib, keeps_as_many_colours_as_a_pixel_can_name) {
    BITMAPINFOHEADER header = Header(1, 1, 1);
    header.biClrUsed = 3;
    Bytes bytes;
    Put(bytes, header);
    bytes.insert(bytes.end(), {1, 1, 1, 0, 2, 2, 2, 0, 3, 3, 3, 0, 0x80, 0, 0, 0});
    EXPECT_EQ(2u, HeaderOf(Read(bytes)).biClrUsed);
    EXPECT_EQ(0x80, Read(bytes).bits[0]);
    header.biClrUsed = 1;
    std::memcpy(bytes.data(), &header, sizeof header);
    EXPECT_EQ(1u, HeaderOf(Read(bytes)).biClrUsed);
    EXPECT_EQ(2, Read(bytes).bits[0]);
}

TEST(PackedDib, may_stand_with_its_upper_row_first) {
    Bytes bytes = TwoPixels();
    const BITMAPINFOHEADER header = Header(2, -1, 1);
    std::memcpy(bytes.data(), &header, sizeof header);
    EXPECT_EQ(-1, HeaderOf(Read(bytes)).biHeight);
    EXPECT_EQ(4u, Read(bytes).bits.size());
}

TEST(PackedDib, of_run_lengths_takes_all_the_bytes_there_are) {
    BITMAPINFOHEADER header = Header(100, 100, 8);
    header.biCompression = BI_RLE8;
    header.biClrUsed = 1;
    header.biSizeImage = 1000;
    Bytes bytes;
    Put(bytes, header);
    bytes.insert(bytes.end(), {1, 1, 1, 0, 100, 0, 0, 1});
    EXPECT_EQ((Bytes{100, 0, 0, 1}), Read(bytes).bits);
    EXPECT_EQ(4u, HeaderOf(Read(bytes)).biSizeImage);
    header.biSizeImage = 2;
    std::memcpy(bytes.data(), &header, sizeof header);
    EXPECT_EQ((Bytes{100, 0}), Read(bytes).bits);
}

TEST(PackedDib, cut_off_anywhere_is_refused) {
    const Bytes whole = TwoPixels();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ("TDib: the picture is cut off", Complaint(part)) << size;
    }
    EXPECT_EQ("", Complaint(whole));
}

TEST(PackedDib, that_makes_no_sense_is_refused) {
    const auto complaint = [](BITMAPINFOHEADER header) {
        Bytes bytes = TwoPixels();
        bytes.resize(2000);
        std::memcpy(bytes.data(), &header, sizeof header);
        return Complaint(bytes);
    };
    const std::string noSize = "TDib: the picture has no size";
    EXPECT_EQ(noSize, complaint(Header(0, 1, 1)));
    EXPECT_EQ(noSize, complaint(Header(-1, 1, 1)));
    EXPECT_EQ(noSize, complaint(Header(1, 0, 1)));
    EXPECT_EQ(noSize, complaint(Header(1, INT_MIN, 1)));
    for (const int depth : {0, 2, 3, 7, 12, 33, 64})
        EXPECT_EQ("TDib: the picture has an unknown depth", complaint(Header(1, 1, depth))) << depth;
    EXPECT_EQ("TDib: the picture is cut off", complaint(Header(INT_MAX, INT_MAX, 32)));
    EXPECT_EQ("TDib: the picture is cut off", complaint(Header(INT_MAX, -INT_MAX, 1)));
    BITMAPINFOHEADER header = Header(1, 1, 1);
    header.biSize = 39;
    EXPECT_EQ("TDib: the header has an unknown size", complaint(header));
    header.biSize = 0xFFFFFFFF;
    EXPECT_EQ("TDib: the picture is cut off", complaint(header));
    header = Header(1, 1, 1);
    header.biClrUsed = 0xFFFFFFFF;
    EXPECT_EQ("TDib: the picture is cut off", complaint(header));
    const std::string compressed = "TDib: the picture is compressed in a way that is not supported";
    for (const DWORD compression : {BI_RLE8, BI_RLE4, BI_BITFIELDS, BI_JPEG, BI_PNG}) {
        header = Header(1, 1, 1);
        header.biCompression = compression;
        EXPECT_EQ(compressed, complaint(header)) << compression;
    }
    header = Header(1, -1, 8);
    header.biCompression = BI_RLE8;
    EXPECT_EQ("TDib: a picture of run lengths begins with its upper row", complaint(header));
}

Bytes File(DWORD offset) {
    Bytes bytes;
    bytes.reserve(100);
    Put(bytes, BITMAPFILEHEADER{0x4D42, 0, 0, 0, offset});
    const Bytes picture = TwoPixels();
    bytes.insert(bytes.end(), picture.begin(), picture.end());
    bytes.insert(bytes.end(), {0x80, 0, 0, 0});
    return bytes;
}

TEST(DibFile, has_its_pixels_where_it_says_or_behind_the_colours) {
    const Bytes without = File(0);
    EXPECT_EQ(0x40, owl::ReadDibFile(without.data(), without.size()).bits[0]);
    const Bytes with = File(14 + 40 + 8 + 4);
    EXPECT_EQ(0x80, owl::ReadDibFile(with.data(), with.size()).bits[0]);
}

TEST(DibFile, that_points_outside_or_is_none_is_refused) {
    for (const DWORD offset : {DWORD{14 + 40 + 8 + 5}, DWORD{0xFFFFFFFF}}) {
        const Bytes file = File(offset);
        EXPECT_THROW(owl::ReadDibFile(file.data(), file.size()), owl::TXGdi) << offset;
    }
    Bytes file = File(0);
    for (std::size_t size = 0; size < 14 + TwoPixels().size(); ++size)
        EXPECT_THROW(owl::ReadDibFile(file.data(), size), owl::TXGdi) << size;
    file[0] = 'X';
    EXPECT_THROW(owl::ReadDibFile(file.data(), file.size()), owl::TXGdi);
}

TEST(NewDib, is_black_and_has_all_the_colours_of_its_depth) {
    const owl::DibParts parts = owl::MakeDibParts(3, 2, 4);
    EXPECT_EQ(16u, HeaderOf(parts).biClrUsed);
    EXPECT_EQ(sizeof(BITMAPINFOHEADER) + 64, parts.info.size());
    EXPECT_EQ(Bytes(8), parts.bits);
    EXPECT_EQ(0u, HeaderOf(owl::MakeDibParts(3, 2, 24)).biClrUsed);
}

TEST(NewDib, that_makes_no_sense_or_is_too_large_is_refused) {
    EXPECT_THROW(owl::MakeDibParts(0, 1, 8), owl::TXGdi);
    EXPECT_THROW(owl::MakeDibParts(1, -1, 8), owl::TXGdi);
    EXPECT_THROW(owl::MakeDibParts(1, 1, 7), owl::TXGdi);
    EXPECT_THROW(owl::MakeDibParts(1, 1, -8), owl::TXGdi);
    EXPECT_THROW(owl::MakeDibParts(1, 1, 65536 + 8), owl::TXGdi);
    EXPECT_THROW(owl::MakeDibParts(INT_MAX, INT_MAX, 32), owl::TXGdi);
    EXPECT_THROW(owl::MakeDibParts(0x8000, 0x4000, 32), owl::TXGdi);
}

}  // namespace
