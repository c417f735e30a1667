#include "lvx/platform/stack.h"

#include <windows.h>

#include "lvx/platform/stack_limit.h"

namespace lvx::platform {

bool stack_is_low() {
    ULONG_PTR lowest = 0;
    ULONG_PTR highest = 0;
    GetCurrentThreadStackLimits(&lowest, &highest);
    return is_low(reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)), lowest,
                  low_part(highest - lowest));
}

}  // namespace lvx::platform
