#include "lvx/platform/profile_directory.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/system.h"

namespace {

using lvx_test::by_system;

}  // namespace

TEST(ProfileDirectory, a_host_may_set_it_where_the_system_has_none) {
    const std::string usual = lvx::profile_directory();
    EXPECT_EQ(!lvx_test::on_windows, lvx::set_profile_directory("/somewhere/else"));
    EXPECT_EQ(by_system(usual, std::string("/somewhere/else")), lvx::profile_directory());
    EXPECT_EQ(!lvx_test::on_windows, lvx::set_profile_directory(""));
    EXPECT_EQ(usual, lvx::profile_directory());
}

TEST(ProfileDirectory, it_is_absolute_and_has_no_separator_at_its_end) {
    const std::string directory = lvx::profile_directory();
    EXPECT_TRUE(std::filesystem::path(directory).is_absolute()) << directory;
    EXPECT_TRUE(std::filesystem::path(directory).has_filename()) << directory;
}
