// lvx/text/byte_set.h
//
// Sets of bytes, and how a pattern names them: escapes and brackets, with the meaning that TRegexp gives
// them. What is not understood here is no error; the pattern is then left to TRegexp.
#pragma once

#include <bitset>
#include <optional>
#include <string_view>

namespace lvx::text {

using ByteSet = std::bitset<256>;

/// The bytes of "aZ09": from a to Z and from 0 to 9.
ByteSet set_of_ranges(std::string_view ranges);

/// What stands behind a backslash, such as "n", "x41" or "d", is cut off `rest`.
std::optional<ByteSet> parse_escaped_set(std::string_view& rest);

/// What stands behind an opening bracket, such as "^a-z]", is cut off `rest`.
std::optional<ByteSet> parse_bracket_set(std::string_view& rest);

}  // namespace lvx::text
