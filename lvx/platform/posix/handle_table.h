// lvx/platform/posix/handle_table.h
//
// The live objects of one kind by their handles. A handle is a number that is never used twice, not an
// address: that is how a stale one is told from a live one. Any thread may use a table at any time.
#pragma once

#include <cstdint>
#include <mutex>
#include <shared_mutex>
#include <unordered_map>
#include <utility>

namespace lvx::platform {

template <class Object>
class HandleTable {
public:
    /// Its first handle is `first`. Two tables whose first ones differ by less than 4 share no handle.
    explicit HandleTable(std::uintptr_t first) : m_next(first) {}
    HandleTable(const HandleTable&) = delete;
    HandleTable& operator=(const HandleTable&) = delete;

    /// The handle of `object` from here on. Throws std::bad_alloc.
    void* Add(Object object) {
        const std::lock_guard guard(m_guard);
        const std::uintptr_t number = m_next;
        m_objects.emplace(number, std::move(object));
        m_next += step;
        return reinterpret_cast<void*>(number);
    }

    /// False if there was none. The object ends outside the lock, as that may take a while.
    bool Remove(void* handle) { return !Extract(handle).empty(); }

    /// What `use` returns for the object, which it may change, or a zero if there is none.
    template <class Use>
    auto With(void* handle, Use use) {
        const std::lock_guard guard(m_guard);
        const auto found = m_objects.find(number_of(handle));
        return found == m_objects.end() ? decltype(use(found->second)){} : use(found->second);
    }

    /// The same for a `use` that only looks; as many threads at a time as like.
    template <class Use>
    auto Look(void* handle, Use use) const {
        const std::shared_lock guard(m_guard);
        const auto found = m_objects.find(number_of(handle));
        return found == m_objects.end() ? decltype(use(found->second)){} : use(found->second);
    }

private:
    using Objects = std::unordered_map<std::uintptr_t, Object>;

    static std::uintptr_t number_of(void* handle) { return reinterpret_cast<std::uintptr_t>(handle); }

    typename Objects::node_type Extract(void* handle) {
        const std::lock_guard guard(m_guard);
        return m_objects.extract(number_of(handle));
    }

    // Unless the first is a multiple of 4, no handle is a valid address of anything, so that using one as a
    // pointer shows at once.
    static constexpr std::uintptr_t step = 4;

    mutable std::shared_mutex m_guard;
    Objects m_objects;
    std::uintptr_t m_next;
};

}  // namespace lvx::platform
