// lvx/platform/posix/profile_encoding.h
//
// How the bytes of a settings file mean text. A file with a byte-order mark is UTF-8 or UTF-16 and is handled
// as UTF-8; without one its bytes are the text, whatever they mean.
#pragma once

#include <string>
#include <string_view>

namespace lvx::platform {

enum class ProfileEncoding { Bytes, Utf8, Utf16Little, Utf16Big };

/// By the mark at the beginning.
ProfileEncoding profile_encoding(std::string_view bytes);

/// The text of a file. A view into its bytes as long as these need no conversion; otherwise it owns the text.
/// A surrogate without its partner becomes the three bytes that it would have as a character, and goes back
/// from those; half a unit at the end is left out.
class ProfileText {
public:
    explicit ProfileText(std::string_view bytes);
    ProfileText(const ProfileText&) = delete;
    ProfileText& operator=(const ProfileText&) = delete;

    std::string_view Text() const { return m_text; }
    ProfileEncoding Encoding() const { return m_encoding; }

private:
    ProfileEncoding m_encoding;
    std::string m_converted;
    std::string_view m_text;
};

/// The bytes of a file in that encoding, with the mark. Bytes of `text` that are no UTF-8 become U+FFFD in
/// UTF-16, and without a mark the text may begin with what is read as one: ProfileText gives another text
/// then.
std::string profile_bytes(ProfileEncoding encoding, std::string_view text);

}  // namespace lvx::platform
