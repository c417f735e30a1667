#include "tools/lvxdoc/cursor.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;

TEST(Cursor, reads_numbers_with_the_low_byte_first) {
    MemorySource source(bytes_of("78563412 ffffffff 000000000000f83f"));
    Cursor cursor(source);
    EXPECT_EQ(0x12345678, cursor.ReadInteger("an int"));
    EXPECT_EQ(-1, cursor.ReadInteger("an int"));
    EXPECT_EQ(1.5, cursor.ReadDouble());
    EXPECT_TRUE(cursor.AtEnd());
}

TEST(Cursor, peeks_without_moving) {
    MemorySource source("ab");
    Cursor cursor(source);
    EXPECT_EQ('a', cursor.Peek());
    EXPECT_EQ('a', cursor.Peek());
    EXPECT_EQ(0u, cursor.Position());
    EXPECT_EQ('a', cursor.ReadByte("a char"));
    EXPECT_EQ('b', cursor.Peek());
    EXPECT_EQ(1u, cursor.Remaining());
}

TEST(Cursor, tells_where_a_value_that_is_cut_short_begins) {
    MemorySource source("abcde");
    Cursor cursor(source);
    cursor.ReadInteger("an int");
    try {
        cursor.ReadInteger("a long");
        FAIL() << "no damage";
    } catch (const Damage& damage) {
        EXPECT_EQ(4u, damage.Offset());
        EXPECT_STREQ("a long needs 4 bytes here, but the data end after 1 byte", damage.what());
    }
    EXPECT_EQ(4u, cursor.Position());
}

TEST(Cursor, does_not_overflow_on_the_largest_expectation) {
    MemorySource source("abc");
    Cursor cursor(source);
    cursor.ReadByte("a char");
    EXPECT_THROW(cursor.Expect(UINT64_MAX, "it"), Damage);
    EXPECT_NO_THROW(cursor.Expect(2, "it"));
}

TEST(Cursor, reads_across_its_blocks) {
    std::string bytes(200'000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i * 7 + i / 256);
    }
    MemorySource source(bytes);
    Cursor cursor(source);
    std::string read(bytes.size(), '\0');
    cursor.ReadByte("a char");
    cursor.Read(read.data(), 65'535 + 65'536, "it");
    EXPECT_TRUE(read.compare(0, 131'071, bytes, 1, 131'071) == 0);
    EXPECT_EQ(static_cast<unsigned char>(bytes[131'072]), cursor.Peek());
}
