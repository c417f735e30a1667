// Puts a function of the test's own in the place of one that a module of this process imports, until the end
// of the object: for what a test cannot see in another way, such as a beep.
#pragma once

#include <windows.h>

#include <cstring>

namespace lvx_test {

namespace detail {

template <class T>
T* in_module(HMODULE module, DWORD offset) {
    return reinterpret_cast<T*>(reinterpret_cast<char*>(module) + offset);
}

inline void** find_import(HMODULE module, const IMAGE_IMPORT_DESCRIPTOR& from, const char* function) {
    auto* name = in_module<IMAGE_THUNK_DATA>(module, from.OriginalFirstThunk);
    auto* address = in_module<IMAGE_THUNK_DATA>(module, from.FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++address) {
        if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
            continue;
        const auto* const entry =
            in_module<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(name->u1.AddressOfData));
        if (std::strcmp(reinterpret_cast<const char*>(entry->Name), function) == 0)
            return reinterpret_cast<void**>(&address->u1.Function);
    }
    return nullptr;
}

/// Where `module` keeps the address of an imported function; null if it imports none of that name.
inline void** find_import(HMODULE module, const char* function) {
    const auto* const dos = in_module<IMAGE_DOS_HEADER>(module, 0);
    const auto* const headers = in_module<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    const DWORD table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* from = in_module<IMAGE_IMPORT_DESCRIPTOR>(module, table); from->Name != 0; ++from) {
        if (void** const place = find_import(module, *from, function))
            return place;
    }
    return nullptr;
}

}  // namespace detail

class ImportPatch {
public:
    template <class Function>
    ImportPatch(const char* module, const char* function, Function* replacement)
        : m_place(detail::find_import(::GetModuleHandleA(module), function)) {
        if (m_place != nullptr)
            m_original = Exchange(reinterpret_cast<void*>(replacement));
    }
    ~ImportPatch() {
        if (m_place != nullptr)
            Exchange(m_original);
    }
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    /// Whether the module imports such a function.
    bool IsInPlace() const { return m_place != nullptr; }

private:
    void* Exchange(void* address) const {
        DWORD access = 0;
        ::VirtualProtect(m_place, sizeof *m_place, PAGE_READWRITE, &access);
        void* const before = *m_place;
        *m_place = address;
        ::VirtualProtect(m_place, sizeof *m_place, access, &access);
        return before;
    }

    void** m_place;
    void* m_original = nullptr;
};

}  // namespace lvx_test
