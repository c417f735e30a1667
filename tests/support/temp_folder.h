// A folder of a test's own, gone with it.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

namespace lvx_test {

class TempFolder {
public:
    TempFolder() : m_path(std::filesystem::temp_directory_path() / ("lvx-test-" + unique_name())) {
        std::filesystem::create_directory(m_path);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }

    std::string File(const std::string& name) const { return (m_path / name).string(); }
    std::string Path() const { return m_path.string(); }

private:
    static std::string unique_name() {
        std::random_device random;
        return std::to_string(random()) + std::to_string(random());
    }

    std::filesystem::path m_path;
};

}  // namespace lvx_test
