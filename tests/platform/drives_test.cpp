#include "lvx/platform/drives.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "lvx/files/path_string.h"
#include "lvx/store/object_store_file.h"
#include "platform/system.h"
#include "support/bytes.h"
#include "support/drive_folder.h"
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

// What was listed could not be opened: stores take the names that the system knows.
TEST(Drives, a_listed_file_is_opened_by_the_name_that_the_system_has_for_it) {
    const lvx_test::TempFolder folder;
    const lvx_test::KeptDirectory kept;
    std::filesystem::current_path(folder.Path());
    lvx_test::write_file("stars.dat", "");
    std::vector<std::string> found;
    LVXPathString("stars.*").list(found, nullptr, true);
    ASSERT_EQ(1U, found.size());
    ObjectStoreFile store;
    EXPECT_TRUE(store.OpenStream(lvx::system_path(found[0]).c_str(), ObjectStore::ForRead)) << found[0];
}

TEST(Drives, the_system_s_name_of_a_path_lies_in_the_folder_of_its_drive) {
    if (lvx_test::on_windows) {
        EXPECT_EQ("q:\\a\\b.c", lvx::system_path("q:\\a\\b.c"));
    } else {
        const lvx_test::TempFolder folder;
        lvx::map_drive('Q', folder.Path());
        EXPECT_EQ(folder.File("a/b.c"), lvx::system_path("q:\\a\\b.c"));
        lvx::unmap_drive('Q');
        EXPECT_EQ("", lvx::system_path("q:\\a\\b.c"));
    }
    EXPECT_EQ("", lvx::system_path(""));
    EXPECT_EQ("", lvx::system_path(std::string("a\0b", 3)));
}

// The answer was once put together from the drive of one moment and its folder of another.
TEST(Drives, a_path_that_another_thread_asks_about_goes_by_the_old_drives_or_by_the_new_ones) {
    const lvx_test::TempFolder here;
    const lvx_test::TempFolder elsewhere;
    const lvx_test::KeptDirectory kept;
    const std::string name = std::filesystem::path(here.Path()).filename().string();
    lvx_test::write_file(here.File(name), "");
    std::filesystem::create_directory(elsewhere.File(name));
    std::filesystem::current_path(here.Path());
    // A file while the current drive is R:, for then its root is this folder, and nothing while it is
    // another. The directory is below R: only while that is not the current drive.
    const LVXPathString path("\\" + name);
    lvx_test::Threads asking(2, [&] {
        for (int i = 0; i < 3000; ++i) {
            EXPECT_FALSE(path.isDirectory());
        }
    });
    while (asking.Through() < 2) {
        lvx::map_drive('R', here.Path());
        lvx::map_drive('R', elsewhere.Path());
    }
    asking.Join();
    EXPECT_FALSE(path.exists());
    EXPECT_EQ(!lvx_test::on_windows, lvx::map_drive('R', here.Path()));
    EXPECT_EQ(!lvx_test::on_windows, path.isFile());
    EXPECT_EQ(!lvx_test::on_windows, lvx::unmap_drive('R'));
}
