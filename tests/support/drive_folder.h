// A folder of a test's own, told with a drive, and a way back to where the test started.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>

#include "support/bytes.h"
#include "support/temp_folder.h"

namespace lvx_test {

/// What a drive-letter path calls a path of the system. Requires: C: is the root where there are no drives.
inline std::string drive_path(std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return path.starts_with('\\') ? "C:" + path : path;
}

/// Brings the process back to its directory.
class KeptDirectory {
public:
    KeptDirectory() : m_before(std::filesystem::current_path()) {}
    KeptDirectory(const KeptDirectory&) = delete;
    KeptDirectory& operator=(const KeptDirectory&) = delete;
    ~KeptDirectory() {
        std::error_code error;
        std::filesystem::current_path(m_before, error);
    }

private:
    std::filesystem::path m_before;
};

class DriveFolder {
public:
    std::string Path() const { return drive_path(m_folder.Path()); }
    std::string File(const std::string& name) const { return Path() + '\\' + name; }

    /// Makes an empty file; `name` may have '/' in it, behind folders that are there.
    void AddFile(const std::string& name) const { write_file(m_folder.File(name), ""); }
    void AddFolder(const std::string& name) const {
        std::filesystem::create_directories(m_folder.File(name));
    }
    /// Makes the folder, or one in it, the current directory.
    void Enter(const std::string& name = {}) const {
        std::filesystem::current_path(name.empty() ? m_folder.Path() : m_folder.File(name));
    }

private:
    TempFolder m_folder;
    KeptDirectory m_kept;
};

}  // namespace lvx_test
