// lvx/platform/posix/profile_file.h
//
// The bytes of a settings file, in whole.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace lvx::platform {

/// Larger files are no settings files.
inline constexpr std::size_t largest_profile = 64 * 1024 * 1024;

class ProfileFile {
public:
    enum State { Read, Missing, Unreadable };

    /// Reads the file of that name, from `directory` if the name is relative: an open directory, or AT_FDCWD.
    /// Unreadable is also what is no regular file or too large. Throws std::bad_alloc.
    ProfileFile(int directory, const char* name);

    State GetState() const { return m_state; }
    /// Empty unless the state is Read.
    std::string_view Bytes() const { return {m_bytes.get(), m_size}; }

private:
    State Load(int directory, const char* name);
    bool Fill(int file, std::size_t size);

    std::unique_ptr<char[]> m_bytes;
    std::size_t m_size = 0;
    State m_state;
};

}  // namespace lvx::platform
