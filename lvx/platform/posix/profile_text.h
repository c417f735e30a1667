// lvx/platform/posix/profile_text.h
//
// Finding and setting a value in the text of a settings file. Pure: no file is touched. Texts are bytes,
// without a byte-order mark.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lvx::platform {

/// The value of the first entry of that key in the first section of that name, with its quotes: a view into
/// `text`. Nothing if there is no such section or key, or the key has no '='. The empty section is what
/// stands in front of the first header.
std::optional<std::string_view> find_profile_value(std::string_view text, std::string_view section,
                                                   std::string_view key);

/// `value` without the pair of quotes that encloses it, if one does: "…" or '…'.
std::string_view without_profile_quotes(std::string_view value);

/// `value` as a number: see GetPrivateProfileIntA.
std::uint32_t profile_number(std::string_view value);

/// `text` with another value for that entry: every other byte of it stays. A new key goes behind the last
/// line of its section that is not blank, a new section to the end of the text, with the line ends that the
/// text has, CR LF if it has none. The text as it is if it has that value. Nothing if the entry would not be
/// read back from it.
std::optional<std::string> set_profile_value(std::string_view text, std::string_view section,
                                             std::string_view key, std::string_view value);

}  // namespace lvx::platform
