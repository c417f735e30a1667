#include "lvx/platform/waitable.h"

#include <memory>
#include <new>

#include "lvx/platform/posix/event_object.h"
#include "lvx/platform/posix/handle_table.h"
#include "lvx/platform/posix/mutex_object.h"

namespace {

using lvx::platform::EventObject;
using lvx::platform::MutexObject;
using lvx::platform::WaitableObject;

using Object = std::shared_ptr<WaitableObject>;
using Objects = lvx::platform::HandleTable<Object>;

// Never destroyed: threads and static objects of other modules use theirs as late as they like.
Objects& objects() {
    static Objects& instance = *new Objects(1);
    return instance;
}

Object find(HANDLE handle) {
    return objects().Look(handle, [](const Object& found) { return found; });
}

// 0 if the handle is not one of a `Kind`, else what `use` returns for the object. It lives so long, whoever
// closes the handle meanwhile.
template <class Kind, class Use>
int with(HANDLE handle, Use use) {
    const std::shared_ptr<Kind> object = std::dynamic_pointer_cast<Kind>(find(handle));
    return object != nullptr && use(*object) ? 1 : 0;
}

template <class Action>
int with_event(HANDLE handle, Action action) {
    return with<EventObject>(handle, [action](EventObject& event) {
        (event.*action)();
        return true;
    });
}

}  // namespace

HANDLE CreateEventA(SECURITY_ATTRIBUTES*, int manual_reset, int initial_state, const char*) {
    try {
        return objects().Add(std::make_shared<EventObject>(manual_reset != 0, initial_state != 0));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

HANDLE CreateMutexA(SECURITY_ATTRIBUTES*, int initially_owned, const char*) {
    try {
        const auto mutex = std::make_shared<MutexObject>();
        if (initially_owned != 0) {
            mutex->Wait(0);
        }
        return objects().Add(mutex);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

int SetEvent(HANDLE event) {
    return with_event(event, &EventObject::Set);
}

int PulseEvent(HANDLE event) {
    return with_event(event, &EventObject::Pulse);
}

int ResetEvent(HANDLE event) {
    return with_event(event, &EventObject::Reset);
}

int ReleaseMutex(HANDLE mutex) {
    try {
        return with<MutexObject>(mutex, [](MutexObject& found) { return found.Release(); });
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

unsigned long WaitForSingleObject(HANDLE object, unsigned long milliseconds) {
    const Object found = find(object);
    if (found == nullptr) {
        return WAIT_FAILED;
    }
    try {
        return found->Wait(milliseconds);
    } catch (const std::bad_alloc&) {
        return WAIT_FAILED;
    }
}

int CloseHandle(HANDLE object) {
    return objects().Remove(object) ? 1 : 0;
}
