#include "lvx/platform/posix/wait_queue.h"

#include <chrono>

namespace lvx::platform {

namespace {

void wait_for_release(std::unique_lock<std::mutex>& lock, Waiter& waiter, unsigned long milliseconds) {
    const auto is_released = [&waiter] { return waiter.released; };
    if (milliseconds >= INFINITE) {
        waiter.woken.wait(lock, is_released);
    } else {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        waiter.woken.wait_until(lock, end, is_released);
    }
}

}  // namespace

bool WaitQueue::Wait(std::unique_lock<std::mutex>& lock, Waiter& waiter, unsigned long milliseconds) {
    if (milliseconds == 0) {
        return false;
    }
    const auto place = m_waiters.insert(m_waiters.end(), &waiter);
    wait_for_release(lock, waiter, milliseconds);
    if (!waiter.released) {
        m_waiters.erase(place);
    }
    return waiter.released;
}

Waiter* WaitQueue::ReleaseFirst(unsigned long outcome) {
    if (m_waiters.empty()) {
        return nullptr;
    }
    Waiter* const first = m_waiters.front();
    m_waiters.pop_front();
    first->outcome = outcome;
    first->released = true;
    // Under the lock: once that is open, the released thread may be gone, and its place with it.
    first->woken.notify_one();
    return first;
}

void WaitQueue::ReleaseAll() {
    while (ReleaseFirst() != nullptr) {
    }
}

}  // namespace lvx::platform
