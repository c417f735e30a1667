#include "lvx/platform/posix/drive_table.h"

#include <gtest/gtest.h>

#include <atomic>

#include "support/threads.h"

namespace {

using lvx::platform::DriveSet;
using lvx::platform::DriveTable;

}  // namespace

TEST(DriveTable, the_drives_of_now_stay_as_they_were_then) {
    DriveTable table;
    ASSERT_TRUE(table.Map('d', "/one"));
    const DriveSet before = table.Now();
    ASSERT_TRUE(table.Map('D', "/two"));
    EXPECT_EQ("/one", before.Root('D'));
    EXPECT_EQ("/two", table.Now().Root('D'));
    EXPECT_TRUE(table.Unmap('D'));
    EXPECT_FALSE(table.Unmap('D'));
    EXPECT_FALSE(table.Map('1', "/one"));
    EXPECT_EQ(std::nullopt, table.Now().Root('D'));
}

TEST(DriveTable, a_directory_is_remembered_for_the_folder_that_it_was_found_in_alone) {
    DriveTable table;
    table.Map('D', "/one");
    table.Remember({'D', "sub"}, "/one");
    EXPECT_EQ("sub", table.Now().Remembered('D'));
    table.Map('D', "/two");
    table.Remember({'D', "sub"}, "/one");
    EXPECT_EQ("", table.Now().Remembered('D'));
    table.Unmap('D');
    table.Remember({'D', "sub"}, "/two");
    table.Remember({'1', "sub"}, "/two");
    EXPECT_EQ("", table.Now().Remembered('D'));
}

TEST(DriveTable, of_several_threads_one_takes_a_letter_away) {
    DriveTable table;
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(table.Map('D', "/one"));
        std::atomic<int> taken = 0;
        lvx_test::Threads taking(2, [&] { taken += table.Unmap('D') ? 1 : 0; });
        taking.Join();
        EXPECT_EQ(1, taken);
    }
}
