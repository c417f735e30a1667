// owl/global_block.h
//
// Blocks of global memory, as the clipboard takes and gives them. Private to the framework; Windows only.
#pragma once

#include <windows.h>

#include <cstddef>
#include <utility>

#include "owl/last_error.h"

namespace owl {

/// A new block that is to be handed over: it is freed unless that came about.
class GlobalBlock {
public:
    /// Throws TXWindow if there is no memory.
    explicit GlobalBlock(std::size_t size)
        : m_handle(Require<TXWindow>("GlobalAlloc", [&] { return ::GlobalAlloc(GMEM_MOVEABLE, size); })) {}
    ~GlobalBlock() {
        if (m_handle)
            ::GlobalFree(m_handle);
    }
    GlobalBlock(const GlobalBlock&) = delete;
    GlobalBlock& operator=(const GlobalBlock&) = delete;

    HGLOBAL Get() const { return m_handle; }
    /// Another frees it from now on.
    HGLOBAL Release() { return std::exchange(m_handle, nullptr); }

private:
    HGLOBAL m_handle;
};

/// A lock on a block that another owns, as long as this object lives.
template <class T, class Failure>
class LockedBlock {
public:
    /// Throws a `Failure` if there is no such block.
    explicit LockedBlock(HGLOBAL block)
        : m_block(block),
          m_start(Require<Failure>("GlobalLock", [&] { return static_cast<T*>(::GlobalLock(block)); })) {}
    ~LockedBlock() { ::GlobalUnlock(m_block); }
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;

    T* Get() const { return m_start; }
    T* operator->() const { return m_start; }
    std::size_t Size() const { return ::GlobalSize(m_block); }

private:
    HGLOBAL m_block;
    T* m_start;
};

}  // namespace owl
