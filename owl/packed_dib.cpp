#include "owl/packed_dib.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <string>

#include "owl/error.h"

namespace owl {
namespace {

// As the system publishes them.
constexpr std::uint32_t notCompressed = 0;
constexpr std::uint32_t runLengths8 = 1;
constexpr std::uint32_t runLengths4 = 2;
constexpr std::uint32_t bitFields = 3;
constexpr unsigned long invalidData = 13;

constexpr std::size_t fileHeaderSize = 14;
constexpr std::size_t coreHeaderSize = 12;
constexpr std::size_t infoHeaderSize = 40;
constexpr std::size_t largestHeader = 124;
constexpr std::size_t quadSize = 4;
constexpr std::size_t tripleSize = 3;
constexpr std::size_t maskBytes = 3 * 4;

[[noreturn]] void Damaged(const char* what) {
    throw TXGdi(std::string("TDib: ") + what, invalidData);
}

/// Bytes of which not more are read than there are.
class Source {
public:
    Source(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

    std::size_t Size() const { return m_size; }

    /// A number of so many bytes, the lowest first.
    std::uint32_t Read(std::size_t at, std::size_t size) const {
        const std::uint8_t* const bytes = Bytes(at, size);
        std::uint32_t value = 0;
        for (std::size_t i = size; i > 0; --i)
            value = value << 8 | bytes[i - 1];
        return value;
    }
    std::uint16_t Word(std::size_t at) const { return static_cast<std::uint16_t>(Read(at, 2)); }
    std::uint32_t Dword(std::size_t at) const { return Read(at, 4); }
    std::int32_t Long(std::size_t at) const { return static_cast<std::int32_t>(Dword(at)); }

    const std::uint8_t* Bytes(std::size_t at, std::uint64_t count) const {
        if (at > m_size || count > m_size - at)
            Damaged("the picture is cut off");
        return m_data + at;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
};

/// What a header says, of whatever kind it is.
struct Header {
    /// Of the header itself, and of one colour behind it.
    std::size_t size = infoHeaderSize;
    std::size_t colourSize = quadSize;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint16_t bitCount = 0;
    std::uint32_t compression = notCompressed;
    std::uint32_t bytes = 0;
    std::uint32_t perMetreX = 0;
    std::uint32_t perMetreY = 0;
    std::uint32_t coloursUsed = 0;
};

Header ReadCoreHeader(const Source& source) {
    Header header;
    header.size = coreHeaderSize;
    header.colourSize = tripleSize;
    header.width = source.Word(4);
    header.height = source.Word(6);
    header.bitCount = source.Word(10);
    return header;
}

Header ReadHeader(const Source& source) {
    const std::uint32_t size = source.Dword(0);
    if (size == coreHeaderSize)
        return ReadCoreHeader(source);
    if (size < infoHeaderSize)
        Damaged("the header has an unknown size");
    source.Bytes(0, size);
    Header header;
    header.size = size;
    header.width = source.Long(4);
    header.height = source.Long(8);
    header.bitCount = source.Word(14);
    header.compression = source.Dword(16);
    header.bytes = source.Dword(20);
    header.perMetreX = source.Dword(24);
    header.perMetreY = source.Dword(28);
    header.coloursUsed = source.Dword(32);
    return header;
}

bool HasColours(const Header& header) {
    return header.bitCount <= 8;
}

bool IsRunLength(const Header& header) {
    return (header.compression == runLengths8 && header.bitCount == 8) ||
           (header.compression == runLengths4 && header.bitCount == 4);
}

bool HasMasks(const Header& header) {
    return header.compression == bitFields && (header.bitCount == 16 || header.bitCount == 32);
}

/// A header that is large enough has the masks inside, where they would follow the usual one.
bool MasksFollow(const Header& header) {
    return HasMasks(header) && header.size < infoHeaderSize + maskBytes;
}

/// Of all the rows. Of sides of 31 bits each, times 4 bytes, the product still fits.
std::uint64_t PixelBytes(const Header& header) {
    const auto rows = static_cast<std::uint64_t>(std::abs(static_cast<long long>(header.height)));
    return DibStride(header.width, header.bitCount) * rows;
}

void CheckHeader(const Header& header) {
    constexpr int depths[] = {1, 4, 8, 16, 24, 32};
    if (header.width <= 0 || header.height == 0 || header.height == INT_MIN)
        Damaged("the picture has no size");
    if (std::find(std::begin(depths), std::end(depths), header.bitCount) == std::end(depths))
        Damaged("the picture has an unknown depth");
    if (header.compression != notCompressed && !HasMasks(header) && !IsRunLength(header))
        Damaged("the picture is compressed in a way that is not supported");
    if (IsRunLength(header) && header.height < 0)
        Damaged("a picture of run lengths begins with its upper row");
    if (PixelBytes(header) > INT_MAX)
        Damaged("the picture is too large");
}

void Append(std::vector<std::uint8_t>& bytes, std::uint32_t value, int size = 4) {
    for (int i = 0; i < size; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
}

/// The usual header, with `bytes` of pixels and `colours` behind it.
std::vector<std::uint8_t> InfoHeader(const Header& header, std::uint64_t bytes, std::uint32_t colours) {
    std::vector<std::uint8_t> info;
    Append(info, infoHeaderSize);
    Append(info, static_cast<std::uint32_t>(header.width));
    Append(info, static_cast<std::uint32_t>(header.height));
    Append(info, 1, 2);
    Append(info, header.bitCount, 2);
    Append(info, header.compression);
    Append(info, static_cast<std::uint32_t>(bytes));
    Append(info, header.perMetreX);
    Append(info, header.perMetreY);
    Append(info, colours);
    Append(info, 0);
    return info;
}

std::uint32_t MostColours(const Header& header) {
    return HasColours(header) ? 1u << header.bitCount : 0;
}

/// How many colours stand behind the header, used or not.
std::uint32_t StoredColours(const Header& header) {
    return header.coloursUsed != 0 ? header.coloursUsed : MostColours(header);
}

/// Where they stand.
std::size_t ColoursOf(const Header& header) {
    return header.size + (MasksFollow(header) ? maskBytes : 0);
}

void AppendColour(std::vector<std::uint8_t>& info, const Source& source, std::size_t at, std::size_t size) {
    const std::uint8_t* const bytes = source.Bytes(at, size);
    info.insert(info.end(), {bytes[0], bytes[1], bytes[2], 0});
}

/// The usual header with masks and colours, before `bytes` of pixels.
std::vector<std::uint8_t> ReadInfo(const Source& source, const Header& header, std::uint64_t bytes) {
    const std::uint32_t kept = std::min(StoredColours(header), MostColours(header));
    std::vector<std::uint8_t> info = InfoHeader(header, bytes, kept);
    if (HasMasks(header)) {
        const std::uint8_t* const masks =
            source.Bytes(MasksFollow(header) ? header.size : infoHeaderSize, maskBytes);
        info.insert(info.end(), masks, masks + maskBytes);
    }
    for (std::size_t i = 0; i < kept; ++i)
        AppendColour(info, source, ColoursOf(header) + i * header.colourSize, header.colourSize);
    return info;
}

/// Copies the pixels from `at` on.
std::vector<std::uint8_t> ReadBits(const Source& source, std::size_t at, const Header& header) {
    source.Bytes(at, 0);
    const std::size_t rest = source.Size() - at;
    std::uint64_t count = PixelBytes(header);
    if (IsRunLength(header))
        count = header.bytes != 0 ? std::min<std::uint64_t>(header.bytes, rest) : rest;
    if (count > INT_MAX)
        Damaged("the picture is too large");
    const std::uint8_t* const bytes = source.Bytes(at, count);
    return {bytes, bytes + static_cast<std::size_t>(count)};
}

}  // namespace

std::uint64_t DibStride(int width, int bitCount) {
    return (static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(bitCount) + 31) / 32 * 4;
}

DibParts ReadPackedDib(const std::uint8_t* data, std::size_t size, std::size_t bitsOffset) {
    const Source source(data, size);
    const Header header = ReadHeader(source);
    CheckHeader(header);
    const std::uint64_t colours = std::uint64_t{StoredColours(header)} * header.colourSize;
    source.Bytes(ColoursOf(header), colours);
    const std::size_t behind = ColoursOf(header) + static_cast<std::size_t>(colours);
    DibParts parts;
    parts.bits = ReadBits(source, bitsOffset != 0 ? bitsOffset : behind, header);
    parts.info = ReadInfo(source, header, parts.bits.size());
    return parts;
}

std::vector<std::uint8_t> CompleteDibInfo(const std::uint8_t* info) {
    const Source source(info, SIZE_MAX);
    const Header header = ReadHeader(source);
    CheckHeader(header);
    if (header.size > largestHeader)
        Damaged("the header has an unknown size");
    return ReadInfo(source, header, IsRunLength(header) ? header.bytes : PixelBytes(header));
}

DibParts ReadDibFile(const std::uint8_t* data, std::size_t size) {
    constexpr std::uint16_t bitmapFile = 0x4D42;
    const Source source(data, size);
    source.Bytes(0, fileHeaderSize);
    if (source.Word(0) != bitmapFile)
        Damaged("this is no bitmap file");
    const std::uint32_t bits = source.Dword(10);
    return ReadPackedDib(data + fileHeaderSize, size - fileHeaderSize,
                         bits > fileHeaderSize ? bits - fileHeaderSize : 0);
}

DibParts MakeDibParts(int width, int height, int bitCount) {
    Header header;
    header.width = width;
    header.height = std::max(height, 0);
    header.bitCount = static_cast<std::uint16_t>(bitCount >= 0 && bitCount <= 32 ? bitCount : 0);
    CheckHeader(header);
    DibParts parts;
    parts.bits.resize(static_cast<std::size_t>(PixelBytes(header)));
    parts.info = InfoHeader(header, parts.bits.size(), MostColours(header));
    parts.info.resize(infoHeaderSize + MostColours(header) * quadSize);
    return parts;
}

}  // namespace owl
