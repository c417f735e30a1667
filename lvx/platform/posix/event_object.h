// lvx/platform/posix/event_object.h
//
// An event, as lvx/platform/waitable.h tells it. If it is set, nobody waits.
#pragma once

#include <mutex>

#include "lvx/platform/posix/wait_queue.h"
#include "lvx/platform/posix/waitable_object.h"

namespace lvx::platform {

class EventObject final : public WaitableObject {
public:
    EventObject(bool manual_reset, bool set) : m_manual_reset(manual_reset), m_set(set) {}

    unsigned long Wait(unsigned long milliseconds) override;
    void Set();
    void Pulse();
    void Reset();

private:
    /// Whether somebody was there to be released.
    bool ReleaseWaiting();

    std::mutex m_guard;
    WaitQueue m_queue;
    const bool m_manual_reset;
    bool m_set;
};

}  // namespace lvx::platform
