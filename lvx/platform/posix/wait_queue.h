// lvx/platform/posix/wait_queue.h
//
// The threads that wait for one object, in the order in which they came. Each is released by name, so that
// nobody who comes later can slip in between. Everything happens under the lock of the object.
#pragma once

#include <condition_variable>
#include <list>
#include <memory>
#include <mutex>

#include "lvx/platform/waitable.h"

namespace lvx::platform {

class HeldMutexes;

/// One thread's place in the queue.
struct Waiter {
    /// Who waits, if the object asks for that.
    std::shared_ptr<HeldMutexes> thread;
    /// What its wait comes to once it is released.
    unsigned long outcome = WAIT_OBJECT_0;
    bool released = false;
    std::condition_variable woken;
};

class WaitQueue {
public:
    /// Has the calling thread wait at the end of the queue, at most so many milliseconds. `lock` is open
    /// meanwhile. Whether it was released. Throws std::bad_alloc, without having waited.
    bool Wait(std::unique_lock<std::mutex>& lock, Waiter& waiter, unsigned long milliseconds);

    /// Releases the thread that has waited longest. Valid until the lock is open. Null if nobody waits.
    Waiter* ReleaseFirst(unsigned long outcome = WAIT_OBJECT_0);

    void ReleaseAll();

private:
    std::list<Waiter*> m_waiters;
};

}  // namespace lvx::platform
