// lvx/platform/bitmap_headers.h
//
// The published structs of device-independent bitmaps: on Windows the system's, elsewhere the same names with
// the same layout, little-endian on every machine. Sizes and offsets count in bytes, positions from the
// start.
#pragma once

#ifdef _WIN32

#include <windows.h>

#else

#include <cstdint>

#include "lvx/platform/little_endian.h"

/// Stands in front of the header in a file, and in a file only.
struct tagBITMAPFILEHEADER {
    lvx::platform::LittleEndian<std::uint16_t> bfType;
    lvx::platform::LittleEndian<std::uint32_t> bfSize;
    lvx::platform::LittleEndian<std::uint16_t> bfReserved1;
    lvx::platform::LittleEndian<std::uint16_t> bfReserved2;
    lvx::platform::LittleEndian<std::uint32_t> bfOffBits;
};
using BITMAPFILEHEADER = tagBITMAPFILEHEADER;

struct tagBITMAPCOREHEADER {
    lvx::platform::LittleEndian<std::uint32_t> bcSize;
    lvx::platform::LittleEndian<std::uint16_t> bcWidth;
    lvx::platform::LittleEndian<std::uint16_t> bcHeight;
    lvx::platform::LittleEndian<std::uint16_t> bcPlanes;
    lvx::platform::LittleEndian<std::uint16_t> bcBitCount;
};
using BITMAPCOREHEADER = tagBITMAPCOREHEADER;

struct tagBITMAPINFOHEADER {
    lvx::platform::LittleEndian<std::uint32_t> biSize;
    lvx::platform::LittleEndian<std::int32_t> biWidth;
    /// Negative when the first row in memory is the top one.
    lvx::platform::LittleEndian<std::int32_t> biHeight;
    lvx::platform::LittleEndian<std::uint16_t> biPlanes;
    lvx::platform::LittleEndian<std::uint16_t> biBitCount;
    lvx::platform::LittleEndian<std::uint32_t> biCompression;
    lvx::platform::LittleEndian<std::uint32_t> biSizeImage;
    lvx::platform::LittleEndian<std::int32_t> biXPelsPerMeter;
    lvx::platform::LittleEndian<std::int32_t> biYPelsPerMeter;
    lvx::platform::LittleEndian<std::uint32_t> biClrUsed;
    lvx::platform::LittleEndian<std::uint32_t> biClrImportant;
};
using BITMAPINFOHEADER = tagBITMAPINFOHEADER;

struct tagCIEXYZ {
    lvx::platform::LittleEndian<std::int32_t> ciexyzX;
    lvx::platform::LittleEndian<std::int32_t> ciexyzY;
    lvx::platform::LittleEndian<std::int32_t> ciexyzZ;
};
using CIEXYZ = tagCIEXYZ;

struct tagICEXYZTRIPLE {
    CIEXYZ ciexyzRed;
    CIEXYZ ciexyzGreen;
    CIEXYZ ciexyzBlue;
};
using CIEXYZTRIPLE = tagICEXYZTRIPLE;

struct BITMAPV4HEADER {
    lvx::platform::LittleEndian<std::uint32_t> bV4Size;
    lvx::platform::LittleEndian<std::int32_t> bV4Width;
    lvx::platform::LittleEndian<std::int32_t> bV4Height;
    lvx::platform::LittleEndian<std::uint16_t> bV4Planes;
    lvx::platform::LittleEndian<std::uint16_t> bV4BitCount;
    lvx::platform::LittleEndian<std::uint32_t> bV4V4Compression;
    lvx::platform::LittleEndian<std::uint32_t> bV4SizeImage;
    lvx::platform::LittleEndian<std::int32_t> bV4XPelsPerMeter;
    lvx::platform::LittleEndian<std::int32_t> bV4YPelsPerMeter;
    lvx::platform::LittleEndian<std::uint32_t> bV4ClrUsed;
    lvx::platform::LittleEndian<std::uint32_t> bV4ClrImportant;
    lvx::platform::LittleEndian<std::uint32_t> bV4RedMask;
    lvx::platform::LittleEndian<std::uint32_t> bV4GreenMask;
    lvx::platform::LittleEndian<std::uint32_t> bV4BlueMask;
    lvx::platform::LittleEndian<std::uint32_t> bV4AlphaMask;
    lvx::platform::LittleEndian<std::uint32_t> bV4CSType;
    CIEXYZTRIPLE bV4Endpoints;
    lvx::platform::LittleEndian<std::uint32_t> bV4GammaRed;
    lvx::platform::LittleEndian<std::uint32_t> bV4GammaGreen;
    lvx::platform::LittleEndian<std::uint32_t> bV4GammaBlue;
};

/// A colour of the table behind all headers but the core one.
struct tagRGBQUAD {
    unsigned char rgbBlue;
    unsigned char rgbGreen;
    unsigned char rgbRed;
    unsigned char rgbReserved;
};
using RGBQUAD = tagRGBQUAD;

/// A colour of the table behind a core header.
struct tagRGBTRIPLE {
    unsigned char rgbtBlue;
    unsigned char rgbtGreen;
    unsigned char rgbtRed;
};
using RGBTRIPLE = tagRGBTRIPLE;

struct tagBITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    /// The first entry; the header tells how many there are.
    RGBQUAD bmiColors[1];
};
using BITMAPINFO = tagBITMAPINFO;

inline constexpr std::uint32_t BI_RGB = 0;
inline constexpr std::uint32_t BI_RLE8 = 1;
inline constexpr std::uint32_t BI_RLE4 = 2;
/// The colour table holds three masks, red, green and blue.
inline constexpr std::uint32_t BI_BITFIELDS = 3;

#endif

static_assert(sizeof(BITMAPFILEHEADER) == 14);
static_assert(sizeof(BITMAPCOREHEADER) == 12);
static_assert(sizeof(BITMAPINFOHEADER) == 40);
static_assert(sizeof(BITMAPV4HEADER) == 108);
static_assert(sizeof(RGBQUAD) == 4);
static_assert(sizeof(RGBTRIPLE) == 3);
static_assert(sizeof(BITMAPINFO) == 44);
