// Texts that are longer than what a position can tell. The pages are never touched, so they take no memory;
// Wine has no such pages.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cstdint>

#include "owl/regexp.h"

namespace {

constexpr std::size_t told = 0xFFFFFFFE;

class LongText : public ::testing::Test {
protected:
    void SetUp() override {
        m_address = mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        ASSERT_NE(MAP_FAILED, m_address);
    }
    void TearDown() override { munmap(m_address, size); }

    std::string_view Text() const { return {static_cast<const char*>(m_address), size}; }

    static constexpr std::size_t size = std::size_t{1} << 33;
    void* m_address = nullptr;
};

}  // namespace

TEST_F(LongText, a_match_ends_at_the_last_place_that_can_be_told) {
    unsigned int length = 0;
    EXPECT_EQ(told - 5, TRegexp("^\\x00+").find(Text(), &length, told - 5));
    EXPECT_EQ(5u, length);
    EXPECT_EQ(told - 5, TRegexp("\\x00{3}").find(Text(), &length, told - 5));
    EXPECT_EQ(3u, length);
    EXPECT_EQ(TRegexp::not_found, TRegexp("a").find(Text(), &length, told - 100));
}

TEST_F(LongText, no_search_begins_behind_it) {
    unsigned int length = 77;
    EXPECT_EQ(told, TRegexp("^").find(Text(), &length, told));
    EXPECT_EQ(0u, length);
    EXPECT_EQ(TRegexp::not_found, TRegexp("^").find(Text(), &length, told + 1));
}
