// tests/platform/posix/folder_names.h
//
// What a folder holds.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace lvx_test {

/// The names in a folder, sorted.
inline std::vector<std::string> folder_names(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace lvx_test
