#include "memory_limit.h"

#include <dlfcn.h>
#include <sanitizer/asan_interface.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

#include "check.h"
#include "lvx/platform/global_memory.h"

namespace {

using lvx_fuzz::LargestAllocation;

// In front of each block, poisoned: which form of delete it needs.
constexpr std::size_t tag_size = 16;
constexpr std::uint32_t single_tag = 0x51D61E01;
constexpr std::uint32_t array_tag = 0xA77A9E02;

std::size_t limit = 256 * 1024 * 1024;
LargestAllocation::Beyond beyond_limit = LargestAllocation::Fails;

bool is_within_limit(std::size_t size) {
    const bool is_within = size <= limit;
    lvx_fuzz::require(is_within || beyond_limit == LargestAllocation::Fails,
                      "no more memory than the document can need");
    return is_within;
}

void* allocate(std::size_t size, std::uint32_t tag) noexcept {
    if (!is_within_limit(size)) {
        return nullptr;
    }
    auto* const block = static_cast<unsigned char*>(std::malloc(std::max<std::size_t>(size, 1) + tag_size));
    if (block == nullptr) {
        return nullptr;
    }
    std::memcpy(block, &tag, sizeof tag);
    __asan_poison_memory_region(block, tag_size);
    return block + tag_size;
}

void* allocate_or_throw(std::size_t size, std::uint32_t tag) {
    void* const memory = allocate(size, tag);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void release(void* memory, std::uint32_t tag) noexcept {
    if (memory == nullptr) {
        return;
    }
    unsigned char* const block = static_cast<unsigned char*>(memory) - tag_size;
    // Of a block that was freed before, the sanitizer tells by this read.
    if (__asan_address_is_poisoned(memory) == 0) {
        __asan_unpoison_memory_region(block, tag_size);
    }
    std::uint32_t found = 0;
    std::memcpy(&found, block, sizeof found);
    lvx_fuzz::require(found == tag, "delete for new, delete[] for new[]");
    std::free(block);
}

}  // namespace

namespace lvx_fuzz {

LargestAllocation::LargestAllocation(std::size_t most, Beyond beyond)
    : m_outer_limit(std::exchange(limit, most)), m_outer_beyond(std::exchange(beyond_limit, beyond)) {}

LargestAllocation::~LargestAllocation() {
    limit = m_outer_limit;
    beyond_limit = m_outer_beyond;
}

}  // namespace lvx_fuzz

extern "C" [[gnu::visibility("default")]] HGLOBAL GlobalAlloc(unsigned int flags, std::size_t size) {
    static const auto next = reinterpret_cast<decltype(&GlobalAlloc)>(dlsym(RTLD_NEXT, "GlobalAlloc"));
    return is_within_limit(size) ? next(flags, size) : nullptr;
}

void* operator new(std::size_t size) {
    return allocate_or_throw(size, single_tag);
}
void* operator new[](std::size_t size) {
    return allocate_or_throw(size, array_tag);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size, single_tag);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size, array_tag);
}
void operator delete(void* memory) noexcept {
    release(memory, single_tag);
}
void operator delete[](void* memory) noexcept {
    release(memory, array_tag);
}
void operator delete(void* memory, std::size_t) noexcept {
    release(memory, single_tag);
}
void operator delete[](void* memory, std::size_t) noexcept {
    release(memory, array_tag);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    release(memory, single_tag);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    release(memory, array_tag);
}
