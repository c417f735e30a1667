// lvx/platform/posix/waitable_object.h
//
// What stands behind the handle of an event or a mutex. Shared by the table of handles and by the threads
// that use it at the moment.
#pragma once

namespace lvx::platform {

class WaitableObject {
public:
    WaitableObject() = default;
    WaitableObject(const WaitableObject&) = delete;
    WaitableObject& operator=(const WaitableObject&) = delete;
    virtual ~WaitableObject() = default;

    /// As WaitForSingleObject, but for exhausted memory, which throws std::bad_alloc.
    virtual unsigned long Wait(unsigned long milliseconds) = 0;
};

}  // namespace lvx::platform
