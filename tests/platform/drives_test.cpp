#include "lvx/platform/drives.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "lvx/files/path_string.h"
#include "platform/system.h"
#include "support/temp_folder.h"
#include "support/threads.h"

TEST(Drives, a_drive_can_be_mapped_where_the_system_has_none) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ(!lvx_test::on_windows, lvx::map_drive('q', folder.Path()));
    EXPECT_EQ(!lvx_test::on_windows, LVXPathString("Q:\\.").isDirectory());
    EXPECT_EQ(!lvx_test::on_windows, lvx::unmap_drive('Q'));
    EXPECT_FALSE(LVXPathString("Q:\\.").isDirectory());
    EXPECT_FALSE(lvx::unmap_drive('Q'));
}

TEST(Drives, what_cannot_be_mapped_changes_nothing) {
    const lvx_test::TempFolder folder;
    EXPECT_FALSE(lvx::map_drive('1', folder.Path()));
    EXPECT_FALSE(lvx::map_drive('\xE4', folder.Path()));
    EXPECT_FALSE(lvx::map_drive('Q', ""));
    EXPECT_FALSE(lvx::map_drive('Q', folder.File("missing")));
    EXPECT_FALSE(lvx::map_drive('Q', folder.Path() + '\0' + "x"));
    EXPECT_FALSE(LVXPathString("Q:\\").exists());
    EXPECT_FALSE(lvx::map_drive('C', folder.File("missing")));
    EXPECT_TRUE(LVXPathString("C:\\").exists());
    EXPECT_FALSE(lvx::unmap_drive('1'));
}

TEST(Drives, a_path_that_another_thread_asks_about_goes_by_the_old_drives_or_by_the_new_ones) {
    const lvx_test::TempFolder folder;
    lvx_test::Threads asking(2, [] {
        for (int i = 0; i < 100; ++i) {
            const bool found = LVXPathString("R:\\.").isDirectory();
            EXPECT_FALSE(found && lvx_test::on_windows);
        }
    });
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(!lvx_test::on_windows, lvx::map_drive('R', folder.Path()));
        EXPECT_EQ(!lvx_test::on_windows, lvx::unmap_drive('R'));
    }
    asking.Join();
    EXPECT_FALSE(LVXPathString("R:\\.").isDirectory());
}
