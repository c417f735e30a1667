#include "help_control.h"

#include <cstring>

namespace {

HelpCall last_call{};

}  // namespace

extern "C" {

__declspec(dllexport) HWND WINAPI HtmlHelpA(HWND window, const char* file, UINT command, DWORD_PTR data) {
    ++last_call.count;
    last_call.window = window;
    std::strncpy(last_call.file, file, sizeof last_call.file - 1);
    last_call.command = command;
    last_call.data = data;
    return nullptr;
}

__declspec(dllexport) const HelpCall* LastHelpCall() {
    return &last_call;
}
}
