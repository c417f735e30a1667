// lvx/runtime/sync.h
//
// Events and mutexes of the system, owned by objects: made by the constructor, closed by the destructor, and
// every failure an exception. Any thread may call any operation at any time; an object has to live longer
// than the last call.
//
//     LVXMutex mutex(false, nullptr, nullptr);
//     mutex.Lock(INFINITE);
//     ++shared;
//     mutex.Unlock();
//
// A time-out is an exception too, so a caller who polls catches LockFailed. Time-outs are in milliseconds:
// with 0 nothing waits, with INFINITE (0xFFFFFFFF) or more a wait has no end.
//
// On Windows two objects of one name, in one process or in several, are one event or mutex. A name may not
// belong to a kind of object other than that; and of one that exists already the state, the way to reset and
// the first owner stay as they are. Elsewhere names and security attributes have no meaning: two objects of
// one name are two.
#pragma once

#include "lvx/platform/export.h"
#include "lvx/platform/waitable.h"
#include "lvx/text/error.h"

/// What has a handle to wait for. Owns the handle.
class LVX_EXPORT LVXSyncObject {
public:
    /// "Failed to lock synchronization object."
    class LVX_EXPORT LockFailed : public lvx::runtime_error {
    public:
        LockFailed();
        LockFailed(const LockFailed&) = default;
        ~LockFailed() override;
    };

    LVXSyncObject(const LVXSyncObject&) = delete;
    LVXSyncObject& operator=(const LVXSyncObject&) = delete;
    /// Closes the handle, unless it is null. Threads that wait at this moment go on waiting.
    virtual ~LVXSyncObject();

    /// Waits for the object at most `timeout` milliseconds. Derived classes may call this body: true if the
    /// object let the thread through; for anything else, also an abandoned mutex, which the calling thread
    /// then holds, it throws LVXSyncObject::LockFailed.
    virtual bool Lock(unsigned long timeout) = 0;

    /// Gives back what Lock took.
    virtual bool Unlock() = 0;

    /// The handle, which stays the object's own; null if a derived class did not make one.
    HANDLE GetHandle() const { return m_handle; }

protected:
    LVXSyncObject() = default;

    HANDLE m_handle = nullptr;
};

/// An event: set or not set. Threads that lock it wait until it is set. If it resets itself, each SetEvent
/// lets one thread through; with manual reset all pass until ResetEvent. Can stand where a lock is asked for:
/// unlocking does nothing.
class LVX_EXPORT LVXEvent : public LVXSyncObject {
public:
    /// "Failed to create mutex." The events' messages have always spoken of mutexes, and hosts show them.
    class LVX_EXPORT CreateFailed : public lvx::runtime_error {
    public:
        CreateFailed();
        CreateFailed(const CreateFailed&) = default;
        ~CreateFailed() override;
    };
    /// "Failed to lock mutex."
    class LVX_EXPORT LockFailed : public lvx::runtime_error {
    public:
        LockFailed();
        LockFailed(const LockFailed&) = default;
        ~LockFailed() override;
    };

    /// Makes the event, set at once if `initialState`. `name` and `security` may be null. Throws
    /// CreateFailed.
    LVXEvent(bool initialState, bool manualReset, const char* name, SECURITY_ATTRIBUTES* security);
    ~LVXEvent() override;

    /// True once the event is or was set. Throws LVXEvent::LockFailed for anything else, such as a time-out.
    bool Lock(unsigned long timeout) override;

    /// Does nothing. True.
    bool Unlock() override;

    /// Sets the event. True if the system did it.
    bool SetEvent();

    /// Lets those through that wait at this moment, one of them unless the event is reset by hand, and leaves
    /// the event not set. True if the system did it. Whoever is only about to wait misses it.
    bool PulseEvent();

    /// The event is not set any more. True if the system did it.
    bool ResetEvent();
};

/// A mutex: held by one thread, as many times as that has locked it.
class LVX_EXPORT LVXMutex : public LVXSyncObject {
public:
    /// "Failed to create mutex."
    class LVX_EXPORT CreateFailed : public lvx::runtime_error {
    public:
        CreateFailed();
        CreateFailed(const CreateFailed&) = default;
        ~CreateFailed() override;
    };
    /// "Failed to lock mutex."
    class LVX_EXPORT LockFailed : public lvx::runtime_error {
    public:
        LockFailed();
        LockFailed(const LockFailed&) = default;
        ~LockFailed() override;
    };
    /// "Failed to release mutex."
    class LVX_EXPORT ReleaseFailed : public lvx::runtime_error {
    public:
        ReleaseFailed();
        ReleaseFailed(const ReleaseFailed&) = default;
        ~ReleaseFailed() override;
    };

    /// Makes the mutex, held by the calling thread if `initiallyOwned`. `name` and `security` may be null.
    /// Throws CreateFailed.
    LVXMutex(bool initiallyOwned, const char* name, SECURITY_ATTRIBUTES* security);
    ~LVXMutex() override;

    /// True if the thread holds the mutex. False if it holds it because the thread that held it ended without
    /// unlocking: what the mutex guards may be half changed. It is to be unlocked either way. Throws
    /// LVXMutex::LockFailed for anything else, such as a time-out.
    bool Lock(unsigned long timeout) override;

    /// Takes one Lock back; with the last one the mutex is free. True. Throws ReleaseFailed if the calling
    /// thread does not hold it.
    bool Unlock() override;
};
