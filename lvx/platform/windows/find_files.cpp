#include "lvx/platform/find_files.h"

#include <windows.h>

namespace lvx::platform {

namespace {

class SystemSearch final : public NameSearch {
public:
    SystemSearch(const char* pattern, int attributes)
        : m_unwanted(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                     ((attributes & find_directories) != 0 ? 0 : FILE_ATTRIBUTE_DIRECTORY)),
          m_handle(FindFirstFileA(pattern, &m_found)),
          m_has_found(m_handle != INVALID_HANDLE_VALUE) {}
    ~SystemSearch() override {
        if (m_handle != INVALID_HANDLE_VALUE) {
            FindClose(m_handle);
        }
    }

    const char* Next() override {
        while (m_has_found && (m_found.dwFileAttributes & m_unwanted) != 0) {
            Advance();
        }
        if (!m_has_found) {
            return nullptr;
        }
        m_name = m_found.cFileName;
        Advance();
        return m_name.c_str();
    }

private:
    void Advance() { m_has_found = FindNextFileA(m_handle, &m_found) != 0; }

    DWORD m_unwanted;
    WIN32_FIND_DATAA m_found{};
    HANDLE m_handle;
    bool m_has_found;
    std::string m_name;
};

}  // namespace

std::unique_ptr<NameSearch> search_names(const char* pattern, int attributes) {
    return std::make_unique<SystemSearch>(pattern, attributes);
}

}  // namespace lvx::platform
