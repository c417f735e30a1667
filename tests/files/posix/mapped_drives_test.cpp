// Paths on drives that a host maps.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "lvx/files/path_string.h"
#include "lvx/platform/drives.h"
#include "support/drive_folder.h"

namespace {

/// A folder as D:, which is the current drive.
class MappedDrives : public ::testing::Test {
protected:
    MappedDrives() {
        EXPECT_TRUE(lvx::map_drive('D', m_folder.Path()));
        std::filesystem::current_path(m_folder.Path());
    }
    ~MappedDrives() override { lvx::unmap_drive('D'); }

    /// Goes to a directory that is told with so many characters.
    void EnterDirectoryOfLength(std::size_t length) const {
        const std::string outer = std::string(200, 'a') + '/' + std::string(200, 'b') + '/';
        const std::string path = outer + std::string(length - std::string("D:\\").size() - outer.size(), 'c');
        std::filesystem::create_directories(m_folder.File(path));
        std::filesystem::current_path(m_folder.File(path));
    }

    lvx_test::KeptDirectory m_kept;
    lvx_test::TempFolder m_folder;
};

}  // namespace

TEST_F(MappedDrives, a_current_directory_of_499_characters_is_told) {
    EnterDirectoryOfLength(499);
    LVXPathString path("before");
    EXPECT_TRUE(path.asCurrent());
    EXPECT_EQ(499U, path.size());
    EXPECT_TRUE(path.starts_with("d:\\aaa")) << path;
}

TEST_F(MappedDrives, a_current_directory_of_500_characters_leaves_the_path) {
    EnterDirectoryOfLength(500);
    LVXPathString path("before");
    EXPECT_TRUE(path.asCurrent());
    EXPECT_EQ("before", path);
    EXPECT_EQ("", LVXPathString::CurrentDirectory());
    path = "x";
    path.expand();
    EXPECT_EQ("\\x", path);
}

TEST_F(MappedDrives, a_current_directory_that_cannot_be_told_is_not_looked_through) {
    EnterDirectoryOfLength(500);
    lvx_test::write_file("f", "");
    std::vector<std::string> found;
    EXPECT_TRUE(LVXPathString("f").listNames(found, nullptr, true));
    EXPECT_EQ(std::vector<std::string>(), found);
}

TEST_F(MappedDrives, drives_are_changed_back_and_forth) {
    std::filesystem::create_directories(m_folder.File("sub"));
    EXPECT_TRUE(LVXPathString("D:\\sub").setCurrent());
    EXPECT_TRUE(LVXPathString("C:\\usr\\").setCurrent());
    EXPECT_EQ("c:\\usr", LVXPathString::CurrentDirectory());
    EXPECT_TRUE(LVXPathString("d:anything").setDrive());
    EXPECT_EQ("d:\\sub", LVXPathString::CurrentDirectory());
    EXPECT_FALSE(LVXPathString("e:").setDrive());
    EXPECT_EQ("d:\\sub", LVXPathString::CurrentDirectory());
}

TEST_F(MappedDrives, a_path_expands_by_the_directory_of_its_drive) {
    std::filesystem::create_directories(m_folder.File("Sub"));
    LVXPathString path("d:f");
    path.expand();
    EXPECT_EQ("D:\\f", path);
    std::filesystem::current_path(m_folder.File("Sub"));
    path = "d:f";
    path.expand();
    EXPECT_EQ("D:\\Sub\\f", path);
    std::filesystem::current_path("/");
    path = "f";
    path.expand();
    EXPECT_EQ("c:\\f", path);
}

TEST_F(MappedDrives, a_name_with_a_question_mark_is_one_like_others) {
    lvx_test::write_file(m_folder.File("a?b"), "");
    std::filesystem::create_directories(m_folder.File("s?b"));
    EXPECT_TRUE(LVXPathString("D:\\a?b").isFile());
    EXPECT_TRUE(LVXPathString("a?b").exists());
    EXPECT_FALSE(LVXPathString("D:\\a?c").isFile());
    EXPECT_TRUE(LVXPathString("D:\\s?b\\").isDirectory());
    EXPECT_FALSE(LVXPathString("D:\\s?b").isFile());
}
