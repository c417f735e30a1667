// Puts a function of a test's own in place of one that a module gets from the system, so that a test sees the
// module's calls and makes them fail. What the test itself calls is the system's. Windows only.
#pragma once

#include <windows.h>

#include <cstring>

namespace lvx_test {

/// As long as it lives, `module` calls `replacement` where it means `function`. Nothing happens if it does
/// not import that.
class ImportHook {
public:
    template <class Function>
    ImportHook(const char* module, const char* function, Function* replacement)
        : m_place(FindPlace(reinterpret_cast<char*>(::GetModuleHandleA(module)), function)) {
        if (m_place != nullptr) {
            m_original = *m_place;
            Set(reinterpret_cast<ULONG_PTR>(replacement));
        }
    }
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;
    ~ImportHook() {
        if (m_place != nullptr) {
            Set(m_original);
        }
    }

    bool IsPlaced() const { return m_place != nullptr; }

private:
    /// Where the module keeps the address of the function.
    static ULONG_PTR* FindPlace(char* module, const char* function) {
        if (module == nullptr) {
            return nullptr;
        }
        const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(module);
        const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(module + dos->e_lfanew);
        const IMAGE_DATA_DIRECTORY& imports =
            headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        for (const auto* library =
                 reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(module + imports.VirtualAddress);
             library->Name != 0; ++library) {
            if (ULONG_PTR* const place = FindIn(module, *library, function)) {
                return place;
            }
        }
        return nullptr;
    }

    static ULONG_PTR* FindIn(char* module, const IMAGE_IMPORT_DESCRIPTOR& library, const char* function) {
        const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(module + library.OriginalFirstThunk);
        auto* place = reinterpret_cast<IMAGE_THUNK_DATA*>(module + library.FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++place) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) {
                continue;
            }
            const auto* const entry =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(module + name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(entry->Name), function) == 0) {
                return reinterpret_cast<ULONG_PTR*>(&place->u1.Function);
            }
        }
        return nullptr;
    }

    void Set(ULONG_PTR address) const {
        DWORD protection = 0;
        ::VirtualProtect(m_place, sizeof *m_place, PAGE_READWRITE, &protection);
        *m_place = address;
        ::VirtualProtect(m_place, sizeof *m_place, protection, &protection);
    }

    ULONG_PTR* m_place;
    ULONG_PTR m_original = 0;
};

}  // namespace lvx_test
