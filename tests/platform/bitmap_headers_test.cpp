#include "lvx/platform/bitmap_headers.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/bytes.h"

namespace {

using lvx_test::bytes;

template <class Header>
Header header_from(const std::string& data) {
    EXPECT_EQ(sizeof(Header), data.size());
    Header header;
    std::memcpy(&header, data.data(), sizeof header);
    return header;
}

TEST(BitmapHeaders, the_file_header_has_no_gaps) {
    const auto header = header_from<tagBITMAPFILEHEADER>(bytes("'BM' 01020304 0506 0708 090A0B0C"));
    EXPECT_EQ(0x4D42, header.bfType);
    EXPECT_EQ(0x04030201u, header.bfSize);
    EXPECT_EQ(0x0605, header.bfReserved1);
    EXPECT_EQ(0x0807, header.bfReserved2);
    EXPECT_EQ(0x0C0B0A09u, header.bfOffBits);
}

TEST(BitmapHeaders, the_core_header_counts_in_16_bits) {
    const auto header = header_from<tagBITMAPCOREHEADER>(bytes("0C000000 FFFF 0180 0100 1800"));
    EXPECT_EQ(12u, header.bcSize);
    EXPECT_EQ(65535, header.bcWidth);
    EXPECT_EQ(32769, header.bcHeight);
    EXPECT_EQ(1, header.bcPlanes);
    EXPECT_EQ(24, header.bcBitCount);
}

TEST(BitmapHeaders, the_info_header_has_a_sign_in_its_height) {
    const auto header = header_from<tagBITMAPINFOHEADER>(
        bytes("28000000 7F000000 C0FFFFFF 0100 0800 01000000 00200000 130B0000 89050000 FC000000 02000000"));
    EXPECT_EQ(40u, header.biSize);
    EXPECT_EQ(127, header.biWidth);
    EXPECT_EQ(-64, header.biHeight);
    EXPECT_EQ(1, header.biPlanes);
    EXPECT_EQ(8, header.biBitCount);
    EXPECT_TRUE(header.biCompression == BI_RLE8);
    EXPECT_EQ(8192u, header.biSizeImage);
    EXPECT_EQ(2835, header.biXPelsPerMeter);
    EXPECT_EQ(1417, header.biYPelsPerMeter);
    EXPECT_EQ(252u, header.biClrUsed);
    EXPECT_EQ(2u, header.biClrImportant);
}

TEST(BitmapHeaders, the_long_header_begins_like_the_info_header) {
    std::string data = bytes(
        "6C000000 01000000 02000000 0100 2000 03000000 04000000 05000000 06000000 07000000 08000000"
        "0000FF00 00FF0000 FF000000 000000FF 'BGRs'");
    data += std::string(36, '\x11') + bytes("01000000 02000000 03000000");
    const auto header = header_from<BITMAPV4HEADER>(data);
    EXPECT_EQ(108u, header.bV4Size);
    EXPECT_EQ(1, header.bV4Width);
    EXPECT_EQ(2, header.bV4Height);
    EXPECT_EQ(32, header.bV4BitCount);
    EXPECT_TRUE(header.bV4V4Compression == BI_BITFIELDS);
    EXPECT_EQ(4u, header.bV4SizeImage);
    EXPECT_EQ(5, header.bV4XPelsPerMeter);
    EXPECT_EQ(6, header.bV4YPelsPerMeter);
    EXPECT_EQ(7u, header.bV4ClrUsed);
    EXPECT_EQ(8u, header.bV4ClrImportant);
    EXPECT_EQ(0x00FF0000u, header.bV4RedMask);
    EXPECT_EQ(0x0000FF00u, header.bV4GreenMask);
    EXPECT_EQ(0x000000FFu, header.bV4BlueMask);
    EXPECT_EQ(0xFF000000u, header.bV4AlphaMask);
    EXPECT_EQ(0x73524742u, header.bV4CSType);
    EXPECT_EQ(0x11111111, header.bV4Endpoints.ciexyzBlue.ciexyzZ);
    EXPECT_EQ(1u, header.bV4GammaRed);
    EXPECT_EQ(3u, header.bV4GammaBlue);
}

TEST(BitmapHeaders, colours_have_blue_first) {
    const auto entry = header_from<tagRGBQUAD>(bytes("01020304"));
    EXPECT_EQ(1, entry.rgbBlue);
    EXPECT_EQ(2, entry.rgbGreen);
    EXPECT_EQ(3, entry.rgbRed);
    EXPECT_EQ(4, entry.rgbReserved);
    const auto core_entry = header_from<tagRGBTRIPLE>(bytes("010203"));
    EXPECT_EQ(1, core_entry.rgbtBlue);
    EXPECT_EQ(2, core_entry.rgbtGreen);
    EXPECT_EQ(3, core_entry.rgbtRed);
}

TEST(BitmapHeaders, the_table_follows_the_info_header) {
    const auto info = header_from<tagBITMAPINFO>(std::string(40, '\0') + bytes("05060708"));
    EXPECT_EQ(0u, info.bmiHeader.biSize);
    EXPECT_EQ(7, info.bmiColors[0].rgbRed);
}

}  // namespace
