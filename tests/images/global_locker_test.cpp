#include "lvx/images/global_locker.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <utility>

#include "images/picture_bytes.h"
#include "lvx/platform/bitmap_headers.h"

namespace {

using lvx_test::is_locked;
using LVXUtilities::GlobalLocker;

class GlobalLockerTest : public testing::Test {
protected:
    ~GlobalLockerTest() override { GlobalFree(m_block); }

    HGLOBAL m_block = lvx_test::make_block(lvx_test::bytes("28000000 07000000 'abcd'"));
};

TEST_F(GlobalLockerTest, locks_as_long_as_it_lives) {
    {
        const GlobalLocker<char> locker(m_block);
        EXPECT_TRUE(is_locked(m_block));
        EXPECT_EQ('(', *locker);
        EXPECT_EQ('d', locker[11]);
    }
    EXPECT_FALSE(is_locked(m_block));
}

TEST_F(GlobalLockerTest, is_released_by_an_exception) {
    try {
        const GlobalLocker<const char> locker(m_block);
        throw 1;
    } catch (int) {
    }
    EXPECT_FALSE(is_locked(m_block));
}

TEST_F(GlobalLockerTest, a_copy_has_a_lock_of_its_own) {
    std::optional<GlobalLocker<unsigned char>> first(std::in_place, m_block);
    const GlobalLocker<unsigned char> second(*first);
    first.reset();
    EXPECT_TRUE(is_locked(m_block));
    EXPECT_EQ(0x28, *second);
}

TEST_F(GlobalLockerTest, copies_leave_no_lock_behind) {
    {
        const GlobalLocker<unsigned char> first(m_block);
        const GlobalLocker<unsigned char> second(first);
        const GlobalLocker<unsigned char> third(second);
        EXPECT_EQ(first.get(), third.get());
    }
    EXPECT_FALSE(is_locked(m_block));
}

TEST_F(GlobalLockerTest, a_moved_one_hands_its_lock_over) {
    {
        GlobalLocker<unsigned char> first(m_block);
        const GlobalLocker<unsigned char> second(std::move(first));
        EXPECT_EQ(nullptr, first.get());
        EXPECT_EQ(0x28, *second);
    }
    EXPECT_FALSE(is_locked(m_block));
}

TEST_F(GlobalLockerTest, assigning_unlocks_what_was_locked) {
    const HGLOBAL other_block = lvx_test::make_block("other");
    {
        GlobalLocker<char> locker(m_block);
        locker = GlobalLocker<char>(other_block);
        EXPECT_FALSE(is_locked(m_block));
        EXPECT_EQ('o', *locker);
        locker = *&locker;
        EXPECT_EQ('o', *locker);
    }
    EXPECT_FALSE(is_locked(other_block));
    GlobalFree(other_block);
}

TEST_F(GlobalLockerTest, unlocks_its_block_wherever_its_pointer_is) {
    {
        GlobalLocker<char> locker(m_block);
        locker.MoveTo(locker.get() + 8);
        EXPECT_EQ('a', *locker);
        const GlobalLocker<char> copy(locker);
        EXPECT_EQ('a', *copy);
    }
    EXPECT_FALSE(is_locked(m_block));
}

TEST_F(GlobalLockerTest, reads_through_header_types) {
    const GlobalLocker<tagBITMAPINFOHEADER> info(m_block);
    EXPECT_EQ(7, info->biWidth);
    const GlobalLocker<tagBITMAPCOREHEADER> core(m_block);
    EXPECT_EQ(7, core->bcWidth);
    const GlobalLocker<BITMAPV4HEADER> v4(m_block);
    EXPECT_EQ(40u, v4->bV4Size);
    const GlobalLocker<tagBITMAPINFO> both(m_block);
    EXPECT_EQ(7, both->bmiHeader.biWidth);
    const GlobalLocker<tagRGBQUAD> table(m_block);
    EXPECT_EQ(0x28, table->rgbBlue);
}

TEST(GlobalLocker, holds_pointers_too) {
    char text[] = "text";
    const HGLOBAL block = GlobalAlloc(GHND, sizeof(char*));
    {
        const GlobalLocker<char*> locker(block);
        *locker.get() = text;
        EXPECT_EQ('t', **locker);
    }
    GlobalFree(block);
}

TEST(GlobalLocker, of_null_has_no_pointer) {
    const GlobalLocker<unsigned char> locker(nullptr);
    EXPECT_EQ(nullptr, locker.get());
    const GlobalLocker<unsigned char> copy(locker);
    EXPECT_EQ(nullptr, copy.get());
}

}  // namespace
