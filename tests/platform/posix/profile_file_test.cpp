#include "lvx/platform/posix/profile_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "lvx/platform/posix/file_descriptor.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

namespace {

using namespace lvx::platform;
using lvx_test::TempFolder;

ProfileFile::State state_of(const std::string& name) {
    const ProfileFile file(AT_FDCWD, name.c_str());
    EXPECT_TRUE(file.Bytes().empty());
    return file.GetState();
}

}  // namespace

TEST(ProfileFile, all_bytes_are_read) {
    const TempFolder folder;
    const std::string content("a\0\r\n\xFF", 5);
    lvx_test::write_file(folder.File("f"), content);
    const ProfileFile file(AT_FDCWD, folder.File("f").c_str());
    EXPECT_EQ(ProfileFile::Read, file.GetState());
    EXPECT_EQ(content, file.Bytes());
}

TEST(ProfileFile, a_name_counts_from_the_directory_that_is_given) {
    const TempFolder folder;
    lvx_test::write_file(folder.File("f"), "x");
    const FileDescriptor directory(open(folder.Path().c_str(), O_RDONLY | O_DIRECTORY));
    EXPECT_EQ("x", ProfileFile(directory.Number(), "f").Bytes());
}

TEST(ProfileFile, an_empty_file_is_read) {
    const TempFolder folder;
    lvx_test::write_file(folder.File("f"), "");
    EXPECT_EQ(ProfileFile::Read, state_of(folder.File("f")));
}

TEST(ProfileFile, what_is_not_there_is_missing) {
    const TempFolder folder;
    lvx_test::write_file(folder.File("f"), "");
    EXPECT_EQ(ProfileFile::Missing, state_of(folder.File("none")));
    EXPECT_EQ(ProfileFile::Missing, state_of(folder.File("f/below")));
    EXPECT_EQ(ProfileFile::Missing, state_of(""));
}

TEST(ProfileFile, what_is_no_file_is_unreadable_and_nobody_waits) {
    const TempFolder folder;
    ASSERT_EQ(0, mkfifo(folder.File("pipe").c_str(), 0600));
    EXPECT_EQ(ProfileFile::Unreadable, state_of(folder.File("pipe")));
    EXPECT_EQ(ProfileFile::Unreadable, state_of(folder.Path()));
    EXPECT_EQ(ProfileFile::Unreadable, state_of("/dev/null"));
    EXPECT_EQ(ProfileFile::Unreadable, state_of(std::string(300, 'n')));
}

TEST(ProfileFile, files_up_to_64_mib_are_settings) {
    const TempFolder folder;
    lvx_test::write_file(folder.File("f"), "x");
    std::filesystem::resize_file(folder.File("f"), largest_profile);
    EXPECT_EQ(largest_profile, ProfileFile(AT_FDCWD, folder.File("f").c_str()).Bytes().size());
    std::filesystem::resize_file(folder.File("f"), largest_profile + 1);
    EXPECT_EQ(ProfileFile::Unreadable, state_of(folder.File("f")));
}
