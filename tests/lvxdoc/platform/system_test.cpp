#include "tools/lvxdoc/platform/system.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "tests/lvxdoc/support.h"

using namespace lvxdoc;

TEST(NativePath, and_the_narrow_name_are_inverse) {
    EXPECT_EQ("folder", platform::narrow_name(platform::native_path("folder")));
    EXPECT_EQ(std::filesystem::path("a") / "b", platform::native_path("a/b"));
    EXPECT_EQ("", platform::narrow_name(platform::native_path("")));
}

TEST(CreateNew, makes_a_file_and_refuses_one_that_exists) {
    const Folder folder;
    std::FILE* const file = platform::create_new(folder.Path() / "x");
    ASSERT_NE(nullptr, file);
    std::fputs("a\n", file);
    std::fclose(file);
    EXPECT_EQ("a\n", read_file(folder.Path() / "x"));
    errno = 0;
    EXPECT_EQ(nullptr, platform::create_new(folder.Path() / "x"));
    EXPECT_EQ(EEXIST, errno);
}

// On Windows an interrupt left the half-written file behind.
TEST(CreateNew, makes_a_file_that_can_be_removed_while_it_is_open) {
    const Folder folder;
    std::FILE* const file = platform::create_new(folder.Path() / "x");
    ASSERT_NE(nullptr, file);
    std::fputs("a\n", file);
    EXPECT_EQ(0, std::remove(folder.File("x").c_str()));
    std::fclose(file);
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "x"));
}

TEST(CreateNew, tells_that_a_folder_is_missing) {
    const Folder folder;
    errno = 0;
    EXPECT_EQ(nullptr, platform::create_new(folder.Path() / "none" / "x"));
    EXPECT_EQ(ENOENT, errno);
}

TEST(IsTerminal, is_false_for_a_file) {
    const Folder folder;
    std::FILE* const file = std::fopen(folder.File("x").c_str(), "wb");
    ASSERT_NE(nullptr, file);
    EXPECT_FALSE(platform::is_terminal(file));
    std::fclose(file);
}

TEST(MakeBinary, keeps_line_ends) {
    const Folder folder;
    std::FILE* const file = std::fopen(folder.File("x").c_str(), "w");
    ASSERT_NE(nullptr, file);
    platform::make_binary(file);
    std::fputs("a\n", file);
    std::fclose(file);
    EXPECT_EQ("a\n", read_file(folder.Path() / "x"));
}

TEST(ProcessNumber, stays_the_same) {
    EXPECT_EQ(platform::process_number(), platform::process_number());
    EXPECT_NE(0u, platform::process_number());
}

TEST(IsBrokenPipe, knows_its_error_from_others) {
    EXPECT_TRUE(platform::is_broken_pipe(EPIPE));
    EXPECT_FALSE(platform::is_broken_pipe(ENOSPC));
}
