#include "lvx/platform/global_memory.h"

#include <sys/mman.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <utility>

#include "lvx/platform/posix/handle_table.h"

namespace {

struct Freer {
    void operator()(void* bytes) const { std::free(bytes); }
};
using Bytes = std::unique_ptr<void, Freer>;

struct Block {
    Bytes bytes;
    std::size_t size = 0;
    unsigned int locks = 0;
};

using Blocks = lvx::platform::HandleTable<Block>;

// Never destroyed: static objects of other modules free their blocks as late as they like.
Blocks& blocks() {
    static Blocks& instance = *new Blocks(2);
    return instance;
}

// The pages of a large block, which are fresh, are asked for in large pieces: filling a picture of 36 MB
// would otherwise stop nine thousand times. Where the system has none, nothing changes.
void prefer_large_pages(void* bytes, std::size_t size) {
    constexpr std::size_t page = 4096;
    constexpr std::size_t large = std::size_t{4} * 1024 * 1024;
    void* start = bytes;
    std::size_t left = size;
    if (size >= large && std::align(page, large - page, start, left) != nullptr) {
        madvise(start, left / page * page, MADV_HUGEPAGE);
    }
}

// For zeros calloc, which does not touch the fresh pages of a large block.
Bytes take_bytes(unsigned int flags, std::size_t size) {
    Bytes bytes((flags & GMEM_ZEROINIT) != 0 ? std::calloc(size, 1) : std::malloc(size));
    if (bytes != nullptr) {
        prefer_large_pages(bytes.get(), size);
    }
    return bytes;
}

}  // namespace

HGLOBAL GlobalAlloc(unsigned int flags, std::size_t size) {
    if ((flags & GMEM_MOVEABLE) == 0) {
        return nullptr;
    }
    Bytes bytes = size == 0 ? nullptr : take_bytes(flags, size);
    if (bytes == nullptr && size != 0) {
        return nullptr;
    }
    try {
        return blocks().Add(Block{std::move(bytes), size});
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void* GlobalLock(HGLOBAL block) {
    return blocks().With(block, [](Block& found) {
        ++found.locks;
        return found.bytes.get();
    });
}

int GlobalUnlock(HGLOBAL block) {
    return blocks().With(block, [](Block& found) {
        found.locks -= found.locks == 0 ? 0 : 1;
        return found.locks == 0 ? 0 : 1;
    });
}

HGLOBAL GlobalFree(HGLOBAL block) {
    return block == nullptr || blocks().Remove(block) ? nullptr : block;
}

std::size_t GlobalSize(HGLOBAL block) {
    return blocks().Look(block, [](const Block& found) { return found.size; });
}
