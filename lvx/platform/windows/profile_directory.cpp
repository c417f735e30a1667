#include "lvx/platform/profile_directory.h"

#include <windows.h>

namespace lvx {

std::string profile_directory() {
    char path[MAX_PATH];
    const UINT length = GetWindowsDirectoryA(path, MAX_PATH);
    return length < MAX_PATH ? std::string(path, length) : std::string();
}

bool set_profile_directory(const std::string& /*directory*/) {
    return false;
}

}  // namespace lvx
