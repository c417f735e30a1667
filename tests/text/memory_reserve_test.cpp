// The reserve has no interface, so the test program holds a copy of the unit beside the library's own.
#include "lvx/text/memory_reserve.h"

#include <gtest/gtest.h>

#include <cstring>
#include <optional>

namespace {

using lvx::MemoryReserve;

class MemoryReserveTest : public testing::Test {
protected:
    // As at start-up, whatever a test did. The unit's own object frees nothing twice.
    void TearDown() override {
        static std::optional<MemoryReserve> again;
        again.emplace();
    }
};

}  // namespace

TEST_F(MemoryReserveTest, stands_from_the_start) {
    ASSERT_NE(nullptr, MemoryReserve::block());
    std::memset(MemoryReserve::block(), 0x5a, 1024);
    EXPECT_EQ(0x5a, static_cast<const unsigned char*>(MemoryReserve::block())[1023]);
}

TEST_F(MemoryReserveTest, a_second_object_allocates_nothing) {
    const void* const first = MemoryReserve::block();
    const MemoryReserve second;
    EXPECT_EQ(first, MemoryReserve::block());
}

TEST_F(MemoryReserveTest, the_end_of_an_object_frees_the_block) {
    { const MemoryReserve second; }
    EXPECT_EQ(nullptr, MemoryReserve::block());
}

TEST_F(MemoryReserveTest, a_freed_block_is_allocated_again) {
    { const MemoryReserve second; }
    const MemoryReserve third;
    EXPECT_NE(nullptr, MemoryReserve::block());
}

TEST_F(MemoryReserveTest, may_end_without_a_block) {
    {
        const MemoryReserve second;
        { const MemoryReserve third; }
    }
    EXPECT_EQ(nullptr, MemoryReserve::block());
}
