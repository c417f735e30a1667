#include "lvx/platform/library_module.h"

namespace lvx::platform {

HINSTANCE library_module() {
    HMODULE module = nullptr;
    ::GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const char*>(&library_module), &module);
    return module;
}

}  // namespace lvx::platform
