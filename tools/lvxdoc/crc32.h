// tools/lvxdoc/crc32.h
//
// The checksum CRC-32, as zip and PNG files have it.
#pragma once

#include <cstdint>
#include <string_view>

namespace lvxdoc {

/// The checksum of `bytes`, or of all bytes so far when that of those before is given.
std::uint32_t crc32(std::string_view bytes, std::uint32_t before = 0);

}  // namespace lvxdoc
