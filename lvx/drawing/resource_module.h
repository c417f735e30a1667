// lvx/drawing/resource_module.h
//
// Where bitmap resources lie that the library asks for by name: the library has none of its own yet, but the
// host has. Private to the library. Windows only.
#pragma once

#include <windows.h>

#include <string>

namespace lvx::drawing {

/// The first of these modules that has the bitmap resource `name`: the library, that of the owl::TApplication
/// if there is one, the program. The library if none has it.
HINSTANCE module_with_bitmap(const std::string& name);

}  // namespace lvx::drawing
