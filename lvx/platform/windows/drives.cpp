#include "lvx/platform/drives.h"

namespace lvx {

bool map_drive(char, const std::string&) {
    return false;
}

bool unmap_drive(char) {
    return false;
}

std::string system_path(const std::string& path) {
    return path.find('\0') == std::string::npos ? path : std::string();
}

}  // namespace lvx
