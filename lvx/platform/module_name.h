// lvx/platform/module_name.h
//
// The name of the file that the process's main program was started from. On Windows the system's calls.
#pragma once

#ifdef _WIN32

#include <windows.h>

#else

#include <cstdint>

using DWORD = std::uint32_t;
using HMODULE = const void*;

/// The handle of the main program, which nobody owns, for a `name` of null. Null for any other name.
HMODULE GetModuleHandleA(const char* name);

/// The full path of the main program, with a drive, and a NUL in `buffer`; returns its length. A path that
/// needs more than `size` characters with its NUL is cut to that, and `size` is returned. 0 if `module` is
/// neither null nor the main program's handle, the path cannot be told, or `size` is 0.
DWORD GetModuleFileNameA(HMODULE module, char* buffer, DWORD size);

#endif
