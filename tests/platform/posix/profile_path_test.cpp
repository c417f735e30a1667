#include "lvx/platform/posix/profile_path.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "lvx/platform/profile_directory.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

namespace {

using namespace lvx::platform;
using lvx_test::TempFolder;

class ProfilePaths : public ::testing::Test {
protected:
    ProfilePaths() { lvx::set_profile_directory("/profiles"); }
    ~ProfilePaths() override { lvx::set_profile_directory(""); }
};

}  // namespace

TEST_F(ProfilePaths, a_bare_name_lies_in_the_profile_directory) {
    EXPECT_EQ("/profiles/Tool.INI", profile_path("Tool.INI").path);
    EXPECT_TRUE(profile_path("Tool.INI").in_profile_directory);
    EXPECT_EQ("/profiles/a b", profile_path("a b").path);
}

TEST_F(ProfilePaths, a_path_lies_where_it_says) {
    EXPECT_EQ("/etc/tool.ini", profile_path("C:\\etc\\tool.ini").path);
    EXPECT_FALSE(profile_path("C:\\etc\\tool.ini").in_profile_directory);
    EXPECT_EQ("/etc/tool.ini", profile_path("/etc/tool.ini").path);
    EXPECT_EQ("tool.ini", std::filesystem::path(profile_path(".\\tool.ini").path).filename());
    EXPECT_FALSE(profile_path(".\\tool.ini").in_profile_directory);
    EXPECT_FALSE(profile_path("c:tool.ini").in_profile_directory);
}

TEST_F(ProfilePaths, what_names_no_place_is_empty) {
    EXPECT_EQ("", profile_path(nullptr).path);
    EXPECT_EQ("", profile_path("").path);
    EXPECT_EQ("", profile_path("Q:\\tool.ini").path);
}

TEST(BehindLinks, a_link_leads_to_its_file) {
    const TempFolder folder;
    lvx_test::write_file(folder.File("f"), "");
    std::filesystem::create_symlink("f", folder.File("relative"));
    std::filesystem::create_symlink(folder.File("relative"), folder.File("absolute"));
    EXPECT_EQ(folder.File("f"), behind_links(folder.File("absolute")));
    EXPECT_EQ(folder.File("f"), behind_links(folder.File("f")));
}

TEST(BehindLinks, it_may_lead_to_a_file_that_is_not_there) {
    const TempFolder folder;
    std::filesystem::create_symlink("none/f", folder.File("link"));
    EXPECT_EQ(folder.File("none/f"), behind_links(folder.File("link")));
    EXPECT_EQ(folder.File("none"), behind_links(folder.File("none")));
    EXPECT_EQ("", behind_links(""));
}

TEST(BehindLinks, a_circle_leads_nowhere) {
    const TempFolder folder;
    std::filesystem::create_symlink("b", folder.File("a"));
    std::filesystem::create_symlink("a", folder.File("b"));
    EXPECT_EQ("", behind_links(folder.File("a")));
}
