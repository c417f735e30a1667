#include "lvx/platform/posix/directory_lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <thread>

namespace lvx::platform {
namespace {

constexpr auto pause = std::chrono::milliseconds(1);

// False if somebody else holds it too long.
bool lock_in_time(int directory, std::chrono::milliseconds longest_wait) {
    const auto end = std::chrono::steady_clock::now() + longest_wait;
    while (flock(directory, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR) {
            continue;
        }
        if (errno != EWOULDBLOCK) {
            return true;
        }
        if (std::chrono::steady_clock::now() >= end) {
            return false;
        }
        std::this_thread::sleep_for(pause);
    }
    return true;
}

}  // namespace

DirectoryLock::DirectoryLock(const std::string& directory, std::chrono::milliseconds longest_wait)
    : m_directory(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (m_directory && !lock_in_time(m_directory.Number(), longest_wait)) {
        m_directory.Close();
    }
}

}  // namespace lvx::platform
