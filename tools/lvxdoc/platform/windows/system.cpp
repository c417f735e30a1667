#include "tools/lvxdoc/platform/system.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cerrno>
#include <cstdint>

namespace lvxdoc::platform {
namespace {

// The C library keeps its own table to itself.
int error_number(DWORD error) {
    switch (error) {
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return EEXIST;
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
            return ENOENT;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_WRITE_PROTECT:
            return EACCES;
        case ERROR_DISK_FULL:
            return ENOSPC;
        default:
            return EIO;
    }
}

}  // namespace

// Names on the command line are in the system's code page, and so are those that the C library opens.
std::filesystem::path native_path(const std::string& name) {
    const int length = static_cast<int>(name.size());
    std::wstring wide(name.size(), L'\0');
    const int used = MultiByteToWideChar(CP_ACP, 0, name.data(), length, wide.data(), length);
    wide.resize(static_cast<std::size_t>(used));
    return wide;
}

std::string narrow_name(const std::filesystem::path& path) {
    const std::wstring& wide = path.native();
    const int length = static_cast<int>(wide.size());
    std::string name(wide.size() * 4, '\0');
    const int used = WideCharToMultiByte(CP_ACP, 0, wide.data(), length, name.data(),
                                         static_cast<int>(name.size()), nullptr, nullptr);
    name.resize(static_cast<std::size_t>(used));
    return name;
}

// Shared for deletion as well: an interrupt comes while the file is open.
std::FILE* create_new(const std::filesystem::path& path) {
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, sharing, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        errno = error_number(GetLastError());
        return nullptr;
    }
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_WRONLY | _O_BINARY);
    if (descriptor < 0) {
        CloseHandle(handle);
        return nullptr;
    }
    return _fdopen(descriptor, "wb");
}

bool is_terminal(std::FILE* file) {
    // The null device counts as a character device there, but has no console behind it.
    DWORD mode = 0;
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
    return _isatty(_fileno(file)) != 0 && GetConsoleMode(handle, &mode) != 0;
}

unsigned long process_number() {
    return GetCurrentProcessId();
}

void make_binary(std::FILE* file) {
    _setmode(_fileno(file), _O_BINARY);
}

void ignore_broken_pipes() {}

bool is_broken_pipe(int error) {
    // The C library has no code of its own for ERROR_NO_DATA, the second write to a closed pipe.
    return error == EPIPE || (error == EINVAL && GetLastError() == ERROR_NO_DATA);
}

}  // namespace lvxdoc::platform
