// A help control of the tests' own: notes what it is called with. Shared by the control and the tests.
#pragma once

#include <windows.h>

/// The last call of HtmlHelpA.
struct HelpCall {
    int count;
    HWND window;
    char file[300];
    UINT command;
    DWORD_PTR data;
};

/// The name of the function that tells it: `const HelpCall*()`.
inline constexpr const char* last_call_name = "LastHelpCall";
