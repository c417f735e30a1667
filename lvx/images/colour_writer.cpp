#include "lvx/images/colour_writer.h"

#include <bit>
#include <cstring>

#include "lvx/images/default_colours.h"
#include "lvx/store/byte_order.h"

namespace lvx::images {
namespace {

constexpr std::uint32_t colour_bits = 0x00FFFFFF;

// Squared.
int distance(std::uint32_t a, std::uint32_t b) {
    int sum = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int difference = static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
        sum += difference * difference;
    }
    return sum;
}

// The highest bits of a component of 8 bits, or that repeated, where the mask has its bits.
std::uint32_t field_of(std::uint32_t component, std::uint32_t mask) {
    if (mask == 0) {
        return 0;
    }
    const int shift = std::countr_zero(mask);
    const int bits = static_cast<int>(std::bit_width(mask)) - shift;
    return component * 0x01010101u >> (32 - bits) << shift & mask;
}

}  // namespace

ColourWriter::ColourWriter(const PixelFormat& format)
    : m_format(format), m_known(format.depth == 8 ? 1u << 15 : 0) {}

// Of equally near ones the first.
unsigned ColourWriter::Nearest(std::uint32_t colour) const {
    const unsigned count = 1u << m_format.depth;
    unsigned nearest = 0;
    int least = distance(colour, default_colour(m_format.depth, 0));
    for (unsigned i = 1; i < count; ++i) {
        const int next = distance(colour, default_colour(m_format.depth, i));
        if (next < least) {
            least = next;
            nearest = i;
        }
    }
    return nearest;
}

unsigned ColourWriter::IndexOf(std::uint32_t colour) {
    if (colour == m_last_colour) {
        return m_last_index;
    }
    m_last_colour = colour;
    if (m_known.empty()) {
        return m_last_index = Nearest(colour);
    }
    std::uint16_t& known = m_known[(colour >> 9 & 0x7C00) | (colour >> 6 & 0x03E0) | (colour >> 3 & 0x001F)];
    if (known == 0) {
        // The middle of those that count as one.
        known = static_cast<std::uint16_t>(Nearest((colour & 0xF8F8F8) | 0x040404) + 1);
    }
    return m_last_index = known - 1u;
}

void ColourWriter::WriteIndices(const std::uint32_t* colours, std::size_t count, unsigned char* row) {
    const std::size_t in_byte = 8u / m_format.depth;
    std::memset(row, 0, (count + in_byte - 1) / in_byte);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t behind = in_byte - 1 - i % in_byte;
        const unsigned index = IndexOf(colours[i] & colour_bits) << (behind * m_format.depth);
        row[i / in_byte] = static_cast<unsigned char>(row[i / in_byte] | index);
    }
}

std::uint32_t ColourWriter::ToFields(std::uint32_t colour) const {
    return field_of(colour >> 16 & 0xFF, m_format.red) | field_of(colour >> 8 & 0xFF, m_format.green) |
           field_of(colour & 0xFF, m_format.blue);
}

template <class Pixel>
void ColourWriter::WriteFields(const std::uint32_t* colours, std::size_t count, unsigned char* row) const {
    for (std::size_t i = 0; i < count; ++i) {
        store::encode(static_cast<Pixel>(ToFields(colours[i])), row + i * sizeof(Pixel));
    }
}

void ColourWriter::Write(const std::uint32_t* colours, std::size_t count, unsigned char* row) {
    switch (m_format.depth) {
        case 16:
            WriteFields<std::uint16_t>(colours, count, row);
            break;
        case 24:
            for (std::size_t i = 0; i < count; ++i) {
                row[3 * i] = static_cast<unsigned char>(colours[i]);
                row[3 * i + 1] = static_cast<unsigned char>(colours[i] >> 8);
                row[3 * i + 2] = static_cast<unsigned char>(colours[i] >> 16);
            }
            break;
        case 32:
            if (m_format.HasMasks()) {
                WriteFields<std::uint32_t>(colours, count, row);
            } else {
                for (std::size_t i = 0; i < count; ++i) {
                    store::encode(colours[i], row + 4 * i);
                }
            }
            break;
        default:
            WriteIndices(colours, count, row);
            break;
    }
}

}  // namespace lvx::images
