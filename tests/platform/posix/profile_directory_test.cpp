#include "lvx/platform/profile_directory.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <filesystem>

#include "platform/posix/restored_variable.h"
#include "support/drive_folder.h"

namespace {

using lvx_test::RestoredVariable;

}  // namespace

TEST(UsualProfileDirectory, is_that_of_the_desktop) {
    const RestoredVariable home("HOME", "/home/ada");
    const RestoredVariable configured("XDG_CONFIG_HOME", "/home/ada/settings");
    EXPECT_EQ("/home/ada/settings", lvx::profile_directory());
}

TEST(UsualProfileDirectory, is_in_the_home_without_one) {
    const RestoredVariable home("HOME", "/home/ada");
    {
        const RestoredVariable configured("XDG_CONFIG_HOME", nullptr);
        EXPECT_EQ("/home/ada/.config", lvx::profile_directory());
    }
    const RestoredVariable configured("XDG_CONFIG_HOME", "");
    EXPECT_EQ("/home/ada/.config", lvx::profile_directory());
}

TEST(UsualProfileDirectory, is_never_relative) {
    const RestoredVariable home("HOME", "/home/ada");
    const RestoredVariable configured("XDG_CONFIG_HOME", "settings");
    EXPECT_EQ("/home/ada/.config", lvx::profile_directory());
}

TEST(UsualProfileDirectory, of_a_process_without_home_is_in_that_of_its_account) {
    const RestoredVariable home("HOME", nullptr);
    const RestoredVariable configured("XDG_CONFIG_HOME", nullptr);
    const passwd* const account = getpwuid(getuid());
    ASSERT_NE(nullptr, account);
    EXPECT_EQ(std::string(account->pw_dir) + "/.config", lvx::profile_directory());
}

TEST(UsualProfileDirectory, loses_separators_at_its_end) {
    {
        const RestoredVariable home("HOME", "/home/ada//");
        const RestoredVariable configured("XDG_CONFIG_HOME", nullptr);
        EXPECT_EQ("/home/ada/.config", lvx::profile_directory());
    }
    const RestoredVariable configured("XDG_CONFIG_HOME", "/");
    EXPECT_EQ("/", lvx::profile_directory());
    lvx::set_profile_directory("/somewhere/");
    EXPECT_EQ("/somewhere", lvx::profile_directory());
    lvx::set_profile_directory("");
}

// Settings were read here and written there when the program changed its directory in between.
TEST(ChosenProfileDirectory, does_not_move_with_the_current_directory) {
    const lvx_test::KeptDirectory kept;
    std::filesystem::current_path("/usr");
    EXPECT_TRUE(lvx::set_profile_directory("share/sketch/"));
    std::filesystem::current_path("/");
    EXPECT_EQ("/usr/share/sketch", lvx::profile_directory());
    EXPECT_TRUE(lvx::set_profile_directory(""));
}

TEST(ChosenProfileDirectory, a_name_with_a_nul_is_refused) {
    ASSERT_TRUE(lvx::set_profile_directory("/somewhere"));
    EXPECT_FALSE(lvx::set_profile_directory(std::string("/else\0where", 11)));
    EXPECT_FALSE(lvx::set_profile_directory(std::string(1, '\0')));
    EXPECT_EQ("/somewhere", lvx::profile_directory());
    EXPECT_TRUE(lvx::set_profile_directory(""));
}

TEST(ChosenProfileDirectory, a_relative_one_of_a_directory_that_is_gone_is_refused) {
    const lvx_test::KeptDirectory kept;
    const lvx_test::TempFolder folder;
    ASSERT_TRUE(lvx::set_profile_directory("/somewhere"));
    std::filesystem::create_directory(folder.File("gone"));
    std::filesystem::current_path(folder.File("gone"));
    std::filesystem::remove(folder.File("gone"));
    EXPECT_FALSE(lvx::set_profile_directory("sub"));
    EXPECT_EQ("/somewhere", lvx::profile_directory());
    EXPECT_TRUE(lvx::set_profile_directory("/else"));
    EXPECT_EQ("/else", lvx::profile_directory());
    EXPECT_TRUE(lvx::set_profile_directory(""));
}
