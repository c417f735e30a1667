// lvx/platform/turn.h
//
// How pictures are turned on this system.
#pragma once

#include "lvx/images/turn.h"

namespace lvx::platform {

#ifdef _WIN32
inline constexpr images::Turner* turn = images::turn_on_device;
#else
inline constexpr images::Turner* turn = images::turn_in_memory;
#endif

}  // namespace lvx::platform
