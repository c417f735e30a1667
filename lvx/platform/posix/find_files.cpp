#include "lvx/platform/find_files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <string_view>

#include "lvx/platform/posix/native_path.h"
#include "lvx/platform/posix/wildcards.h"

namespace lvx::platform {

namespace {

struct CloseDirectory {
    void operator()(DIR* directory) const { closedir(directory); }
};
using Directory = std::unique_ptr<DIR, CloseDirectory>;

// Where the last component of a pattern begins.
std::size_t name_start(std::string_view pattern) {
    const auto last = std::find_if(pattern.rbegin(), pattern.rend(), is_separator);
    if (last == pattern.rend()) {
        return names_drive(pattern) ? 2 : 0;
    }
    return static_cast<std::size_t>(pattern.rend() - last);
}

Directory open_directory(std::string_view path) {
    const auto native = native_path(path.empty() ? "." : path);
    return Directory(native ? opendir(native->c_str()) : nullptr);
}

class SystemSearch final : public NameSearch {
public:
    SystemSearch(std::string_view pattern, int attributes)
        : m_directory(open_directory(pattern.substr(0, name_start(pattern)))),
          m_pattern(pattern.substr(name_start(pattern))),
          m_directories_too((attributes & find_directories) != 0) {}

    const char* Next() override {
        while (const dirent* const entry = m_directory ? readdir(m_directory.get()) : nullptr) {
            if (Fits(entry->d_name)) {
                return entry->d_name;
            }
        }
        return nullptr;
    }

private:
    // A name with a `\` would lead to another file.
    bool Fits(const char* name) const {
        const std::string_view text = name;
        return text.find('\\') == std::string_view::npos && fits_wildcards(text, m_pattern) &&
               (m_directories_too || !IsDirectory(name));
    }

    bool IsDirectory(const char* name) const {
        struct stat status;
        return fstatat(dirfd(m_directory.get()), name, &status, 0) == 0 && S_ISDIR(status.st_mode);
    }

    Directory m_directory;
    std::string m_pattern;
    bool m_directories_too;
};

}  // namespace

std::unique_ptr<NameSearch> search_names(const char* pattern, int attributes) {
    return std::make_unique<SystemSearch>(pattern, attributes);
}

}  // namespace lvx::platform
