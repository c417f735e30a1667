// lvx/platform/posix/mutex_object.h
//
// A mutex, as lvx/platform/waitable.h tells it. Always owned by std::shared_ptr. It is handed from thread to
// thread: who releases it makes the first that waits its owner.
//
// The robust mutexes of pthread are not used: one that is held must not be destroyed, and a host may well
// close the handle of a mutex that it, or a thread of its, still holds.
#pragma once

#include <cstddef>
#include <memory>
#include <mutex>

#include "lvx/platform/posix/held_mutexes.h"
#include "lvx/platform/posix/wait_queue.h"
#include "lvx/platform/posix/waitable_object.h"

namespace lvx::platform {

class MutexObject final : public WaitableObject, public std::enable_shared_from_this<MutexObject> {
public:
    ~MutexObject() override;

    unsigned long Wait(unsigned long milliseconds) override;

    /// False if the calling thread does not hold it. Throws std::bad_alloc.
    bool Release();

    /// The thread that holds `owner`'s mutexes ends. Nothing happens if that does not hold this one any more.
    void Abandon(const HeldMutexes& owner);

private:
    /// Gives it to `thread`, whose list has room. The list is told by the thread itself.
    void GiveTo(std::shared_ptr<HeldMutexes> thread);
    /// Gives it to the first that waits, with `outcome`. False if nobody does; it then has no owner.
    bool HandOver(unsigned long outcome);

    std::mutex m_guard;
    WaitQueue m_queue;
    // Null if it is free.
    std::shared_ptr<HeldMutexes> m_owner;
    std::size_t m_depth = 0;
    // Free, and its last owner ended without releasing it.
    bool m_abandoned = false;
};

}  // namespace lvx::platform
