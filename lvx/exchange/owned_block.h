// lvx/exchange/owned_block.h
//
// A new block of global memory on its way to the clipboard: freed unless that took it.
#pragma once

#include <cstddef>
#include <span>
#include <utility>

#include "lvx/images/global_locker.h"
#include "lvx/platform/global_memory.h"

namespace lvx::exchange {

class OwnedBlock {
public:
    OwnedBlock() = default;
    /// Of `size` bytes with anything in them. Empty if there is no memory.
    explicit OwnedBlock(std::size_t size) : m_block(GlobalAlloc(GMEM_MOVEABLE, size)), m_size(size) {}
    OwnedBlock(OwnedBlock&& other) noexcept : m_block(other.Release()), m_size(other.m_size) {}
    OwnedBlock& operator=(OwnedBlock&&) = delete;
    ~OwnedBlock() {
        if (m_block != nullptr) {
            GlobalFree(m_block);
        }
    }

    /// The handle; null if there is no block, or not any more.
    HGLOBAL Get() const { return m_block; }
    /// The handle, which another frees from now on.
    HGLOBAL Release() { return std::exchange(m_block, nullptr); }

    /// Locks the block and has `fill` write all its bytes. False, without a call, if there is no block.
    template <class Filler>
    bool Fill(const Filler& fill) const {
        const LVXUtilities::GlobalLocker<unsigned char> bytes(m_block);
        if (bytes.get() == nullptr) {
            return false;
        }
        fill(std::span<unsigned char>(bytes.get(), m_size));
        return true;
    }

private:
    HGLOBAL m_block = nullptr;
    std::size_t m_size = 0;
};

}  // namespace lvx::exchange
