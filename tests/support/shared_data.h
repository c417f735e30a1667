// Files that nobody here made, which lie beside the repository on a developer's machine and in CI.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "support/places.h"

namespace lvx_test {

/// The folder of shared files: what LVX_SHARED_DATA names, else shared/data beside the source tree.
inline std::filesystem::path shared_data() {
    const char* const named = std::getenv("LVX_SHARED_DATA");
    return named != nullptr && *named != '\0' ? std::string(named) : usual_shared_data();
}

/// Whether there are shared files in `folder`. Tells in one line if not, once per call.
inline bool has_shared_data(const std::string& folder) {
    std::error_code error;
    if (std::filesystem::is_directory(shared_data() / folder, error)) {
        return true;
    }
    std::cout << "ran without the shared files in " << (shared_data() / folder).string() << std::endl;
    return false;
}

}  // namespace lvx_test
