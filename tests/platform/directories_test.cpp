#include "lvx/platform/directories.h"

#include <gtest/gtest.h>

#include "support/drive_folder.h"

namespace {

using lvx_test::DriveFolder;
using lvx_test::KeptDirectory;

/// The kind that _stat64 tells; 0 if it finds nothing.
int kind_of(const std::string& path) {
    struct _stat64 status;
    return _stat64(path.c_str(), &status) == 0 ? status.st_mode & (_S_IFDIR | _S_IFREG) : 0;
}

bool is_there(const std::string& path) {
    return _access(path.c_str(), 0) == 0;
}

std::string current() {
    char directory[500] = "none";
    return _getcwd(directory, sizeof directory) == directory ? directory : "none";
}

/// The current directory of a drive; "none" if it is not told.
std::string current_of(char letter) {
    char directory[lvx::platform::longest_drive_directory] = "left";
    const int result = lvx::platform::_getcurdir(letter - '@', directory);
    EXPECT_TRUE(result == 0 || directory == std::string("left"));
    return result == 0 ? directory : "none";
}

}  // namespace

TEST(Directories, kinds_are_told_by_their_bits) {
    const DriveFolder folder;
    folder.AddFile("f");
    EXPECT_EQ(0x8000, kind_of(folder.File("f")));
    EXPECT_EQ(0x4000, kind_of(folder.Path()));
    EXPECT_EQ(0, kind_of(folder.File("missing")));
}

TEST(Directories, nothing_stands_at_a_separator_but_a_root) {
    const DriveFolder folder;
    EXPECT_EQ(0, kind_of(folder.Path() + "\\"));
    EXPECT_EQ(0, kind_of(folder.Path() + "/"));
    EXPECT_EQ(0x4000, kind_of(folder.Path().substr(0, 3)));
    EXPECT_EQ(0, kind_of(folder.Path().substr(0, 2)));
    EXPECT_EQ(0x4000, kind_of("\\"));
    EXPECT_EQ(0, kind_of(""));
}

TEST(Directories, what_is_there_is_there_with_a_separator_if_it_is_a_directory) {
    const DriveFolder folder;
    folder.AddFile("f");
    EXPECT_TRUE(is_there(folder.Path() + "\\"));
    EXPECT_TRUE(is_there(folder.Path().substr(0, 2)));
    EXPECT_TRUE(is_there(folder.File("f")));
    EXPECT_FALSE(is_there(folder.File("f\\")));
    EXPECT_FALSE(is_there(""));
    EXPECT_FALSE(is_there("1:\\"));
    EXPECT_FALSE(is_there("\\\\lvx-no-server\\x"));
}

TEST(Directories, the_current_directory_is_told_if_it_fits) {
    const DriveFolder folder;
    folder.Enter();
    const std::string whole = current();
    ASSERT_EQ(':', whole.at(1));
    std::string buffer(whole.size() + 1, 'x');
    EXPECT_EQ(buffer.data(), _getcwd(buffer.data(), static_cast<int>(buffer.size())));
    EXPECT_STREQ(whole.c_str(), buffer.c_str());
    EXPECT_EQ(nullptr, _getcwd(buffer.data(), static_cast<int>(whole.size())));
}

TEST(Directories, a_change_moves_the_current_directory) {
    const DriveFolder folder;
    folder.AddFolder("sub");
    folder.AddFile("f");
    folder.Enter();
    const std::string top = current();
    EXPECT_EQ(0, _chdir("sub"));
    EXPECT_EQ(top + "\\sub", current());
    EXPECT_EQ(-1, _chdir("missing"));
    EXPECT_EQ(-1, _chdir("..\\f"));
    EXPECT_EQ(-1, _chdir(""));
    EXPECT_EQ(top + "\\sub", current());
    EXPECT_NE(0, SetCurrentDirectoryA(folder.Path().c_str()));
    EXPECT_EQ(0, SetCurrentDirectoryA("1:"));
    EXPECT_EQ(top, current());
}

TEST(Directories, a_drives_directory_has_neither_drive_nor_root) {
    const DriveFolder folder;
    folder.Enter();
    EXPECT_EQ(current().substr(3), current_of(current()[0]));
    const KeptDirectory kept;
    ASSERT_EQ(0, _chdir(folder.Path().substr(0, 3).c_str()));
    EXPECT_EQ("", current_of(current()[0]));
}

TEST(Directories, only_letters_are_drives) {
    for (const char letter : {'@', '[', '1', '\0', '\xE4'}) {
        EXPECT_EQ("none", current_of(letter)) << letter;
    }
    char directory[lvx::platform::longest_drive_directory];
    EXPECT_EQ(-1, lvx::platform::_getcurdir(-2'000'000'000, directory));
    EXPECT_EQ(-1, lvx::platform::_getcurdir(2'000'000'000, directory));
}

TEST(Directories, the_type_of_a_drive_tells_whether_it_is_there) {
    EXPECT_GT(GetDriveTypeA("C:\\"), 1U);
    EXPECT_GT(GetDriveTypeA("c:\\"), 1U);
    EXPECT_LE(GetDriveTypeA("1:\\"), 1U);
    EXPECT_LE(GetDriveTypeA("::\\"), 1U);
    EXPECT_LE(GetDriveTypeA(""), 1U);
}
