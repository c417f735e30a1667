// lvx/platform/posix/element_names.h
//
// Names of the elements of a compound file, and of the file itself, between wide characters, UTF-16 and
// bytes.
#pragma once

#include <optional>
#include <span>
#include <string>

namespace lvx::platform {

/// The longest name of an element, in UTF-16 units.
inline constexpr std::size_t longest_element_name = 31;

/// Whether an element may bear this name: 1 to 31 UTF-16 units, whole characters, none of / \ : !
bool is_element_name(const wchar_t* name);

/// Whether two names mean the same element: compared without regard to case, character by character and
/// whatever the locale is.
bool is_same_element(const std::wstring& first, const std::wstring& second);

/// The wide form of UTF-16 units; nothing if they are not whole characters or hold a NUL.
std::optional<std::wstring> wide_from_utf16(std::span<const char16_t> units);

/// Requires: whole characters, as is_element_name has checked.
std::string utf8_from_wide(const std::wstring& text);

/// The bytes of a file name; nothing if it is empty or has a character that no file name has.
std::optional<std::string> file_name_bytes(const std::wstring& name);

}  // namespace lvx::platform
