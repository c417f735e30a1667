#include "lvx/platform/find_files.h"

#include <windows.h>

namespace lvx::platform {

namespace {

constexpr int failure = -1;

}  // namespace

class NameSearch {
public:
    NameSearch(const char* pattern, int attributes)
        : m_unwanted(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                     ((attributes & find_directories) != 0 ? 0 : FILE_ATTRIBUTE_DIRECTORY)),
          m_handle(FindFirstFileA(pattern, &m_found)),
          m_has_found(m_handle != INVALID_HANDLE_VALUE) {}
    NameSearch(const NameSearch&) = delete;
    NameSearch& operator=(const NameSearch&) = delete;
    ~NameSearch() {
        if (m_handle != INVALID_HANDLE_VALUE) {
            FindClose(m_handle);
        }
    }

    /// The next name that is wanted; null at the end.
    const char* Next() {
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

FindBlock::FindBlock() = default;
FindBlock::~FindBlock() = default;

int findfirst(const char* pattern, FindBlock& block, int attributes) {
    block.search = std::make_unique<NameSearch>(pattern, attributes);
    return findnext(block);
}

int findnext(FindBlock& block) {
    const char* const found = block.search ? block.search->Next() : nullptr;
    if (found == nullptr) {
        block.search.reset();
        return failure;
    }
    block.name = found;
    return 0;
}

}  // namespace lvx::platform
