// tools/lvxdoc/text.h
//
// Bytes as people and terminals can take them. What is printed this way has no control characters in it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lvxdoc {

/// Printable ASCII as it is, `\` and `"` behind a `\`, every other byte as `\xNN`.
std::string escape_bytes(std::string_view bytes);

/// A name in UTF-16 as UTF-8, with `/`, `\`, control characters and halves of pairs as `\xNN` or `\uNNNN`.
std::string escape_name(std::u16string_view name);

/// `bytes` in a JSON string, quotes included: every byte is the character of the same number, so that any
/// bytes whatever come back whole.
std::string json_bytes(std::string_view bytes);

/// `text`, which is UTF-8, in a JSON string. Bytes that are not UTF-8 are replaced by U+FFFD.
std::string json_text(std::string_view text);

/// Lower-case hexadecimal digits, two for a byte.
std::string hex_bytes(std::string_view bytes);

/// `0x` and at least eight digits.
std::string hex_offset(std::uint64_t offset);

/// "1 byte", "2 bytes".
std::string counted(std::uint64_t count, const std::string& noun);

/// Whether the two are the same but for the case of ASCII letters.
bool same_but_for_case(std::string_view one, std::string_view other);

}  // namespace lvxdoc
