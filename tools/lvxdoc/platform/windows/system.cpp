#include "tools/lvxdoc/platform/system.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <cerrno>

namespace lvxdoc::platform {

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

std::FILE* create_new(const std::filesystem::path& path) {
    const int descriptor =
        _wopen(path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
    return descriptor < 0 ? nullptr : _fdopen(descriptor, "wb");
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
