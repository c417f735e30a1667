#include "tools/lvxdoc/crc32.h"

#include <gtest/gtest.h>

TEST(Crc32, gives_the_published_check_value) {
    EXPECT_EQ(0xcbf43926u, lvxdoc::crc32("123456789"));
}

TEST(Crc32, of_nothing_is_0) {
    EXPECT_EQ(0u, lvxdoc::crc32(""));
}

TEST(Crc32, goes_on_from_piece_to_piece) {
    EXPECT_EQ(0xcbf43926u, lvxdoc::crc32("6789", lvxdoc::crc32("12345")));
}
