#include "lvx/platform/profile.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <optional>
#include <string_view>

#include "lvx/platform/posix/profile_encoding.h"
#include "lvx/platform/posix/profile_file.h"
#include "lvx/platform/posix/profile_path.h"
#include "lvx/platform/posix/profile_text.h"
#include "lvx/platform/posix/profile_writer.h"

namespace {

using namespace lvx::platform;

// Without the blanks at its end, the first character apart.
std::string_view default_text(const char* text) {
    std::string_view result = text != nullptr ? text : "";
    while (result.size() > 1 && result.back() == ' ') {
        result.remove_suffix(1);
    }
    return result;
}

DWORD copy(std::string_view text, char* buffer, DWORD size) {
    const std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<DWORD>(length);
}

DWORD copy_value(const char* section, const char* key, const char* default_value, char* buffer, DWORD size,
                 const char* file) {
    const ProfileFile profile(AT_FDCWD, profile_path(file).path.c_str());
    const ProfileText text(profile.Bytes());
    const auto value = find_profile_value(text.Text(), section, key);
    return copy(without_profile_quotes(value ? *value : default_text(default_value)), buffer, size);
}

}  // namespace

DWORD GetPrivateProfileStringA(const char* section, const char* key, const char* default_value, char* buffer,
                               DWORD size, const char* file) {
    if (size == 0 || buffer == nullptr) {
        return 0;
    }
    if (section != nullptr && key != nullptr) {
        try {
            return copy_value(section, key, default_value, buffer, size, file);
        } catch (const std::bad_alloc&) {
            // As if the file could not be read.
        }
    }
    return copy(without_profile_quotes(default_text(default_value)), buffer, size);
}

UINT GetPrivateProfileIntA(const char* section, const char* key, int default_value, const char* file) {
    // What stands behind the 29th character of a number does not count.
    std::array<char, 30> buffer{};
    const DWORD length =
        GetPrivateProfileStringA(section, key, "", buffer.data(), static_cast<DWORD>(buffer.size()), file);
    return length == 0 ? static_cast<UINT>(default_value)
                       : profile_number(std::string_view(buffer.data(), length));
}

BOOL WritePrivateProfileStringA(const char* section, const char* key, const char* value, const char* file) {
    if (section == nullptr || key == nullptr || value == nullptr) {
        return 0;
    }
    try {
        return write_profile(profile_path(file), section, key, value) ? 1 : 0;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}
