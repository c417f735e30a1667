#include "tools/lvxdoc/bitmap_header.h"

#include <algorithm>
#include <cstdlib>

#include "lvx/store/byte_order.h"
#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

using lvx::store::decode;

// The published values of biCompression.
enum Compression : std::uint32_t { rgb = 0, rle8 = 1, rle4 = 2, bit_fields = 3, alpha_bit_fields = 6 };

constexpr std::uint32_t longest_header = 124;

std::uint64_t table_entries(const BitmapHeader& header) {
    if (header.colours_used != 0) {
        return header.colours_used;
    }
    switch (header.bits) {
        case 1:
        case 4:
        case 8:
            return std::uint64_t{1} << header.bits;
        default:
            return !header.IsCore() && header.compression == bit_fields ? 3 : 0;
    }
}

bool is_run_length(const BitmapHeader& header) {
    return header.compression == rle8 || header.compression == rle4;
}

bool fits_depth(std::uint32_t compression, std::uint32_t bits) {
    switch (compression) {
        case rgb:
            return true;
        case rle8:
            return bits == 8;
        case rle4:
            return bits == 4;
        case bit_fields:
        case alpha_bit_fields:
            return bits == 16 || bits == 32;
        default:
            return false;
    }
}

std::optional<std::string> find_bad_field(const BitmapHeader& header) {
    constexpr std::uint32_t depths[] = {1, 4, 8, 16, 24, 32};
    if (header.width <= 0) {
        return "its width is " + std::to_string(header.width);
    }
    if (header.height == 0) {
        return "its height is 0";
    }
    if (header.planes != 1) {
        return "it has " + std::to_string(header.planes) + " planes";
    }
    if (std::find(std::begin(depths), std::end(depths), header.bits) == std::end(depths)) {
        return "it has " + std::to_string(header.bits) + " bits per pixel";
    }
    if (!fits_depth(header.compression, header.bits)) {
        return "it has compression " + std::to_string(header.compression) + " with " +
               std::to_string(header.bits) + " bits per pixel";
    }
    return std::nullopt;
}

}  // namespace

std::uint64_t BitmapHeader::TableBytes() const {
    return table_entries(*this) * (IsCore() ? 3 : 4);
}

std::uint64_t BitmapHeader::RowBytes() const {
    return (static_cast<std::uint64_t>(width) * bits + 31) / 32 * 4;
}

std::optional<BitmapHeader> decode_bitmap_header(const unsigned char* bytes, std::size_t size) {
    BitmapHeader header;
    if (size < sizeof(std::uint32_t)) {
        return std::nullopt;
    }
    header.header_size = decode<std::uint32_t>(bytes);
    if (size < header.FieldsSize()) {
        return std::nullopt;
    }
    if (header.IsCore()) {
        header.width = decode<std::uint16_t>(bytes + 4);
        header.height = decode<std::uint16_t>(bytes + 6);
        header.planes = decode<std::uint16_t>(bytes + 8);
        header.bits = decode<std::uint16_t>(bytes + 10);
        return header;
    }
    header.width = static_cast<std::int32_t>(decode<std::uint32_t>(bytes + 4));
    header.height = static_cast<std::int32_t>(decode<std::uint32_t>(bytes + 8));
    header.planes = decode<std::uint16_t>(bytes + 12);
    header.bits = decode<std::uint16_t>(bytes + 14);
    header.compression = decode<std::uint32_t>(bytes + 16);
    header.image_size = decode<std::uint32_t>(bytes + 20);
    header.pixels_per_metre_x = static_cast<std::int32_t>(decode<std::uint32_t>(bytes + 24));
    header.pixels_per_metre_y = static_cast<std::int32_t>(decode<std::uint32_t>(bytes + 28));
    header.colours_used = decode<std::uint32_t>(bytes + 32);
    header.colours_important = decode<std::uint32_t>(bytes + 36);
    return header;
}

std::optional<std::string> find_implausible(const BitmapHeader& header, std::uint64_t block_size) {
    const bool known = header.IsCore() || (header.header_size >= BitmapHeader::info_size &&
                                           header.header_size <= longest_header);
    if (!known) {
        return "its header size is " + std::to_string(header.header_size);
    }
    if (auto bad = find_bad_field(header)) {
        return bad;
    }
    const auto rows = static_cast<std::uint64_t>(std::llabs(header.height));
    // Both factors fit in 37 and 31 bits, but their product need not fit in 64.
    const std::uint64_t row = header.RowBytes();
    const std::uint64_t pixels =
        is_run_length(header) ? header.image_size : row * std::min(rows, UINT64_MAX / row);
    const std::uint64_t before = header.TableBytes() + header.FieldsSize();
    // A file with a longer header leaves a block in which only the 40 bytes of a short one are counted.
    if (block_size < before || block_size - before < pixels) {
        return "its header asks for " + counted(before, "byte") + " of header and colours and " +
               counted(pixels, "byte") + " of pixels, but the block has " + counted(block_size, "byte");
    }
    return std::nullopt;
}

}  // namespace lvxdoc
