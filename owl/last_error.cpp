#include "owl/last_error.h"

#include <array>

namespace owl {

std::string SystemText(DWORD code) {
    if (code == 0)
        return "the system gave no reason";
    std::array<char, 512> text{};
    DWORD length = ::FormatMessageA(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK, nullptr,
        code, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    while (length > 0 && static_cast<unsigned char>(text[length - 1]) <= ' ')
        --length;
    if (length == 0)
        return "error " + std::to_string(code);
    return std::string(text.data(), length);
}

std::string FailureText(const char* call, DWORD code) {
    return std::string(call) + ": " + SystemText(code);
}

}  // namespace owl
