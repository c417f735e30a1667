// A folder of its own for the temporary files of this process, and of those that it starts. Windows only.
#pragma once

#include <windows.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "support/bytes.h"
#include "support/temp_folder.h"

namespace lvx_test {

class TemporaryFiles {
public:
    TemporaryFiles() : m_folder(std::in_place) { Use(m_folder->Path()); }
    /// In that folder, which need not be there.
    explicit TemporaryFiles(const std::string& path) { Use(path); }
    TemporaryFiles(const TemporaryFiles&) = delete;
    TemporaryFiles& operator=(const TemporaryFiles&) = delete;
    ~TemporaryFiles() { ::SetEnvironmentVariableA("TMP", m_former.c_str()); }

    std::string Path() const { return m_path; }

    /// The names of the files that lie there.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path)) {
            if (entry.is_regular_file()) {
                names.push_back(entry.path().filename().string());
            }
        }
        return names;
    }
    /// What the only file has; another text if there is none or there are several.
    std::string OnlyContent() const {
        const std::vector<std::string> names = Names();
        return names.size() == 1 ? read_file(m_path + '\\' + names[0])
                                 : std::to_string(names.size()) + " files";
    }
    void Clear() const {
        for (const std::string& name : Names()) {
            std::filesystem::remove(m_path + '\\' + name);
        }
    }

private:
    void Use(const std::string& path) {
        char former[MAX_PATH] = {};
        ::GetEnvironmentVariableA("TMP", former, MAX_PATH);
        m_former = former;
        m_path = path;
        ::SetEnvironmentVariableA("TMP", m_path.c_str());
    }

    std::optional<TempFolder> m_folder;
    std::string m_former;
    std::string m_path;
};

}  // namespace lvx_test
