#include "support/allocation.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> countdown{-1};
std::atomic<bool> failed{false};
std::atomic<bool> thrown{false};
std::atomic<std::size_t> live{0};
std::atomic<std::size_t> peak{0};

void* allocate(std::size_t size) noexcept {
    if (countdown.load() >= 0 && countdown.fetch_sub(1) == 0) {
        failed = true;
        return nullptr;
    }
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block != nullptr) {
        const std::size_t now = live += malloc_usable_size(block);
        peak = std::max(peak.load(), now);
    }
    return block;
}

void* allocate_or_throw(std::size_t size) {
    void* const block = allocate(size);
    if (block == nullptr) {
        thrown = true;
        throw std::bad_alloc();
    }
    return block;
}

void release(void* block) noexcept {
    if (block != nullptr) {
        live -= malloc_usable_size(block);
        std::free(block);
    }
}

}  // namespace

void* operator new(std::size_t size) {
    return allocate_or_throw(size);
}
void* operator new[](std::size_t size) {
    return allocate_or_throw(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void operator delete(void* block) noexcept {
    release(block);
}
void operator delete[](void* block) noexcept {
    release(block);
}
void operator delete(void* block, std::size_t) noexcept {
    release(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    release(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
    release(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
    release(block);
}

namespace lvx_test {

FailingAllocation::FailingAllocation(long index) {
    failed = false;
    thrown = false;
    countdown = index;
}

FailingAllocation::~FailingAllocation() {
    countdown = -1;
}

bool FailingAllocation::HasFailed() const {
    return failed;
}

bool FailingAllocation::HasThrown() const {
    return thrown;
}

std::size_t live_bytes() {
    return live;
}

std::size_t peak_bytes() {
    return peak;
}

void reset_peak() {
    peak = live.load();
}

}  // namespace lvx_test
