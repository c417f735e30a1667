#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "lvx/files/path_string.h"
#include "lvx/text/strings.h"
#include "support/drive_folder.h"

namespace {

using lvx_test::DriveFolder;
using lvx_test::KeptDirectory;

// Before main, as a host's own objects come alive.
const LVXPathString at_load = LVXPathString::CurrentDirectory();

std::string expanded(LVXPathString path) {
    path.expand();
    return path;
}

std::string drive_of(const LVXPathString& path) {
    std::string drive;
    path.driveOf(drive);
    return drive;
}

/// The folder as asCurrent() tells it, whatever the system calls it.
std::string entered(const DriveFolder& folder, const std::string& name = {}) {
    folder.Enter(name);
    return lvx::to_lower(lvx_test::drive_path(std::filesystem::current_path().string()));
}

}  // namespace

TEST(PathPlace, the_current_directory_is_told_in_lower_case) {
    const DriveFolder folder;
    folder.AddFolder("Upper");
    const std::string expected = entered(folder, "Upper");
    EXPECT_TRUE(expected.ends_with("\\upper"));
    LVXPathString path("something");
    EXPECT_TRUE(path.asCurrent());
    EXPECT_EQ(expected, path);
    EXPECT_EQ(expected, LVXPathString::CurrentDirectory());
}

TEST(PathPlace, a_root_keeps_its_separator) {
    const KeptDirectory kept;
    std::filesystem::current_path(std::filesystem::current_path().root_path());
    const LVXPathString root = LVXPathString::CurrentDirectory();
    EXPECT_EQ(3U, root.size());
    EXPECT_EQ(":\\", root.substr(1));
}

TEST(PathPlace, the_start_directory_is_that_of_the_loading) {
    ASSERT_FALSE(at_load.empty());
    const DriveFolder folder;
    folder.Enter();
    EXPECT_EQ(at_load, LVXPathString::StartDirectory());
    EXPECT_NE(at_load, LVXPathString::CurrentDirectory());
    LVXPathString copy = LVXPathString::StartDirectory();
    copy.addName("x");
    EXPECT_EQ(at_load, LVXPathString::StartDirectory());
}

TEST(PathPlace, a_bare_name_expands_to_the_current_directory) {
    const DriveFolder folder;
    const std::string current = entered(folder);
    EXPECT_EQ(current + "\\f.txt", expanded("f.txt"));
    EXPECT_EQ(current + "\\", expanded(""));
}

TEST(PathPlace, a_base_without_a_drive_expands_by_the_drive_alone) {
    const DriveFolder folder;
    const std::string drive = drive_of(entered(folder));
    EXPECT_EQ(drive + "sub\\f", expanded("sub\\f"));
    EXPECT_EQ(drive + "\\sub\\f", expanded("\\sub\\f"));
    EXPECT_EQ(drive + "\\f", expanded("\\f"));
    EXPECT_EQ(drive + "\\", expanded("\\"));
}

TEST(PathPlace, a_directory_that_exists_expands_with_its_name_twice) {
    const DriveFolder folder;
    folder.AddFolder("sub");
    const std::string drive = drive_of(entered(folder));
    EXPECT_EQ(drive + "sub\\sub", expanded("sub"));
}

TEST(PathPlace, drive_and_base_are_left_alone) {
    for (const char* path : {"c:\\a\\f", "c:\\f", "c:sub\\f", "1:\\f", "c:\\", "c:/a\\f"}) {
        EXPECT_EQ(path, expanded(path));
    }
}

TEST(PathPlace, a_drive_without_a_base_expands_to_its_current_directory) {
    const DriveFolder folder;
    folder.Enter();
    const std::string current = lvx_test::drive_path(std::filesystem::current_path().string());
    EXPECT_EQ(current + "\\f", expanded(current.substr(0, 2) + "f"));
    EXPECT_EQ(current + "\\", expanded(current.substr(0, 2)));
}

TEST(PathPlace, a_drive_that_is_not_there_expands_to_its_root) {
    EXPECT_EQ("1:\\f", expanded("1:f"));
    EXPECT_EQ("@:\\f", expanded("@:f"));
    EXPECT_EQ("\xE4:\\f", expanded("\xE4:f"));
    EXPECT_EQ("[:\\f", expanded("[:f"));
}

TEST(PathPlace, the_current_directory_follows_a_path) {
    const DriveFolder folder;
    folder.AddFolder("sub");
    folder.AddFile("sub/f.txt");
    const std::string top = entered(folder);
    EXPECT_TRUE(LVXPathString(folder.File("sub")).setCurrent());
    EXPECT_EQ(top + "\\sub", LVXPathString::CurrentDirectory());
    EXPECT_TRUE(LVXPathString(folder.File("f")).setCurrent()) << "to the directory of a file";
    EXPECT_EQ(top, LVXPathString::CurrentDirectory());
    EXPECT_TRUE(LVXPathString("sub\\f.txt").setCurrent());
    EXPECT_EQ(top + "\\sub", LVXPathString::CurrentDirectory());
    EXPECT_TRUE(LVXPathString("..").setCurrent());
    EXPECT_EQ(top, LVXPathString::CurrentDirectory());
}

TEST(PathPlace, the_current_directory_stays_where_a_path_leads_nowhere) {
    const DriveFolder folder;
    folder.AddFolder("sub");
    const std::string top = entered(folder);
    for (const std::string& path :
         {std::string(), folder.File("missing\\f"), std::string("f"), std::string("1:\\f"),
          std::string(5000, 'd') + "\\f", folder.File("sub") + '\0', folder.File("sub\\") + '\0'}) {
        EXPECT_TRUE(LVXPathString(path).setCurrent());
        EXPECT_EQ(top, LVXPathString::CurrentDirectory()) << path;
    }
}

TEST(PathPlace, a_root_can_be_entered_by_its_path) {
    const KeptDirectory kept;
    const DriveFolder folder;
    folder.Enter();
    const std::string root = folder.Path().substr(0, 3);
    EXPECT_TRUE(LVXPathString(root).setCurrent());
    EXPECT_EQ(lvx::to_lower(root), LVXPathString::CurrentDirectory());
}

TEST(PathPlace, a_drive_that_is_there_can_be_made_the_current_one) {
    const DriveFolder folder;
    const std::string top = entered(folder);
    EXPECT_TRUE(LVXPathString(folder.File("any\\thing")).setDrive());
    EXPECT_EQ(top, LVXPathString::CurrentDirectory()) << "the drive's own directory";
    std::string small = top.substr(0, 2);
    EXPECT_TRUE(LVXPathString(small).setDrive());
    EXPECT_EQ(top, LVXPathString::CurrentDirectory());
}

TEST(PathPlace, a_drive_that_is_not_there_cannot_be_made_the_current_one) {
    const DriveFolder folder;
    const std::string top = entered(folder);
    for (const std::string& path :
         {std::string(), std::string("c"), std::string("\\c:"), std::string("1:\\"), std::string("::"),
          std::string("\\:"), std::string("\xE4:"), std::string("\0:", 2)}) {
        EXPECT_FALSE(LVXPathString(path).setDrive()) << path;
    }
    EXPECT_EQ(top, LVXPathString::CurrentDirectory());
}

TEST(PathPlace, a_temporary_file_has_a_bare_name) {
    LVXPathString path("c:\\a\\b");
    EXPECT_EQ(&path, &path.tempFile());
    ASSERT_EQ(8U, path.size());
    EXPECT_EQ(".tmp", path.substr(4));
    EXPECT_EQ(std::string::npos, path.substr(0, 4).find_first_not_of("0123456789"));
}

TEST(PathPlace, temporary_files_are_counted) {
    std::set<std::string> counts;
    std::string before = LVXPathString().tempFile().substr(2, 2);
    for (int i = 0; i < 100; ++i) {
        const std::string count = LVXPathString().tempFile().substr(2, 2);
        EXPECT_EQ((std::stoi(before) + 1) % 100, std::stoi(count));
        counts.insert(count);
        before = count;
    }
    EXPECT_EQ(100U, counts.size());
}
