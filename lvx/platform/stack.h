// lvx/platform/stack.h
//
// How much of the calling thread's stack is left, for code that recurses as deep as its input says.
#pragma once

namespace lvx::platform {

/// True when the calling thread has so little stack left that a recursion has to end with an exception while
/// there is still room to throw it: 256 KiB, or a quarter of a smaller stack.
bool stack_is_low();

}  // namespace lvx::platform
