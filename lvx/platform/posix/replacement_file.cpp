#include "lvx/platform/posix/replacement_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <atomic>
#include <cerrno>
#include <utility>

namespace lvx::platform {
namespace {

constexpr mode_t usual_mode = 0666;
constexpr int most_attempts = 100;

// Unused as a rule: what a process of the same number left when it was killed may bear it.
std::string next_name() {
    static std::atomic<unsigned> counter = 0;
    return ".lvx-" + std::to_string(getpid()) + "-" + std::to_string(counter++) + ".new";
}

}  // namespace

ReplacementFile::ReplacementFile(int directory, const std::string& name)
    : m_directory(directory), m_name(name), m_good(Create() && CopyAttributes()) {}

ReplacementFile::~ReplacementFile() {
    if (!m_own_name.empty()) {
        unlinkat(m_directory, m_own_name.c_str(), 0);
    }
}

bool ReplacementFile::Create() {
    for (int attempt = 0; attempt < most_attempts; ++attempt) {
        std::string name = next_name();
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW;
        m_file = FileDescriptor(openat(m_directory, name.c_str(), flags, usual_mode));
        if (m_file) {
            // Takes no memory: from here on the file is deleted whatever happens.
            m_own_name = std::move(name);
            return true;
        }
        if (errno != EEXIST) {
            return false;
        }
    }
    return false;
}

bool ReplacementFile::CopyAttributes() {
    struct stat status {};
    if (fstatat(m_directory, m_name.c_str(), &status, 0) != 0) {
        return errno == ENOENT;
    }
    // An owner that may not be given stays the writer. The mode comes last: giving away clears bits of it.
    if (fchown(m_file.Number(), status.st_uid, status.st_gid) != 0 && errno != EPERM && errno != EINVAL) {
        return false;
    }
    return fchmod(m_file.Number(), status.st_mode & 07777) == 0;
}

bool ReplacementFile::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(m_file.Number(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return fsync(m_file.Number()) == 0;
}

bool ReplacementFile::Replace(std::string_view bytes) {
    if (!m_good || !Write(bytes) || !m_file.Close() ||
        renameat(m_directory, m_own_name.c_str(), m_directory, m_name.c_str()) != 0) {
        return false;
    }
    // The directory is not waited for: a power failure may bring the old file back, but whole.
    m_own_name.clear();
    return true;
}

}  // namespace lvx::platform
