#include "lvx/platform/posix/held_mutexes.h"

#include <pthread.h>

#include <new>

#include "lvx/platform/posix/mutex_object.h"

namespace lvx::platform {

namespace {

using Slot = std::shared_ptr<HeldMutexes>;

void end_of_thread(void* slot) {
    const std::unique_ptr<Slot> ending(static_cast<Slot*>(slot));
    (*ending)->AbandonAll();
}

// A key, whose destructors run behind those of thread_local variables: a destructor there that takes a mutex
// gets a new list, which the key ends in its turn. Never given back; the library stays loaded.
struct Key {
    Key() : made(pthread_key_create(&key, end_of_thread) == 0) {}

    pthread_key_t key{};
    const bool made;
};

const Key& slots() {
    static const Key instance;
    return instance;
}

}  // namespace

std::shared_ptr<HeldMutexes> HeldMutexes::OfThisThread() {
    const Key& all = slots();
    if (!all.made) {
        throw std::bad_alloc();
    }
    if (const void* const known = pthread_getspecific(all.key); known != nullptr) {
        return *static_cast<const Slot*>(known);
    }
    auto slot = std::make_unique<Slot>(std::make_shared<HeldMutexes>());
    if (pthread_setspecific(all.key, slot.get()) != 0) {
        throw std::bad_alloc();
    }
    return *slot.release();
}

void HeldMutexes::MakeRoom() {
    const std::lock_guard guard(m_guard);
    if (m_entries.size() == m_entries.capacity()) {
        m_entries.reserve(2 * m_entries.size() + 4);
    }
}

void HeldMutexes::Add(const std::shared_ptr<MutexObject>& mutex) {
    const std::lock_guard guard(m_guard);
    m_entries.emplace_back(mutex.get(), mutex);
}

void HeldMutexes::Forget(const MutexObject& mutex) {
    const std::lock_guard guard(m_guard);
    std::erase_if(m_entries, [&mutex](const Entry& entry) { return entry.first == &mutex; });
}

void HeldMutexes::AbandonAll() {
    // Each is told outside the lock: it has one of its own, which comes first everywhere else.
    while (const std::shared_ptr<MutexObject> mutex = TakeLast()) {
        mutex->Abandon(*this);
    }
}

std::shared_ptr<MutexObject> HeldMutexes::TakeLast() {
    const std::lock_guard guard(m_guard);
    std::shared_ptr<MutexObject> taken;
    while (taken == nullptr && !m_entries.empty()) {
        taken = m_entries.back().second.lock();
        m_entries.pop_back();
    }
    return taken;
}

}  // namespace lvx::platform
