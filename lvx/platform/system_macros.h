// lvx/platform/system_macros.h
//
// For headers of classes whose functions bear names that the system's header defines as macros, InsertMenu
// for example: it is included in front of all of them, so that a function has one name in every source file,
// whatever else that includes. Nothing on systems without that header.
#pragma once

#ifdef _WIN32
#include <windows.h>
#endif
