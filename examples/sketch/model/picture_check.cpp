#include "sketch/model/picture_check.h"

#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>

#include "lvx/store/object_store_stream.h"
#include "sketch/model/error.h"

namespace sketch {
namespace {

constexpr int most_pixels_a_side = 100000;

// A stored bitmap is the size of its block and the block.
std::string BlockOf(const LVXUtilities::DIBitmap& bitmap) {
    std::ostringstream bytes;
    ObjectStoreStream store;
    store.OpenStream(&bytes);
    bitmap.PutTo(store);
    store.CloseStream();
    return bytes.str().substr(sizeof(std::int32_t));
}

template <class Header>
Header HeaderIn(const std::string& block) {
    if (block.size() < sizeof(Header)) {
        throw DocumentError("A picture is shorter than its header.");
    }
    Header header;
    std::memcpy(&header, block.data(), sizeof header);
    return header;
}

bool IsDepth(int bits) {
    return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

DWORD CompressionOf(const std::string& block) {
    const auto header = HeaderIn<DWORD>(block);
    return header == sizeof(BITMAPCOREHEADER) ? static_cast<DWORD>(BI_RGB)
                                              : HeaderIn<BITMAPINFOHEADER>(block).biCompression;
}

void CheckKind(const std::string& block, int bits) {
    const DWORD header = HeaderIn<DWORD>(block);
    if (header != sizeof(BITMAPCOREHEADER) && header < sizeof(BITMAPINFOHEADER)) {
        throw DocumentError("A picture has a header of an unknown kind.");
    }
    const DWORD compression = CompressionOf(block);
    const bool hasFields = compression == BI_BITFIELDS && (bits == 16 || bits == 32);
    if (!IsDepth(bits) || (compression != BI_RGB && !hasFields)) {
        throw DocumentError("A picture is of a kind that cannot be drawn.");
    }
}

void CheckSides(int width, int height) {
    if (width < 1 || width > most_pixels_a_side || height == 0 || height > most_pixels_a_side ||
        height < -most_pixels_a_side) {
        throw DocumentError("A picture of " + std::to_string(width) + " x " + std::to_string(height) +
                            " pixels cannot be.");
    }
}

std::size_t BytesARow(int width, int bits) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
}

// Colours that are used may be more than the depth can name, and the system reads them all.
std::size_t PixelsAt(const LVXUtilities::DIBitmap& bitmap, std::size_t headerSize) {
    const auto* const table = reinterpret_cast<const char*>(bitmap.GetClrTabAddress().get());
    const auto* const pixels = reinterpret_cast<const char*>(bitmap.GetBitsAddress().get());
    return headerSize + static_cast<std::size_t>(pixels - table);
}

}  // namespace

void CheckPicture(const LVXUtilities::DIBitmap& bitmap) {
    const std::string block = BlockOf(bitmap);
    const auto headerSize = HeaderIn<DWORD>(block);
    const int bits = bitmap.GetBitsPerPixel();
    CheckKind(block, bits);
    CheckSides(bitmap.GetWidth(), bitmap.GetHeight());
    const std::size_t pixelsAt = PixelsAt(bitmap, headerSize);
    const auto rows = static_cast<std::size_t>(std::abs(bitmap.GetHeight()));
    if (pixelsAt > block.size() || BytesARow(bitmap.GetWidth(), bits) > (block.size() - pixelsAt) / rows) {
        throw DocumentError("A picture claims to be larger than what there is of it.");
    }
}

}  // namespace sketch
