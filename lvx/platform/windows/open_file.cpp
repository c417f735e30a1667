#include "lvx/platform/open_file.h"

#include <io.h>
#include <sys/stat.h>

#include <algorithm>

namespace lvx::platform {

std::optional<std::uint64_t> remaining_length(std::FILE* file) {
    struct _stat64 status;
    const auto position = _lseeki64(_fileno(file), 0, SEEK_CUR);
    if (position < 0 || _fstat64(_fileno(file), &status) != 0 || (status.st_mode & _S_IFMT) != _S_IFREG) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(status.st_size > position ? status.st_size - position : 0);
}

std::size_t read_available(std::FILE* file, void* data, std::size_t size) {
    constexpr std::size_t most = 1U << 30;
    const int count = _read(_fileno(file), data, static_cast<unsigned int>(std::min(size, most)));
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

bool is_directory(std::FILE*) {
    // The C library does not open them.
    return false;
}

}  // namespace lvx::platform
