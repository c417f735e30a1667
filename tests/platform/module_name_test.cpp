#include "lvx/platform/module_name.h"

#include <gtest/gtest.h>

#include <string>

#include "lvx/platform/directories.h"

namespace {

std::string program() {
    char buffer[2000];
    const DWORD length = GetModuleFileNameA(GetModuleHandleA(nullptr), buffer, sizeof buffer);
    return {buffer, length};
}

}  // namespace

TEST(ModuleName, the_main_program_is_a_file_with_a_drive) {
    const std::string path = program();
    ASSERT_GT(path.size(), 3U);
    EXPECT_EQ(":\\", path.substr(1, 2));
    EXPECT_NE(std::string::npos, path.find("lvx_platform_tests")) << path;
    struct _stat64 status;
    ASSERT_EQ(0, _stat64(path.c_str(), &status));
    EXPECT_NE(0, status.st_mode & _S_IFREG);
}

TEST(ModuleName, null_is_the_main_program_too) {
    char buffer[2000];
    const DWORD length = GetModuleFileNameA(nullptr, buffer, sizeof buffer);
    EXPECT_EQ(program(), std::string(buffer, length));
    EXPECT_EQ('\0', buffer[length]);
}

TEST(ModuleName, a_path_that_does_not_fit_is_cut_to_the_size) {
    const std::string path = program();
    std::string buffer(path.size() + 1, 'x');
    const DWORD fits = static_cast<DWORD>(buffer.size());
    EXPECT_EQ(fits - 1, GetModuleFileNameA(nullptr, buffer.data(), fits));
    EXPECT_EQ(path, buffer.c_str());
    EXPECT_EQ(fits - 1, GetModuleFileNameA(nullptr, buffer.data(), fits - 1));
    EXPECT_EQ(5U, GetModuleFileNameA(nullptr, buffer.data(), 5));
    EXPECT_EQ(path.substr(0, 4), buffer.substr(0, 4));
}

TEST(ModuleName, nothing_fits_into_no_room) {
    char buffer[] = "x";
    EXPECT_EQ(0U, GetModuleFileNameA(nullptr, buffer, 0));
    EXPECT_EQ('x', buffer[0]);
}

TEST(ModuleName, there_is_no_module_of_an_unknown_name) {
    EXPECT_EQ(nullptr, GetModuleHandleA("lvx-no-such-module"));
}

TEST(ModuleName, what_is_no_module_has_no_name) {
    char buffer[2000] = "x";
    EXPECT_EQ(0U, GetModuleFileNameA(reinterpret_cast<HMODULE>(&buffer), buffer, sizeof buffer));
}
