// lvx/platform/waitable.h
//
// Events and mutexes: objects that are known by a handle and that a thread waits for. On Windows the system's
// calls; elsewhere the same calls with the same results inside one process. Any thread may call them.
//
// An event is set or not. One that resets itself lets exactly one waiting thread through for each SetEvent,
// one that is reset by hand all of them until ResetEvent. A mutex is held by one thread, as often as that
// waits for it; threads get it in the order in which they came. A mutex whose thread ends is abandoned: the
// next thread gets it, and is told so.
//
// An object lives until its handle is closed and no thread waits for it any more. Off Windows nothing can
// release a thread that waits for an event whose handle was closed; only a time-out ends that wait.
//
// Off Windows they do not: tell why they failed (there is no last error), reach another process, or take
// notice of names and security attributes. Two objects of one name are two objects there.
#pragma once

#ifdef _WIN32

#include <windows.h>

#else

#include "lvx/platform/export.h"

using HANDLE = void*;

/// Has no meaning here.
struct SECURITY_ATTRIBUTES;

/// A time-out that never comes. So is every longer one.
inline constexpr unsigned long INFINITE = 0xFFFFFFFF;

inline constexpr unsigned long WAIT_OBJECT_0 = 0;
inline constexpr unsigned long WAIT_ABANDONED = 0x80;
inline constexpr unsigned long WAIT_TIMEOUT = 0x102;
inline constexpr unsigned long WAIT_FAILED = 0xFFFFFFFF;

// C linkage, as the system's own have.
extern "C" {

/// A new event; with a `manual_reset` of 0 it resets itself. The caller closes the handle. Null if there is
/// no memory.
LVX_EXPORT HANDLE CreateEventA(SECURITY_ATTRIBUTES* security, int manual_reset, int initial_state,
                               const char* name);

/// A new mutex, held by the calling thread unless `initially_owned` is 0. The caller closes the handle. Null
/// if there is no memory.
LVX_EXPORT HANDLE CreateMutexA(SECURITY_ATTRIBUTES* security, int initially_owned, const char* name);

/// Sets the event. 0 if the handle is not an event's.
LVX_EXPORT int SetEvent(HANDLE event);

/// Lets those through that wait at this moment (one of them, if the event resets itself), and leaves the
/// event not set. Whoever comes later waits. 0 if the handle is not an event's.
LVX_EXPORT int PulseEvent(HANDLE event);

/// The event is not set any more. 0 if the handle is not an event's.
LVX_EXPORT int ResetEvent(HANDLE event);

/// Takes one of the calling thread's waits for the mutex back; the last one frees it. 0 if the thread does
/// not hold it, or the handle is not a mutex's.
LVX_EXPORT int ReleaseMutex(HANDLE mutex);

/// Waits until the object lets the calling thread through, at most so many milliseconds of a clock that
/// nobody sets; 0 only asks. WAIT_OBJECT_0; WAIT_ABANDONED for a mutex whose thread ended, which the calling
/// thread then holds; WAIT_TIMEOUT; WAIT_FAILED if the handle is no object's or there is no memory.
LVX_EXPORT unsigned long WaitForSingleObject(HANDLE object, unsigned long milliseconds);

/// Gives the handle up. 0 if it is no object's, or was closed before. Threads that wait go on waiting.
LVX_EXPORT int CloseHandle(HANDLE object);
}

#endif
