#include "tools/lvxdoc/crc32.h"

#include <array>

namespace lvxdoc {
namespace {

constexpr std::uint32_t reversed_polynomial = 0xedb88320;

constexpr std::array<std::uint32_t, 256> make_table() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
        std::uint32_t rest = i;
        for (int bit = 0; bit < 8; ++bit) {
            rest = (rest & 1) != 0 ? rest >> 1 ^ reversed_polynomial : rest >> 1;
        }
        table[i] = rest;
    }
    return table;
}

constexpr auto table = make_table();

}  // namespace

std::uint32_t crc32(std::string_view bytes, std::uint32_t before) {
    std::uint32_t rest = ~before;
    for (const char byte : bytes) {
        rest = rest >> 8 ^ table[(rest ^ static_cast<unsigned char>(byte)) & 0xff];
    }
    return ~rest;
}

}  // namespace lvxdoc
