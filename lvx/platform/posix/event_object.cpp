#include "lvx/platform/posix/event_object.h"

namespace lvx::platform {

unsigned long EventObject::Wait(unsigned long milliseconds) {
    std::unique_lock lock(m_guard);
    if (m_set) {
        m_set = m_manual_reset;
        return WAIT_OBJECT_0;
    }
    Waiter waiter;
    return m_queue.Wait(lock, waiter, milliseconds) ? waiter.outcome : WAIT_TIMEOUT;
}

void EventObject::Set() {
    const std::lock_guard guard(m_guard);
    m_set = !ReleaseWaiting() || m_manual_reset;
}

void EventObject::Pulse() {
    const std::lock_guard guard(m_guard);
    ReleaseWaiting();
    m_set = false;
}

void EventObject::Reset() {
    const std::lock_guard guard(m_guard);
    m_set = false;
}

bool EventObject::ReleaseWaiting() {
    const bool released = m_queue.ReleaseFirst() != nullptr;
    if (m_manual_reset) {
        m_queue.ReleaseAll();
    }
    return released;
}

}  // namespace lvx::platform
