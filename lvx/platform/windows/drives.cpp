#include "lvx/platform/drives.h"

namespace lvx {

bool map_drive(char, const std::string&) {
    return false;
}

bool unmap_drive(char) {
    return false;
}

}  // namespace lvx
