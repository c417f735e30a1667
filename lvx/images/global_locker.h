// lvx/images/global_locker.h
//
// A lock on a block of global memory, held as long as the object lives, with a pointer to read through. The
// block belongs to someone else and has to live at least as long. One thread at a time.
#pragma once

#include <utility>

#include "lvx/platform/global_memory.h"

namespace LVXUtilities {

template <class T>
class GlobalLocker {
public:
    /// Locks `block` and points at its start. For a null or invalid handle the pointer is null and there is
    /// nothing to unlock.
    explicit GlobalLocker(void* block) : m_block(block), m_pointer(static_cast<T*>(GlobalLock(block))) {}
    /// A lock of its own on the same block, the pointer where the other one's is.
    GlobalLocker(const GlobalLocker& other) : m_block(other.m_block), m_pointer(other.m_pointer) {
        GlobalLock(m_block);
    }
    /// Takes the lock over. The other one is left without block and pointer.
    GlobalLocker(GlobalLocker&& other) noexcept
        : m_block(std::exchange(other.m_block, nullptr)),
          m_pointer(std::exchange(other.m_pointer, nullptr)) {}
    ~GlobalLocker() {
        if (m_block != nullptr) {
            GlobalUnlock(m_block);
        }
    }

    GlobalLocker& operator=(GlobalLocker other) noexcept {
        std::swap(m_block, other.m_block);
        std::swap(m_pointer, other.m_pointer);
        return *this;
    }

    /// Has the locker carry `pointer`, which is to point into the block. What it unlocks stays the same.
    void MoveTo(T* pointer) { m_pointer = pointer; }

    /// The pointer carried; null if the block could not be locked. Valid as long as the locker.
    T* get() const { return m_pointer; }
    operator T*() const { return m_pointer; }
    /// Requires: not null.
    T* operator->() const { return m_pointer; }

private:
    void* m_block;
    T* m_pointer;
};

}  // namespace LVXUtilities
