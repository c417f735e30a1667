#include "lvx/platform/module_name.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

#include "lvx/platform/posix/native_path.h"

namespace {

// Its address is the handle.
constexpr char main_program = 0;

std::string main_program_path() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return lvx::platform::drive_path(program.native()).value_or("");
}

}  // namespace

HMODULE GetModuleHandleA(const char* name) {
    return name == nullptr ? &main_program : nullptr;
}

DWORD GetModuleFileNameA(HMODULE module, char* buffer, DWORD size) {
    const std::string path = module == nullptr || module == &main_program ? main_program_path() : "";
    if (path.empty() || size == 0) {
        return 0;
    }
    const std::size_t copied = path.copy(buffer, size - 1);
    buffer[copied] = '\0';
    return copied < path.size() ? size : static_cast<DWORD>(copied);
}
