// lvx/platform/posix/profile_path.h
//
// Where a settings file lies.
#pragma once

#include <string>

namespace lvx::platform {

struct ProfilePath {
    /// As the system calls it; empty if there is no such place.
    std::string path;
    /// Whether the file was named without a directory.
    bool in_profile_directory = false;
};

/// Null and the empty text name no place.
ProfilePath profile_path(const char* file);

/// `path`, or where the link there leads, through as many links as the system follows; also to a file that is
/// not there yet. Empty if they lead in a circle.
std::string behind_links(std::string path);

}  // namespace lvx::platform
