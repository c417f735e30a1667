#include "lvx/platform/posix/replacement_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <atomic>
#include <cerrno>
#include <optional>
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

bool may_not() {
    return errno == EPERM || errno == EINVAL;
}

struct Ownership {
    bool has_owner;
    bool has_group;
};

// Gives the file to them as far as that is allowed; what is not given stays the writer's. Nothing on an
// error.
std::optional<Ownership> give(int file, uid_t owner, gid_t group) {
    if (fchown(file, owner, group) == 0) {
        return Ownership{true, true};
    }
    if (!may_not()) {
        return std::nullopt;
    }
    constexpr auto same_owner = static_cast<uid_t>(-1);
    if (fchown(file, same_owner, group) == 0) {
        return Ownership{false, true};
    }
    return may_not() ? std::optional(Ownership{false, false}) : std::nullopt;
}

// What the group may do was meant for the old one, and running as the owner for that one.
mode_t mode_for(mode_t mode, Ownership ownership) {
    mode &= 07777;
    if (!ownership.has_owner) {
        mode &= ~mode_t{S_ISUID};
    }
    if (!ownership.has_group) {
        mode &= ~mode_t{S_ISGID | S_IRWXG};
    }
    return mode;
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
    const auto ownership = give(m_file.Number(), status.st_uid, status.st_gid);
    // The mode comes last: giving away clears bits of it.
    return ownership && fchmod(m_file.Number(), mode_for(status.st_mode, *ownership)) == 0;
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
