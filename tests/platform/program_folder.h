// tests/platform/program_folder.h
//
// Where the running test program lies.
#pragma once

#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#endif

namespace lvx_test {

inline std::filesystem::path program_folder() {
#ifdef _WIN32
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path, path + length).parent_path();
#else
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
#endif
}

}  // namespace lvx_test
