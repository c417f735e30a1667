// lvx/platform/posix/held_mutexes.h
//
// The mutexes that one thread holds, so that those can be told that the thread ends. Only the thread itself
// adds to its list; any thread may take out. Also who a mutex's owner is: a list has an address of its own as
// long as anybody holds it, while the system gives the number of a thread that ended to another one.
#pragma once

#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace lvx::platform {

class MutexObject;

class HeldMutexes {
public:
    HeldMutexes() = default;
    HeldMutexes(const HeldMutexes&) = delete;
    HeldMutexes& operator=(const HeldMutexes&) = delete;

    /// The calling thread's, made when it is first asked for. Whatever is in it when the thread ends is
    /// abandoned, behind the destructors of the thread's own variables. Throws std::bad_alloc.
    static std::shared_ptr<HeldMutexes> OfThisThread();

    /// Room for one more. Throws std::bad_alloc.
    void MakeRoom();

    /// Requires: MakeRoom() since the last Add().
    void Add(const std::shared_ptr<MutexObject>& mutex);

    /// Takes the mutex out, if it is there.
    void Forget(const MutexObject& mutex);

    /// Takes all out and tells those that still live.
    void AbandonAll();

private:
    // By address too: a mutex that is being destroyed takes itself out, and cannot be reached otherwise.
    using Entry = std::pair<const MutexObject*, std::weak_ptr<MutexObject>>;

    /// Takes one out that lives; null if there is none left.
    std::shared_ptr<MutexObject> TakeLast();

    std::mutex m_guard;
    std::vector<Entry> m_entries;
};

}  // namespace lvx::platform
