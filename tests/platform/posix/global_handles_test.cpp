// What holds for our own global memory beyond the system's.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>

#include "lvx/platform/global_memory.h"

// Under the sanitizers a request that no memory satisfies returns null, as it does without them.
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options() {
    return "allocator_may_return_null=1";
}

namespace {

long resident_pages() {
    long all = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident;
}

TEST(GlobalHandles, a_handle_that_was_freed_is_no_block) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 10);
    GlobalFree(block);
    EXPECT_EQ(nullptr, GlobalLock(block));
    EXPECT_EQ(0u, GlobalSize(block));
    EXPECT_EQ(0, GlobalUnlock(block));
    EXPECT_EQ(block, GlobalFree(block));
}

TEST(GlobalHandles, a_freed_handle_does_not_become_another_block) {
    const HGLOBAL first = GlobalAlloc(GMEM_MOVEABLE, 10);
    GlobalFree(first);
    const HGLOBAL second = GlobalAlloc(GMEM_MOVEABLE, 10);
    EXPECT_NE(first, second);
    EXPECT_EQ(0u, GlobalSize(first));
    GlobalFree(second);
}

TEST(GlobalHandles, any_other_pointer_is_no_block) {
    int something = 0;
    EXPECT_EQ(nullptr, GlobalLock(&something));
    EXPECT_EQ(0u, GlobalSize(&something));
    EXPECT_EQ(0, GlobalUnlock(&something));
    EXPECT_EQ(static_cast<HGLOBAL>(&something), GlobalFree(&something));
}

TEST(GlobalHandles, fixed_blocks_are_refused) {
    EXPECT_EQ(nullptr, GlobalAlloc(0, 10));
    EXPECT_EQ(nullptr, GlobalAlloc(GMEM_ZEROINIT, 10));
}

TEST(GlobalHandles, zeros_that_nobody_touches_take_no_memory) {
    constexpr std::size_t size = 256u << 20;
    const long before = resident_pages();
    const HGLOBAL block = GlobalAlloc(GHND, size);
    ASSERT_NE(nullptr, block);
    EXPECT_EQ(0, static_cast<const char*>(GlobalLock(block))[size - 1]);
    EXPECT_LT((resident_pages() - before) * 4096, long{64} << 20);
    GlobalFree(block);
}

}  // namespace
