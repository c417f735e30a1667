#include "lvx/platform/open_file.h"

#include <sys/stat.h>

namespace lvx::platform {

std::optional<std::uint64_t> remaining_length(std::FILE* file) {
    struct stat status;
    const auto position = ftello(file);
    if (position < 0 || fstat(fileno(file), &status) != 0 || !(S_ISREG(status.st_mode))) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(status.st_size > position ? status.st_size - position : 0);
}

bool is_directory(std::FILE* file) {
    struct stat status;
    return fstat(fileno(file), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace lvx::platform
