#include "lvx/platform/global_memory.h"

#include <sys/mman.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <new>
#include <unordered_map>
#include <utility>

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

// Every live block by its handle. A handle is a number that is never used twice, not an address: that is how
// a stale one is told from a live one.
class Blocks {
public:
    HGLOBAL Add(Bytes bytes, std::size_t size) {
        const std::lock_guard guard(m_mutex);
        const std::uintptr_t number = m_next;
        m_blocks.emplace(number, Block{std::move(bytes), size});
        m_next += handle_step;
        return reinterpret_cast<HGLOBAL>(number);
    }

    /// False if there was none. Its memory is given back outside the lock, as that may take a while.
    bool Remove(HGLOBAL handle) { return !Extract(handle).empty(); }

    /// What `use` returns for the block, or a zero if there is none.
    template <class Use>
    auto With(HGLOBAL handle, Use use) {
        const std::lock_guard guard(m_mutex);
        const auto found = m_blocks.find(reinterpret_cast<std::uintptr_t>(handle));
        return found == m_blocks.end() ? decltype(use(found->second)){} : use(found->second);
    }

private:
    std::unordered_map<std::uintptr_t, Block>::node_type Extract(HGLOBAL handle) {
        const std::lock_guard guard(m_mutex);
        return m_blocks.extract(reinterpret_cast<std::uintptr_t>(handle));
    }

    // Handles are no valid addresses of anything, so that using one as a pointer shows at once.
    static constexpr std::uintptr_t handle_step = 4;

    std::mutex m_mutex;
    std::unordered_map<std::uintptr_t, Block> m_blocks;
    std::uintptr_t m_next = 2;
};

// Never destroyed: static objects of other modules free their blocks as late as they like.
Blocks& blocks() {
    static Blocks& instance = *new Blocks;
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
        return blocks().Add(std::move(bytes), size);
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
    return blocks().With(block, [](const Block& found) { return found.size; });
}
