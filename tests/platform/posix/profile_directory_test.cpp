#include "lvx/platform/profile_directory.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "platform/posix/restored_variable.h"

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
