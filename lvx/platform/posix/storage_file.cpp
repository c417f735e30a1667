#include "lvx/platform/posix/storage_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>

#include "lvx/platform/posix/element_names.h"

namespace lvx::platform {
namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (m_number >= 0) {
            close(m_number);
        }
    }
    int Number() const { return m_number; }
    int Release() {
        const int number = m_number;
        m_number = -1;
        return number;
    }

private:
    int m_number;
};

bool has_parent(const std::string& path) {
    const std::filesystem::path parent = std::filesystem::path(path).parent_path();
    std::error_code error;
    return parent.empty() || std::filesystem::is_directory(parent, error);
}

HRESULT result_of_errno(int error, const std::string& path) {
    switch (error) {
        case ENOENT:
            return has_parent(path) ? STG_E_FILENOTFOUND : STG_E_PATHNOTFOUND;
        case ENOTDIR:
        case ELOOP:
            return STG_E_PATHNOTFOUND;
        case EACCES:
        case EPERM:
        case EISDIR:
        case ENXIO:
            return STG_E_ACCESSDENIED;
        case EROFS:
            return STG_E_DISKISWRITEPROTECTED;
        case ETXTBSY:
        case EWOULDBLOCK:
            return STG_E_SHAREVIOLATION;
        case EMFILE:
        case ENFILE:
            return STG_E_TOOMANYOPENFILES;
        case ENOSPC:
        case EDQUOT:
            return STG_E_MEDIUMFULL;
        case ENAMETOOLONG:
            return STG_E_INVALIDNAME;
        case ENOMEM:
            return STG_E_INSUFFICIENTMEMORY;
        case EIO:
            return STG_E_READFAULT;
        default:
            return STG_E_UNKNOWN;
    }
}

// A directory, a pipe or a device is no place for a compound file.
bool is_regular(int descriptor) {
    struct stat status;
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

struct Access {
    int flags;
    int lock;
    const char* stdio_mode;
};

HRESULT open_file(const wchar_t* name, const Access& access, StorageFile& file) {
    const std::optional<std::string> path = file_name_bytes(name);
    if (!path) {
        return STG_E_INVALIDNAME;
    }
    constexpr mode_t everybody = 0666;
    // A pipe without a partner must not keep us waiting.
    Descriptor descriptor(open(path->c_str(), access.flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, everybody));
    if (descriptor.Number() < 0) {
        return result_of_errno(errno, *path);
    }
    if (!is_regular(descriptor.Number())) {
        return STG_E_ACCESSDENIED;
    }
    // A file system that has no locks keeps nobody away, and is no reason to refuse.
    if (flock(descriptor.Number(), access.lock | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return STG_E_SHAREVIOLATION;
    }
    file.reset(fdopen(descriptor.Number(), access.stdio_mode));
    if (file == nullptr) {
        return result_of_errno(errno, *path);
    }
    descriptor.Release();
    return S_OK;
}

}  // namespace

HRESULT open_to_read(const wchar_t* name, StorageFile& file) {
    return open_file(name, {O_RDONLY, LOCK_SH, "rb"}, file);
}

HRESULT open_to_replace(const wchar_t* name, StorageFile& file) {
    const HRESULT result = open_file(name, {O_RDWR | O_CREAT, LOCK_EX, "r+b"}, file);
    if (FAILED(result)) {
        return result;
    }
    // Only now that nobody else has it open.
    if (ftruncate(fileno(file.get()), 0) != 0) {
        file.reset();
        return STG_E_ACCESSDENIED;
    }
    return S_OK;
}

std::uint64_t file_length(std::FILE* file) {
    struct stat status;
    return fstat(fileno(file), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

}  // namespace lvx::platform
