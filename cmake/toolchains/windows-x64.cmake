# Windows, x64, by mingw-w64 with the posix thread model. The programs run under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Dependencies made by scripts/cross-deps for this system; nothing of the build machine's own is taken.
include(${CMAKE_CURRENT_LIST_DIR}/windows-deps.cmake)
lvx_use_windows_deps(windows-x64)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${LVX_DEPS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../scripts/run-windows;windows-x64)
