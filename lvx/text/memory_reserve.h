// lvx/text/memory_reserve.h
//
// A block of memory that the library holds from start-up to shutdown, so that a process that has exhausted
// its memory still has a little to give back. One object in memory_reserve.cpp holds it; nothing else uses
// it.
#pragma once

#include <cstddef>

namespace lvx {

class MemoryReserve {
public:
    static constexpr std::size_t size = 1024;

    /// Allocates the block, unless it stands already. Without memory there is no block, and no error.
    MemoryReserve();
    /// Frees the block, whichever object allocated it.
    ~MemoryReserve();
    MemoryReserve(const MemoryReserve&) = delete;
    MemoryReserve& operator=(const MemoryReserve&) = delete;

    /// The block of `size` bytes, or null.
    static void* block();

private:
    static void* m_block;
};

}  // namespace lvx
