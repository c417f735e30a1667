#include "lvx/files/path_string.h"
#include "lvx/platform/directories.h"

namespace {

// The system would see such a path up to its NUL, and answer for another one.
bool can_be_asked(const std::string& path) {
    return path.find('\0') == std::string::npos;
}

// With sizes of 64 bits: the plain _stat fails for files that are too long for its own.
bool has_mode(const std::string& path, unsigned short mode) {
    struct _stat64 status;
    return path.find('*') == std::string::npos && can_be_asked(path) && _stat64(path.c_str(), &status) == 0 &&
           (status.st_mode & mode) != 0;
}

}  // namespace

bool LVXPathString::exists() const {
    return can_be_asked(*this) && _access(c_str(), 0) == 0;
}

bool LVXPathString::isFile() const {
    return has_mode(*this, _S_IFREG);
}

bool LVXPathString::isDirectory() const {
    std::string path = *this;
    if (path.ends_with('\\')) {
        path.pop_back();
    }
    return has_mode(path, _S_IFDIR);
}
