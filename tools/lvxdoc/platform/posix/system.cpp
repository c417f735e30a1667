#include "tools/lvxdoc/platform/system.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace lvxdoc::platform {

std::filesystem::path native_path(const std::string& name) {
    return name;
}

std::string narrow_name(const std::filesystem::path& path) {
    return path.native();
}

std::FILE* create_new(const std::filesystem::path& path) {
    const int descriptor = open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
    return descriptor < 0 ? nullptr : fdopen(descriptor, "wb");
}

bool is_terminal(std::FILE* file) {
    return isatty(fileno(file)) == 1;
}

unsigned long process_number() {
    return static_cast<unsigned long>(getpid());
}

void make_binary(std::FILE*) {}

void ignore_broken_pipes() {
    std::signal(SIGPIPE, SIG_IGN);
}

bool is_broken_pipe(int error) {
    return error == EPIPE;
}

}  // namespace lvxdoc::platform
