#include "lvx/images/dibitmap.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <type_traits>

#include "images/picture_bytes.h"

namespace {

using lvx_test::block_of;
using lvx_test::bytes;
using lvx_test::Info;
using lvx_test::is_locked;
using lvx_test::make_block;
using LVXUtilities::DIBitmap;

// 2 by 2 pixels of 24 bits.
std::string small_picture() {
    return Info{.width = 2, .height = 2}.Header() + bytes("010203 040506 0000 070809 0A0B0C 0000");
}

// A block of the caller's, freed at the end.
class OwnBlock {
public:
    explicit OwnBlock(const std::string& data) : m_block(make_block(data)) {}
    OwnBlock(const OwnBlock&) = delete;
    OwnBlock& operator=(const OwnBlock&) = delete;
    ~OwnBlock() { GlobalFree(m_block); }

    operator HGLOBAL() const { return m_block; }

    void Put(std::size_t offset, char value) {
        static_cast<char*>(GlobalLock(m_block))[offset] = value;
        GlobalUnlock(m_block);
    }

private:
    HGLOBAL m_block;
};

TEST(DIBitmap, ownerships_and_formats_have_the_numbers_that_hosts_pass) {
    EXPECT_EQ(0, DIBitmap::Borrow);
    EXPECT_EQ(1, DIBitmap::Copy);
    EXPECT_EQ(2, DIBitmap::Adopt);
    EXPECT_EQ(0, DIBitmap::DIB);
    EXPECT_EQ(1, DIBitmap::JPEG);
    EXPECT_EQ(2, DIBitmap::AnyFormat);
}

TEST(DIBitmap, can_be_stored_through_a_virtual_base) {
    EXPECT_TRUE((std::is_base_of_v<Storable, DIBitmap>));
    EXPECT_TRUE((std::is_convertible_v<DIBitmap*, Storable*>));
    const DIBitmap bitmap(nullptr, DIBitmap::Copy);
    EXPECT_STREQ("LVXUtilities::DIBitmap", bitmap.ClassName());
}

TEST(DIBitmap, fix_up_is_off) {
    EXPECT_FALSE(DIBitmap::FixUp);
}

TEST(DIBitmap, a_borrowed_block_is_used_as_it_is_and_left_alone) {
    OwnBlock block(small_picture());
    {
        const DIBitmap bitmap(block, DIBitmap::Borrow);
        block.Put(4, 9);
        EXPECT_EQ(9, bitmap.GetWidth());
    }
    EXPECT_EQ(small_picture().size(), GlobalSize(block));
}

TEST(DIBitmap, a_copied_block_is_private) {
    OwnBlock block(small_picture());
    const DIBitmap bitmap(block, DIBitmap::Copy);
    block.Put(4, 9);
    EXPECT_EQ(2, bitmap.GetWidth());
    EXPECT_BYTES(small_picture(), block_of(bitmap));
}

TEST(DIBitmap, an_adopted_block_is_used_as_it_is) {
    const HGLOBAL block = make_block(small_picture());
    const DIBitmap bitmap(block, DIBitmap::Adopt);
    static_cast<char*>(GlobalLock(block))[4] = 9;
    GlobalUnlock(block);
    EXPECT_EQ(9, bitmap.GetWidth());
}

TEST(DIBitmap, a_copy_has_every_byte_of_the_block_with_what_is_behind_the_pixels) {
    const std::string data = small_picture() + "more";
    const OwnBlock block(data);
    const DIBitmap first(block, DIBitmap::Copy);
    const DIBitmap second(first);
    EXPECT_BYTES(data, block_of(second));
}

TEST(DIBitmap, a_copy_of_a_borrower_owns_its_block) {
    OwnBlock block(small_picture());
    const DIBitmap borrower(block, DIBitmap::Borrow);
    const DIBitmap copy(borrower);
    block.Put(4, 9);
    EXPECT_EQ(9, borrower.GetWidth());
    EXPECT_EQ(2, copy.GetWidth());
}

TEST(DIBitmap, assigning_from_a_borrower_leaves_a_private_copy) {
    OwnBlock block(small_picture());
    const DIBitmap borrower(block, DIBitmap::Borrow);
    DIBitmap target(make_block(Info{.width = 77}.Header()), DIBitmap::Adopt);
    EXPECT_EQ(&target, &(target = borrower));
    block.Put(4, 9);
    EXPECT_EQ(2, target.GetWidth());
}

TEST(DIBitmap, a_borrower_that_is_assigned_to_leaves_its_block_alone) {
    const OwnBlock block(small_picture());
    {
        DIBitmap borrower(block, DIBitmap::Borrow);
        borrower = DIBitmap(make_block(Info{.width = 77}.Header()), DIBitmap::Adopt);
        EXPECT_EQ(77, borrower.GetWidth());
    }
    EXPECT_EQ(small_picture().size(), GlobalSize(block));
}

TEST(DIBitmap, assigning_to_itself_keeps_the_picture) {
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    bitmap = *&bitmap;
    EXPECT_BYTES(small_picture(), block_of(bitmap));
}

TEST(DIBitmap, swapping_exchanges_block_reader_and_ownership) {
    const OwnBlock block(lvx_test::core_header(5, 6, 1) + std::string(10, '\0'));
    {
        DIBitmap borrower(block, DIBitmap::Borrow);
        DIBitmap owner(make_block(small_picture()), DIBitmap::Adopt);
        borrower.swap(owner);
        EXPECT_EQ(owl::TSize(2, 2), borrower.GetSize());
        EXPECT_EQ(owl::TSize(5, 6), owner.GetSize());
        EXPECT_EQ(1, owner.GetBitsPerPixel());
    }
    // The block that was borrowed is still there, and freeing it here is no second time.
    EXPECT_EQ(22u, GlobalSize(block));
}

TEST(DIBitmap, swapping_with_itself_changes_nothing) {
    DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    bitmap.swap(bitmap);
    EXPECT_BYTES(small_picture(), block_of(bitmap));
    EXPECT_EQ(2, bitmap.GetHeight());
}

TEST(DIBitmap, without_a_block_is_valid_with_every_ownership) {
    for (const auto ownership : {DIBitmap::Borrow, DIBitmap::Copy, DIBitmap::Adopt}) {
        DIBitmap empty(nullptr, ownership);
        const DIBitmap copy(empty);
        empty = copy;
        empty.swap(empty);
        EXPECT_EQ(owl::TSize(0, 0), copy.GetSize());
        EXPECT_EQ(nullptr, copy.GetBitsAddress().get());
        EXPECT_EQ(nullptr, copy.GetClrTabAddress().get());
        EXPECT_EQ(0, copy.GetStorageWidth());
        EXPECT_BYTES("", block_of(copy));
    }
}

TEST(DIBitmap, a_copy_keeps_the_reader_that_the_block_had_when_it_was_handed_over) {
    OwnBlock block(lvx_test::core_header(5, 6, 1) + std::string(100, '\0'));
    const DIBitmap borrower(block, DIBitmap::Borrow);
    // The block now claims a longer header, but both still read it as what it was.
    block.Put(0, 40);
    const DIBitmap copy(borrower);
    EXPECT_EQ(5, copy.GetWidth());
    EXPECT_EQ(6, copy.GetHeight());
}

TEST(DIBitmap, the_size_is_width_and_height) {
    const DIBitmap bitmap(make_block(Info{.width = 640, .height = -480}.Header()), DIBitmap::Adopt);
    EXPECT_EQ(owl::TSize(640, -480), bitmap.GetSize());
}

TEST(DIBitmap, a_picture_without_a_table_has_its_pixels_behind_the_header) {
    const DIBitmap bitmap(make_block(small_picture()), DIBitmap::Adopt);
    const auto pixels = bitmap.GetBitsAddress();
    const auto table = bitmap.GetClrTabAddress();
    EXPECT_EQ(static_cast<void*>(pixels.get()), static_cast<void*>(table.get()));
    EXPECT_EQ(1, pixels[0]);
    EXPECT_EQ(0x0C, pixels[13]);
}

TEST(DIBitmap, the_table_of_a_long_header_begins_at_byte_108) {
    Info info{.depth = 8, .used = 2};
    info.size_word = 108;
    const DIBitmap bitmap(
        make_block(info.Header() + std::string(68, '\0') + bytes("11223344 55667788 99AABBCC")),
        DIBitmap::Adopt);
    EXPECT_EQ(0x11, bitmap.GetClrTabAddress()->rgbBlue);
    EXPECT_EQ(0x88, bitmap.GetClrTabAddress()[1].rgbReserved);
    EXPECT_EQ(0x99, *bitmap.GetBitsAddress());
}

TEST(DIBitmap, entries_are_quadruples_to_the_reader_after_a_core_header_too) {
    const DIBitmap bitmap(make_block(lvx_test::core_header(1, 1, 1) + bytes("112233 445566 80000000")),
                          DIBitmap::Adopt);
    EXPECT_EQ(0x44, bitmap.GetClrTabAddress()->rgbReserved);
    EXPECT_EQ(0x80, *bitmap.GetBitsAddress());
}

TEST(DIBitmap, addresses_hold_a_lock_each) {
    const OwnBlock block(small_picture());
    const DIBitmap bitmap(block, DIBitmap::Borrow);
    {
        const auto pixels = bitmap.GetBitsAddress();
        EXPECT_TRUE(is_locked(block));
        const auto table = bitmap.GetClrTabAddress();
        EXPECT_TRUE(is_locked(block));
    }
    EXPECT_FALSE(is_locked(block));
}

TEST(DIBitmap, questions_leave_no_lock_behind) {
    const OwnBlock block(small_picture());
    const DIBitmap bitmap(block, DIBitmap::Borrow);
    bitmap.GetSize();
    bitmap.GetBitsPerPixel();
    bitmap.GetPixelsPerMetreX();
    bitmap.GetPixelsPerMetreY();
    bitmap.GetStorageWidth();
    const DIBitmap copy(bitmap);
    block_of(copy);
    EXPECT_FALSE(is_locked(block));
}

TEST(StorageWidth, is_padded_to_four_bytes) {
    const struct {
        std::int32_t width;
        std::uint32_t depth;
        int expected;
    } cases[] = {
        {1, 1, 4},  {32, 1, 4}, {33, 1, 8},     {7, 4, 4},   {9, 4, 8},   {4, 8, 4},  {5, 8, 8},
        {1, 24, 4}, {2, 24, 8}, {127, 24, 384}, {3, 32, 12}, {100, 0, 0}, {0, 24, 0}, {4000, 24, 12000},
    };
    for (const auto& [width, depth, expected] : cases) {
        const DIBitmap bitmap(make_block(Info{.width = width, .depth = depth}.Header()), DIBitmap::Adopt);
        EXPECT_EQ(expected, bitmap.GetStorageWidth()) << width << " pixels of " << depth << " bits";
    }
}

TEST(StorageWidth, divides_towards_zero_with_its_sign_and_wraps) {
    const struct {
        std::int32_t width;
        std::uint32_t depth;
        int expected;
    } cases[] = {
        {-1, 24, 0},                  // 7 / 32
        {-2, 24, 0},                  // -17 / 32
        {-100, 24, -296},             // -2369 / 32 is -74
        {0x7FFFFFFF, 1, -268435452},  // 2^31 + 30 wraps to 30 - 2^31
        {0x10000000, 32, 0},          // 2^33 + 31 wraps to 31
        {std::numeric_limits<std::int32_t>::min(), 1, -268435452},
    };
    for (const auto& [width, depth, expected] : cases) {
        const DIBitmap bitmap(make_block(Info{.width = width, .depth = depth}.Header()), DIBitmap::Adopt);
        EXPECT_EQ(expected, bitmap.GetStorageWidth()) << width << " pixels of " << depth << " bits";
    }
}

TEST(StorageWidth, reads_a_core_header_as_a_longer_one) {
    // Width and height together make 0x00050003 pixels, what follows the header 8 bits each.
    const DIBitmap bitmap(make_block(lvx_test::core_header(3, 5, 24) + bytes("0001 0800 0000 0000")),
                          DIBitmap::Adopt);
    EXPECT_EQ(0x00050004, bitmap.GetStorageWidth());
}

}  // namespace
