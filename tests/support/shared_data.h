// Test data that does not belong to this repository: found by the environment variable LVX_SHARED_DATA, or
// beside the source tree.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

namespace lvx_test {

/// The folder `name` of the shared test data, or "" with a line that says so when it is not there.
inline std::string shared_data(const std::string& name) {
    const char* const set = std::getenv("LVX_SHARED_DATA");
    const std::filesystem::path root = set != nullptr && *set != '\0' ? set : LVX_TEST_SHARED_DATA;
    std::error_code error;
    if (std::filesystem::is_directory(root / name, error)) {
        return (root / name).string();
    }
    std::cout << "Ran without the shared test data: there is no folder " << (root / name).string() << '\n';
    return "";
}

}  // namespace lvx_test
