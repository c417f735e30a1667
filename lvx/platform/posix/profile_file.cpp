#include "lvx/platform/posix/profile_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "lvx/platform/posix/file_descriptor.h"

namespace lvx::platform {

ProfileFile::ProfileFile(int directory, const char* name) : m_state(Load(directory, name)) {}

ProfileFile::State ProfileFile::Load(int directory, const char* name) {
    // A pipe of that name must not make the caller wait.
    const FileDescriptor file(openat(directory, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file) {
        return errno == ENOENT || errno == ENOTDIR ? Missing : Unreadable;
    }
    struct stat status {};
    if (fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size > static_cast<off_t>(largest_profile)) {
        return Unreadable;
    }
    return Fill(file.Number(), static_cast<std::size_t>(status.st_size)) ? Read : Unreadable;
}

// What another program appends meanwhile is not in it; what it cuts off is missing.
bool ProfileFile::Fill(int file, std::size_t size) {
    // Not make_unique, which would fill it with zeros first.
    m_bytes.reset(new char[size]);
    while (m_size < size) {
        const ssize_t count = read(file, m_bytes.get() + m_size, size - m_size);
        if (count == 0) {
            break;
        }
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            m_size = 0;
            return false;
        }
        m_size += static_cast<std::size_t>(count);
    }
    return true;
}

}  // namespace lvx::platform
