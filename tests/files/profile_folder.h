// tests/files/profile_folder.h
//
// A settings file in the profile directory under a name that nobody else uses, gone with the test. Where the
// profile directory can be chosen it is one of the test's own.
#pragma once

#include <filesystem>
#include <string>

#include "lvx/platform/profile_directory.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

namespace lvx_test {

class ProfileFolder {
public:
    ProfileFolder() {
        lvx::set_profile_directory(m_folder.Path());
        // The folder's name is unique.
        m_name = std::filesystem::path(m_folder.Path()).filename().string();
    }
    ProfileFolder(const ProfileFolder&) = delete;
    ProfileFolder& operator=(const ProfileFolder&) = delete;
    ~ProfileFolder() {
        std::error_code error;
        std::filesystem::remove(File(), error);
        lvx::set_profile_directory("");
    }

    /// What Settings is made for.
    const std::string& Name() const { return m_name; }
    /// The folder of the test's own.
    std::string Folder() const { return m_folder.Path(); }
    /// Where its file lies.
    std::filesystem::path File() const {
        return std::filesystem::path(lvx::profile_directory()) / (m_name + ".INI");
    }

    /// A file that is not there has no content.
    std::string Content() const {
        return std::filesystem::exists(File()) ? read_file(File().string()) : std::string();
    }
    void SetContent(const std::string& content) const { write_file(File().string(), content); }

private:
    TempFolder m_folder;
    std::string m_name;
};

}  // namespace lvx_test
