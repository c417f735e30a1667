// lvx/platform/posix/directory_lock.h
//
// Keeps others from changing the settings files of a directory. The lock is on the directory itself: it needs
// no file of its own, and replacing a file leaves it in place.
#pragma once

#include <chrono>
#include <string>

#include "lvx/platform/posix/file_descriptor.h"

namespace lvx::platform {

/// Held until it goes. It excludes all that lock through this class, in other threads as in other processes,
/// and nobody else.
class DirectoryLock {
public:
    /// Waits for the lock, but no longer than that. On a file system without such locks none is held, and
    /// Opened() is true all the same.
    explicit DirectoryLock(const std::string& directory,
                           std::chrono::milliseconds longest_wait = std::chrono::seconds(10));

    /// Whether the directory is open, and locked if that can be.
    bool Opened() const { return static_cast<bool>(m_directory); }
    /// For openat() and its kin.
    int Directory() const { return m_directory.Number(); }

private:
    FileDescriptor m_directory;
};

}  // namespace lvx::platform
