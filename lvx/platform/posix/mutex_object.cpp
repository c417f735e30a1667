#include "lvx/platform/posix/mutex_object.h"

#include <utility>

namespace lvx::platform {

MutexObject::~MutexObject() {
    if (m_owner != nullptr) {
        m_owner->Forget(*this);
    }
}

unsigned long MutexObject::Wait(unsigned long milliseconds) {
    std::shared_ptr<HeldMutexes> thread = HeldMutexes::OfThisThread();
    // From here on nothing can fail that would leave the mutex with an owner who does not know it.
    thread->MakeRoom();
    Waiter waiter;
    waiter.thread = thread;
    std::unique_lock lock(m_guard);
    if (m_owner == thread) {
        ++m_depth;
        return WAIT_OBJECT_0;
    }
    if (m_owner == nullptr) {
        GiveTo(thread);
        waiter.outcome = std::exchange(m_abandoned, false) ? WAIT_ABANDONED : WAIT_OBJECT_0;
    } else if (!m_queue.Wait(lock, waiter, milliseconds)) {
        return WAIT_TIMEOUT;
    }
    thread->Add(shared_from_this());
    return waiter.outcome;
}

bool MutexObject::Release() {
    const std::shared_ptr<HeldMutexes> thread = HeldMutexes::OfThisThread();
    const std::lock_guard guard(m_guard);
    if (m_owner != thread) {
        return false;
    }
    if (--m_depth == 0) {
        thread->Forget(*this);
        HandOver(WAIT_OBJECT_0);
    }
    return true;
}

void MutexObject::Abandon(const HeldMutexes& owner) {
    const std::lock_guard guard(m_guard);
    if (m_owner.get() == &owner) {
        m_abandoned = !HandOver(WAIT_ABANDONED);
    }
}

void MutexObject::GiveTo(std::shared_ptr<HeldMutexes> thread) {
    m_owner = std::move(thread);
    m_depth = 1;
}

bool MutexObject::HandOver(unsigned long outcome) {
    const Waiter* const next = m_queue.ReleaseFirst(outcome);
    m_owner = nullptr;
    if (next != nullptr) {
        GiveTo(next->thread);
    }
    return next != nullptr;
}

}  // namespace lvx::platform
