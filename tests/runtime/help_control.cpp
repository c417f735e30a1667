#include "help_control.h"

#include <cstddef>
#include <cstring>
#include <iterator>

namespace {

constexpr UINT show_text_of_control = 0x11;

HelpCall last_call{};

void copy_pairs(const unsigned long* pairs) {
    for (std::size_t i = 0; i + 1 < std::size(last_call.pairs); i += 2) {
        last_call.pairs[i] = pairs[i];
        last_call.pairs[i + 1] = pairs[i + 1];
        if (pairs[i] == 0)
            return;
    }
}

}  // namespace

extern "C" {

__declspec(dllexport) HWND WINAPI HtmlHelpA(HWND window, const char* file, UINT command, DWORD_PTR data) {
    ++last_call.count;
    last_call.window = window;
    std::strncpy(last_call.file, file, sizeof last_call.file - 1);
    last_call.command = command;
    last_call.data = data;
    if (command == show_text_of_control && data != 0)
        copy_pairs(reinterpret_cast<const unsigned long*>(data));
    return nullptr;
}

__declspec(dllexport) const HelpCall* LastHelpCall() {
    return &last_call;
}
}
