#include "owl/dib.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "owl/packed_dib.h"
#include "owl/true_color_fields.h"

namespace owl {
namespace {

TColor ColorOf(const RGBQUAD& quad) {
    return TColor(quad.rgbRed, quad.rgbGreen, quad.rgbBlue);
}

RGBQUAD QuadOf(TColor color) {
    return {static_cast<BYTE>(color.Blue()), static_cast<BYTE>(color.Green()), static_cast<BYTE>(color.Red()),
            0};
}

int Distance(TColor a, TColor b) {
    const int red = a.Red() - b.Red();
    const int green = a.Green() - b.Green();
    const int blue = a.Blue() - b.Blue();
    return red * red + green * green + blue * blue;
}

bool IsRunLength(const BITMAPINFOHEADER& header) {
    return header.biCompression == BI_RLE4 || header.biCompression == BI_RLE8;
}

/// The masks of a picture's true colours.
TrueColorFields FieldsOf(const BITMAPINFO& info) {
    if (info.bmiHeader.biCompression == BI_BITFIELDS) {
        DWORD masks[3];
        std::memcpy(masks, info.bmiColors, sizeof masks);
        return TrueColorFields(masks[0], masks[1], masks[2]);
    }
    if (info.bmiHeader.biBitCount == 16)
        return TrueColorFields(0x7C00, 0x03E0, 0x001F);
    return TrueColorFields(0xFF0000, 0x00FF00, 0x0000FF);
}

}  // namespace

TDib::TDib(DibParts parts) : m_info(std::move(parts.info)), m_bits(std::move(parts.bits)) {}

TDib::TDib(int width, int height, int bitCount) : TDib(MakeDibParts(width, height, bitCount)) {}

int TDib::Height() const {
    return std::abs(static_cast<int>(Header().biHeight));
}

int TDib::Pitch() const {
    return static_cast<int>(DibStride(Width(), BitsPixel()));
}

const RGBQUAD* TDib::Colors() const {
    return reinterpret_cast<const RGBQUAD*>(m_info.data() + sizeof(BITMAPINFOHEADER));
}

RGBQUAD* TDib::Colors() {
    return reinterpret_cast<RGBQUAD*>(m_info.data() + sizeof(BITMAPINFOHEADER));
}

TColor TDib::GetColor(int index) const {
    return index >= 0 && index < NumColors() ? ColorOf(Colors()[index]) : TColor::Black;
}

bool TDib::SetColor(int index, TColor color) {
    if (index < 0 || index >= NumColors())
        return false;
    Colors()[index] = QuadOf(color);
    return true;
}

int TDib::FindColor(TColor color) const {
    for (int index = 0; index < NumColors(); ++index) {
        if (GetColor(index) == color.Rgb())
            return index;
    }
    return -1;
}

int TDib::Nearest(TColor color) const {
    int nearest = 0;
    int distance = INT_MAX;
    for (int index = 0; index < NumColors() && distance > 0; ++index) {
        const int candidate = Distance(GetColor(index), color);
        if (candidate < distance) {
            nearest = index;
            distance = candidate;
        }
    }
    return nearest;
}

/// Puts `map(colour)` in the place of each colour, or of each pixel if there is no table; counts those that
/// changed.
template <class Map>
int TDib::MapEach(const Map& map) {
    int changed = 0;
    for (int index = 0; index < NumColors(); ++index) {
        const TColor before = GetColor(index);
        const TColor after = map(before);
        if (before == after)
            continue;
        SetColor(index, after);
        ++changed;
    }
    if (BitsPixel() <= 8)
        return changed;
    for (int y = 0; y < Height(); ++y) {
        for (int x = 0; x < Width(); ++x) {
            const TColor before = GetPixel(x, y);
            const TColor after = map(before);
            if (before == after)
                continue;
            SetPixel(x, y, after);
            ++changed;
        }
    }
    return changed;
}

int TDib::MapColor(TColor from, TColor to, bool all) {
    if (from.Rgb() == to.Rgb())
        return 0;
    if (BitsPixel() <= 8 && !all)
        return SetColor(FindColor(from), to) ? 1 : 0;
    return MapEach([&](TColor color) { return color == from.Rgb() ? to.Rgb() : color; });
}

void TDib::MapUIColors(unsigned int mask, const TColor* face) {
    const struct {
        TMapColors bit;
        TColor from;
        TColor to;
    } standard[] = {
        {MapText, TColor::Black, TColor::FromSystem(COLOR_BTNTEXT)},
        {MapShadow, TColor::Gray, TColor::FromSystem(COLOR_BTNSHADOW)},
        {MapFace, TColor::LtGray, face ? *face : TColor::FromSystem(COLOR_BTNFACE)},
        {MapHighlight, TColor::White, TColor::FromSystem(COLOR_BTNHIGHLIGHT)},
    };
    MapEach([&](TColor color) {
        for (const auto& grey : standard) {
            if ((mask & grey.bit) != 0 && color == grey.from)
                return grey.to.Rgb();
        }
        return color;
    });
}

bool TDib::HasPixel(int x, int y) const {
    return x >= 0 && y >= 0 && x < Width() && y < Height() && !IsRunLength(Header());
}

/// Where the byte lies that a pixel begins in.
std::size_t TDib::Offset(int x, int y) const {
    const int row = Header().biHeight < 0 ? y : Height() - 1 - y;
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(Pitch()) +
           static_cast<std::size_t>(x) * static_cast<std::size_t>(BitsPixel()) / 8;
}

std::uint32_t TDib::Stored(int x, int y) const {
    const int bits = BitsPixel();
    const std::size_t offset = Offset(x, y);
    std::uint32_t value = 0;
    if (bits < 8)
        return static_cast<std::uint32_t>(m_bits[offset] >> (8 - bits - x * bits % 8)) & ((1u << bits) - 1);
    std::memcpy(&value, m_bits.data() + offset, static_cast<std::size_t>(bits) / 8);
    return value;
}

void TDib::Store(int x, int y, std::uint32_t value) {
    const int bits = BitsPixel();
    const std::size_t offset = Offset(x, y);
    if (bits >= 8) {
        std::memcpy(m_bits.data() + offset, &value, static_cast<std::size_t>(bits) / 8);
        return;
    }
    const int shift = 8 - bits - x * bits % 8;
    const std::uint32_t mask = ((1u << bits) - 1) << shift;
    m_bits[offset] = static_cast<std::uint8_t>((m_bits[offset] & ~mask) | (value << shift & mask));
}

int TDib::GetIndex(int x, int y) const {
    return HasPixel(x, y) && BitsPixel() <= 8 ? static_cast<int>(Stored(x, y)) : -1;
}

TColor TDib::GetPixel(int x, int y) const {
    if (!HasPixel(x, y))
        return TColor(CLR_INVALID);
    return BitsPixel() <= 8 ? GetColor(GetIndex(x, y)) : FieldsOf(*GetInfo()).Unpack(Stored(x, y));
}

bool TDib::SetPixel(int x, int y, TColor color) {
    if (!HasPixel(x, y))
        return false;
    const bool indexed = BitsPixel() <= 8;
    Store(x, y, indexed ? static_cast<std::uint32_t>(Nearest(color)) : FieldsOf(*GetInfo()).Pack(color));
    return true;
}

}  // namespace owl
