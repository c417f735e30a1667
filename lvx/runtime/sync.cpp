#include "lvx/runtime/sync.h"

namespace {

// Whether the object was let go as it should be; false if its owner ended with it.
template <class Failure>
bool wait(HANDLE handle, unsigned long timeout) {
    switch (WaitForSingleObject(handle, timeout)) {
        case WAIT_OBJECT_0:
            return true;
        case WAIT_ABANDONED:
            return false;
        default:
            throw Failure();
    }
}

}  // namespace

LVXSyncObject::LockFailed::LockFailed() : lvx::runtime_error("Failed to lock synchronization object.") {}
LVXSyncObject::LockFailed::~LockFailed() = default;

LVXSyncObject::~LVXSyncObject() {
    if (m_handle != nullptr) {
        CloseHandle(m_handle);
        m_handle = nullptr;
    }
}

bool LVXSyncObject::Lock(unsigned long timeout) {
    if (WaitForSingleObject(m_handle, timeout) != WAIT_OBJECT_0) {
        throw LockFailed();
    }
    return true;
}

LVXEvent::CreateFailed::CreateFailed() : lvx::runtime_error("Failed to create mutex.") {}
LVXEvent::CreateFailed::~CreateFailed() = default;

LVXEvent::LockFailed::LockFailed() : lvx::runtime_error("Failed to lock mutex.") {}
LVXEvent::LockFailed::~LockFailed() = default;

LVXEvent::LVXEvent(bool initialState, bool manualReset, const char* name, SECURITY_ATTRIBUTES* security) {
    m_handle = CreateEventA(security, manualReset, initialState, name);
    if (m_handle == nullptr) {
        throw CreateFailed();
    }
}

LVXEvent::~LVXEvent() = default;

bool LVXEvent::Lock(unsigned long timeout) {
    return wait<LockFailed>(m_handle, timeout);
}

bool LVXEvent::Unlock() {
    return true;
}

bool LVXEvent::SetEvent() {
    return ::SetEvent(m_handle) != 0;
}

bool LVXEvent::PulseEvent() {
    return ::PulseEvent(m_handle) != 0;
}

bool LVXEvent::ResetEvent() {
    return ::ResetEvent(m_handle) != 0;
}

LVXMutex::CreateFailed::CreateFailed() : lvx::runtime_error("Failed to create mutex.") {}
LVXMutex::CreateFailed::~CreateFailed() = default;

LVXMutex::LockFailed::LockFailed() : lvx::runtime_error("Failed to lock mutex.") {}
LVXMutex::LockFailed::~LockFailed() = default;

LVXMutex::ReleaseFailed::ReleaseFailed() : lvx::runtime_error("Failed to release mutex.") {}
LVXMutex::ReleaseFailed::~ReleaseFailed() = default;

LVXMutex::LVXMutex(bool initiallyOwned, const char* name, SECURITY_ATTRIBUTES* security) {
    m_handle = CreateMutexA(security, initiallyOwned, name);
    if (m_handle == nullptr) {
        throw CreateFailed();
    }
}

LVXMutex::~LVXMutex() = default;

bool LVXMutex::Lock(unsigned long timeout) {
    return wait<LockFailed>(m_handle, timeout);
}

bool LVXMutex::Unlock() {
    if (ReleaseMutex(m_handle) == 0) {
        throw ReleaseFailed();
    }
    return true;
}
