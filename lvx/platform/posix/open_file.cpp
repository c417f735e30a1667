#include "lvx/platform/open_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace lvx::platform {

std::optional<std::uint64_t> remaining_length(std::FILE* file) {
    struct stat status;
    const off_t position = lseek(fileno(file), 0, SEEK_CUR);
    if (position < 0 || fstat(fileno(file), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(status.st_size > position ? status.st_size - position : 0);
}

std::size_t read_available(std::FILE* file, void* data, std::size_t size) {
    ssize_t count = 0;
    do {
        count = read(fileno(file), data, size);
    } while (count < 0 && errno == EINTR);
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

bool is_directory(std::FILE* file) {
    struct stat status;
    return fstat(fileno(file), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace lvx::platform
