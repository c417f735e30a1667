#include "lvx/platform/drives.h"

#include <sys/stat.h>

#include <cstdlib>

#include "lvx/platform/posix/allocated_text.h"
#include "lvx/platform/posix/drive_table.h"
#include "lvx/platform/posix/native_path.h"

namespace lvx {

namespace {

bool is_directory(const char* path) {
    struct stat status;
    return stat(path, &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

bool map_drive(char letter, const std::string& folder) {
    if (folder.find('\0') != std::string::npos) {
        return false;
    }
    const platform::AllocatedText root(realpath(folder.c_str(), nullptr));
    return root && is_directory(root.get()) && platform::DriveTable::Process().Map(letter, root.get());
}

bool unmap_drive(char letter) {
    return platform::DriveTable::Process().Unmap(letter);
}

std::string system_path(const std::string& path) {
    return path.find('\0') == std::string::npos ? platform::native_path(path).value_or("") : std::string();
}

}  // namespace lvx
