#include "lvx/images/colour_reader.h"

#include <algorithm>
#include <bit>

#include "lvx/store/byte_order.h"

namespace lvx::images {
namespace {

std::uint32_t colour_at(const unsigned char* bytes) {
    return static_cast<std::uint32_t>(bytes[0] | bytes[1] << 8 | bytes[2] << 16);
}

}  // namespace

ColourReader::ColourReader(const PixelFormat& format, const ColourTable& table)
    : m_format(format),
      m_red(FieldOf(format.red)),
      m_green(FieldOf(format.green)),
      m_blue(FieldOf(format.blue)) {
    if (format.HasTable()) {
        const std::size_t count = std::min(table.count, std::size_t{1} << format.depth);
        for (std::size_t i = 0; i < count; ++i) {
            m_table[i] = colour_at(table.entries + i * table.entry_size);
        }
    }
}

// What a mask leaves out between its lowest bit and its highest is 0.
ColourReader::Field ColourReader::FieldOf(std::uint32_t mask) {
    if (mask == 0) {
        return {0, 0, 0, 0};
    }
    const int shift = std::countr_zero(mask);
    const int bits = static_cast<int>(std::bit_width(mask)) - shift;
    Field field{mask, shift, 1, bits - 8};
    for (int filled = bits; filled < 8; filled += bits) {
        field.repeat = field.repeat << bits | 1;
        field.surplus += bits;
    }
    return field;
}

std::uint32_t ColourReader::FromFields(std::uint32_t pixel) const {
    return m_red.Of(pixel) << 16 | m_green.Of(pixel) << 8 | m_blue.Of(pixel);
}

template <class Pixel>
void ColourReader::ReadFields(const unsigned char* row, std::size_t count, std::uint32_t* colours) const {
    for (std::size_t i = 0; i < count; ++i) {
        colours[i] = FromFields(store::decode<Pixel>(row + i * sizeof(Pixel)));
    }
}

// The highest bits of a byte are the first pixel.
void ColourReader::ReadIndices(const unsigned char* row, std::size_t count, std::uint32_t* colours) const {
    const std::size_t in_byte = 8u / m_format.depth;
    const unsigned mask = (1u << m_format.depth) - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t behind = in_byte - 1 - i % in_byte;
        colours[i] = m_table[row[i / in_byte] >> (behind * m_format.depth) & mask];
    }
}

void ColourReader::Read(const unsigned char* row, std::size_t count, std::uint32_t* colours) const {
    switch (m_format.depth) {
        case 16:
            ReadFields<std::uint16_t>(row, count, colours);
            break;
        case 24:
            for (std::size_t i = 0; i < count; ++i) {
                colours[i] = colour_at(row + 3 * i);
            }
            break;
        case 32:
            if (m_format.HasMasks()) {
                ReadFields<std::uint32_t>(row, count, colours);
            } else {
                for (std::size_t i = 0; i < count; ++i) {
                    colours[i] = store::decode<std::uint32_t>(row + 4 * i);
                }
            }
            break;
        default:
            ReadIndices(row, count, colours);
            break;
    }
}

}  // namespace lvx::images
