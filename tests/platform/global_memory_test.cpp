#include "lvx/platform/global_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <thread>
#include <vector>

namespace {

// Frees the block at the end of the test.
class TestBlock {
public:
    TestBlock(unsigned int flags, std::size_t size) : m_block(GlobalAlloc(flags, size)) {}
    TestBlock(const TestBlock&) = delete;
    TestBlock& operator=(const TestBlock&) = delete;
    ~TestBlock() { GlobalFree(m_block); }

    operator HGLOBAL() const { return m_block; }

private:
    HGLOBAL m_block;
};

TEST(GlobalMemory, the_kinds_have_their_published_numbers) {
    EXPECT_EQ(0x0002u, static_cast<unsigned int>(GMEM_MOVEABLE));
    EXPECT_EQ(0x0040u, static_cast<unsigned int>(GMEM_ZEROINIT));
    EXPECT_EQ(0x0042u, static_cast<unsigned int>(GHND));
}

TEST(GlobalMemory, a_block_has_the_size_that_was_asked_for) {
    for (const std::size_t size : {1u, 2u, 39u, 40u, 1000u, 65537u, 3000000u}) {
        const TestBlock block(GMEM_MOVEABLE, size);
        EXPECT_EQ(size, GlobalSize(block));
    }
}

TEST(GlobalMemory, a_zeroed_block_is_zero_to_its_last_byte) {
    {
        // Leaves something else behind where the next block may come to lie.
        const TestBlock used(GMEM_MOVEABLE, 5000);
        std::fill_n(static_cast<char*>(GlobalLock(used)), 5000, 'x');
        GlobalUnlock(used);
    }
    const TestBlock block(GHND, 5000);
    const auto* const bytes = static_cast<const char*>(GlobalLock(block));
    EXPECT_EQ(5000, std::count(bytes, bytes + 5000, '\0'));
    GlobalUnlock(block);
}

TEST(GlobalMemory, a_large_block_is_zero_and_takes_bytes_to_both_ends) {
    constexpr std::ptrdiff_t mebi = 1 << 20;
    for (const std::ptrdiff_t size : {4 * mebi - 1, 4 * mebi, 4 * mebi + 1, 9 * mebi + 4097}) {
        const TestBlock block(GHND, static_cast<std::size_t>(size));
        auto* const bytes = static_cast<char*>(GlobalLock(block));
        EXPECT_EQ(size, std::count(bytes, bytes + size, '\0')) << size;
        std::fill_n(bytes, size, 'x');
        EXPECT_EQ(size, std::count(bytes, bytes + size, 'x')) << size;
        GlobalUnlock(block);
    }
}

TEST(GlobalMemory, a_block_keeps_its_bytes_and_its_address) {
    const TestBlock block(GMEM_MOVEABLE, 100);
    auto* const bytes = static_cast<char*>(GlobalLock(block));
    std::fill_n(bytes, 100, 'x');
    GlobalUnlock(block);
    const auto* const again = static_cast<const char*>(GlobalLock(block));
    EXPECT_EQ(bytes, again);
    EXPECT_EQ(100, std::count(again, again + 100, 'x'));
    GlobalUnlock(block);
}

TEST(GlobalMemory, a_handle_is_not_the_address) {
    const TestBlock block(GMEM_MOVEABLE, 100);
    EXPECT_NE(static_cast<void*>(block), GlobalLock(block));
    GlobalUnlock(block);
}

TEST(GlobalMemory, locks_nest) {
    const TestBlock block(GMEM_MOVEABLE, 100);
    EXPECT_EQ(GlobalLock(block), GlobalLock(block));
    EXPECT_NE(0, GlobalUnlock(block));
    EXPECT_EQ(0, GlobalUnlock(block));
}

TEST(GlobalMemory, an_unlock_too_many_changes_nothing) {
    const TestBlock block(GMEM_MOVEABLE, 100);
    EXPECT_EQ(0, GlobalUnlock(block));
    EXPECT_NE(nullptr, GlobalLock(block));
    EXPECT_EQ(0, GlobalUnlock(block));
}

TEST(GlobalMemory, a_block_of_no_bytes_has_a_handle_but_no_address) {
    const TestBlock block(GHND, 0);
    EXPECT_NE(nullptr, static_cast<void*>(block));
    EXPECT_EQ(nullptr, GlobalLock(block));
    EXPECT_EQ(0u, GlobalSize(block));
}

TEST(GlobalMemory, null_is_no_block) {
    EXPECT_EQ(nullptr, GlobalLock(nullptr));
    EXPECT_EQ(0u, GlobalSize(nullptr));
    EXPECT_EQ(nullptr, GlobalFree(nullptr));
}

TEST(GlobalMemory, a_block_is_freed_although_it_is_locked) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 10);
    GlobalLock(block);
    EXPECT_EQ(nullptr, GlobalFree(block));
}

TEST(GlobalMemory, more_than_there_is_gives_null) {
    EXPECT_EQ(nullptr, GlobalAlloc(GMEM_MOVEABLE, std::numeric_limits<std::size_t>::max() / 2));
    EXPECT_EQ(nullptr, GlobalAlloc(GHND, std::numeric_limits<std::size_t>::max() / 2));
}

TEST(GlobalMemory, threads_have_their_blocks_at_the_same_time) {
    const auto use_blocks = [](char mark, bool& intact) {
        for (int round = 0; round < 500; ++round) {
            const TestBlock block(GHND, 64);
            std::fill_n(static_cast<char*>(GlobalLock(block)), 64, mark);
            const auto* const bytes = static_cast<const char*>(GlobalLock(block));
            intact = intact && std::count(bytes, bytes + 64, mark) == 64 && GlobalUnlock(block) != 0 &&
                     GlobalUnlock(block) == 0;
        }
    };
    bool first_intact = true;
    bool second_intact = true;
    std::thread second(use_blocks, 'b', std::ref(second_intact));
    use_blocks('a', first_intact);
    second.join();
    EXPECT_TRUE(first_intact);
    EXPECT_TRUE(second_intact);
}

}  // namespace
