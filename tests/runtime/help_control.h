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
    /// What `data` points at if the command shows the text of a control: pairs of ids up to one of zeros.
    unsigned long pairs[64];
};

/// The name of the function that tells it: `const HelpCall*()`.
inline constexpr const char* last_call_name = "LastHelpCall";
