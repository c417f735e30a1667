// lvx/platform/library_module.h
//
// The module that this library is, as a source of resources. Windows only.
#pragma once

#include <windows.h>

namespace lvx::platform {

/// Its handle, which nobody has to free: the DLL, or the program that the library is linked into.
HINSTANCE library_module();

}  // namespace lvx::platform
