#include "lvx/platform/open_file.h"

#include <io.h>
#include <sys/stat.h>

namespace lvx::platform {

std::optional<std::uint64_t> remaining_length(std::FILE* file) {
    struct _stat64 status;
    const auto position = _ftelli64(file);
    if (position < 0 || _fstat64(_fileno(file), &status) != 0 || !((status.st_mode & _S_IFMT) == _S_IFREG)) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(status.st_size > position ? status.st_size - position : 0);
}

bool is_directory(std::FILE*) {
    // The C library does not open them.
    return false;
}

}  // namespace lvx::platform
