#include "owl/packed_dib.h"

#include <algorithm>
#include <climits>
#include <cstring>

#include "owl/error.h"

namespace owl {
namespace {

[[noreturn]] void Damaged(const char* what) {
    throw TXGdi(std::string("TDib: ") + what, ERROR_INVALID_DATA);
}

/// Bytes of which not more are read than there are.
class Source {
public:
    Source(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

    std::size_t Size() const { return m_size; }

    template <class T>
    T Read(std::size_t at) const {
        T value;
        std::memcpy(&value, Bytes(at, sizeof value), sizeof value);
        return value;
    }

    const std::uint8_t* Bytes(std::size_t at, std::uint64_t count) const {
        if (at > m_size || count > m_size - at)
            Damaged("the picture is cut off");
        return m_data + at;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
};

struct Header {
    BITMAPINFOHEADER info;
    /// Of the header itself.
    std::size_t size;
    /// Of one colour.
    std::size_t colourSize;
};

Header ReadHeader(const Source& source) {
    const auto size = source.Read<DWORD>(0);
    if (size == sizeof(BITMAPCOREHEADER)) {
        const auto core = source.Read<BITMAPCOREHEADER>(0);
        BITMAPINFOHEADER info{};
        info.biWidth = core.bcWidth;
        info.biHeight = core.bcHeight;
        info.biPlanes = core.bcPlanes;
        info.biBitCount = core.bcBitCount;
        return {info, size, sizeof(RGBTRIPLE)};
    }
    if (size < sizeof(BITMAPINFOHEADER))
        Damaged("the header has an unknown size");
    source.Bytes(0, size);
    return {source.Read<BITMAPINFOHEADER>(0), size, sizeof(RGBQUAD)};
}

bool HasColours(const BITMAPINFOHEADER& info) {
    return info.biBitCount <= 8;
}

bool IsRunLength(const BITMAPINFOHEADER& info) {
    return (info.biCompression == BI_RLE8 && info.biBitCount == 8) ||
           (info.biCompression == BI_RLE4 && info.biBitCount == 4);
}

bool HasMasks(const BITMAPINFOHEADER& info) {
    return info.biCompression == BI_BITFIELDS && (info.biBitCount == 16 || info.biBitCount == 32);
}

void CheckHeader(const BITMAPINFOHEADER& info) {
    constexpr int depths[] = {1, 4, 8, 16, 24, 32};
    if (info.biWidth <= 0 || info.biHeight == 0 || info.biHeight == INT_MIN)
        Damaged("the picture has no size");
    if (std::find(std::begin(depths), std::end(depths), info.biBitCount) == std::end(depths))
        Damaged("the picture has an unknown depth");
    if (info.biCompression != BI_RGB && !HasMasks(info) && !IsRunLength(info))
        Damaged("the picture is compressed in a way that is not supported");
    if (IsRunLength(info) && info.biHeight < 0)
        Damaged("a picture of run lengths begins with its upper row");
}

std::uint64_t PixelBytes(const BITMAPINFOHEADER& info) {
    const auto rows = static_cast<std::uint64_t>(std::abs(static_cast<long long>(info.biHeight)));
    return DibStride(info.biWidth, info.biBitCount) * rows;
}

template <class T>
void Append(std::vector<std::uint8_t>& bytes, const T& value) {
    const auto* first = reinterpret_cast<const std::uint8_t*>(&value);
    bytes.insert(bytes.end(), first, first + sizeof value);
}

/// How many colours stand behind the header, used or not.
std::uint64_t StoredColours(const BITMAPINFOHEADER& info) {
    if (info.biClrUsed != 0 || !HasColours(info))
        return info.biClrUsed;
    return std::uint64_t{1} << info.biBitCount;
}

RGBQUAD ReadColour(const Source& source, std::size_t at, std::size_t size) {
    const std::uint8_t* bytes = source.Bytes(at, size);
    return {bytes[0], bytes[1], bytes[2], 0};
}

/// Copies the pixels from `at` on, and notes in the header how many bytes they are.
std::vector<std::uint8_t> ReadBits(const Source& source, std::size_t at, BITMAPINFOHEADER& info) {
    const std::size_t rest =
        source.Size() - static_cast<std::size_t>(source.Bytes(at, 0) - source.Bytes(0, 0));
    std::uint64_t count = PixelBytes(info);
    if (IsRunLength(info))
        count = info.biSizeImage != 0 ? std::min<std::uint64_t>(info.biSizeImage, rest) : rest;
    const std::uint8_t* bytes = source.Bytes(at, count);
    info.biSizeImage = static_cast<DWORD>(count);
    return {bytes, bytes + static_cast<std::size_t>(count)};
}

}  // namespace

std::uint64_t DibStride(int width, int bitCount) {
    return (static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(bitCount) + 31) / 32 * 4;
}

DibParts ReadPackedDib(const std::uint8_t* data, std::size_t size, std::size_t bitsOffset) {
    const Source source(data, size);
    Header header = ReadHeader(source);
    BITMAPINFOHEADER& info = header.info;
    CheckHeader(info);
    // A larger header has the masks inside, at the place where they would follow the smaller one.
    const bool masksFollow = HasMasks(info) && header.size == sizeof(BITMAPINFOHEADER);
    const std::size_t colours = header.size + (masksFollow ? 3 * sizeof(DWORD) : 0);
    const std::uint64_t stored = StoredColours(info);
    source.Bytes(colours, stored * header.colourSize);
    const std::size_t behind = colours + static_cast<std::size_t>(stored) * header.colourSize;

    DibParts parts;
    parts.bits = ReadBits(source, bitsOffset != 0 ? bitsOffset : behind, info);
    const std::uint64_t kept =
        HasColours(info) ? std::min<std::uint64_t>(stored, std::uint64_t{1} << info.biBitCount) : 0;
    info.biSize = sizeof info;
    info.biPlanes = 1;
    info.biClrUsed = static_cast<DWORD>(kept);
    info.biClrImportant = 0;
    Append(parts.info, info);
    for (std::size_t mask = 0; HasMasks(info) && mask < 3; ++mask)
        Append(parts.info, source.Read<DWORD>(sizeof info + mask * sizeof(DWORD)));
    for (std::size_t i = 0; i < kept; ++i)
        Append(parts.info, ReadColour(source, colours + i * header.colourSize, header.colourSize));
    return parts;
}

DibParts ReadDibFile(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t fileHeader = sizeof(BITMAPFILEHEADER);
    const Source source(data, size);
    const auto header = source.Read<BITMAPFILEHEADER>(0);
    if (header.bfType != 0x4D42)
        Damaged("this is no bitmap file");
    const bool hasOffset = header.bfOffBits > fileHeader;
    return ReadPackedDib(data + fileHeader, size - fileHeader, hasOffset ? header.bfOffBits - fileHeader : 0);
}

DibParts MakeDibParts(int width, int height, int bitCount) {
    BITMAPINFOHEADER info{};
    info.biSize = sizeof info;
    info.biWidth = width;
    info.biHeight = height;
    info.biPlanes = 1;
    info.biBitCount = static_cast<WORD>(bitCount >= 0 && bitCount <= 32 ? bitCount : 0);
    CheckHeader(info);
    // Of a width and a height of 31 bits each, times 4 bytes, the product still fits.
    if (height < 0 || PixelBytes(info) > INT_MAX)
        Damaged("the picture is too large");
    info.biSizeImage = static_cast<DWORD>(PixelBytes(info));
    info.biClrUsed = HasColours(info) ? 1u << info.biBitCount : 0;
    DibParts parts;
    Append(parts.info, info);
    parts.info.resize(sizeof info + info.biClrUsed * sizeof(RGBQUAD));
    parts.bits.resize(info.biSizeImage);
    return parts;
}

}  // namespace owl
