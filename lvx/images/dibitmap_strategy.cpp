#include "lvx/images/dibitmap_strategy.h"

#include <vector>

#include "lvx/images/block.h"
#include "lvx/images/block_layout.h"
#include "lvx/images/colour_table.h"
#include "lvx/images/palette_colours.h"
#include "lvx/platform/bitmap_headers.h"

namespace LVXUtilities {
namespace {

using lvx::images::read_field;

constexpr int depth_of_any_colour = 24;

// The colour table behind a long header, as far as the block has it.
std::vector<lvx::images::PaletteColour> colours_of(HGLOBAL block, std::uint32_t entries) {
    const GlobalLocker<unsigned char> lock(block);
    const lvx::images::BlockBytes bytes{lock.get(), GlobalSize(block)};
    const lvx::images::BlockBytes table = bytes.From(lvx::images::header_size(block));
    return lvx::images::table_colours(table.start, table.size, entries);
}

class CoreStrategy final : public DIBitmap::Strategy {
public:
    int GetBitsPerPixel(HGLOBAL block) const override {
        return read_field<std::uint16_t>(block, &BITMAPCOREHEADER::bcBitCount);
    }
    int GetWidth(HGLOBAL block) const override {
        return read_field<std::uint16_t>(block, &BITMAPCOREHEADER::bcWidth);
    }
    int GetHeight(HGLOBAL block) const override {
        return read_field<std::uint16_t>(block, &BITMAPCOREHEADER::bcHeight);
    }
    int GetPixelsPerMetreX(HGLOBAL) const override { return 0; }
    int GetPixelsPerMetreY(HGLOBAL) const override { return 0; }
    std::uint32_t GetClrTabEntries(HGLOBAL block) const override {
        return lvx::images::entries_of_depth(static_cast<unsigned int>(GetBitsPerPixel(block)));
    }
    std::uint64_t GetClrTabSize(HGLOBAL block) const override {
        return std::uint64_t{GetClrTabEntries(block)} * sizeof(RGBTRIPLE);
    }
    lvx::auto_ptr<lvx::platform::Palette> MakePalette(HGLOBAL) const override { return {}; }
};

struct InfoFields {
    static constexpr auto width = &BITMAPINFOHEADER::biWidth;
    static constexpr auto height = &BITMAPINFOHEADER::biHeight;
    static constexpr auto depth = &BITMAPINFOHEADER::biBitCount;
    static constexpr auto compression = &BITMAPINFOHEADER::biCompression;
    static constexpr auto resolution_x = &BITMAPINFOHEADER::biXPelsPerMeter;
    static constexpr auto resolution_y = &BITMAPINFOHEADER::biYPelsPerMeter;
    static constexpr auto colours_used = &BITMAPINFOHEADER::biClrUsed;
};

struct V4Fields {
    static constexpr auto width = &BITMAPV4HEADER::bV4Width;
    static constexpr auto height = &BITMAPV4HEADER::bV4Height;
    static constexpr auto depth = &BITMAPV4HEADER::bV4BitCount;
    static constexpr auto compression = &BITMAPV4HEADER::bV4V4Compression;
    static constexpr auto resolution_x = &BITMAPV4HEADER::bV4XPelsPerMeter;
    static constexpr auto resolution_y = &BITMAPV4HEADER::bV4YPelsPerMeter;
    static constexpr auto colours_used = &BITMAPV4HEADER::bV4ClrUsed;
};

// The kinds from 40 bytes on behave alike; they differ in the struct that they are read through.
template <class Fields>
class LongStrategy final : public DIBitmap::Strategy {
public:
    int GetBitsPerPixel(HGLOBAL block) const override {
        return read_field<std::uint16_t>(block, Fields::depth);
    }
    int GetWidth(HGLOBAL block) const override { return read_field<std::int32_t>(block, Fields::width); }
    int GetHeight(HGLOBAL block) const override { return read_field<std::int32_t>(block, Fields::height); }
    int GetPixelsPerMetreX(HGLOBAL block) const override {
        return read_field<std::int32_t>(block, Fields::resolution_x);
    }
    int GetPixelsPerMetreY(HGLOBAL block) const override {
        return read_field<std::int32_t>(block, Fields::resolution_y);
    }
    std::uint32_t GetClrTabEntries(HGLOBAL block) const override {
        return lvx::images::entries_of_info(read_field<std::uint32_t>(block, Fields::colours_used),
                                            static_cast<unsigned int>(GetBitsPerPixel(block)),
                                            read_field<std::uint32_t>(block, Fields::compression));
    }
    std::uint64_t GetClrTabSize(HGLOBAL block) const override {
        return std::uint64_t{GetClrTabEntries(block)} * sizeof(RGBQUAD);
    }
    lvx::auto_ptr<lvx::platform::Palette> MakePalette(HGLOBAL block) const override {
        const std::uint32_t entries = GetClrTabEntries(block);
        if (entries != 0) {
            return lvx::platform::make_palette(colours_of(block, entries));
        }
        if (GetBitsPerPixel(block) == depth_of_any_colour) {
            return lvx::platform::make_palette(lvx::images::spread_colours());
        }
        return {};
    }
};

constinit const CoreStrategy core_strategy;
constinit const LongStrategy<InfoFields> info_strategy;
constinit const LongStrategy<V4Fields> v4_strategy;

}  // namespace

const DIBitmap::Strategy& DIBitmap::Strategy::Select(HGLOBAL block) {
    switch (lvx::images::header_size(block)) {
        case sizeof(BITMAPCOREHEADER):
            return core_strategy;
        case sizeof(BITMAPINFOHEADER):
            return info_strategy;
        default:
            return v4_strategy;
    }
}

const DIBitmap::Strategy& DIBitmap::Strategy::ForInfoHeader() {
    return info_strategy;
}

}  // namespace LVXUtilities
